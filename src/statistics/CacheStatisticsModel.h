// The figures of one cycle of the cache statistics, computed once from the
// cycle's sample and the previous one: the differences, the percentages,
// the LUN totals and the bypass and overwrite analysis. The text view
// (CacheStatisticsText.h) and the CSV files (CacheStatisticsCsv.h) only lay
// them out.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "records/PTime.h"
#include "statistics/CacheStatisticsSample.h"

struct CacheStatisticsModel {
    // A counter of the adapter's table, and its change since the previous
    // sample.
    struct Figure {
        long long value = 0;
        long long change = 0;
    };

    // The six counters of one IO stream.
    struct Stream {
        char const* label;
        Figure ios, min, max, avg, iops, kbs; // sizes in units of 512 bytes
    };

    // A cache figure counted in MiB, with its share where it has one.
    struct Capacity {
        char const* label;
        Figure mib;
        bool hasPercent;
        long long percent; // of this sample, never a difference
        bool ofReadData;   // the share is one of the data read
    };

    // A count of read hits, with its share.
    struct Hits {
        char const* label;
        Figure count;
        long long percent;
    };

    // The bypass and overwrite analysis. Each share is taken within its own
    // sample; its change is this sample's share minus the previous one's.
    struct Analysis {
        Figure flushes;        // new SSD read cache, in fills of 1/32 MiB
        Figure flushedMib;     // the same in whole MiB
        Figure readBypassSize; // counts, and their shares of all read IOs
        Figure readBypassSizePercent;
        Figure readBypassMemory;
        Figure readBypassMemoryPercent;
        Figure writes; // SSD write cache writes, and the shares of them
        Figure readOverwrites;
        Figure readOverwritePercent;
        Figure writeOverwrites;
        Figure writeOverwritePercent;
        Figure newWrites;
        Figure newWritePercent;
        Figure freed;
        Figure writeBypassSize; // counts, and their shares of all write IOs
        Figure writeBypassSizePercent;
        Figure writeBypassMemory;
        Figure writeBypassMemoryPercent;
    };

    // A LUN this adapter caches.
    struct Lun {
        CachedLunSample const* sample;
        std::string wwuln;
        unsigned long long sizeBytes;
        unsigned long long cacheableBytes; // the cache limit, or the size when there is none
        unsigned long long usedBytes;      // clean and dirty
        unsigned long long usedChange;     // minus the same LUN of the previous sample, by place
    };

    // A LUN a peer adapter caches, mirrored here.
    struct MirrorLun {
        KLunInfo const* info;
        std::string wwuln;
        unsigned long long dirtyBytes;
        unsigned long long dirtyChange;
    };

    static constexpr unsigned kStreams = 4;
    static constexpr unsigned kCapacities = 9;
    static constexpr unsigned kHitCounts = 4;

    // `previous` is the sample of the cycle before, or null.
    CacheStatisticsModel(CacheStatisticsSample const& current, CacheStatisticsSample const* previous);

    CacheStatisticsSample const& sample;
    PTime time; // when the figures were computed
    Figure upTime;
    std::array<Stream, kStreams> streams;
    std::array<Capacity, kCapacities> capacities;
    std::array<Hits, kHitCounts> hits;
    Analysis analysis;
    std::vector<Lun> luns;
    std::vector<MirrorLun> mirrorLuns;
    unsigned long long totalLunBytes = 0;
    unsigned long long totalCacheableBytes = 0;
    unsigned long long poolBytes = 0; // SSD storage configured for the cache

    // (part * 100) / whole as the counter algebra takes it: 64-bit,
    // wrapping, truncated, 0 for a whole of 0.
    static long long percentOf(long long part, long long whole);
};
