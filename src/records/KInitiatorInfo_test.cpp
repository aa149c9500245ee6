#include "records/KInitiatorInfo.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

KInitiatorInfo fcInitiator()
{
    KInitiatorInfo info;
    info.protocol = PBase::PROTOCOL_FIBRE_CHANNEL;
    info.loggedIn = true;
    info.targetInitiator = true;
    info.fcoeInitiator = true;
    info.fc.fcMode = KFcInfo::FC_MODE_FCP;
    const unsigned char wwnn[8] = {0x20, 0x00, 0x00, 0x11, 0x22, 0x33, 0x44, 0x66};
    const unsigned char wwpn[8] = {0x21, 0x00, 0x00, 0x11, 0x22, 0x33, 0x44, 0x66};
    const unsigned char portId[3] = {0x0A, 0x00, 0x01};
    memcpy(info.fc.wwnn, wwnn, 8);
    memcpy(info.fc.wwpn, wwpn, 8);
    memcpy(info.fc.portId, portId, 3);
    return info;
}

KInitiatorInfo iscsiInitiator()
{
    KInitiatorInfo info;
    info.protocol = PBase::PROTOCOL_ISCSI;
    info.dmInitiator = true;
    strcpy(info.iscsi.iscsiName, "iqn.1994-05.com.example:host7");
    info.iscsi.chapEnabled = true;
    strcpy(info.iscsi.chapSecret, "s3cret");
    return info;
}

} // namespace

TEST(KInitiatorInfo, FibreChannelInitiator)
{
    EXPECT_EQ(fcInitiator().displayText(),
              "FC Initiator\n"
              "    (FCP) Fibre Channel Initiator 2000-0011-2233-4466, 2100-0011-2233-4466\n"
              "    Port ID = 0A-00-01\n"
              "    Operational State = Logged In, Target, FCOE\n");
}

TEST(KInitiatorInfo, IscsiInitiatorShowsTargetHeadingAndSecret)
{
    EXPECT_EQ(iscsiInitiator().displayText("> "),
              "> iSCSI Initiator\n"
              ">     iSCSI Target\n"
              ">     iSCSI Name = iqn.1994-05.com.example:host7\n"
              ">     CHAP is Enabled\n"
              ">     CHAP Secret = s3cret\n"
              ">     Operational State = Logged Out, DM\n");
}

TEST(KInitiatorInfo, NeitherProtocolGivesStarsOnly)
{
    KInitiatorInfo info = fcInitiator();
    info.protocol = PBase::PROTOCOL_DATA_MIGRATION_FIBRE_CHANNEL;
    EXPECT_EQ(info.displayText(), "******");
    EXPECT_EQ(info.displayText("  "), "  ******");
}

TEST(KInitiatorInfo, FreshFibreChannelNamesReadUnknownMode)
{
    const KFcInitiatorInfo fc;
    EXPECT_EQ(fc.displayText(),
              "(Unknown) Fibre Channel Initiator 0000-0000-0000-0000, 0000-0000-0000-0000\n"
              "Port ID = 00-00-00\n");
}

TEST(KInitiatorInfo, Predicates)
{
    const KInitiatorInfo fc = fcInitiator();
    EXPECT_TRUE(fc.isFcInitiator());
    EXPECT_FALSE(fc.isIscsiInitiator());
    EXPECT_TRUE(fc.isLoggedIn());
    EXPECT_TRUE(fc.isTargetInitiator());
    EXPECT_FALSE(fc.isDmInitiator());
    EXPECT_TRUE(fc.isFcoeInitiator());
    EXPECT_TRUE(iscsiInitiator().isIscsiInitiator());
    EXPECT_TRUE(iscsiInitiator().iscsi.isChapEnabled());
    EXPECT_EQ(fc.fc.wwpnToString(), "2100-0011-2233-4466");
    EXPECT_EQ(fc.fc.wwnnToString(), "2000-0011-2233-4466");
    EXPECT_EQ(fc.fc.portIdToString(), "0A-00-01");
}

TEST(KInitiatorInfo, UnterminatedSecretStaysInItsField)
{
    KInitiatorInfo info = iscsiInitiator();
    memset(info.iscsi.chapSecret, 'x', sizeof(info.iscsi.chapSecret));
    EXPECT_NE(info.displayText().find("CHAP Secret = " + std::string(100, 'x') + "\n"), std::string::npos);
}

TEST(KInitiatorInfo, CopyAndInit)
{
    KInitiatorInfo copy(fcInitiator());
    EXPECT_EQ(copy.displayText(), fcInitiator().displayText());
    copy.init();
    EXPECT_EQ(copy.protocol, PBase::PROTOCOL_UNINITIALIZED);
    EXPECT_FALSE(copy.loggedIn);
    EXPECT_EQ(copy.fc.fcMode, KFcInfo::FC_MODE_UNSET);
}
