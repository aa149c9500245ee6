#include "commands/lun/LunCommandSupport.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <vector>

#include "records/PUniqueID.h"

namespace {

uint32_t wordAt(CountedRecordBuffer const& buffer, size_t offset)
{
    uint32_t value = 0;
    std::memcpy(&value, static_cast<unsigned char const*>(buffer.data()) + offset, sizeof value);
    return value;
}

PLunID lunOnTarget(char const* wwpn, int number)
{
    PLunID lun;
    lun.initLunIdOnFcTargetFromString(wwpn, number, PBase::VPGROUP_1);
    return lun;
}

} // namespace

TEST(CountedRecordBuffer, AloneIsTheHeaderWithACountOfZero)
{
    CountedRecordBuffer const buffer;
    ASSERT_EQ(8u, buffer.size());
    EXPECT_EQ(8u, wordAt(buffer, 0));
    EXPECT_EQ(0u, wordAt(buffer, 4));
}

TEST(CountedRecordBuffer, EachImageFollowsItsSizeThatCountsItself)
{
    std::vector<PLunID> const luns = {lunOnTarget("5006-0160-3BE0-1234", 2), lunOnTarget("5006-0160-3BE0-1234", 7)};
    CountedRecordBuffer buffer;
    buffer.appendAll(luns);

    ASSERT_EQ(8u + 2 * 580u, buffer.size());
    EXPECT_EQ(8u, wordAt(buffer, 0));
    EXPECT_EQ(2u, wordAt(buffer, 4));
    EXPECT_EQ(580u, wordAt(buffer, 8));
    EXPECT_EQ(580u, wordAt(buffer, 8 + 580));
    unsigned char const* const bytes = static_cast<unsigned char const*>(buffer.data());
    EXPECT_EQ(0, std::memcmp(bytes + 12, &luns[0], sizeof(PLunID)));
    EXPECT_EQ(0, std::memcmp(bytes + 12 + 580, &luns[1], sizeof(PLunID)));
}

TEST(LunOutcomeTally, NothingFailedIsZero)
{
    LunOutcomeTally tally;
    EXPECT_EQ(0, tally.resultCode());
    tally.record(0);
    tally.record(0);
    EXPECT_EQ(0, tally.resultCode());
}

TEST(LunOutcomeTally, SomeFailedAndSomeWorkedIsPartialSuccessInAnyOrder)
{
    LunOutcomeTally failedFirst;
    failedFirst.record(1206);
    failedFirst.record(0);
    EXPECT_EQ(2, failedFirst.resultCode());

    LunOutcomeTally failedLast;
    failedLast.record(0);
    failedLast.record(0);
    failedLast.record(116);
    EXPECT_EQ(2, failedLast.resultCode());
}

TEST(LunOutcomeTally, OnlyFailuresGiveTheLastFailuresCode)
{
    LunOutcomeTally tally;
    tally.record(116);
    tally.record(1206);
    EXPECT_EQ(1206, tally.resultCode());
}

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
