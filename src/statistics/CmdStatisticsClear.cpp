#include "statistics/CmdStatisticsClear.h"

#include "api/HIsaAdapter.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_CLEAR, CmdItem::ITEM_STATISTICS, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdStatisticsClear::CmdStatisticsClear()
{
    declareCommand(*this, rows);
    helpTitle = "Clear Statistics";
    helpDescription = "Resets cache statistics to zero";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
}

int CmdStatisticsClear::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    if (int const rc = addressed.adapter->clearAdapterStatistics())
        return rc;
    CommandReport report;
    report.text = "Cache statistics have been reset to zero.\n";
    return finishCommand(*this, addressed.adapter, report, err);
}
