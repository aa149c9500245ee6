#include "model/Workload.h"

#include "model/View.h"

#include <algorithm>

namespace sim {

namespace {

constexpr u64 MiB = 1024ull * 1024;

// A stable number from a name, so that each LUN and adapter has its own pace.
u64 seedOf(const std::string& text)
{
    u64 h = 1469598103934665603ull;
    for (unsigned char c : text) {
        h ^= c;
        h *= 1099511628211ull;
    }
    return h;
}

u64 elapsedSince(long long since, long long now)
{
    return now > since ? static_cast<u64>(now - since) : 0;
}

struct Pace {
    u64 readsPerSec, writesPerSec, blocksPerRead, blocksPerWrite;
};

Pace paceOf(const Lun& lun)
{
    u64 s = seedOf(lun.wwuln);
    return {40 + s % 400, 10 + (s >> 16) % 200, 8 + (s >> 32) % 56, 8 + (s >> 40) % 120};
}

bool carriesIo(const Lun& lun)
{
    return lun.online && lun.type == 1;
}

u32 percentOf(u64 part, u64 whole)
{
    return whole ? static_cast<u32>(std::min<u64>(10000, part * 10000 / whole)) : 0;
}

// Seconds since the LUN's counters were last cleared, on this adapter or
// for the LUN alone.
u64 lunElapsed(const Lun& lun, const Adapter& viewer, long long now)
{
    return elapsedSince(std::max(lun.statsClearedAt, viewer.statsClearedAt), now);
}

LunLoad pinnedLunLoad(const FixedIoStatistics& fixed, long long seconds)
{
    auto at = [&](const PinnedFigure& figure) { return static_cast<u64>(figure.at(seconds)); };
    LunLoad load;
    load.readCount = at(fixed.readCount);
    load.writeCount = at(fixed.writeCount);
    load.readBlocks = at(fixed.readBlocks);
    load.writeBlocks = at(fixed.writeBlocks);
    load.readHitPercent = static_cast<u32>(at(fixed.readHitPercent));
    load.writeHitPercent = static_cast<u32>(at(fixed.writeHitPercent));
    load.readBytes = at(fixed.totalRead);
    load.writtenBytes = at(fixed.totalWritten);
    load.writeHitBytes = at(fixed.writeHitBytes);
    load.readHitBytes = at(fixed.readHitBytes);
    load.cleanBytes = at(fixed.cleanBytes);
    load.dirtyBytes = at(fixed.dirtyBytes);
    load.lockedBytes = at(fixed.lockedBytes);
    return load;
}

AdapterCacheFigures pinnedCacheFigures(const PinnedAdapterFigures& fixed, long long seconds)
{
    auto at = [&](const PinnedFigure& figure) { return static_cast<u64>(figure.at(seconds)); };
    AdapterCacheFigures f;
    f.totalCapacity = at(fixed.totalCapacity);
    f.usedCapacity = at(fixed.usedCapacity);
    f.readData = at(fixed.readData);
    f.writeLoadHits = at(fixed.writeLoadHits);
    f.readLoadHits = at(fixed.readLoadHits);
    f.usedPercentA = static_cast<u32>(at(fixed.usedPercentFirst));
    f.usedPercentB = static_cast<u32>(at(fixed.usedPercentSecond));
    f.readLoadPercent = static_cast<u32>(at(fixed.readLoadPercent));
    f.writeLoadPercent = static_cast<u32>(at(fixed.writeLoadPercent));
    return f;
}

} // namespace

LunLoad lunLoad(const San& san, const Lun& lun, const Adapter& viewer, long long now)
{
    (void)san;
    if (lun.fixedIoStatistics)
        return pinnedLunLoad(*lun.fixedIoStatistics, static_cast<long long>(lunElapsed(lun, viewer, now)));
    LunLoad load;
    if (!carriesIo(lun))
        return load;
    u64 t = lunElapsed(lun, viewer, now);
    Pace p = paceOf(lun);
    load.readCount = p.readsPerSec * t;
    load.writeCount = p.writesPerSec * t;
    load.readBlocks = load.readCount * p.blocksPerRead;
    load.writeBlocks = load.writeCount * p.blocksPerWrite;
    load.readBytes = load.readBlocks * 512;
    load.writtenBytes = load.writeBlocks * 512;
    if (lun.cached && lun.cache.adapter == viewer.id) {
        u64 readBytes = load.readBlocks * 512;
        u64 s = seedOf(lun.wwuln);
        // Hits on data loaded by reads and by writes share the data read.
        load.readHitBytes = readBytes * (45 + s % 35) / 100;
        load.writeHitBytes = cachesWritesBack(lun.cache.mode) ? readBytes * (5 + s % 10) / 100 : 0;
        load.readHitPercent = percentOf(load.readHitBytes, readBytes);
        load.writeHitPercent = percentOf(load.writeHitBytes, readBytes);
        u64 limit = lun.cache.maxCacheBytes ? lun.cache.maxCacheBytes : lun.sizeBytes / 4;
        load.cleanBytes = std::min<u64>(limit, (load.readBlocks + load.writeBlocks) * 512 / 8);
        load.dirtyBytes = lun.cache.dirtyBytes;
        for (const LockedRange& r : lun.cache.lockedRanges)
            load.lockedBytes += static_cast<u64>(r.size) * 512;
    }
    return load;
}

AdapterCacheFigures adapterCacheFigures(const San& san, const Adapter& a, long long now)
{
    if (a.fixedStatistics)
        return pinnedCacheFigures(a.fixedStatistics->adapter,
                                  static_cast<long long>(elapsedSince(a.statsClearedAt, now)));
    AdapterCacheFigures f;
    f.totalCapacity = a.cachePoolBytes;
    for (const Lun& l : san.luns) {
        if (!l.cached || l.cache.adapter != a.id)
            continue;
        LunLoad load = lunLoad(san, l, a, now);
        f.usedCapacity += load.cleanBytes + load.dirtyBytes;
        f.readData += load.readBlocks * 512;
        f.readLoadHits += load.readHitBytes;
        f.writeLoadHits += load.writeHitBytes;
    }
    f.usedCapacity = std::min(f.usedCapacity, f.totalCapacity);
    u32 used = percentOf(f.usedCapacity, f.totalCapacity);
    f.usedPercentA = used / 2;        // SSD share
    f.usedPercentB = used - used / 2; // RAM share
    f.readLoadPercent = percentOf(f.readLoadHits, f.readData);
    f.writeLoadPercent = percentOf(f.writeLoadHits, f.readData);
    return f;
}

std::array<u32, 26> hostPcieFigures(const San& san, const Adapter& a, long long now)
{
    std::array<u32, 26> v{};
    if (a.fixedStatistics) {
        const std::vector<long long>& pinned = a.fixedStatistics->hostPcie;
        for (size_t i = 0; i < v.size() && i < pinned.size(); ++i)
            v[i] = static_cast<u32>(pinned[i]);
        return v;
    }
    u64 reads = 0, writes = 0, readBlocks = 0, writeBlocks = 0;
    for (const Lun& l : san.luns) {
        LunLoad load = lunLoad(san, l, a, now);
        reads += load.readCount;
        writes += load.writeCount;
        readBlocks += load.readBlocks;
        writeBlocks += load.writeBlocks;
    }
    u64 t = std::max<u64>(1, elapsedSince(a.statsClearedAt, now));
    u64 wobble = static_cast<u64>(now) % 7; // figures of the moment move a little
    v[0] = v[1] = 1000;
    v[2] = static_cast<u32>(reads);
    v[3] = static_cast<u32>(readBlocks * 512);
    v[4] = static_cast<u32>(writes);
    v[5] = static_cast<u32>(writeBlocks * 512);
    v[6] = static_cast<u32>(reads / t);
    v[7] = 512;
    v[8] = 1048576;
    v[9] = reads ? static_cast<u32>(readBlocks * 512 / reads) : 0;
    v[10] = static_cast<u32>(readBlocks * 512 / t);
    v[12] = 85;
    v[13] = 24000 + static_cast<u32>(wobble) * 100;
    v[14] = 410 + static_cast<u32>(wobble) * 3;
    v[15] = static_cast<u32>(wobble + 2);
    v[16] = static_cast<u32>(writes / t);
    v[17] = 512;
    v[18] = 524288;
    v[19] = writes ? static_cast<u32>(writeBlocks * 512 / writes) : 0;
    v[20] = static_cast<u32>(writeBlocks * 512 / t);
    v[22] = 60;
    v[23] = 18000 + static_cast<u32>(wobble) * 100;
    v[24] = 290 + static_cast<u32>(wobble) * 2;
    v[25] = static_cast<u32>(wobble + 1);
    return v;
}

std::vector<std::pair<std::string, long long>> cacheCounters(const San& san, const Adapter& a, long long now)
{
    if (a.fixedStatistics) {
        long long const seconds = static_cast<long long>(elapsedSince(a.statsClearedAt, now));
        std::vector<std::pair<std::string, long long>> pinned;
        for (const PinnedCounter& counter : a.fixedStatistics->counters)
            pinned.emplace_back(counter.name, counter.figure.at(seconds));
        return pinned;
    }
    u64 reads = 0, writes = 0, readBlocks = 0, writeBlocks = 0, rlHits = 0, wlHits = 0, cached = 0, dirty = 0;
    for (const Lun& l : san.luns) {
        LunLoad load = lunLoad(san, l, a, now);
        reads += load.readCount;
        writes += load.writeCount;
        readBlocks += load.readBlocks;
        writeBlocks += load.writeBlocks;
        rlHits += load.readHitBytes;
        wlHits += load.writeHitBytes;
        cached += load.cleanBytes + load.dirtyBytes;
        dirty += load.dirtyBytes;
    }
    u64 t = std::max<u64>(1, elapsedSince(a.statsClearedAt, now));
    auto ll = [](u64 v) { return static_cast<long long>(v); };
    auto pct = [](u64 part, u64 whole) { return whole ? static_cast<long long>(part * 100 / whole) : 0LL; };
    u64 readMb = readBlocks * 512 / MiB, writeMb = writeBlocks * 512 / MiB;
    u64 cacheWritesMb = writeMb * 7 / 10;
    u64 hitsMb = (rlHits + wlHits) / MiB;
    u64 flushIos = writes / 3;
    std::vector<std::pair<std::string, long long>> c;
    auto stream = [&](const std::string& name, u64 ios, u64 blocks) {
        c.push_back({name + " IOs", ll(ios)});
        c.push_back({name + " Min", 1});
        c.push_back({name + " Max", 2048});
        c.push_back({name + " Avg", ios ? ll(blocks / ios) : 0});
        c.push_back({name + " IOPs", ll(ios / t)});
        c.push_back({name + " KBs", ll(blocks / 2 / t)});
    };
    stream("Host Reads", reads, readBlocks);
    stream("Host Writes", writes, writeBlocks);
    stream("Read Flush", reads / 5, readBlocks / 5);
    stream("Write Flush", flushIos, writeBlocks / 3);
    c.push_back({"UpTime", ll(elapsedSince(a.bootTime, now))});
    c.push_back({"Cache Pool Max MB", ll(a.cachePoolBytes / MiB)});
    c.push_back({"Cache Pool Used MB", ll(std::min(cached, a.cachePoolBytes) / MiB)});
    c.push_back({"Cache Pool Dirty MB", ll(dirty / MiB)});
    c.push_back({"Host Data Read MB", ll(readMb)});
    c.push_back({"Host Data Write MB", ll(writeMb)});
    c.push_back({"Host CACHE Writes MB", ll(cacheWritesMb)});
    c.push_back({"Host CACHE Writes (%)", pct(cacheWritesMb, writeMb)});
    c.push_back({"CACHE Read Hits MB RL", ll(rlHits / MiB)});
    c.push_back({"RL (%)", pct(rlHits / MiB, readMb)});
    c.push_back({"CACHE Read Hits MB WL", ll(wlHits / MiB)});
    c.push_back({"WL (%)", pct(wlHits / MiB, readMb)});
    c.push_back({"CACHE Read Hits MB Total", ll(hitsMb)});
    c.push_back({"Total (%)", pct(hitsMb, readMb)});
    u64 ramHits = reads / 10, ssdHits = reads * 4 / 10, owHits = reads / 50, wcHits = reads / 20;
    c.push_back({"RAM ReadCacheReadHits", ll(ramHits)});
    c.push_back({"RAM ReadCacheReadHits (%)", pct(ramHits, reads)});
    c.push_back({"SSD ReadCacheReadHits", ll(ssdHits)});
    c.push_back({"SSD ReadCacheReadHits (%)", pct(ssdHits, reads)});
    c.push_back({"SSD ReadCacheOWReadHits", ll(owHits)});
    c.push_back({"SSD ReadCacheOWReadHits (%)", pct(owHits, reads)});
    c.push_back({"SSD WriteCacheReadHits", ll(wcHits)});
    c.push_back({"SSD WriteCacheReadHits (%)", pct(wcHits, reads)});
    c.push_back({"SSD ReadCacheFlushes", ll(readMb * 32 / 3)});
    c.push_back({"SSD ReadBypassSize", ll(reads / 40)});
    c.push_back({"SSD ReadBypassMem", ll(reads / 400)});
    c.push_back({"ReadIos Total", ll(reads)});
    c.push_back({"SSD WriteCacheWrites", ll(writes * 7 / 10)});
    c.push_back({"Cache Breakup Write IOs", ll(writes + writes / 9)});
    c.push_back({"SSD ReadCacheOverwrites", ll(writes / 12)});
    c.push_back({"SSD WriteCacheOverwrites", ll(writes / 15)});
    c.push_back({"SSD ReadCacheFreed", ll(writes / 20)});
    c.push_back({"SSD WriteBypassSize", ll(writes / 30)});
    c.push_back({"SSD WriteBypassMem", ll(writes / 300)});
    c.push_back({"WriteIos Total", ll(writes)});
    c.push_back({"Temperature CPU", 58}); // not named by the CLI; appears in the full CSV
    return c;
}

} // namespace sim
