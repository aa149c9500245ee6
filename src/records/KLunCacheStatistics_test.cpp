#include "records/KLunCacheStatistics.h"

#include <gtest/gtest.h>

namespace {

KLunCacheStatistics someStatistics()
{
    KLunCacheStatistics s;
    s.bValid = true;
    s.ui64CleanBytes = 1048576;
    s.ui64TotalRead = 2097152;
    s.ui64ReadHitBytes = 1048576;
    s.ui64WriteHitBytes = 0;
    s.ui32ReadHitPercent = 5000;
    s.ui32WriteHitPercent = 1995;
    return s;
}

} // namespace

TEST(KLunCacheStatistics, PercentRoundsToOneDecimal)
{
    EXPECT_EQ(KLunCacheStatistics::displayPercentTenthsForHundredthsLSB(9995), "100.0");
    EXPECT_EQ(KLunCacheStatistics::displayPercentTenthsForHundredthsLSB(0), "0.0");
    EXPECT_EQ(KLunCacheStatistics::displayPercentTenthsForHundredthsLSB(1995), "20.0");
    EXPECT_EQ(KLunCacheStatistics::displayPercentTenthsForHundredthsLSB(5), "0.1");
    EXPECT_EQ(KLunCacheStatistics::displayPercentTenthsForHundredthsLSB(4), "0.0");
    EXPECT_EQ(KLunCacheStatistics::displayPercentTenthsForHundredthsLSB(1234), "12.3");
}

TEST(KLunCacheStatistics, TextSpeaksOfReadDataOnEveryHitLine)
{
    const KLunCacheStatistics s = someStatistics();
    EXPECT_EQ(s.displayText(),
              "        Cache Capacity Used (Clean) = 1MB"
              "\n        Read Data                   = 2MB"
              "\n        Cache Hits (Read Load))     = 1MB\t(50.0% of Read Data)"
              "\n        Cache Hits (Write Load)     = 0\t(20.0% of Read Data)"
              "\n        Cache Hits (Total)          = 1MB\t(70.0% of Read Data)\n");
}

TEST(KLunCacheStatistics, DirtyAndLockedLinesOnlyWhenInUse)
{
    KLunCacheStatistics s = someStatistics();
    s.ui64DirtyBytes = 2048;
    s.ui64LockedBytes = 1024;
    EXPECT_EQ(s.displayText(),
              "        Cache Capacity Used (Clean) = 1MB"
              "\n        Cache Capacity Used (Dirty) = 2KB"
              "\n        Cache Capacity Used (Locked) = 1KB"
              "\n        Read Data                   = 2MB"
              "\n        Cache Hits (Read Load))     = 1MB\t(50.0% of Read Data)"
              "\n        Cache Hits (Write Load)     = 0\t(20.0% of Read Data)"
              "\n        Cache Hits (Total)          = 1MB\t(70.0% of Read Data)\n");
}

TEST(KLunCacheStatistics, GaugesAreComparedAsSignedValues)
{
    KLunCacheStatistics s = someStatistics();
    s.ui64DirtyBytes = 0x8000000000000000ULL;
    s.ui64LockedBytes = ~0ULL;
    EXPECT_EQ(s.displayText().find("(Dirty)"), std::string::npos);
    EXPECT_EQ(s.displayText().find("(Locked)"), std::string::npos);
}

TEST(KLunCacheStatistics, SubtractTakesEveryCounterAndKeepsWrapAround)
{
    KLunCacheStatistics now = someStatistics();
    now.ui64DirtyBytes = 10;
    now.ui64LockedBytes = 20;
    now.ui64TotalWritten = 30;
    KLunCacheStatistics before;
    before.ui32ReadHitPercent = 1000;
    before.ui32WriteHitPercent = 2000;
    before.ui64TotalRead = 1;
    before.ui64TotalWritten = 2;
    before.ui64WriteHitBytes = 3;
    before.ui64ReadHitBytes = 4;
    before.ui64CleanBytes = 5;
    before.ui64DirtyBytes = 6;
    before.ui64LockedBytes = 7;

    now.subtract(before);
    EXPECT_EQ(now.ui32ReadHitPercent, 4000u);
    EXPECT_EQ(now.ui32WriteHitPercent, static_cast<uint32_t>(1995 - 2000));
    EXPECT_EQ(now.ui64TotalRead, 2097151u);
    EXPECT_EQ(now.ui64TotalWritten, 28u);
    EXPECT_EQ(now.ui64WriteHitBytes, ~0ULL - 2);
    EXPECT_EQ(now.ui64ReadHitBytes, 1048572u);
    EXPECT_EQ(now.ui64CleanBytes, 1048571u);
    EXPECT_EQ(now.ui64DirtyBytes, 4u);
    EXPECT_EQ(now.ui64LockedBytes, 13u);
    EXPECT_TRUE(now.isValid());
}

TEST(KLunCacheStatistics, CsvTitle)
{
    EXPECT_EQ(KLunCacheStatistics::displayCSVTitle(),
              "Cache Hit (Read Load) (Bytes), Cache Hit (Read Load) %, Cache Hit (Write Load) (Bytes), Cache Hit "
              "(Write Load)%, Total data read by host (Bytes), Total data written by host (bytes), Clean Cache "
              "in-use (Bytes), Dirty Cache in-use (Bytes), Locked Cache in-use (Bytes)");
}

TEST(KLunCacheStatistics, CopyAndInit)
{
    const KLunCacheStatistics s = someStatistics();
    KLunCacheStatistics copy(s);
    EXPECT_EQ(copy.displayText(), s.displayText());
    copy.init();
    EXPECT_FALSE(copy.bValid);
    EXPECT_EQ(copy.ui64TotalRead, 0u);
    EXPECT_EQ(copy.getSerialSize(), 68u);
}
