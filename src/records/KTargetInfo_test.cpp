#include "records/KTargetInfo.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

KTargetInfo fcTarget()
{
    KTargetInfo info;
    info.protocol = PBase::PROTOCOL_FIBRE_CHANNEL;
    info.online = true;
    info.mapped = true;
    info.discoveredOnPort1 = true;
    info.discoveredOnPort2 = true;
    info.portalMode = KTargetInfo::PORTAL_MODE_FCP;
    info.maxOutstandingIo = 256;
    const unsigned char wwnn[8] = {0x20, 0x00, 0x00, 0x11, 0x22, 0x33, 0x44, 0x55};
    const unsigned char wwpn[8] = {0x21, 0x00, 0x00, 0x11, 0x22, 0x33, 0x44, 0x55};
    const unsigned char portId[3] = {0x01, 0x02, 0x03};
    memcpy(info.fc.wwnn, wwnn, 8);
    memcpy(info.fc.wwpn, wwpn, 8);
    memcpy(info.fc.portId, portId, 3);
    return info;
}

KTargetInfo iscsiTarget()
{
    KTargetInfo info;
    info.protocol = PBase::PROTOCOL_ISCSI;
    info.discoveredOnPort1 = true;
    info.portalMode = KTargetInfo::PORTAL_MODE_FCOE;
    strcpy(info.iscsi.iscsiName, "iqn.2001-04.com.example:t1");
    info.iscsi.chapEnabled = true;
    return info;
}

} // namespace

TEST(KTargetInfo, FibreChannelTarget)
{
    EXPECT_EQ(fcTarget().displayText(),
              "FC Target \n"
              "    WWNN:    2000-0011-2233-4455\n"
              "    WWPN:    2100-0011-2233-4455\n"
              "    Port ID: 01-02-03\n"
              "    Target State = online, mapped, FC1/FC2\n"
              "    Target Portal Mode = FCP\n"
              "    Max Outstanding IO = 256\n");
}

TEST(KTargetInfo, IscsiTargetWithPrefix)
{
    EXPECT_EQ(iscsiTarget().displayText("  "),
              "  iSCSI Target \n"
              "      iSCSI Name = iqn.2001-04.com.example:t1\n"
              "      CHAP is Enabled\n"
              "      Target State = OFFLINE, ETH1\n"
              "      Target Portal Mode = _FCOE\n");
}

TEST(KTargetInfo, UninitialisedProtocolGivesOnlyTheNotice)
{
    KTargetInfo info = fcTarget();
    info.protocol = PBase::PROTOCOL_UNINITIALIZED;
    EXPECT_EQ(info.displayText(), "*** Target Info not initialized ***");
    EXPECT_EQ(info.displayText("ab"), "ab*** Target Info not initialized ***");
}

TEST(KTargetInfo, PortsOfDiscovery)
{
    KTargetInfo info = fcTarget();
    info.discoveredOnPort1 = false;
    EXPECT_NE(info.displayText().find("Target State = online, mapped, FC2\n"), std::string::npos);
    info.discoveredOnPort1 = true;
    EXPECT_NE(info.displayText().find("Target State = online, mapped, FC1/FC2\n"), std::string::npos);
    info.discoveredOnPort2 = false;
    EXPECT_NE(info.displayText().find("Target State = online, mapped, FC1\n"), std::string::npos);
    info.discoveredOnPort1 = false;
    EXPECT_NE(info.displayText().find("Target State = online, mapped\n"), std::string::npos);

    KTargetInfo iscsi = iscsiTarget();
    iscsi.discoveredOnPort2 = true;
    EXPECT_NE(iscsi.displayText().find("Target State = OFFLINE, ETH1/ETH2\n"), std::string::npos);
}

TEST(KTargetInfo, NoLimitMeansNoLimitLine)
{
    KTargetInfo info = fcTarget();
    info.maxOutstandingIo = 0;
    EXPECT_EQ(info.displayText().find("Max Outstanding IO"), std::string::npos);
    const std::string last = "    Target Portal Mode = FCP\n";
    const std::string text = info.displayText();
    EXPECT_EQ(text.substr(text.size() - last.size()), last);
}

TEST(KTargetInfo, PortalModeTexts)
{
    using P = KTargetInfo::KISA_PORTAL_MODE_TYPE;
    EXPECT_EQ(KTargetInfo::portalModeToText(P(0)), "FCP");
    EXPECT_EQ(KTargetInfo::portalModeToText(P(1)), "FRAME_SHUTTLE");
    EXPECT_EQ(KTargetInfo::portalModeToText(P(2)), "_FCOE");
    EXPECT_EQ(KTargetInfo::portalModeToText(P(3)), "ISCSI_OVER_FCOE");
    EXPECT_EQ(KTargetInfo::portalModeToText(P(4)), "Unknown");
}

TEST(KTargetInfo, FreshRecordReadsUnknownPortalMode)
{
    KTargetInfo info;
    info.protocol = PBase::PROTOCOL_FIBRE_CHANNEL;
    EXPECT_NE(info.displayText().find("    Target Portal Mode = Unknown\n"), std::string::npos);
    EXPECT_EQ(info.portalMode, KTargetInfo::PORTAL_MODE_UNSET);
}

TEST(KTargetInfo, Predicates)
{
    const KTargetInfo info = fcTarget();
    EXPECT_TRUE(info.isFcTarget());
    EXPECT_FALSE(info.isIscsiTarget());
    EXPECT_TRUE(info.isOnline());
    EXPECT_TRUE(info.isMapped());
    EXPECT_TRUE(info.isDiscoveredOnPort_1());
    EXPECT_TRUE(info.isDiscoveredOnPort_2());
    EXPECT_FALSE(info.isInternal());
    EXPECT_TRUE(iscsiTarget().iscsi.isChapEnabled());
}

TEST(KTargetInfo, NameRecordsOnTheirOwn)
{
    const KTargetInfo info = fcTarget();
    EXPECT_EQ(info.fc.displayText(),
              "\nWWNN:    2000-0011-2233-4455\nWWPN:    2100-0011-2233-4455\nPort ID: 01-02-03\n");
    EXPECT_EQ(info.fc.wwpnToString(), "2100-0011-2233-4455");
    EXPECT_EQ(info.fc.wwnnToString(), "2000-0011-2233-4455");
    EXPECT_EQ(info.fc.portIdToString(), "01-02-03");
    EXPECT_EQ(iscsiTarget().iscsi.displayText(), "\niSCSI Name = iqn.2001-04.com.example:t1\nCHAP is Enabled\n");
}

TEST(KTargetInfo, CopyAndInit)
{
    KTargetInfo copy;
    copy = iscsiTarget();
    EXPECT_EQ(copy.displayText(), iscsiTarget().displayText());
    copy.init();
    EXPECT_EQ(copy.protocol, PBase::PROTOCOL_UNINITIALIZED);
    EXPECT_EQ(copy.iscsi.iscsiName[0], 0);
    EXPECT_EQ(copy.portalMode, KTargetInfo::PORTAL_MODE_UNSET);
}
