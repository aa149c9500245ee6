// Statistics of the simulated SAN. There is no I/O to count, so every figure
// comes from a steady workload per LUN and adapter, scaled by the time since
// the counters were last cleared: the numbers move with the clock, repeat
// exactly under a pinned clock, and restart from zero when cleared. An
// adapter or LUN whose scenario pins its statistics (PinnedStatistics.h)
// answers those instead.
#pragma once

#include "model/San.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace sim {

struct LunLoad {
    u64 readCount = 0, writeCount = 0, readBlocks = 0, writeBlocks = 0;
    u64 readHitBytes = 0, writeHitBytes = 0;
    u64 readBytes = 0, writtenBytes = 0; // by the hosts
    u64 cleanBytes = 0, dirtyBytes = 0, lockedBytes = 0;
    u32 readHitPercent = 0, writeHitPercent = 0; // hundredths
};

LunLoad lunLoad(const San& san, const Lun& lun, const Adapter& viewer, long long now);

struct AdapterCacheFigures {
    u64 totalCapacity = 0, usedCapacity = 0, readData = 0, writeLoadHits = 0, readLoadHits = 0;
    u32 usedPercentA = 0, usedPercentB = 0, readLoadPercent = 0, writeLoadPercent = 0;
};

AdapterCacheFigures adapterCacheFigures(const San& san, const Adapter& a, long long now);
std::array<u32, 26> hostPcieFigures(const San& san, const Adapter& a, long long now);
std::vector<std::pair<std::string, long long>> cacheCounters(const San& san, const Adapter& a, long long now);

} // namespace sim
