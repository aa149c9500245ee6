#include "commands/adapter/CmdAdapterFactoryReset.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_FACTORY_RESET, CmdItem::ITEM_ADAPTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_ACCEPT_RISK, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    endRow(),
};

} // namespace

CmdAdapterFactoryReset::CmdAdapterFactoryReset()
{
    declareCommand(*this, rows);
    helpTitle = "Factory_Reset Adapter";
    helpDescription = "Erases all persistent settings of the adapter and returns them to factory defaults. Data on the "
                      "drives is not changed.";
    helpSyntax = "\t[-accept_risk]\n" + adapterSyntax();
    helpModifiers = "-accept_risk\n"
                    "\tReset without asking for confirmation.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -accept_risk";
    helpNotes = "The adapter must be restarted (\"restart adapter\") for the reset to take effect.";
}

int CmdAdapterFactoryReset::execCommand(std::string& err)
{
    AddressedAdapter target;
    if (int const rc = findAddressedAdapter(*this, target, err))
        return rc;
    TokenModifierString const* const acceptRisk = findModifier(ModifierId::MODIFIER_ACCEPT_RISK, err);
    if (!acceptRisk)
        return ZEKCLI_PARSE_FAIL;
    if (!keywordGiven(acceptRisk) &&
        !confirmRisk("All persistent settings will be erased, (data on drives will not be changed)  Are you sure you "
                     "want to reset the persistent settings for this adapter [yes/no]? "))
        return ZEKCLI_CONFIRM_FAIL;

    e_MHBA_RETURN const rc = target.adapter->factoryReset(0);
    if (rc > MHBA_S_OK_REBOOT_REQUIRED)
        return rc;
    // The reset has happened; should the output fail, this is what the user
    // must still learn.
    std::string const done = target.path.displayText() + " is resetting to factory defaults";
    CommandReport report;
    report.text = "Reset successful -- 'restart adapter' is required for changes to take effect";
    report.resultCode = rc;
    std::string outputErr;
    int const outcome = finishCommand(*this, target.adapter, report, outputErr);
    err = outcome == 0 ? std::string() : done;
    return outcome;
}
