#include "statistics/CmdStatisticsShow.h"

#include "api/HIsaAdapter.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "records/KCacheStatistics.h"
#include "records/KHostPcieInfo.h"
#include "records/RecordImage.h"
#include "statistics/StatisticsLoop.h"

#include <vector>

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_STATISTICS, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_INTERVAL, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

// Both records of the adapter; the first code that is not 0 is returned.
int readRecords(HIsaAdapter& adapter, KCacheStatistics& cache, KHostPcieInfo& host)
{
    if (int const rc = adapter.getAdapterStatistics(cache))
        return rc;
    return adapter.getStatistics(host);
}

std::string viewText(KCacheStatistics const& cache, KHostPcieInfo const& host)
{
    return host.displayText2() + "\n" + cache.displayText();
}

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
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    unsigned interval = 0;
    if (int const rc = StatisticsLoop::readInterval(*this, interval, err))
        return rc;
    HIsaAdapter& adapter = *addressed.adapter;
    KCacheStatistics cache;
    KHostPcieInfo host;
    std::vector<unsigned char> image;
    return StatisticsLoop(*this, adapter, interval)
        .run(
            [&](CommandReport& report, std::string&) {
                if (int const rc = readRecords(adapter, cache, host))
                    return rc;
                // Only the single view passes the record on, as the same bytes in
                // every process.
                report.text = viewText(cache, host);
                image = recordImage(cache);
                report.data = image.data();
                report.size = image.size();
                return 0;
            },
            [&](StatisticsLoop::Cycle& cycle) {
                if (int const rc = readRecords(adapter, cache, host))
                    return rc;
                cycle.out.line(viewText(cache, host) + cycle.clockLine());
                return StatisticsLoop::kNextCycle;
            },
            err);
}
