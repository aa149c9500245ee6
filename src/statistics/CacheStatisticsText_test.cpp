#include "statistics/CacheStatisticsText.h"

#include <gtest/gtest.h>

#include "support/CacheStatisticsSamples.h"

using samples::addCounter;
using samples::cachedLun;

namespace {

constexpr unsigned long long MiB = 1ull << 20;
constexpr unsigned long long GiB = 1ull << 30;

// The line of `text` that starts with `start`, without its end.
std::string lineStarting(std::string const& text, std::string const& start)
{
    std::string::size_type at = text.find("\n" + start);
    if (at == std::string::npos)
        return "(no line \"" + start + "\")";
    at += 1;
    return text.substr(at, text.find('\n', at) - at);
}

class CacheStatisticsTextTest : public ::testing::Test {
protected:
    std::string cacheText(bool delta) const
    {
        CacheStatisticsModel const model(now, &before);
        return CacheStatisticsText(model).displayGlobalCacheText(delta);
    }
    std::string lunText(bool delta, unsigned interval) const
    {
        CacheStatisticsModel const model(now, &before);
        return CacheStatisticsText(model).displayLunCacheText(delta, interval);
    }
    std::string analysisText(bool delta) const
    {
        CacheStatisticsModel const model(now, &before);
        return CacheStatisticsText(model).displayAnalysisCacheText(delta);
    }
    // Both samples get the counter, the previous one with `old`.
    void counter(std::string const& name, long long value, long long old = 0)
    {
        addCounter(now.counters, name, value);
        addCounter(before.counters, name, old);
    }

    CacheStatisticsSample before, now;
};

} // namespace

TEST_F(CacheStatisticsTextTest, CacheLinesShowMiBCountersInTheirUnitAndSharesAsReported)
{
    counter("Cache Pool Max MB", 819200);
    counter("Cache Pool Used MB", 66048, 66000);
    counter("CACHE Read Hits MB RL", 2299959, 2299000);
    counter("RL (%)", 26);
    std::string const text = cacheText(false);
    EXPECT_EQ(lineStarting(text, "Total"), "Total Cache Capacity           =       800GB");
    EXPECT_EQ(lineStarting(text, "Cache Capacity Used"), "Cache Capacity Used (SSD+RAM)  =     64.50GB (  8%)");
    EXPECT_EQ(lineStarting(text, "Cache Hits (Read"),
              "Cache Hits (Read Load)         =      2.19TB ( 26% of Read Data)");
    EXPECT_EQ(text.substr(0, 29), "\n[Global Cache Statistics]\n\nT");
}

TEST_F(CacheStatisticsTextTest, WithDeltaEachCacheLineShowsItsChangeButNeverAChangedShare)
{
    counter("Cache Pool Max MB", 819200, 819200);
    counter("Cache Pool Used MB", 66048, 66000);
    counter("CACHE Read Hits MB RL", 2299959, 2299000);
    counter("RL (%)", 26, 20);
    std::string const text = cacheText(true);
    EXPECT_EQ(lineStarting(text, "Total"), "Total Cache Capacity           =       800GB (0)      ");
    EXPECT_EQ(lineStarting(text, "Cache Capacity Used"),
              "Cache Capacity Used (SSD+RAM)  =     64.50GB (48MB)                   (8%)");
    EXPECT_EQ(lineStarting(text, "Cache Hits (Read"),
              "Cache Hits (Read Load)         =      2.19TB (959MB)    (26% of Read Data)");
}

TEST_F(CacheStatisticsTextTest, ANegativeChangeOfAMiBCounterShowsOnlyItsRemainder)
{
    counter("Host Data Read MB", 40, 100);
    EXPECT_EQ(lineStarting(cacheText(true), "Read  Data"), "Read  Data                     =        40MB (0)      ");
}

TEST_F(CacheStatisticsTextTest, HitLinesShowCountsChangesAndShares)
{
    counter("RAM ReadCacheReadHits", 45116507, 45114795);
    counter("RAM ReadCacheReadHits (%)", 9);
    EXPECT_EQ(lineStarting(cacheText(false), "RAM"), "RAM Read Cache Hits from Read:      45116507 ( 9%)");
    EXPECT_EQ(lineStarting(cacheText(true), "RAM"), "RAM Read Cache Hits from Read:      45116507 (   1712) ( 9%)");
    counter("SSD ReadCacheReadHits", 10, 25);
    EXPECT_EQ(lineStarting(cacheText(true), "SSD Read Cache Hits from Read"),
              "SSD Read Cache Hits from Read:            10 (    -15) ( 0%)");
}

TEST_F(CacheStatisticsTextTest, LunRowsShowSizeShareUseAndWindows)
{
    now.pool.configuredForCachePool = 800 * GiB;
    now.luns.push_back(cachedLun(1, 200 * GiB, 64 * GiB, 64 * GiB, 512 * MiB));
    now.luns[0].info.cacheInfo.bMirrored = true;
    now.luns[0].info.cacheInfo.ui64MirrorAdapter = 0x2000001B32A10D00ull;
    now.luns.push_back(cachedLun(2, 64 * GiB, 0, 0, 0));
    std::string const text = lunText(false, 0);
    EXPECT_EQ(text,
              "\n\n[LUN Based Cache Statistics]\n\n"
              "WWULN                                         Size      Cache Capacity            (Clean + Dirty)"
              "   Read Size Write Size\n"
              "6060-6060-6060-6060-6060-6060-6060-6001   64GB 50%          64.50GB 8%             (64GB + 512MB)"
              "  (8, 1024)KB (4, 512)KB\n"
              "   (Mirrored at Adapter 2000001B32A10D00)\n"
              "6060-6060-6060-6060-6060-6060-6060-6002   64GB 50%                0 0%                    (0 + 0)"
              "  (8, 1024)KB (4, 512)KB\n");
}

TEST_F(CacheStatisticsTextTest, WithDeltaTheUseShowsItsChange)
{
    before.luns.push_back(cachedLun(1, GiB, 0, 100 * MiB, 0));
    now.luns.push_back(cachedLun(1, GiB, 0, 164 * MiB, 0));
    EXPECT_EQ(lineStarting(lunText(true, 0), "6060"),
              "6060-6060-6060-6060-6060-6060-6060-6001   1GB 100%     164MB (64MB) 0%                (164MB + 0)"
              "  (8, 1024)KB (4, 512)KB");
}

TEST_F(CacheStatisticsTextTest, WithoutAnyLunSizeEveryShareReadsZeroPlusZero)
{
    now.luns.push_back(cachedLun(1, 0, 0, 0, 0));
    EXPECT_EQ(lineStarting(lunText(false, 0), "6060").substr(40, 10), "    0 + 0%");
}

TEST_F(CacheStatisticsTextTest, SizeWarningsComeOnlyInTheLoopAndQuoteTheReadAverage)
{
    now.luns.push_back(cachedLun(1, GiB, 0, 0, 0)); // reads 8 KB to 1 MB, writes 4 KB to 512 KB
    now.hostPcie.avgReadIoSize = 4096;
    now.hostPcie.avgWriteIoSize = 2048;
    EXPECT_EQ(lunText(false, 0).find("WARNING"), std::string::npos);
    std::string const text = lunText(false, 5);
    EXPECT_NE(text.find("   Read Size Write Size\n6060-6060-6060-6060-6060-6060-6060-6001"), std::string::npos);
    EXPECT_EQ(text.substr(text.find("    WARNING")),
              "    WARNING: The average read size (4KB) is smaller than this LUN's min read size (8KB)!\n"
              "    We suggest to reduce this LUN's min read cache size!\n"
              "    WARNING: The average write size (4KB) is smaller than this LUN's min write size (4KB)!\n"
              "    We suggest to reduce this LUN's min write cache size!\n");
    now.hostPcie.avgReadIoSize = 2 * MiB;
    now.hostPcie.avgWriteIoSize = MiB;
    EXPECT_EQ(lunText(false, 5).substr(lunText(false, 5).find("    WARNING")),
              "    WARNING: The average read size (2MB) is bigger than this LUN's max read size (1MB)!\n"
              "    We suggest to enlarge this LUN's max read cache size!\n"
              "    WARNING: The average write size (2MB) is bigger than this LUN's max write size (512KB)!\n"
              "    We suggest to enlarge this LUN's max write cache size!\n");
}

TEST_F(CacheStatisticsTextTest, NoAverageMeansNoSmallSizeWarning)
{
    now.luns.push_back(cachedLun(1, GiB, 0, 0, 0));
    EXPECT_EQ(lunText(true, 5).find("WARNING"), std::string::npos);
}

TEST_F(CacheStatisticsTextTest, MirrorLunsFollowUnderTheirOwnTitle)
{
    KLunInfo mirror;
    samples::setWwuln(mirror, 0x61, 9);
    mirror.ui64LunSizeBytes = 200 * GiB;
    mirror.m_ui64ClusterCacheAdapterPrimary = 0x2000001B32A10C00ull;
    mirror.cacheInfo.ui64MirrorDirtyCacheBytes = 512 * MiB;
    before.mirrorLuns.push_back(mirror);
    mirror.cacheInfo.ui64MirrorDirtyCacheBytes = 520 * MiB;
    now.mirrorLuns.push_back(mirror);
    std::string const text = lunText(true, 0);
    EXPECT_EQ(text.substr(text.find("\n\n[Mirror")),
              "\n\n[Mirror LUN Statistics]\n\n"
              "WWULN                                         Size      Cache Capacity                    (Dirty)"
              "   Read Size Write Size\n"
              "6161-6161-6161-6161-6161-6161-6161-6109      200GB                   0               520MB (8MB) "
              "    (0, 0)KB   (0, 0)KB\n"
              "   (Cached on remote adapter 2000001B32A10C00)\n");
}

TEST_F(CacheStatisticsTextTest, TheAnalysisOnce)
{
    counter("SSD ReadCacheFlushes", 91363552);
    counter("SSD WriteCacheWrites", 116581690);
    counter("SSD ReadCacheOverwrites", 13878772);
    counter("SSD WriteCacheOverwrites", 11103018);
    counter("SSD ReadCacheFreed", 8327263);
    EXPECT_EQ(analysisText(false),
              "\n\n[Cache Statistics Analysis]\n\n"
              "\n   [Cache Read]\n"
              "    New SSD Read Cache from Read     =  91363552   2.72TB\n"
              "\n   [Cache Write]\n"
              "    SSD Write Cache Writes           = 116581690\n"
              "    SSD Read Cache Overwrites        =  13878772       11%\n"
              "    SSD Write Cache Overwrites       =  11103018        9%\n"
              "    New SSD Write Cache Writes       =  91599900       78%\n"
              "\n    SSD Cache Freed = 8327263\n");
}

TEST_F(CacheStatisticsTextTest, TheAnalysisWithDelta)
{
    counter("SSD ReadCacheFlushes", 91367018, 91363552);
    counter("SSD WriteCacheWrites", 116586114, 116581690);
    counter("SSD ReadCacheOverwrites", 13879299, 13878772);
    counter("SSD WriteCacheOverwrites", 11103439, 11103018);
    counter("SSD ReadCacheFreed", 8327579, 8327263);
    EXPECT_EQ(analysisText(true),
              "\n\n[Cache Statistics Analysis]\n\n"
              "\n   [Cache Read]\n"
              "    New SSD Read Cache from Read     =    91367018     (3466) 2.72TB(108MB)\n"
              "\n   [Cache Write]\n"
              "    SSD Write Cache Writes           =   116586114     (4424)\n"
              "    SSD Read Cache Overwrites        =    13879299      (527)     11%   (0%)\n"
              "    SSD Write Cache Overwrites       =    11103439      (421)      9%   (0%)\n"
              "    New SSD Write Cache Writes       =    91603376     (3476)     78%   (0%)\n"
              "\n    SSD Cache Freed = 8327579 (316)\n");
}

TEST_F(CacheStatisticsTextTest, BypassWarningsStartAboveFivePercent)
{
    counter("ReadIos Total", 100, 100);
    counter("SSD ReadBypassSize", 5, 5);
    counter("SSD ReadBypassMem", 6, 6);
    counter("WriteIos Total", 100, 100);
    counter("SSD WriteBypassSize", 6, 0);
    counter("SSD WriteBypassMem", 5, 0);
    std::string const once = analysisText(false);
    EXPECT_EQ(once.find("Read Bypass Size"), std::string::npos);
    EXPECT_NE(once.find("    New SSD Read Cache from Read     =         0        0\n"
                        "\n    SSD Read Bypass Memory = 6% WARNING!!!\n\n   [Cache Write]\n"),
              std::string::npos)
        << once;
    EXPECT_NE(once.find("\n    SSD Write By Pass Size = 6% WARNING!!!\n"), std::string::npos);
    EXPECT_EQ(once.find("Write By Pass Memory"), std::string::npos);
    std::string const delta = analysisText(true);
    EXPECT_EQ(delta.find("Read Bypass Size"), std::string::npos);
    EXPECT_NE(delta.find("\n    SSD Read Bypass Memory = 6% (0%) WARNING!!!\n"), std::string::npos) << delta;
    EXPECT_NE(delta.find("\n    SSD Write By Pass Size = 6% (6%) WARNING!!!\n"), std::string::npos);
    EXPECT_EQ(delta.find("Write By Pass Memory"), std::string::npos);
}

TEST_F(CacheStatisticsTextTest, AChangeOfSixPercentWarnsEvenBelowTheShare)
{
    counter("ReadIos Total", 100, 100);
    counter("SSD ReadBypassSize", 5, -1);
    EXPECT_EQ(analysisText(false).find("WARNING"), std::string::npos);
    EXPECT_NE(analysisText(true).find("\n    SSD Read Bypass Size = 5% (6%) WARNING!!!\n"), std::string::npos);
}

TEST_F(CacheStatisticsTextTest, UpTimeAndStreams)
{
    counter("UpTime", 263531, 263521);
    counter("Host Reads IOs", 451165072);
    counter("Host Reads Min", 1);
    counter("Host Reads Max", 2048);
    counter("Host Reads Avg", 39);
    counter("Host Reads IOPs", 1712);
    counter("Host Reads KBs", 33283);
    CacheStatisticsModel const model(now, &before);
    std::string const once = CacheStatisticsText(model).displayGlobalIoText(false);
    EXPECT_EQ(lineStarting(once, "    Korvane"), "    Korvane Adapter Up Time: 1:12:11");
    EXPECT_NE(once.find("1:12:11\n\n\n\n[Host IO Statistics]"), std::string::npos);
    EXPECT_EQ(
        lineStarting(once, "Host Reads:       451"),
        "Host Reads:       451165072,  Min:     0.5KB,  Max:  1024.0KB,  Avg:    19.5KB,  IOPS:  1712,  KBs: 33283");
    EXPECT_EQ(
        lineStarting(once, "Write Flush:"),
        "Write Flush:              0,  Min:     0.0KB,  Max:     0.0KB,  Avg:     0.0KB,  IOPS:     0,  KBs: 0    ");
    std::string const delta = CacheStatisticsText(model).displayGlobalIoText(true);
    EXPECT_NE(delta.find("    Korvane Adapter Up Time: 1:12:11 (+0:0:10)\n\n\n[Host IO Statistics]"),
              std::string::npos);
    EXPECT_EQ(delta.substr(delta.size() - 2), "\n\n");
}
