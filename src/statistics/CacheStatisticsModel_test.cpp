#include "statistics/CacheStatisticsModel.h"

#include <gtest/gtest.h>

#include "support/CacheStatisticsSamples.h"

using samples::addCounter;
using samples::cachedLun;

namespace {

constexpr unsigned long long GiB = 1ull << 30;

} // namespace

TEST(CacheStatisticsModelTest, PercentIsTruncatedAndZeroForAZeroBase)
{
    EXPECT_EQ(CacheStatisticsModel::percentOf(1, 3), 33);
    EXPECT_EQ(CacheStatisticsModel::percentOf(-1, 3), -33);
    EXPECT_EQ(CacheStatisticsModel::percentOf(5, 0), 0);
    // The product wraps at 64 bits, as the counter algebra does.
    EXPECT_EQ(CacheStatisticsModel::percentOf(0x7FFFFFFFFFFFFFFFll, 1), -100);
}

TEST(CacheStatisticsModelTest, AChangeIsThisSampleMinusThePreviousOne)
{
    CacheStatisticsSample before, now;
    addCounter(before.counters, "Host Data Read MB", 100);
    addCounter(now.counters, "Host Data Read MB", 40); // cleared in between
    CacheStatisticsModel const model(now, &before);
    EXPECT_EQ(model.capacities[3].mib.value, 40);
    EXPECT_EQ(model.capacities[3].mib.change, -60);
    EXPECT_FALSE(model.capacities[3].hasPercent);
}

TEST(CacheStatisticsModelTest, CountersTheAdapterDoesNotReportReadAsZero)
{
    CacheStatisticsSample before, now;
    addCounter(now.counters, "Cache Pool Max MB", 800);
    CacheStatisticsModel const model(now, &before);
    // The previous table lacks it: the counter algebra leaves no change.
    EXPECT_EQ(model.capacities[0].mib.value, 800);
    EXPECT_EQ(model.capacities[0].mib.change, 0);
    EXPECT_EQ(model.capacities[1].mib.value, 0);
    EXPECT_EQ(model.capacities[1].percent, 0);
    EXPECT_EQ(model.upTime.value, 0);
}

TEST(CacheStatisticsModelTest, OnlyTheUsedShareIsComputedTheOthersAreReported)
{
    CacheStatisticsSample now;
    addCounter(now.counters, "Cache Pool Max MB", 800);
    addCounter(now.counters, "Cache Pool Used MB", 200);
    addCounter(now.counters, "Host CACHE Writes (%)", 69);
    addCounter(now.counters, "RL (%)", 26);
    addCounter(now.counters, "SSD ReadCacheReadHits (%)", 39);
    CacheStatisticsModel const model(now, nullptr);
    EXPECT_EQ(model.capacities[1].percent, 25);
    EXPECT_EQ(model.capacities[5].percent, 69);
    EXPECT_FALSE(model.capacities[5].ofReadData);
    EXPECT_EQ(model.capacities[6].percent, 26);
    EXPECT_TRUE(model.capacities[6].ofReadData);
    EXPECT_EQ(model.hits[1].percent, 39);
}

TEST(CacheStatisticsModelTest, TheAnalysisTakesEachShareWithinItsOwnSample)
{
    CacheStatisticsSample before, now;
    for (auto [table, writes, readOver, writeOver, flushes] :
         {std::tuple{&before.counters, 200, 20, 10, 64}, std::tuple{&now.counters, 400, 100, 20, 100}}) {
        addCounter(*table, "SSD WriteCacheWrites", writes);
        addCounter(*table, "SSD ReadCacheOverwrites", readOver);
        addCounter(*table, "SSD WriteCacheOverwrites", writeOver);
        addCounter(*table, "SSD ReadCacheFlushes", flushes);
    }
    CacheStatisticsModel const model(now, &before);
    CacheStatisticsModel::Analysis const& a = model.analysis;
    EXPECT_EQ(a.newWrites.value, 280);
    EXPECT_EQ(a.newWrites.change, 110);
    EXPECT_EQ(a.readOverwritePercent.value, 25);
    EXPECT_EQ(a.readOverwritePercent.change, 15); // 25% now, 10% before
    EXPECT_EQ(a.newWritePercent.value, 70);
    EXPECT_EQ(a.newWritePercent.change, -15);
    EXPECT_EQ(a.flushedMib.value, 3);
    EXPECT_EQ(a.flushedMib.change, 1);
    EXPECT_EQ(a.flushes.change, 36);
}

TEST(CacheStatisticsModelTest, LunTotalsCountTheLimitOrTheSize)
{
    CacheStatisticsSample now;
    now.pool.configuredForCachePool = 100 * GiB;
    now.luns.push_back(cachedLun(1, 200 * GiB, 64 * GiB, GiB, 0));
    now.luns.push_back(cachedLun(2, 50 * GiB, 0, 0, 0));
    CacheStatisticsModel const model(now, nullptr);
    EXPECT_EQ(model.totalLunBytes, 250 * GiB);
    EXPECT_EQ(model.totalCacheableBytes, 114 * GiB);
    EXPECT_EQ(model.luns[0].cacheableBytes, 64 * GiB);
    EXPECT_EQ(model.luns[1].cacheableBytes, 50 * GiB);
    EXPECT_EQ(model.luns[0].wwuln, "6060-6060-6060-6060-6060-6060-6060-6001");
    EXPECT_EQ(model.poolBytes, 100 * GiB);
}

TEST(CacheStatisticsModelTest, ALunsChangeIsTakenAgainstTheSamePlaceOfThePreviousSample)
{
    CacheStatisticsSample before, now;
    before.luns.push_back(cachedLun(1, GiB, 0, 300, 100));
    now.luns.push_back(cachedLun(1, GiB, 0, 500, 100));
    now.luns.push_back(cachedLun(2, GiB, 0, 7, 0)); // new since: counted against nothing
    CacheStatisticsModel const model(now, &before);
    EXPECT_EQ(model.luns[0].usedBytes, 600u);
    EXPECT_EQ(model.luns[0].usedChange, 200u);
    EXPECT_EQ(model.luns[1].usedChange, 7u);
}

TEST(CacheStatisticsModelTest, MirrorLunsCarryTheirDirtyData)
{
    CacheStatisticsSample before, now;
    KLunInfo mirror;
    samples::setWwuln(mirror, 0x61, 9);
    mirror.cacheInfo.ui64MirrorDirtyCacheBytes = 4096;
    before.mirrorLuns.push_back(mirror);
    mirror.cacheInfo.ui64MirrorDirtyCacheBytes = 1024;
    now.mirrorLuns.push_back(mirror);
    CacheStatisticsModel const model(now, &before);
    ASSERT_EQ(model.mirrorLuns.size(), 1u);
    EXPECT_EQ(model.mirrorLuns[0].dirtyBytes, 1024u);
    EXPECT_EQ(static_cast<long long>(model.mirrorLuns[0].dirtyChange), -3072);
}
