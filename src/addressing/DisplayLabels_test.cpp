// The labels of adapters, clusters, devices, initiators, targets, drives,
// names and LUNs, byte for byte; and the keyword tests used for prompting.
#include <gtest/gtest.h>

#include "records/KAdapterGroupExtendedLunInfo.h"
#include "records/KInitiatorInfo.h"
#include "records/PUniqueID.h"
#include "support/AddressingFixture.h"

using addressing_test::Row;
using addressing_test::SimulatedSan;
using addressing_test::TestCommand;

namespace {

PTargetID fcTarget()
{
    PTargetID target;
    unsigned char wwpn[] = {0x50, 0x06, 0x01, 0x60, 0x3e, 0xa0, 0x12, 0x34};
    target.initFcTargetID(wwpn, 8);
    return target;
}

PTargetID iscsiTarget()
{
    PTargetID target;
    target.initIscsiTargetID(reinterpret_cast<unsigned char const*>("iqn.2020-01.com.sim:array"));
    return target;
}

KIsaAdapterPath pathTo(unsigned long long id)
{
    KIsaAdapterPath path;
    path.init(id, -1, false, PIpAddress(), KIsaAdapterPath::ADAPTER_TYPE_1);
    return path;
}

} // namespace

TEST(DisplayLabels, Lun)
{
    TestCommand command;
    PLunID fc;
    fc.initLunID(fcTarget(), 12, PBase::VPGROUP_2);
    EXPECT_EQ("-lun_number=12 -fc_target=5006-0160-3EA0-1234", command.getDisplayText_Lun(fc, false));
    EXPECT_EQ("-dmdest_lun_number=12 -dmdest_fc_target=5006-0160-3EA0-1234", command.getDisplayText_Lun(fc, true));
    PLunID is;
    is.initLunID(iscsiTarget(), 3, PBase::VPGROUP_1);
    EXPECT_EQ("-lun_number=3 -is_target=iqn.2020-01.com.sim:array", command.getDisplayText_Lun(is, false));
    EXPECT_EQ("-dmdest_lun_number=3 -dmdest_is_target=iqn.2020-01.com.sim:array", command.getDisplayText_Lun(is, true));
    PLunID noTarget;
    noTarget.initLunID(PTargetID(), 4, PBase::VPGROUP_1);
    EXPECT_EQ("-lun_number=4", command.getDisplayText_Lun(noTarget, false));
}

TEST(DisplayLabels, AdapterGroupLun)
{
    TestCommand command;
    KAdapterGroupExtendedLunInfo info;
    info.lunId.initLunID(fcTarget(), 1, PBase::VPGROUP_1);
    info.bCached = true;
    info.ui64CachingAdapter = 0x2000ABC;
    EXPECT_EQ("-lun_number=1 -fc_target=5006-0160-3EA0-1234 [Cached on -zek=2000ABC ]",
              command.getDisplayText_AdapterGroupLun(info));
    info.bCached = false;
    info.ui32NonCachedAdapterCount = 2;
    info.ui64NonCachedAdapters[0] = 0x10A0;
    info.ui64NonCachedAdapters[1] = 0x10B1;
    EXPECT_EQ("-lun_number=1 -fc_target=5006-0160-3EA0-1234   -zek=10A0\n",
              command.getDisplayText_AdapterGroupLun(info));
}

TEST(DisplayLabels, Target)
{
    TestCommand command;
    EXPECT_EQ("-fc_target=5006-0160-3EA0-1234\n", command.getDisplayText_Target(fcTarget()));
    EXPECT_EQ("-is_target=iqn.2020-01.com.sim:array\n", command.getDisplayText_Target(iscsiTarget()));
    EXPECT_EQ("\n", command.getDisplayText_Target(PTargetID()));
}

TEST(DisplayLabels, Device)
{
    TestCommand command;
    KDeviceID fc;
    unsigned char wwpn[] = {0x21, 0, 0, 0x24, 0xff, 0x01, 0x02, 0x03};
    fc.initFcDeviceID(wwpn, 8);
    EXPECT_EQ("-fc_device=2100-0024-FF01-0203", command.getDisplayText_Device(fc));
    KDeviceID is;
    is.initIscsiDeviceID(reinterpret_cast<unsigned char const*>("iqn.dev"));
    EXPECT_EQ("-is_device=iqn.dev", command.getDisplayText_Device(is));
    EXPECT_EQ("", command.getDisplayText_Device(KDeviceID()));
}

TEST(DisplayLabels, Initiator)
{
    TestCommand command;
    KInitiatorInfo info;
    info.protocol = PBase::PROTOCOL_FIBRE_CHANNEL;
    unsigned char const wwpn[] = {0x21, 0, 0, 0x24, 0xff, 0x01, 0x02, 0x03};
    unsigned char const wwnn[] = {0x20, 0, 0, 0x24, 0xff, 0x01, 0x02, 0x03};
    std::copy(std::begin(wwpn), std::end(wwpn), info.fc.wwpn);
    std::copy(std::begin(wwnn), std::end(wwnn), info.fc.wwnn);
    PInitiatorID fc;
    fc.initFcInitiatorID(wwpn, 8);
    EXPECT_EQ("\n-fc_initiator=2100-0024-FF01-0203\n    -wwpn=2100-0024-FF01-0203 -wwnn=2000-0024-FF01-0203",
              command.getDisplayText_Initiator(fc, info));

    info.protocol = PBase::PROTOCOL_ISCSI;
    PBase::textToCharField(info.iscsi.iscsiName, sizeof info.iscsi.iscsiName, "iqn.2020-01.com.sim:host");
    PInitiatorID is;
    is.initIscsiInitiatorID(reinterpret_cast<unsigned char const*>("iqn.2020-01.com.sim:host"));
    EXPECT_EQ("\n-is_initiator=iqn.2020-01.com.sim:host\n    -iscsi_name=iqn.2020-01.com.sim:host",
              command.getDisplayText_Initiator(is, info));
}

TEST(DisplayLabels, DriveAndWwname)
{
    TestCommand command;
    KDriveID drive;
    unsigned char name[] = {'S', 'S', 'D', '1'};
    drive.initDriveID(PBase::WWULN_CODE_SET_TEXT, 4, name);
    EXPECT_EQ("-drive=SSD1", command.getDisplayText_Drive(drive));

    unsigned char const bytes[] = {0x60, 0x0a, 0x0b, 0x80};
    EXPECT_EQ("-lun_wwuln=600A-0B80",
              command.getDisplayText_Wwname(bytes, 4, PBase::WWULN_CODE_SET_BINARY, "lun_wwuln", false));
    EXPECT_EQ("-dmdest_lun_wwuln=\"SSD1\"",
              command.getDisplayText_Wwname(name, 4, PBase::WWULN_CODE_SET_TEXT, "lun_wwuln", true));
    EXPECT_EQ("-lun_wwuln=", command.getDisplayText_Wwname(bytes, 4, PBase::WWULN_CODE_SET_NONE, "lun_wwuln", false));
    // A text that fills its field to the end is read no further.
    unsigned char full[4] = {'F', 'U', 'L', 'L'};
    EXPECT_EQ("-lun_wwuln=\"FU\"",
              command.getDisplayText_Wwname(full, 2, PBase::WWULN_CODE_SET_TEXT, "lun_wwuln", false));
}

TEST(SummaryTexts, AdaptersAndClusters)
{
    SimulatedSan san("two-devices");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    PIpAddress local;
    uint32_t count = 0;
    ASSERT_EQ(MHBA_S_OK, g_pHbaMgmtApi->scanAdapters(local, &count));
    TestCommand command;
    EXPECT_EQ("    -zek=10A0      [Cluster Primary]\n", command.getSummaryText_Adapter(pathTo(0x10A0)));
    EXPECT_EQ("    -zek=10B1      [Cluster Secondary]\n", command.getSummaryText_Adapter(pathTo(0x10B1)));
    EXPECT_EQ("    -zek=3D3      <Offline>\n", command.getSummaryText_Adapter(pathTo(0x3D3)));
    EXPECT_EQ("    -zek=77      <Not Found>\n", command.getSummaryText_Adapter(pathTo(0x77)));

    KClusterID prod;
    prod.initClusterID("prod", 4);
    EXPECT_EQ("-clusterid=\"prod\"   \n"
              "    -zek=10A0      [Cluster Primary]\n"
              "    -zek=10B1      [Cluster Secondary]\n"
              "\n",
              command.getSummaryText_Cluster(prod));
    KClusterID unknown;
    unknown.initClusterID("nosuch", 6);
    EXPECT_EQ("-clusterid=\"nosuch\"    <Not Found>\n\n", command.getSummaryText_Cluster(unknown));

    HCluster* outside = nullptr;
    for (HCluster* cluster : g_pHbaMgmtApi->getClusters()->items)
        if (!cluster->getClusterId()->isClusterKeyValid())
            outside = cluster;
    ASSERT_NE(nullptr, outside);
    EXPECT_EQ("-clusterid=\"\"   (Adapters that are not a member of any cluster)\n"
              "\n"
              "    -zek=12     \n"
              "    -zek=3D3      <Offline>\n"
              "\n",
              command.getSummaryText_Cluster(*outside->getClusterId()));
}

namespace {

Row const kEnableCache[] = {
    {1, Token::TOKEN_TYPE_CMD, "", "", CmdAction::ACTION_ENABLE, CmdItem::ITEM_CACHE, 2},
    {2, addressing_test::kKey, "", "", ModifierId::MODIFIER_LUN_NUMBER, addressing_test::kOpt, addressing_test::kVal},
    {2, addressing_test::kKey, "", "", ModifierId::MODIFIER_FC_DEVICE, addressing_test::kReq, addressing_test::kVal},
    {0, 0, "", "", 0, 0, 0},
};

Row const kNoLunKeywords[] = {
    {1, Token::TOKEN_TYPE_CMD, "", "", CmdAction::ACTION_SHOW, CmdItem::ITEM_LUN, 1},
    {2, addressing_test::kKey, "", "", ModifierId::MODIFIER_ZEK, addressing_test::kOpt, addressing_test::kVal},
    {2, addressing_test::kKey, "", "", ModifierId::MODIFIER_DMDEST_LUN_NUMBER, addressing_test::kReq,
     addressing_test::kVal},
    {0, 0, "", "", 0, 0, 0},
};

struct LunFlags {
    bool any, required, numberOrTarget, wwuln, serial;
};

LunFlags lunFlags(TestCommand const& command)
{
    LunFlags flags{true, true, true, true, true};
    command.testLunRelatedModifiers(flags.any, flags.required, flags.numberOrTarget, flags.wwuln, flags.serial);
    return flags;
}

} // namespace

TEST(RelatedModifiers, LunKeywordsAndTheirValues)
{
    TestCommand command;
    LunFlags flags = lunFlags(command);
    EXPECT_TRUE(flags.any);
    EXPECT_FALSE(flags.required);
    EXPECT_FALSE(flags.numberOrTarget || flags.wwuln || flags.serial);
    command.remember(ModifierId::MODIFIER_VPGINDEX, "1");
    command.give(ModifierId::MODIFIER_LUN_ANY_WWULN, "x");
    flags = lunFlags(command);
    EXPECT_TRUE(flags.numberOrTarget);
    EXPECT_TRUE(flags.wwuln);
    EXPECT_FALSE(flags.serial);
    command.give(ModifierId::MODIFIER_LUN_SERIAL, "s");
    EXPECT_TRUE(lunFlags(command).serial);
    // The destination set is not counted.
    TestCommand destinationOnly(kNoLunKeywords);
    flags = lunFlags(destinationOnly);
    EXPECT_FALSE(flags.any);
    EXPECT_FALSE(flags.required);
}

TEST(RelatedModifiers, CachingAlwaysNeedsItsLun)
{
    TestCommand command(kEnableCache);
    LunFlags const flags = lunFlags(command);
    EXPECT_TRUE(flags.any);
    EXPECT_TRUE(flags.required);
}

TEST(RelatedModifiers, TargetsInitiatorsDevices)
{
    TestCommand enable(kEnableCache);
    bool any = false;
    bool required = false;
    enable.testDeviceRelatedModifiers(any, required);
    EXPECT_TRUE(any);
    EXPECT_TRUE(required);
    enable.testTargetRelatedModifiers(any, required);
    EXPECT_FALSE(any);
    EXPECT_FALSE(required);
    TestCommand all;
    all.testInitiatorRelatedModifiers(any, required);
    EXPECT_TRUE(any);
    EXPECT_FALSE(required);
    all.testTargetRelatedModifiers(any, required);
    EXPECT_TRUE(any);
}

TEST(RelatedModifiers, DefaultLunKeywordsClearsTheNames)
{
    TestCommand command;
    for (auto id : {ModifierId::MODIFIER_FC_TARGET, ModifierId::MODIFIER_IS_TARGET, ModifierId::MODIFIER_LUN_WWULN,
                    ModifierId::MODIFIER_LUN_SERIAL, ModifierId::MODIFIER_LUN_NUMBER})
        command.give(id, "v");
    command.setDefaultLunModifiers();
    for (auto id : {ModifierId::MODIFIER_FC_TARGET, ModifierId::MODIFIER_IS_TARGET, ModifierId::MODIFIER_LUN_WWULN,
                    ModifierId::MODIFIER_LUN_SERIAL}) {
        EXPECT_EQ("", command.keyword(id).value);
        EXPECT_TRUE(command.keyword(id).isDefault);
    }
    EXPECT_EQ("v", command.keyword(ModifierId::MODIFIER_LUN_NUMBER).value);
    EXPECT_FALSE(command.keyword(ModifierId::MODIFIER_LUN_NUMBER).isDefault);
}
