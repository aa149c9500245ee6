// "show lun_statistics": a table of the cache hits, data read and cache
// used of one LUN or of every LUN of the adapter, once or refreshed every
// -interval seconds, with one CSV file per LUN (-csv_folder).
#pragma once

#include <string>
#include <vector>

#include "core/TokenCmd.h"
#include "statistics/IoStatData.h"
#include "statistics/StatisticsLoop.h"

class CmdLunStatisticsShow : public TokenCmd {
public:
    CmdLunStatisticsShow();

    int execCommand(std::string& err) override;

    std::string displayTitleText() const;
    // With `showAverage` each share is followed by "/" and the share of the
    // totals.
    std::string displayRowText(bool showAverage, IoStatData const& data, KLunIoStatistics const& sample) const;
    // Appends the cycle's row to the LUN's file in `folder`.
    bool writeCsvFile(std::string const& folder, PLunID const& lun, IoStatData const& data,
                      KLunIoStatistics const& sample, std::string& err) const;

    // "lun<number>vpg<index>_<target>.csv"
    static std::string csvFileName(PLunID const& lun);

private:
    std::vector<IoStatData> selectLuns(HIsaAdapter& adapter, std::vector<PLunID> const& ids) const;
    std::string onceText(HIsaAdapter& adapter, std::vector<IoStatData>& luns, int& lastResult) const;
    int cycle(StatisticsLoop::Cycle& cycle, HIsaAdapter& adapter, std::vector<IoStatData>& luns,
              std::string const& folder, std::string& err) const;
};
