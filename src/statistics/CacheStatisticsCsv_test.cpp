#include "statistics/CacheStatisticsCsv.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "support/CacheStatisticsSamples.h"
#include "support/ScratchFileTest.h"

using samples::addCounter;
using samples::cachedLun;

namespace {

constexpr unsigned long long MiB = 1ull << 20;
constexpr unsigned long long GiB = 1ull << 30;

class CacheStatisticsCsvTest : public ScratchFileTest {
protected:
    std::string read(std::string const& name) const
    {
        std::ifstream in(dir.file("run/" + name), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }

    bool write(bool first = true)
    {
        CacheStatisticsModel const model(now, nullptr);
        return CacheStatisticsCsv(model, dir.file("run")).writeFiles("ID", first, err);
    }

    static std::vector<std::string> lines(std::string const& text)
    {
        std::vector<std::string> all;
        for (std::string::size_type at = 0, end; (end = text.find('\n', at)) != std::string::npos; at = end + 1)
            all.push_back(text.substr(at, end - at));
        return all;
    }

    // The cells of a row after date, time and adapter id.
    static std::string valuesOf(std::string const& row)
    {
        std::string::size_type at = 0;
        for (int i = 0; i < 3; ++i)
            at = row.find(',', at) + 1;
        return row.substr(at);
    }

    static long cells(std::string const& line) { return std::count(line.begin(), line.end(), ','); }

    CacheStatisticsSample now;
    std::string err;
};

} // namespace

TEST_F(CacheStatisticsCsvTest, FourFilesInAFolderOfTheRun)
{
    ASSERT_TRUE(write()) << err;
    EXPECT_EQ(lines(read("ID_cache_statistics.csv")).size(), 2u);
    EXPECT_EQ(lines(read("ID_host_pcie_statistics.csv")).size(), 2u);
    EXPECT_EQ(lines(read("ID_lun_cache_statistics.csv")).size(), 2u);
    EXPECT_EQ(lines(read("ID_cache_statistics_summary.csv")).size(), 2u);
    ASSERT_TRUE(write(false));
    EXPECT_EQ(lines(read("ID_cache_statistics_summary.csv")).size(), 3u);
    ASSERT_TRUE(write(true));
    EXPECT_EQ(lines(read("ID_cache_statistics_summary.csv")).size(), 2u);
}

TEST_F(CacheStatisticsCsvTest, AnEmptyCounterTableGivesOnlyTheLeadingTitles)
{
    ASSERT_TRUE(write());
    EXPECT_EQ(lines(read("ID_cache_statistics.csv"))[0], "Date,Time,Adapter ID,");
    EXPECT_EQ(valuesOf(lines(read("ID_cache_statistics.csv"))[1]), "");
}

TEST_F(CacheStatisticsCsvTest, EveryCounterOfTheTableInItsOrderAsWhole64BitNumbers)
{
    addCounter(now.counters, "Temperature CPU", 58);
    addCounter(now.counters, "UpTime", -1);
    addCounter(now.counters, std::string(32, 'x'), 9223372036854775807ll);
    ASSERT_TRUE(write());
    std::vector<std::string> const rows = lines(read("ID_cache_statistics.csv"));
    EXPECT_EQ(rows[0], "Date,Time,Adapter ID,Temperature CPU,UpTime," + std::string(32, 'x') + ",");
    EXPECT_EQ(valuesOf(rows[1]), "58,-1,9223372036854775807,");
}

TEST_F(CacheStatisticsCsvTest, ANameWithoutItsEndIsCutAtTheRecord)
{
    addCounter(now.counters, std::string(KCacheInfo::NAME_SIZE, 'n'), 1);
    ASSERT_TRUE(write());
    EXPECT_EQ(lines(read("ID_cache_statistics.csv"))[0],
              "Date,Time,Adapter ID," + std::string(KCacheInfo::NAME_SIZE, 'n') + ",");
}

TEST_F(CacheStatisticsCsvTest, AFullTableOf256Counters)
{
    for (int i = 0; i < 256; ++i)
        addCounter(now.counters, "c" + std::to_string(i), i);
    ASSERT_TRUE(write());
    std::vector<std::string> const rows = lines(read("ID_cache_statistics.csv"));
    EXPECT_EQ(cells(rows[0]), 3 + 256);
    EXPECT_EQ(cells(rows[1]), 3 + 256);
    EXPECT_EQ(rows[1].substr(rows[1].size() - 9), ",254,255,");
}

TEST_F(CacheStatisticsCsvTest, TheHostIoFileHasTheRecordsFieldsInOrder)
{
    now.hostPcie.readDiffTime = 1000;
    now.hostPcie.writeIoOutstanding = 4294967295u;
    ASSERT_TRUE(write());
    std::vector<std::string> const rows = lines(read("ID_host_pcie_statistics.csv"));
    EXPECT_EQ(rows[0].substr(0, 52), "Date,Time,Adapter ID,Read Diff Time,Write Diff Time,");
    EXPECT_EQ(rows[0].substr(rows[0].size() - 29), "Current Write IO Outstanding,");
    EXPECT_EQ(valuesOf(rows[1]), "1000,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,4294967295,");
}

TEST_F(CacheStatisticsCsvTest, TheSummaryTitleKeepsItsSpellingsAndTabs)
{
    std::string const title = CacheStatisticsCsv::summaryTitle(0, 0);
    EXPECT_EQ(title.substr(0, 30), "Date,Time,Adapter ID, \t\t\t\t  Ho");
    EXPECT_NE(title.find("Host Write Max Latency (ms) ,Host Write Avg Latency (ms),"), std::string::npos);
    EXPECT_NE(title.find("% of Read Data (MB), Cache Hits (Write Load) (MB),"), std::string::npos);
    EXPECT_NE(title.find("Hits from Write, %,\t\t\t\t  New SSD"), std::string::npos);
    EXPECT_NE(title.find("SSD Ccahe Freed,"), std::string::npos);
    EXPECT_EQ(std::count(title.begin(), title.end(), '\t'), 13 * 4);
    EXPECT_EQ(title.substr(title.size() - 74),
              "Number of Cached LUNs, Total LUN Size (MB), Total Cacheable LUN Size (MB),");
    std::string const two = CacheStatisticsCsv::summaryTitle(2, 1);
    EXPECT_EQ(two.substr(title.size(), 40), "LUN 1 WWULN, Cache Type, Size (MB), Rati");
    EXPECT_NE(two.find("Locked Cache in-use (MB),LUN 2 WWULN, Cache Type,"), std::string::npos);
    EXPECT_EQ(two.substr(two.size() - 67), "Locked Cache in-use (MB),Mirror LUN 1 WWULN, Size (MB), Dirty (MB),");
}

TEST_F(CacheStatisticsCsvTest, TheLunFileTitleSaysBytesAndKeepsItsOneSmallLetter)
{
    EXPECT_EQ(CacheStatisticsCsv::lunCacheTitle(0, 0), "Date,Time,Adapter ID,");
    std::string const title = CacheStatisticsCsv::lunCacheTitle(1, 1);
    EXPECT_EQ(title.substr(0, 107),
              "Date,Time,Adapter ID,Number of Cached LUNs,Total LUN Size,Total Cacheable LUN "
              "Size,LUN 1 WWULN, Cache Type,");
    EXPECT_NE(title.find(" Total data written by host (bytes),"), std::string::npos);
    EXPECT_EQ(title.substr(title.size() - 48), "Mirror LUN 1 WWULN, Size (Bytes), Dirty (Bytes),");
}

TEST_F(CacheStatisticsCsvTest, EveryRowHasAsManyCellsAsItsTitle)
{
    now.luns.push_back(cachedLun(1, 200 * GiB, 64 * GiB, GiB, 0));
    KLunInfo mirror;
    samples::setWwuln(mirror, 0x61, 9);
    now.mirrorLuns.push_back(mirror);
    ASSERT_TRUE(write());
    for (char const* file : {"ID_cache_statistics_summary.csv", "ID_lun_cache_statistics.csv"}) {
        std::vector<std::string> const rows = lines(read(file));
        EXPECT_EQ(cells(rows[0]), cells(rows[1])) << file;
    }
    now.luns.clear();
    now.mirrorLuns.clear();
    ASSERT_TRUE(write());
    std::vector<std::string> const rows = lines(read("ID_cache_statistics_summary.csv"));
    EXPECT_EQ(cells(rows[0]), 90);
    EXPECT_EQ(cells(rows[1]), 90);
    EXPECT_EQ(rows[1].substr(rows[1].size() - 21), ",0,0.000000,0.000000,");
}

TEST_F(CacheStatisticsCsvTest, ALunsValuesInMegabytesAndInBytes)
{
    now.luns.push_back(cachedLun(1, 200 * GiB, 0, 3 * MiB, MiB / 2));
    now.luns.push_back(cachedLun(2, 50 * GiB, 10 * GiB, 0, 0));
    KLunCacheStatistics& s = now.luns[0].io.cacheStatistics;
    s.ui64ReadHitBytes = 5 * MiB;
    s.ui32ReadHitPercent = 7899;
    s.ui64LockedBytes = MiB;
    now.luns[0].info.cacheInfo.ui32LockedRangeCount = 2;
    ASSERT_TRUE(write());
    std::string const summary = lines(read("ID_cache_statistics_summary.csv"))[1];
    std::string::size_type const luns = summary.find(",2,256000.000000,215040.000000,");
    ASSERT_NE(luns, std::string::npos) << summary;
    EXPECT_EQ(summary.substr(luns + 1),
              "2,256000.000000,215040.000000,"
              "6060-6060-6060-6060-6060-6060-6060-6001,2.000000,204800.000000,80.000000,204800.000000,95.238095,"
              "2048.000000,"
              "16.000000,1024.000000,8.000000,2.000000,5.000000,78.990000,0.000000,0.000000,0.000000,0.000000,"
              "3.000000,0.500000,1.000000,"
              "6060-6060-6060-6060-6060-6060-6060-6002,2.000000,51200.000000,20.000000,10240.000000,4.761905,"
              "2048.000000,"
              "16.000000,1024.000000,8.000000,0.000000,0.000000,0.000000,0.000000,0.000000,0.000000,0.000000,"
              "0.000000,0.000000,0.000000,");
    std::string const bytes = valuesOf(lines(read("ID_lun_cache_statistics.csv"))[1]);
    EXPECT_EQ(bytes.substr(0, 121),
              "2,268435456000.000000,225485783040.000000,6060-6060-6060-6060-6060-6060-6060-6001,"
              "2.000000,214748364800.000000,80.000000,");
    EXPECT_NE(bytes.find(",5242880.000000,78.990000,"), std::string::npos);
}

TEST_F(CacheStatisticsCsvTest, TheSummaryValuesFollowTheTitleGroups)
{
    now.hostPcie.minReadLatency = 85;
    now.hostPcie.readIoOutstanding = 5;
    now.hostPcie.readIoCount = 10;
    now.hostPcie.minReadIoSize = 4096;
    addCounter(now.counters, "Host Reads Min", 3);
    addCounter(now.counters, "Cache Pool Max MB", 800);
    addCounter(now.counters, "Cache Pool Used MB", 200);
    addCounter(now.counters, "SSD ReadCacheFlushes", 100);
    addCounter(now.counters, "SSD ReadBypassSize", 7);
    addCounter(now.counters, "ReadIos Total", 100);
    ASSERT_TRUE(write());
    std::string const values = valuesOf(lines(read("ID_cache_statistics_summary.csv"))[1]);
    EXPECT_EQ(values.substr(0, 36), "0.085000,0.000000,0.000000,5.000000,");
    EXPECT_NE(values.find(",10.000000,4.000000,0.000000,0.000000,"), std::string::npos);
    EXPECT_NE(values.find(",0.000000,1.500000,0.000000,0.000000,0.000000,0.000000,"), std::string::npos);
    EXPECT_NE(values.find(",800.000000,200.000000,25.000000,0.000000,"), std::string::npos);
    EXPECT_NE(values.find(",100.000000,3.000000,7.000000,7.000000,0.000000,0.000000,"), std::string::npos);
}

TEST_F(CacheStatisticsCsvTest, AFolderThatCannotBeMadeFailsWithTheOpenText)
{
    CacheStatisticsModel const model(now, nullptr);
    EXPECT_FALSE(CacheStatisticsCsv(model, dir.file("none/run")).writeFiles("ID", true, err));
    EXPECT_EQ(err,
              "Unable to open file \"" + dir.file("none/run") +
                  "/ID_cache_statistics.csv\", (No such file or "
                  "directory)");
}
