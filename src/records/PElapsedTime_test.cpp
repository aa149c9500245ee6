#include "records/PElapsedTime.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

TEST(PElapsedTime, NotExpiredRightAfterTheStart)
{
    PElapsedTime timer;
    timer.initElapsedTime();
    EXPECT_FALSE(timer.isExpired(2000));
    // Strictly greater: no interval exceeds the largest one.
    EXPECT_FALSE(timer.isExpired(UINT_MAX));
}

TEST(PElapsedTime, ElapsedTimeAcrossTheWrapComesOutRight)
{
    EXPECT_EQ(0x200u, PElapsedTime::elapsedBetween(0xFFFFFF00u, 0x100u));
    EXPECT_EQ(1u, PElapsedTime::elapsedBetween(0xFFFFFFFFu, 0u));
    EXPECT_EQ(500u, PElapsedTime::elapsedBetween(1000u, 1500u));
}

TEST(PElapsedTime, InitClearsTheStartAndNothingIsSaved)
{
    PElapsedTime timer;
    EXPECT_EQ(0u, timer.getStartMs());
    timer.initElapsedTime();
    PElapsedTime copy(timer);
    EXPECT_EQ(timer.getStartMs(), copy.getStartMs());
    copy.init();
    EXPECT_EQ(0u, copy.getStartMs());
    EXPECT_EQ(0u, copy.getSerialOffset());
}

} // namespace
