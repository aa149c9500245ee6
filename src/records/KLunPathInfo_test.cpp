#include "records/KLunPathInfo.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

namespace {

KLunPathInfo fcPath()
{
    KLunPathInfo path;
    path.eTargetType = KLunPathInfo::TARGET_TYPE_FC;
    path.ePathStatus = KLunPathInfo::LUNPATH_STATUS_ACTIVE_CURRENT_OPTIMIZED;
    const uint8_t wwpn[8] = {0x21, 0x00, 0x00, 0x24, 0xFF, 0x01, 0x02, 0x03};
    const uint8_t wwnn[8] = {0x20, 0x00, 0x00, 0x24, 0xFF, 0x01, 0x02, 0x03};
    const uint8_t portId[4] = {0x01, 0x02, 0x03, 0x04};
    memcpy(path.fcPath.ui8Wwpn, wwpn, 8);
    memcpy(path.fcPath.ui8Wwnn, wwnn, 8);
    memcpy(path.fcPath.ui8PortId, portId, 4);
    return path;
}

KLunPathInfo iscsiPath()
{
    KLunPathInfo path;
    path.eTargetType = KLunPathInfo::TARGET_TYPE_ISCSI;
    strcpy(path.iscsiPath.szTargetName, "iqn.2001-04.com.example:disk1");
    path.iscsiPath.ui32TcpPort = 3260;
    path.iscsiPath.ipAddress.setType(PIpAddress::IPV_SHORT_1);
    path.iscsiPath.ipAddress.setNumericText("10.0.0.5", "255.255.255.0");
    return path;
}

} // namespace

TEST(KLunPathInfo, FibreChannelPath)
{
    const KLunPathInfo path = fcPath();
    EXPECT_TRUE(path.isFcTarget());
    EXPECT_FALSE(path.isIscsiTarget());
    EXPECT_EQ(path.displayText(),
              "            WWPN = 2100-0024-FF01-0203\n"
              "            WWNN = 2000-0024-FF01-0203\n"
              "            Port ID = 01-02-03\n"
              "            Status:  Active Current Optimized\n");
}

TEST(KLunPathInfo, IscsiPath)
{
    const KLunPathInfo path = iscsiPath();
    EXPECT_TRUE(path.isIscsiTarget());
    EXPECT_EQ(path.displayText(),
              "            iSCSI Target Name = iqn.2001-04.com.example:disk1\n"
              "            IP Address = 10.0.0.5\n"
              "            TCP Port = 3260\n"
              "            Status:  Unknown\n");
}

TEST(KLunPathInfo, IscsiPathWithoutAddress)
{
    KLunPathInfo path = iscsiPath();
    path.iscsiPath.ipAddress.init();
    EXPECT_NE(path.displayText().find("            IP Address = INVALID\n"), std::string::npos);
}

TEST(KLunPathInfo, OtherTargetTypeShowsOnlyTheStatus)
{
    KLunPathInfo path = fcPath();
    path.eTargetType = static_cast<KLunPathInfo::TARGET_TYPE>(7);
    path.ePathStatus = KLunPathInfo::LUNPATH_STATUS_OFFLINE;
    EXPECT_EQ(path.displayText(), "            Status:  Offline\n");
}

TEST(KLunPathInfo, StatusTexts)
{
    const char* expected[13] = {
        "Unknown",           "Offline",         "Active",    "Active Current Optimized",
        "Active Optimized",  "Active Current",  "Passive",   "Passive Current Optimized",
        "Passive Optimized", "Passive Current", "Optimized", "Current Optimized",
        "Current",
    };
    for (int status = 0; status < 13; ++status)
        EXPECT_EQ(KLunPathInfo::lunPathStatusToText(static_cast<KLunPathInfo::LUNPATH_STATUS_TYPE>(status)),
                  expected[status]);
    EXPECT_EQ(KLunPathInfo::lunPathStatusToText(static_cast<KLunPathInfo::LUNPATH_STATUS_TYPE>(13)), "Unknown");
    EXPECT_EQ(KLunPathInfo::lunPathStatusToText(static_cast<KLunPathInfo::LUNPATH_STATUS_TYPE>(-1)), "Unknown");
}

TEST(KLunPathInfo, SavedImageRoundTripKeepsBothSides)
{
    KLunPathInfo path = iscsiPath();
    path.fcPath = fcPath().fcPath;
    FILE* f = tmpfile();
    ASSERT_NE(f, nullptr);
    std::string err;
    ASSERT_TRUE(path.serialize(true, f, err)) << err;
    rewind(f);
    KLunPathInfo back;
    ASSERT_TRUE(back.serialize(false, f, err)) << err;
    EXPECT_EQ(back.displayText(), path.displayText());
    EXPECT_EQ(back.fcPath.displayText(), fcPath().fcPath.displayText());
    fclose(f);
}

TEST(KLunPathInfo, CopyAndInit)
{
    KLunPathInfo copy(iscsiPath());
    EXPECT_EQ(copy.displayText(), iscsiPath().displayText());
    copy.init();
    EXPECT_EQ(copy.eTargetType, KLunPathInfo::TARGET_TYPE_NONE);
    EXPECT_EQ(copy.iscsiPath.szTargetName[0], 0);
    EXPECT_EQ(copy.iscsiPath.ipAddress.getType(), PIpAddress::IPV_NOT_SET);
}
