// The number and name texts written digit by digit, at their edges.
#include "records/PBase.h"

#include <gtest/gtest.h>

#include <climits>

TEST(PBaseDigitsTest, HexadecimalNumbersHaveNoLeadingZerosButZeroItself)
{
    EXPECT_EQ("0", PBase::ui64NumberToHexText(0));
    EXPECT_EQ("10", PBase::ui64NumberToHexText(16));
    EXPECT_EQ("ABCDEF", PBase::ui64NumberToHexText(0xABCDEF));
    EXPECT_EQ("2000001B32A10C00", PBase::ui64NumberToHexText(0x2000001B32A10C00ull));
    EXPECT_EQ("8000000000000000", PBase::ui64NumberToHexText(1ull << 63));
}

TEST(PBaseDigitsTest, DecimalNumbersAtTheirLimits)
{
    EXPECT_EQ("0", PBase::numberToText(0));
    EXPECT_EQ("-2147483648", PBase::numberToText(INT_MIN));
    EXPECT_EQ("2147483647", PBase::numberToText(INT_MAX));
    EXPECT_EQ("0", PBase::i64NumberToText(0));
    EXPECT_EQ("0", PBase::ui64NumberToText(0));
}

TEST(PBaseDigitsTest, BytesAreAlwaysTwoUpperCaseDigits)
{
    EXPECT_EQ("00", PBase::byteToHexText(0));
    EXPECT_EQ("0F", PBase::byteToHexText(15));
    EXPECT_EQ("FF", PBase::byteToHexText(255));
    const unsigned char ones[8] = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
    EXPECT_EQ("FFFF-FFFF-FFFF-FFFF", PBase::wwnameToText(ones));
    const unsigned char zeros[8] = {};
    EXPECT_EQ("00-00-00-00-00-00-00-00", PBase::wwnameToText_single_bytes(zeros));
    EXPECT_EQ("00-00-00", PBase::portIdToText(zeros));
    EXPECT_EQ("FFFF-FFFF-FF", PBase::wwulnToText(ones, 5, PBase::WWULN_CODE_SET_BINARY));
}
