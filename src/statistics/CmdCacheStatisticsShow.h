// "show cache_statistics": the adapter's host IO, cache counters, per-LUN
// cache and their analysis, once or every -interval seconds, with the
// changes since the previous cycle (-delta) and CSV files of each cycle
// (-csv_folder).
#pragma once

#include <string>

#include "core/TokenCmd.h"
#include "statistics/CacheStatisticsSample.h"
#include "statistics/StatisticsLoop.h"

class CmdCacheStatisticsShow : public TokenCmd {
public:
    CmdCacheStatisticsShow();

    int execCommand(std::string& err) override;

private:
    void init_member();
    // The four sections of the single view.
    std::string onceText() const;
    int cycle(StatisticsLoop::Cycle& cycle, HIsaAdapter& adapter, unsigned interval, bool delta, std::string& err);
    // The text of a cycle whose sample is complete; writes the CSV files.
    int showSample(std::string& text, HIsaAdapter& adapter, unsigned interval, bool delta, std::string& err);

    // The folder of this run's CSV files; empty when none are written. Like
    // the keywords, it stays with the command from one run to the next.
    std::string csvFolder;
    // The cycle's sample, and that of the last cycle shown: the changes are
    // taken against it, so a cycle that shows nothing leaves it as it was.
    CacheStatisticsSample current;
    CacheStatisticsSample previous;
    bool first = true;
};
