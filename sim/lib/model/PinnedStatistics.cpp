#include "model/PinnedStatistics.h"

namespace sim {

long long PinnedFigure::at(long long seconds) const
{
    // Unsigned arithmetic: a counter that runs past 64 bits wraps, as on the
    // adapter, instead of overflowing.
    std::uint64_t const grown = static_cast<std::uint64_t>(perSecond) * static_cast<std::uint64_t>(seconds);
    return static_cast<long long>(static_cast<std::uint64_t>(value) + grown);
}

std::string pinnedStatisticsProblem(const FixedStatistics& fixed)
{
    for (const PinnedCounter& counter : fixed.counters)
        if (counter.name.size() > kLongestCounterName)
            return "counter name \"" + counter.name + "\" is longer than 32 characters";
    if (!fixed.hostPcie.empty() && fixed.hostPcie.size() != kHostPcieFields)
        return "hostPcie has " + std::to_string(fixed.hostPcie.size()) + " numbers, not 26";
    for (long long field : fixed.hostPcie)
        if (field < 0 || field > 0xFFFFFFFFll)
            return "hostPcie number " + std::to_string(field) + " is not an unsigned 32-bit number";
    return std::string();
}

} // namespace sim
