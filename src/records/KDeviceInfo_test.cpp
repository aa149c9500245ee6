#include "records/KDeviceInfo.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

namespace {

KDeviceInfo bothSides()
{
    KDeviceInfo device;
    device.isTarget = true;
    device.isInitiator = true;
    device.target.protocol = PBase::PROTOCOL_FIBRE_CHANNEL;
    device.target.online = true;
    device.target.discoveredOnPort2 = true;
    device.target.fc.wwpn[0] = 0x21;
    device.initiator.protocol = PBase::PROTOCOL_ISCSI;
    strcpy(device.initiator.iscsi.iscsiName, "iqn.x");
    return device;
}

} // namespace

TEST(KDeviceInfo, NeitherSideIsUndefined)
{
    const KDeviceInfo device;
    EXPECT_EQ(device.displayText(), "Undefined device - not a target or an initiator\n");
}

TEST(KDeviceInfo, TargetThenInitiator)
{
    const KDeviceInfo device = bothSides();
    EXPECT_EQ(device.displayText(), device.target.displayText() + device.initiator.displayText());
    EXPECT_EQ(device.displayText().substr(0, 10), "FC Target ");
}

TEST(KDeviceInfo, OnlyTheValidSidesAreShown)
{
    KDeviceInfo device = bothSides();
    device.isTarget = false;
    EXPECT_EQ(device.displayText(), device.initiator.displayText());
    device.isTarget = true;
    device.isInitiator = false;
    EXPECT_EQ(device.displayText(), device.target.displayText());
}

TEST(KDeviceInfo, SavedImageRoundTrip)
{
    KDeviceInfo device = bothSides();
    device.isInternal = true;
    device.target.maxOutstandingIo = 512;
    FILE* f = tmpfile();
    ASSERT_NE(f, nullptr);
    std::string err;
    ASSERT_TRUE(device.serialize(true, f, err)) << err;
    // Three flags, then each side's saved area with its sub-records.
    EXPECT_EQ(ftell(f), 3 + (20 + 20 + 260) + (8 + 28 + 364));
    rewind(f);
    KDeviceInfo back;
    ASSERT_TRUE(back.serialize(false, f, err)) << err;
    fclose(f);
    EXPECT_TRUE(back.isInternal);
    EXPECT_EQ(back.displayText(), device.displayText());
    EXPECT_EQ(back.target.maxOutstandingIo, 512u);
}

TEST(KDeviceInfo, CopyAndInit)
{
    KDeviceInfo copy;
    copy = bothSides();
    EXPECT_EQ(copy.displayText(), bothSides().displayText());
    copy.init();
    EXPECT_FALSE(copy.isTarget);
    EXPECT_EQ(copy.target.protocol, PBase::PROTOCOL_UNINITIALIZED);
    EXPECT_EQ(copy.initiator.iscsi.iscsiName[0], 0);
    EXPECT_EQ(copy.getSerialOffset(), 20u);
}
