#include "records/KLogicalBlockRange.h"

#include <gtest/gtest.h>

TEST(KLogicalBlockRange, TextHasNoLineEnd)
{
    KLogicalBlockRange range;
    range.ui64StartLba = 18446744073709551615ULL;
    range.ui32Size = 50;
    EXPECT_EQ(range.displayText(), "StartLba: 18446744073709551615\tSize: 50");
}

TEST(KLogicalBlockRange, SavedAreaIsStartAndSize)
{
    KLogicalBlockRange range;
    EXPECT_EQ(range.getSerialOffset(), 24u);
    EXPECT_EQ(range.getSerialSize(), 16u);
    range.ui64StartLba = 7;
    KLogicalBlockRange copy(range);
    EXPECT_EQ(copy.ui64StartLba, 7u);
    copy.init();
    EXPECT_EQ(copy.displayText(), "StartLba: 0\tSize: 0");
}
