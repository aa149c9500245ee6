#include "statistics/CmdCacheStatisticsShow.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_CACHE_STATISTICS, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_INTERVAL, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_CSV_FOLDER, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_DELTA, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    endRow(),
};

} // namespace

CmdCacheStatisticsShow::CmdCacheStatisticsShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Cache Statistics";
    helpDescription = "Displays cache statistics";
    helpSyntax = "\t[-interval=<seconds>]\n"
                 "\t[-csv_folder=<folder>]\n"
                 "\t[-delta]\n" +
        adapterSyntax();
    helpModifiers = "-interval=<seconds>\n"
                    "\tRepeat every so many seconds, 0 to 100000, until interrupted\n"
                    "\twith Ctrl-C. 0 or not given shows the figures once.\n"
                    "-csv_folder=<folder>\n"
                    "\tWith -interval, also append the figures to CSV files in a new\n"
                    "\tfolder of this run under this folder.\n"
                    "-delta\n"
                    "\tShow the change of each figure since the previous interval.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -interval=10 -delta -csv_folder=stats";
}

int CmdCacheStatisticsShow::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
