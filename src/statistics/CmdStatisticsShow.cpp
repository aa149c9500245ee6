#include "statistics/CmdStatisticsShow.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_STATISTICS, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_INTERVAL, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdStatisticsShow::CmdStatisticsShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Statistics";
    helpDescription = "Displays cache statistics";
    helpSyntax = "\t[-interval=<seconds>]\n" + adapterSyntax();
    helpModifiers = "-interval=<seconds>\n"
                    "\tRepeat every so many seconds, 0 to 100000, until interrupted\n"
                    "\twith Ctrl-C.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -interval=5";
    helpResultFile = recordResultHelp("KCacheStatistics", 96);
}

int CmdStatisticsShow::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
