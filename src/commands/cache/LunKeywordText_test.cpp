#include "commands/cache/LunKeywordText.h"

#include <gtest/gtest.h>

#include "records/PUniqueID.h"

namespace {

PLunID fcLun(int number)
{
    PLunID lun;
    lun.initLunIdOnFcTargetFromString("5006016039A01122", number, PBase::VPGROUP_1);
    return lun;
}

PLunID iscsiLun(int number)
{
    PTargetID target;
    target.initIscsiTargetID(reinterpret_cast<unsigned char const*>("iqn.2004-04.com.example:t1"));
    PLunID lun;
    lun.initLunID(target, number, PBase::VPGROUP_1);
    return lun;
}

TEST(LunKeywordText, TargetKeywordFollowsTheProtocol)
{
    EXPECT_EQ(targetKeyword(true), " -is_target=");
    EXPECT_EQ(targetKeyword(false), " -fc_target=");
}

TEST(LunKeywordText, FibreChannelLunIsNamedByTargetAndNumber)
{
    EXPECT_EQ(lunKeywordText(fcLun(7)), " -fc_target=5006-0160-39A0-1122 -lun_number=7");
}

TEST(LunKeywordText, IscsiLunIsNamedWithTheIscsiKeyword)
{
    EXPECT_EQ(lunKeywordText(iscsiLun(0)), " -is_target=iqn.2004-04.com.example:t1 -lun_number=0");
}

} // namespace
