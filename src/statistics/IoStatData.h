// The LUN statistics of one selected LUN: what the command keeps of it from
// cycle to cycle, and the figures of one row computed once from a sample,
// for the table and for the LUN's CSV file alike.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "records/KLunIoStatistics.h"
#include "records/PUniqueID.h"

class KLunInfo;

struct IoStatData {
    uint8_t wwuln[256] = {};
    uint32_t wwulnLength = 0;
    bool cached = false; // a SAN LUN that is cached
    PLunID lunId;
    PTargetID targetId;
    KLunIoStatistics previous; // the sample of the previous cycle
    uint64_t samples = 0;      // changes summed into the totals
    uint64_t totalReadBytes = 0;
    uint64_t totalReadHits = 0;
    uint64_t totalWriteHits = 0;

    IoStatData(PLunID const& id, KLunInfo const& info);

    // A cycle's change of a cached LUN goes into the totals. Its cache
    // counters are the adapter's running figures, not changes, so the
    // totals sum those.
    void addChange(KLunIoStatistics const& change);
};

// The figures of one row of a LUN.
struct LunStatisticsRow {
    LunStatisticsRow(IoStatData const& data, KLunIoStatistics const& sample);

    // Hit shares of the data read, in hundredths of a percent: this
    // sample's, and the same from the totals.
    uint32_t readHits, writeHits, allHits;
    uint32_t averageReadHits, averageWriteHits, averageAllHits;
    unsigned long long readBytes; // by the read blocks
    unsigned long long usedBytes; // clean, dirty and locked

    // The 15 values of a CSV row, in whole percents.
    static std::vector<double> csvValues(IoStatData const& data, KLunIoStatistics const& sample);
};
