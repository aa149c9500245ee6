#include "statistics/StatisticsLoop.h"

#include <gtest/gtest.h>

TEST(StatisticsLoopTest, TheClockShowsHoursOnlyWhenThereAreAny)
{
    EXPECT_EQ(StatisticsLoop::clockText(0), "00:00");
    EXPECT_EQ(StatisticsLoop::clockText(5), "00:05");
    EXPECT_EQ(StatisticsLoop::clockText(65), "01:05");
    EXPECT_EQ(StatisticsLoop::clockText(3599), "59:59");
    EXPECT_EQ(StatisticsLoop::clockText(3600), "1:00:00");
    EXPECT_EQ(StatisticsLoop::clockText(100000), "27:46:40");
    EXPECT_EQ(StatisticsLoop::clockText(360000), "100:00:00");
}
