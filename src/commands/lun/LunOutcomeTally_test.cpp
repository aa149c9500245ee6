#include "commands/lun/LunOutcomeTally.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

int resultOf(std::initializer_list<int> codes)
{
    LunOutcomeTally tally;
    for (int const code : codes)
        tally.record(code);
    return tally.resultCode();
}

} // namespace

TEST(LunOutcomeTally, NothingFailedIsZero)
{
    EXPECT_EQ(0, resultOf({}));
    EXPECT_EQ(0, resultOf({0, 0}));
}

TEST(LunOutcomeTally, SomeFailedAndSomeWorkedIsPartialSuccessInAnyOrder)
{
    EXPECT_EQ(2, resultOf({1206, 0}));
    EXPECT_EQ(2, resultOf({0, 0, 116}));
}

TEST(LunOutcomeTally, OnlyFailuresGiveTheLastFailuresCode)
{
    EXPECT_EQ(1206, resultOf({116, 1206}));
}
