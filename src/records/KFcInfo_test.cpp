#include "records/KFcInfo.h"

#include <gtest/gtest.h>

#include <cstring>

TEST(KFcInfo, FreshRecordShowsUnknownSettingsAndNoSfpLine)
{
    const KFcInfo info;
    EXPECT_EQ(info.displayText(),
              "    Port = FC1"
              "\n    Port Status = PORT_DISABLED"
              "\n    Link Status = LINK_DOWN"
              "\n    FibreChannel Mode = Unknown"
              "\n    Current Link Rate = Auto"
              "\n    Programmed Link Rate = Auto"
              "\n    WWNN = 0000-0000-0000-0000"
              "\n    WWPN = 0000-0000-0000-0000"
              "\n    Port ID = 00-00-00"
              "\n    Firmware Revision = "
              "\n    Frame Size = 512"
              "\n    Execution Throttle = 16"
              "\n    Connection Mode = Unknown"
              "\n    Programmed Connection Option = Unknown\n");
}

TEST(KFcInfo, FilledRecord)
{
    KFcInfo info;
    info.portIndex = 1;
    info.portStatus = PBase::PORT_ENABLED;
    info.linkStatus = PBase::LINK_UP;
    info.fcMode = KFcInfo::FC_MODE_FCP;
    info.currentLinkRate = PBase::FC_LINK_RATE_8GB;
    info.programmedLinkRate = PBase::FC_LINK_RATE_AUTO;
    const unsigned char wwnn[8] = {0x20, 0x00, 0x00, 0x11, 0x22, 0x33, 0x44, 0x55};
    const unsigned char wwpn[8] = {0x21, 0x00, 0x00, 0x11, 0x22, 0x33, 0x44, 0x55};
    const unsigned char portId[3] = {0x0A, 0x0B, 0x0C};
    memcpy(info.wwnnUcharPtr(), wwnn, 8);
    memcpy(info.wwpnUcharPtr(), wwpn, 8);
    memcpy(info.portIdUcharPtr(), portId, 3);
    info.wwnn[1][0] = 0xEE; // only the first slot is shown
    strcpy(info.firmwareRevision, "5.02.01");
    info.frameSize = KFcInfo::FRAME_SIZE_2048;
    info.sfpState = KFcInfo::SFP_STATE_8GB;
    info.executionThrottle = 64;
    info.connectionMode = KFcInfo::CONNECTION_MODE_POINT_TO_POINT;
    info.programmedConnectionOption = KFcInfo::CONNECTION_OPTION_AUTO;
    EXPECT_EQ(info.displayText(),
              "    Port = FC2"
              "\n    Port Status = PORT_ENABLED"
              "\n    Link Status = LINK_UP"
              "\n    FibreChannel Mode = FCP"
              "\n    Current Link Rate = 8Gb"
              "\n    Programmed Link Rate = Auto"
              "\n    WWNN = 2000-0011-2233-4455"
              "\n    WWPN = 2100-0011-2233-4455"
              "\n    Port ID = 0A-0B-0C"
              "\n    Firmware Revision = 5.02.01"
              "\n    Frame Size = 2048"
              "\n    SFP Type = 8Gb"
              "\n    Execution Throttle = 64"
              "\n    Connection Mode = Point-to-Point"
              "\n    Programmed Connection Option = Auto\n");
}

TEST(KFcInfo, FirmwareRevisionWithoutTerminatorStaysInItsField)
{
    KFcInfo info;
    memset(info.firmwareRevision, 'F', sizeof(info.firmwareRevision));
    EXPECT_NE(info.displayText().find("Firmware Revision = " + std::string(33, 'F') + "\n"), std::string::npos);
}

TEST(KFcInfo, ModeTexts)
{
    using M = KFcInfo::FC_MODE;
    EXPECT_EQ(KFcInfo::fcModeToText(M(0)), "FCP");
    EXPECT_EQ(KFcInfo::fcModeToText(M(1)), "Frame Shuttle");
    EXPECT_EQ(KFcInfo::fcModeToText(M(2)), "FCOE");
    EXPECT_EQ(KFcInfo::fcModeToText(M(3)), "Unknown");
    EXPECT_EQ(KFcInfo::fcModeToText(M(4)), "Unknown");
}

TEST(KFcInfo, ConnectionTexts)
{
    using C = KFcInfo::CONNECTION_MODE;
    EXPECT_EQ(KFcInfo::connectionModeToText(C(0)), "Loop");
    EXPECT_EQ(KFcInfo::connectionModeToText(C(1)), "Point-to-Point");
    EXPECT_EQ(KFcInfo::connectionModeToText(C(2)), "Unknown");
    using O = KFcInfo::PROGRAMMED_CONNECTION_OPTION;
    EXPECT_EQ(KFcInfo::pgmdConnectionOptionToText(O(0)), "Loop Only");
    EXPECT_EQ(KFcInfo::pgmdConnectionOptionToText(O(1)), "Point-to-Point Only");
    EXPECT_EQ(KFcInfo::pgmdConnectionOptionToText(O(2)), "Auto");
    EXPECT_EQ(KFcInfo::pgmdConnectionOptionToText(O(3)), "Unknown");
}

TEST(KFcInfo, FrameSizeTexts)
{
    using F = KFcInfo::FRAME_SIZE_TYPE;
    EXPECT_EQ(KFcInfo::pgmdFrameSizeToText(F(512)), "512");
    EXPECT_EQ(KFcInfo::pgmdFrameSizeToText(F(1024)), "1024");
    EXPECT_EQ(KFcInfo::pgmdFrameSizeToText(F(2048)), "2048");
    EXPECT_EQ(KFcInfo::pgmdFrameSizeToText(F(4096)), "Unknown");
}

TEST(KFcInfo, SfpStateTexts)
{
    using S = KFcInfo::SFP_STATE;
    EXPECT_EQ(KFcInfo::sfpStateToText(S(0)), "Unknown");
    EXPECT_EQ(KFcInfo::sfpStateToText(S(1)), "Not Present");
    EXPECT_EQ(KFcInfo::sfpStateToText(S(2)), "4Gb");
    EXPECT_EQ(KFcInfo::sfpStateToText(S(3)), "8Gb");
    EXPECT_EQ(KFcInfo::sfpStateToText(S(4)), "4Gb Mismatch");
    EXPECT_EQ(KFcInfo::sfpStateToText(S(5)), "8Gb Mismatch");
    EXPECT_EQ(KFcInfo::sfpStateToText(S(6)), "10Gb");
    EXPECT_EQ(KFcInfo::sfpStateToText(S(7)), "Unknown");
}

TEST(KFcInfo, CopyAndInitRestoreTheDefaults)
{
    KFcInfo info;
    info.executionThrottle = 128;
    strcpy(info.firmwareRevision, "1.0");
    KFcInfo copy(info);
    EXPECT_EQ(copy.displayText(), info.displayText());
    copy.init();
    EXPECT_EQ(copy.executionThrottle, 16u);
    EXPECT_EQ(copy.fcMode, KFcInfo::FC_MODE_UNSET);
    EXPECT_EQ(copy.frameSize, KFcInfo::FRAME_SIZE_512);
    EXPECT_EQ(copy.connectionMode, KFcInfo::CONNECTION_MODE_UNSET);
    EXPECT_EQ(copy.programmedConnectionOption, KFcInfo::CONNECTION_OPTION_UNSET);
    EXPECT_EQ(copy.firmwareRevision[0], 0);
    EXPECT_EQ(copy.getSerialOffset(), 20u);
    EXPECT_EQ(copy.getSerialSize(), 156u);
}
