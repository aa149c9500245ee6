// The four CSV files of a cache statistics run, one row per cycle, laid out
// from the cycle's model: every counter of the table, the host IO record,
// the per-LUN values in bytes, and a summary of the whole view with sizes in
// MB. The files hold raw figures of the cycle, never differences.
#pragma once

#include <string>
#include <vector>

#include "statistics/CacheStatisticsModel.h"

class CacheStatisticsCsv {
public:
    // `folder` is the folder of this run.
    CacheStatisticsCsv(CacheStatisticsModel const& model, std::string const& folder) : model(model), folder(folder) {}

    // The four files in their order; false, with the reason in `err`, at
    // the first that cannot be written. `first` starts the files anew.
    bool writeFiles(std::string const& adapterId, bool first, std::string& err) const;

    bool writeCsvFile(std::string const& adapterId, KCacheInfoList const& counters, bool first, std::string& err) const;
    bool writeHostPcieCsvFile(std::string const& adapterId, KHostPcieInfo const& host, bool first,
                              std::string& err) const;
    bool writeLunCacheCsvFile(std::string const& adapterId, bool first, std::string& err) const;
    bool writeCacheStatisticsCsvFile(std::string const& adapterId, KHostPcieInfo const& host, bool first,
                                     std::string& err) const;

    // The title line of the summary file for this many LUNs and mirror LUNs.
    static std::string summaryTitle(std::size_t luns, std::size_t mirrorLuns);
    // The title line of the LUN file.
    static std::string lunCacheTitle(std::size_t luns, std::size_t mirrorLuns);

private:
    // Each LUN's values, ended by the end mark, behind the two totals; and
    // the mirror LUNs' values likewise. In MB for the summary, else bytes.
    std::vector<double> lunValues(bool inMegabytes) const;
    std::vector<double> mirrorLunValues(bool inMegabytes) const;
    std::vector<std::string> lunNames() const;
    std::vector<std::string> mirrorLunNames() const;
    std::vector<double> summaryValues(KHostPcieInfo const& host) const;

    CacheStatisticsModel const& model;
    std::string folder;
};
