// Statistics that a scenario pins. Without them an adapter's and a LUN's
// figures come from the steady workload of Workload.h; with them the
// simulator answers exactly what the scenario says, so that a test can
// compare a statistics view byte for byte and make a counter grow at a
// chosen pace.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace sim {

// One pinned figure: its value when the counters were last cleared, and how
// much it grows each second after that. Written as a plain number when it
// does not grow, else as {"perSecond": r, "value": v}.
struct PinnedFigure {
    long long value = 0;
    long long perSecond = 0;

    // The figure `seconds` after the counters were cleared; it wraps at 64
    // bits as the adapter's counters do.
    long long at(long long seconds) const;
    bool operator==(const PinnedFigure&) const = default;
};

// One named counter of the adapter's counter table, written as
// [name, value] or [name, value, perSecond].
struct PinnedCounter {
    std::string name;
    PinnedFigure figure;
    bool operator==(const PinnedCounter&) const = default;
};

// The figures of the adapter's cache summary record.
struct PinnedAdapterFigures {
    PinnedFigure totalCapacity, usedCapacity, readData, writeLoadHits, readLoadHits;
    PinnedFigure usedPercentFirst, usedPercentSecond, readLoadPercent, writeLoadPercent;
    bool operator==(const PinnedAdapterFigures&) const = default;
};

// Everything an adapter reports about its cache and host IO. A part left
// out of the scenario reads as zeros (no counters, a zero host IO record).
struct FixedStatistics {
    std::vector<PinnedCounter> counters; // in the order the adapter reports them
    std::vector<long long> hostPcie;     // the 26 host IO fields, in record order
    PinnedAdapterFigures adapter;
    bool operator==(const FixedStatistics&) const = default;
};

// The I/O and cache counters of one LUN, the same for every adapter that
// sees it.
struct FixedIoStatistics {
    PinnedFigure readCount, writeCount, readBlocks, writeBlocks;
    PinnedFigure readHitPercent, writeHitPercent; // hundredths of a percent
    PinnedFigure totalRead, totalWritten, writeHitBytes, readHitBytes;
    PinnedFigure cleanBytes, dirtyBytes, lockedBytes;
    bool operator==(const FixedIoStatistics&) const = default;
};

// The adapter keeps the names of its counters in 32 characters.
inline constexpr std::size_t kLongestCounterName = 32;
// It reports at most this many counters; a longer list is cut.
inline constexpr std::size_t kMostCounters = 256;
inline constexpr std::size_t kHostPcieFields = 26;

// Empty when the pinned figures can be reported, else what is wrong with
// them, for the scenario check to name.
std::string pinnedStatisticsProblem(const FixedStatistics& fixed);

} // namespace sim
