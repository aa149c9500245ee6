// What the adapter reports in one cycle of the cache statistics: its host IO
// record, its counter table, its cache pool, and the LUNs whose cache it
// holds or mirrors. Read as it is; the figures derived from it are the
// model's (CacheStatisticsModel.h).
#pragma once

#include <vector>

#include "records/KHostPcieInfo.h"
#include "records/KLunInfo.h"
#include "records/KLunIoStatistics.h"
#include "records/KPoolInfo.h"
#include "statistics/KCacheInfoList.h"

class HIsaAdapter;

// A LUN that this adapter caches: its record (with the cache settings
// inside) and its counters.
struct CachedLunSample {
    KLunInfo info;
    KLunIoStatistics io;

    KLunCacheInfo const& cache() const { return info.cacheInfo; }
    KLunCacheStatistics const& statistics() const { return io.cacheStatistics; }
};

struct CacheStatisticsSample {
    KHostPcieInfo hostPcie;
    KCacheInfoList counters;
    KPoolInfo pool;
    std::vector<CachedLunSample> luns; // once each, by the first path found
    std::vector<KLunInfo> mirrorLuns;  // cached on a peer adapter and mirrored here

    // Asks the adapter for everything. The host IO record and the counter
    // table keep what they held when the library does not answer; the
    // result is that of the pool, the one a cycle depends on.
    int read(HIsaAdapter& adapter);

    // The LUN lists anew: LUNs this adapter caches, and LUNs a peer caches
    // with a mirror. 0, the failure of gathering the targets or their LUNs,
    // 1206 when the adapter sees no LUN, or else the result of the last LUN
    // asked about.
    int getLunCacheInfo(HIsaAdapter& adapter);
};
