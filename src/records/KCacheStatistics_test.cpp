#include "records/KCacheStatistics.h"

#include <gtest/gtest.h>

TEST(KCacheStatistics, HundredthsKeepNoLeadingZero)
{
    EXPECT_EQ(KCacheStatistics::hundredthsToText(2005), "20.5");
    EXPECT_EQ(KCacheStatistics::hundredthsToText(5), "0.5");
    EXPECT_EQ(KCacheStatistics::hundredthsToText(10000), "100.0");
    EXPECT_EQ(KCacheStatistics::hundredthsToText(1234), "12.34");
}

TEST(KCacheStatistics, SummaryText)
{
    KCacheStatistics stats;
    stats.totalCapacity = 400ULL << 30;
    stats.usedCapacity = 100ULL << 30;
    stats.usedPercentFirst = 2000;
    stats.usedPercentSecond = 5;
    stats.readData = 3ULL << 40;
    stats.readLoadHits = 1ULL << 40;
    stats.writeLoadHits = 512ULL << 30;
    stats.readLoadPercent = 3333;
    stats.writeLoadPercent = 1667;
    EXPECT_EQ(stats.displayText(),
              "    [Global Cache Statistics]\n\n"
              "    Total Cache Capacity             = 400GB"
              "\n    Cache Capacity Used (SSD+RAM)    = 100GB\t(20.5% of capacity)"
              "\n    Read Data                        = 3TB"
              "\n    Cache Hits (Read Load)           = 1TB\t(33.33% of Read Data)"
              "\n    Cache Hits (Write Load)          = 512GB\t(16.67% of Read Data)"
              "\n    Cache Hits (Total)               = 1.50TB\t(50.0% of Read Data)"
              "\n");
}

TEST(KCacheStatistics, SumsOfLargeSharesDoNotWrap)
{
    KCacheStatistics stats;
    stats.usedPercentFirst = 4294967295u;
    stats.usedPercentSecond = 1;
    EXPECT_NE(stats.displayText().find("(42949672.96% of capacity)"), std::string::npos);
}

TEST(KCacheStatistics, ImageIsKeptWhole)
{
    KCacheStatistics stats;
    stats.reserved[3] = 77;
    stats.writeLoadPercent = 5;
    KCacheStatistics copy(stats);
    EXPECT_EQ(copy.reserved[3], 77u);
    EXPECT_EQ(copy.writeLoadPercent, 5u);
    EXPECT_EQ(copy.getSerialOffset(), 24u);
    EXPECT_EQ(copy.getSerialSize(), 72u);
    copy.init();
    EXPECT_EQ(copy.reserved[3], 0u);
    EXPECT_EQ(copy.displayText(),
              "    [Global Cache Statistics]\n\n"
              "    Total Cache Capacity             = 0"
              "\n    Cache Capacity Used (SSD+RAM)    = 0\t(0.0% of capacity)"
              "\n    Read Data                        = 0"
              "\n    Cache Hits (Read Load)           = 0\t(0.0% of Read Data)"
              "\n    Cache Hits (Write Load)          = 0\t(0.0% of Read Data)"
              "\n    Cache Hits (Total)               = 0\t(0.0% of Read Data)"
              "\n");
}
