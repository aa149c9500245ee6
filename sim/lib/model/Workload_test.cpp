#include "model/Workload.h"

#include "model/DefaultSan.h"
#include "model/View.h"

#include <gtest/gtest.h>

#include <set>

using namespace sim;

namespace {

constexpr u64 kDev0 = 0x2000001B32A10C00ull;
constexpr long long kNow = 1795000000;

class WorkloadTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        setenv("HBASIM_TIME", "1795000000", 1);
        san = defaultSan();
        dev0 = findAdapter(san, kDev0);
    }
    San san;
    const Adapter* dev0 = nullptr;
};

} // namespace

TEST_F(WorkloadTest, CountersCarryEveryNameTheStatisticsLookFor)
{
    std::set<std::string> names;
    for (const auto& [name, value] : cacheCounters(san, *dev0, kNow))
        names.insert(name);
    for (const char* stream : {"Host Reads", "Host Writes", "Read Flush", "Write Flush"})
        for (const char* end : {" IOs", " Min", " Max", " Avg", " IOPs", " KBs"})
            EXPECT_TRUE(names.count(std::string(stream) + end)) << stream << end;
    for (const char* name : {"UpTime",
                             "Cache Pool Max MB",
                             "Cache Pool Used MB",
                             "Cache Pool Dirty MB",
                             "Host Data Read MB",
                             "Host Data Write MB",
                             "Host CACHE Writes MB",
                             "Host CACHE Writes (%)",
                             "CACHE Read Hits MB RL",
                             "RL (%)",
                             "CACHE Read Hits MB WL",
                             "WL (%)",
                             "CACHE Read Hits MB Total",
                             "Total (%)",
                             "RAM ReadCacheReadHits",
                             "RAM ReadCacheReadHits (%)",
                             "SSD ReadCacheReadHits",
                             "SSD ReadCacheReadHits (%)",
                             "SSD ReadCacheOWReadHits",
                             "SSD ReadCacheOWReadHits (%)",
                             "SSD WriteCacheReadHits",
                             "SSD WriteCacheReadHits (%)",
                             "SSD ReadCacheFlushes",
                             "SSD ReadBypassSize",
                             "SSD ReadBypassMem",
                             "ReadIos Total",
                             "SSD WriteCacheWrites",
                             "Cache Breakup Write IOs",
                             "SSD ReadCacheOverwrites",
                             "SSD WriteCacheOverwrites",
                             "SSD ReadCacheFreed",
                             "SSD WriteBypassSize",
                             "SSD WriteBypassMem",
                             "WriteIos Total"})
        EXPECT_TRUE(names.count(name)) << name;
    for (const std::string& name : names)
        EXPECT_LE(name.size(), 32u) << name;
}

TEST_F(WorkloadTest, FiguresRepeatForOneMomentAndGrowWithTime)
{
    const Lun* lun = findLunByWwuln(san, "60060160A1B2C3D4E5F6000000000001");
    ASSERT_NE(lun, nullptr);
    LunLoad first = lunLoad(san, *lun, *dev0, kNow);
    LunLoad again = lunLoad(san, *lun, *dev0, kNow);
    LunLoad later = lunLoad(san, *lun, *dev0, kNow + 60);
    EXPECT_EQ(first.readCount, again.readCount);
    EXPECT_GT(later.readCount, first.readCount);
    EXPECT_GT(later.writeBlocks, first.writeBlocks);
    EXPECT_LE(first.readHitPercent + first.writeHitPercent, 10000u);
    EXPECT_EQ(first.dirtyBytes, lun->cache.dirtyBytes);
    EXPECT_EQ(first.lockedBytes, (2048u + 8192u) * 512u);
}

TEST_F(WorkloadTest, ClearingStartsFromZeroAndOnlyTheCacheHolderHasCacheFigures)
{
    Adapter* a = findAdapter(san, kDev0);
    a->statsClearedAt = kNow;
    const Lun* lun = findLunByWwuln(san, "60060160A1B2C3D4E5F6000000000001");
    EXPECT_EQ(lunLoad(san, *lun, *a, kNow).readCount, 0u);
    const Adapter* peer = findAdapter(san, 0x2000001B32A10D00ull);
    LunLoad seenByPeer = lunLoad(san, *lun, *peer, kNow);
    EXPECT_GT(seenByPeer.readCount, 0u);
    EXPECT_EQ(seenByPeer.readHitBytes, 0u);
    const Lun* offline = findLunByWwuln(san, "600A0B80002A1C3D0000000052B2A003");
    EXPECT_EQ(lunLoad(san, *offline, *peer, kNow).readCount, 0u);
}
