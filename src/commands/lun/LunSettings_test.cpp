#include "commands/lun/LunSettings.h"

#include <gtest/gtest.h>

#include <climits>

TEST(LunSizes, GigabytesAreTwoToTheThirtyBytes)
{
    EXPECT_EQ(1ull << 30, gigabytesToBytes(1));
    EXPECT_EQ(0xFA00000000ull, gigabytesToBytes(1000));
}

TEST(LunSizes, AByteCountTooLargeForSixtyFourBitsStaysTheLargest)
{
    EXPECT_EQ(~0ull, gigabytesToBytes(LLONG_MAX));
    EXPECT_EQ(~0ull, gigabytesToBytes(1ll << 34));
    EXPECT_EQ((1ull << 63), gigabytesToBytes(1ll << 33));
}

TEST(LunSizes, TypedFiguresReadInBaseTenWithTheUnreadableAsZero)
{
    EXPECT_EQ(0, decimalValue(""));
    EXPECT_EQ(0, decimalValue("abc"));
    EXPECT_EQ(12, decimalValue("12"));
    EXPECT_EQ(10, decimalValue("010"));
    EXPECT_EQ(-3, decimalValue("-3"));
    EXPECT_EQ(20, decimalValue("20GB"));
    EXPECT_EQ(LLONG_MAX, decimalValue("99999999999999999999"));
}
