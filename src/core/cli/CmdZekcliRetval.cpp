#include "core/cli/CmdZekcliRetval.h"

#include <cstdlib>

#include "api/HbaMgmtApi.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandDeclaration.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_RETVAL, CmdItem::ITEM_CLI, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_RV, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdZekcliRetval::CmdZekcliRetval()
{
    declareCommand(*this, rows);
    helpTitle = "Return Value";
    helpDescription = "Explains a return value of a CLI command. The CLI's own values are explained in words "
                      "and given back as the return value of this command, so that a script can test them; "
                      "any other value is explained by the management library.";
    helpSyntax = "\t-rv=<return value>";
    helpModifiers = "-rv=<return value>\n"
                    "\tThe return value of an earlier CLI command, in decimal.\n";
    helpExamples = ugCommandPrompt() + "-rv=52\n" + ugCommandPrompt() + "-rv=1005\n";
    helpResultFile = "";
    helpNotes = "";
}

// The explanation travels as the failure text, so the frame shows it exactly
// when the value stands for a failure.
int CmdZekcliRetval::execCommand(std::string& err)
{
    TokenModifierString const* const rv = findModifier(ModifierId::MODIFIER_RV, err);
    if (!rv)
        return ZEKCLI_PARSE_FAIL;
    if (rv->isDefault)
        return ZEKCLI_OK;
    long const code = strtol(rv->value.c_str(), nullptr, 10);
    if (char const* const text = zekcliReturnValueText(code)) {
        err = text;
        return static_cast<int>(code);
    }
    int const apiCode = static_cast<int>(code);
    err = "CLI return value \"" + std::to_string(apiCode) + "\" ==> " + g_pHbaMgmtApi->returnCodeToText(apiCode);
    return g_pHbaMgmtApi->isFailure(apiCode) ? ZEKCLI_CMD_FAIL : ZEKCLI_OK;
}
