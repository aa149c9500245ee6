#include "commands/log/CmdLogClear.h"

#include "api/HIsaAdapter.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_CLEAR, CmdItem::ITEM_LOG, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdLogClear::CmdLogClear()
{
    declareCommand(*this, rows);
    helpTitle = "Clear Log";
    helpDescription = "Clears the event log of the adapter.";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
}

int CmdLogClear::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    if (int const rc = addressed.adapter->clearLog())
        return rc;
    CommandReport report;
    report.text = "Log on the Fibre Channel Adapter successfully cleared";
    return finishCommand(*this, addressed.adapter, report, err);
}
