#include "statistics/CacheStatisticsModel.h"

#include <cstring>

namespace {

using Figure = CacheStatisticsModel::Figure;

long long wrappingSubtract(long long a, long long b)
{
    return static_cast<long long>(static_cast<unsigned long long>(a) - static_cast<unsigned long long>(b));
}

// A counter the adapter does not report reads as a fresh one: 0.
KCacheInfo lookUp(KCacheInfoList const& list, char const* name)
{
    KCacheInfo counter;
    list.findItem(name, std::strlen(name) + 1, counter);
    return counter;
}

std::string wwulnText(KLunInfo const& info)
{
    return PBase::wwulnToText(info.ui8Wwuln, static_cast<int>(info.ui32WwulnLength), info.eWwulnCodeSet);
}

// The two samples' counter tables side by side. Without a previous sample
// the previous table is empty.
class CounterPair {
public:
    CounterPair(KCacheInfoList const& now, KCacheInfoList const* before) : now(now), before(before ? *before : empty) {}

    long long current(char const* name) const { return lookUp(now, name).value; }
    long long previous(char const* name) const { return lookUp(before, name).value; }

    // The change is taken as the counter algebra takes it: when the
    // previous table lacks the counter the change is 0.
    Figure counter(char const* name) const
    {
        KCacheInfo const value = lookUp(now, name);
        KCacheInfo change;
        std::string ignored;
        before.cacheEquation(value, KCacheInfoList::OP_SUBTRACT, name, std::strlen(name) + 1, change, ignored);
        return {value.value, change.value};
    }

    // A counter by name with its change, and its share of another counter
    // in each sample.
    Figure sharePair(char const* part, char const* whole) const
    {
        return of(CacheStatisticsModel::percentOf(current(part), current(whole)),
                  CacheStatisticsModel::percentOf(previous(part), previous(whole)));
    }

    static Figure of(long long now, long long before) { return {now, wrappingSubtract(now, before)}; }

private:
    KCacheInfoList const& now;
    KCacheInfoList empty;
    KCacheInfoList const& before;
};

CacheStatisticsModel::Stream stream(CounterPair const& counters, char const* label, std::string const& name)
{
    auto figure = [&](char const* end) { return counters.counter((name + end).c_str()); };
    return {label, figure(" IOs"), figure(" Min"), figure(" Max"), figure(" Avg"), figure(" IOPs"), figure(" KBs")};
}

CacheStatisticsModel::Capacity capacity(CounterPair const& counters, char const* label, char const* name,
                                        char const* percent = nullptr, bool ofReadData = false)
{
    return {label, counters.counter(name), percent != nullptr, percent ? counters.current(percent) : 0, ofReadData};
}

CacheStatisticsModel::Hits hitCount(CounterPair const& counters, char const* label, char const* name)
{
    return {label, counters.counter(name), counters.current((std::string(name) + " (%)").c_str())};
}

// A figure of the analysis that is computed from counters of one sample.
template <typename Compute>
Figure derived(CounterPair const& counters, Compute compute)
{
    return CounterPair::of(compute([&](char const* name) { return counters.current(name); }),
                           compute([&](char const* name) { return counters.previous(name); }));
}

CacheStatisticsModel::Analysis analysisOf(CounterPair const& c)
{
    auto const newWrites = [](auto counter) {
        return wrappingSubtract(counter("SSD WriteCacheWrites"),
                                counter("SSD ReadCacheOverwrites") + counter("SSD WriteCacheOverwrites"));
    };
    CacheStatisticsModel::Analysis a;
    a.flushes = derived(c, [](auto counter) { return counter("SSD ReadCacheFlushes"); });
    a.flushedMib = derived(c, [](auto counter) { return counter("SSD ReadCacheFlushes") / 32; });
    a.readBypassSize = derived(c, [](auto counter) { return counter("SSD ReadBypassSize"); });
    a.readBypassSizePercent = c.sharePair("SSD ReadBypassSize", "ReadIos Total");
    a.readBypassMemory = derived(c, [](auto counter) { return counter("SSD ReadBypassMem"); });
    a.readBypassMemoryPercent = c.sharePair("SSD ReadBypassMem", "ReadIos Total");
    a.writes = derived(c, [](auto counter) { return counter("SSD WriteCacheWrites"); });
    a.readOverwrites = derived(c, [](auto counter) { return counter("SSD ReadCacheOverwrites"); });
    a.readOverwritePercent = c.sharePair("SSD ReadCacheOverwrites", "SSD WriteCacheWrites");
    a.writeOverwrites = derived(c, [](auto counter) { return counter("SSD WriteCacheOverwrites"); });
    a.writeOverwritePercent = c.sharePair("SSD WriteCacheOverwrites", "SSD WriteCacheWrites");
    a.newWrites = derived(c, newWrites);
    a.newWritePercent = derived(c, [&](auto counter) {
        return CacheStatisticsModel::percentOf(newWrites(counter), counter("SSD WriteCacheWrites"));
    });
    a.freed = derived(c, [](auto counter) { return counter("SSD ReadCacheFreed"); });
    a.writeBypassSize = derived(c, [](auto counter) { return counter("SSD WriteBypassSize"); });
    a.writeBypassSizePercent = c.sharePair("SSD WriteBypassSize", "WriteIos Total");
    a.writeBypassMemory = derived(c, [](auto counter) { return counter("SSD WriteBypassMem"); });
    a.writeBypassMemoryPercent = c.sharePair("SSD WriteBypassMem", "WriteIos Total");
    return a;
}

unsigned long long usedBytes(KLunCacheStatistics const& statistics)
{
    return statistics.ui64CleanBytes + statistics.ui64DirtyBytes;
}

} // namespace

long long CacheStatisticsModel::percentOf(long long part, long long whole)
{
    KCacheInfo share;
    share.value = part;
    KCacheInfo base;
    base.value = whole;
    return ((share * 100) / base).value;
}

CacheStatisticsModel::CacheStatisticsModel(CacheStatisticsSample const& current, CacheStatisticsSample const* previous)
    : sample(current)
{
    time.initFromLocalTime();
    CounterPair const counters(current.counters, previous ? &previous->counters : nullptr);
    upTime = derived(counters, [](auto counter) { return counter("UpTime"); });
    streams = {stream(counters, "Host Reads:", "Host Reads"), stream(counters, "Host Writes:", "Host Writes"),
               stream(counters, "Read Flush:", "Read Flush"), stream(counters, "Write Flush:", "Write Flush")};
    capacities = {
        capacity(counters, "Total Cache Capacity", "Cache Pool Max MB"),
        capacity(counters, "Cache Capacity Used (SSD+RAM)", "Cache Pool Used MB"),
        capacity(counters, "Cache Capacity Dirty", "Cache Pool Dirty MB"),
        capacity(counters, "Read  Data", "Host Data Read MB"),
        capacity(counters, "Write Data", "Host Data Write MB"),
        capacity(counters, "Cache Writes", "Host CACHE Writes MB", "Host CACHE Writes (%)"),
        capacity(counters, "Cache Hits (Read Load)", "CACHE Read Hits MB RL", "RL (%)", true),
        capacity(counters, "Cache Hits (Write Load)", "CACHE Read Hits MB WL", "WL (%)", true),
        capacity(counters, "Cache Hits (Total)", "CACHE Read Hits MB Total", "Total (%)", true),
    };
    // The one share of the cache figures that the adapter does not report.
    capacities[1].hasPercent = true;
    capacities[1].percent = percentOf(counters.current("Cache Pool Used MB"), counters.current("Cache Pool Max MB"));
    hits = {hitCount(counters, "RAM Read Cache Hits from Read:", "RAM ReadCacheReadHits"),
            hitCount(counters, "SSD Read Cache Hits from Read:", "SSD ReadCacheReadHits"),
            hitCount(counters, "SSD Read Cache Hits Overwrite:", "SSD ReadCacheOWReadHits"),
            hitCount(counters, "SSD Read Cache Hits from Write:", "SSD WriteCacheReadHits")};
    analysis = analysisOf(counters);
    poolBytes = current.pool.configuredForCachePool;

    luns.reserve(current.luns.size());
    for (std::size_t i = 0; i < current.luns.size(); ++i) {
        CachedLunSample const& lun = current.luns[i];
        unsigned long long const size = lun.info.ui64LunSizeBytes;
        unsigned long long const limit = lun.cache().ui64MaxCacheBytes;
        unsigned long long const used = usedBytes(lun.statistics());
        unsigned long long const before =
            previous && i < previous->luns.size() ? usedBytes(previous->luns[i].statistics()) : 0;
        luns.push_back({&lun, wwulnText(lun.info), size, limit != 0 ? limit : size, used, used - before});
        totalLunBytes += size;
        totalCacheableBytes += luns.back().cacheableBytes;
    }
    mirrorLuns.reserve(current.mirrorLuns.size());
    for (std::size_t i = 0; i < current.mirrorLuns.size(); ++i) {
        KLunInfo const& info = current.mirrorLuns[i];
        unsigned long long const dirty = info.cacheInfo.ui64MirrorDirtyCacheBytes;
        unsigned long long const before = previous && i < previous->mirrorLuns.size()
            ? previous->mirrorLuns[i].cacheInfo.ui64MirrorDirtyCacheBytes
            : 0;
        mirrorLuns.push_back({&info, wwulnText(info), dirty, dirty - before});
    }
}
