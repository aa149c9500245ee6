#include "statistics/CmdLunStatisticsShow.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_LUN_STATISTICS, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_INTERVAL, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    LUN_SELECTOR_ROWS,
    keywordRow(ModifierId::MODIFIER_CSV_FOLDER, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    endRow(),
};

} // namespace

CmdLunStatisticsShow::CmdLunStatisticsShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show LUN_Statistics";
    helpDescription =
        "Displays statistics in a tabular format for either a single LUN or for all LUNs known to the Fibre "
        "Channel Adapter.";
    helpSyntax = "\t[-interval=<seconds>]\n" + lunSelectorSyntax() +
        "\n"
        "\t[-csv_folder=<folder>]\n" +
        adapterSyntax();
    helpModifiers = "-interval=<seconds>\n"
                    "\tRefresh the table every so many seconds, 0 to 100000, until\n"
                    "\tinterrupted with Ctrl-C. 0 or not given shows it once.\n" +
        lunSelectorHelp() +
        "\n"
        "-csv_folder=<folder>\n"
        "\tAlso append the figures of each LUN to a CSV file in this folder,\n"
        "\twhich must exist.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -interval=10 -csv_folder=stats";
}

int CmdLunStatisticsShow::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
