#include "commands/adapter/CmdAdapterSet.h"

#include "scripting/ScriptSections.h"
#include <cstring>

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterInfo.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SET, CmdItem::ITEM_ADAPTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_NAME, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdAdapterSet::CmdAdapterSet()
{
    declareCommand(*this, rows);
    helpTitle = "Set Adapter";
    helpDescription = "Sets the symbolic name of the adapter.";
    helpSyntax = "\t[-name=<name>]\n" + adapterSyntax();
    helpModifiers = "-name=<name>\n"
                    "\tNew symbolic name: blank, or at most 63 characters.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -name=rack4_hba0";
    helpNotes = "A name change may need \"restart adapter\" to take effect.";
}

int CmdAdapterSet::execCommand(std::string& err)
{
    AddressedAdapter target;
    KIsaAdapterInfo info;
    if (int const rc = findAdapterAndInfo(*this, target, info, err))
        return rc;
    TokenModifierString const* const name = findModifier(ModifierId::MODIFIER_NAME, err);
    if (!name)
        return ZEKCLI_PARSE_FAIL;

    CommandReport report;
    report.banner = false;
    if (keywordGiven(name)) {
        // The library knows the limits of a name; the length is its to check.
        e_MHBA_RETURN const rc = target.adapter->setSymbolicName(name->value.c_str(), name->value.size());
        if (rc > MHBA_S_OK_REBOOT_REQUIRED)
            return rc;
        report.resultCode = rc;
        report.text = "Adapter symbolic name set successfully";
        if (rc == MHBA_S_OK_REBOOT_REQUIRED)
            report.text += ", but 'restart adapter' is required for changes to take effect";
    }
    return finishCommand(*this, target.adapter, report, err);
}

int CmdAdapterSet::saveScript(HIsaAdapter*, FILE* file, std::string const&, std::string const&,
                              KIsaAdapterInfo const& info, std::string& err)
{
    std::string const name(info.symbolicName, strnlen(info.symbolicName, sizeof info.symbolicName));
    if (name.empty())
        return 0;
    // The name goes back through the words of "set fc", which is how an
    // adapter's name has always been written in these scripts.
    std::string const line = scriptCommandWords(CmdAction::ACTION_SET, CmdItem::ITEM_FC) + " -name=\"" + name + "\"\n";
    return outScript(file, line, err) ? 0 : ZEKCLI_OUTPUT_FAIL;
}
