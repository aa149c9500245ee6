#include "commands/CountedRecordBuffer.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "records/PUniqueID.h"
#include "records/RecordImage.h"

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
    EXPECT_EQ(0, std::memcmp(bytes + 12, recordImage(luns[0]).data(), sizeof(PLunID)));
    EXPECT_EQ(0, std::memcmp(bytes + 12 + 580, recordImage(luns[1]).data(), sizeof(PLunID)));
}

TEST(CountedRecordBuffer, ACountStatedForOneRecordAmongManyStaysAsStated)
{
    CountedRecordBuffer buffer;
    buffer.appendAll(std::vector<PLunID>{lunOnTarget("5006-0160-3BE0-1234", 2)});
    buffer.stateCount(6);
    ASSERT_EQ(8u + 4u + sizeof(PLunID), buffer.size());
    EXPECT_EQ(8u, wordAt(buffer, 0));
    EXPECT_EQ(6u, wordAt(buffer, 4));
    EXPECT_EQ(4u + sizeof(PLunID), wordAt(buffer, 8));
}
