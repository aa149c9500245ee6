#include "records/KAdapterHealthInfo.h"

#include <gtest/gtest.h>

namespace {

using Link = KAdapterHealthPciExpressInfo;

Link upLink(int port, int vendor, int device)
{
    Link link;
    link.portNumber = port;
    link.vendorId = vendor;
    link.deviceId = device;
    link.linkStatus = Link::PEX_LINK_UP;
    link.linkSpeed = Link::PEX_LINK_SPEED_GEN2;
    link.linkWidth = Link::PEX_LINK_WIDTH_X4;
    return link;
}

// The chip name that follows the device number.
std::string chipAfterDevice(int device)
{
    std::string text = upLink(2, 0x11ab, device).displayText();
    size_t start = text.find(" / 0x");
    size_t end = text.find('\n', start);
    return text.substr(start, end - start);
}

const char* const kAllDriversNotLoaded =
    "\n    Internal drivers loaded OK:   "
    "\n    Internal drivers not loaded:  ADAPTER, LED, ENDPOINT, BRAPP, FC, SCSIMID, MV94XX, MPTSAS, MPI32XX, "
    "MVIDMA, MVXDMA, BBRAM";

const char* const kBlankLinks = "    PCIe port 0\n        Unknown\n"
                                "    PCIe port 0\n        Unknown\n"
                                "    PCIe port 0\n        Unknown\n";

} // namespace

TEST(KAdapterHealthPciExpressInfo, LinkWidthTable)
{
    EXPECT_EQ(Link::linkWidthToText(Link::PEX_LINK_WIDTH_UNKNOWN), "Unknown");
    EXPECT_EQ(Link::linkWidthToText(Link::PEX_LINK_WIDTH_X1), "1x1");
    EXPECT_EQ(Link::linkWidthToText(Link::PEX_LINK_WIDTH_X4), "4x4");
    EXPECT_EQ(Link::linkWidthToText(static_cast<Link::PEX_LINK_WIDTH>(2)), "UNKNOWN");
    EXPECT_EQ(Link::linkWidthToText(static_cast<Link::PEX_LINK_WIDTH>(8)), "UNKNOWN");
}

TEST(KAdapterHealthPciExpressInfo, LinkSpeedTable)
{
    EXPECT_EQ(Link::linkSpeedToText(Link::PEX_LINK_SPEED_UNKNOWN), "Unknown");
    EXPECT_EQ(Link::linkSpeedToText(Link::PEX_LINK_SPEED_GEN1), "GEN 1 (2.5 Gbits/sec)");
    EXPECT_EQ(Link::linkSpeedToText(Link::PEX_LINK_SPEED_GEN2), "GEN 2 (5.0 Gbits/sec)");
    EXPECT_EQ(Link::linkSpeedToText(static_cast<Link::PEX_LINK_SPEED>(3)), "UNKNOWN");
}

TEST(KAdapterHealthPciExpressInfo, LinkStatusTable)
{
    EXPECT_EQ(Link::linkStatusToText(Link::PEX_LINK_DOWN), "LINK_DOWN");
    EXPECT_EQ(Link::linkStatusToText(Link::PEX_LINK_UP), "LINK_UP");
    EXPECT_EQ(Link::linkStatusToText(Link::PEX_LINK_DISABLED), "(Disabled)");
    EXPECT_EQ(Link::linkStatusToText(Link::PEX_LINK_UNKNOWN), "Unknown");
    EXPECT_EQ(Link::linkStatusToText(static_cast<Link::PEX_LINK_STATUS>(4)), "UNKNOWN");
}

TEST(KAdapterHealthPciExpressInfo, BlankLinkIsUnknown)
{
    Link link;
    EXPECT_EQ(link.linkStatus, Link::PEX_LINK_UNKNOWN);
    EXPECT_EQ(link.displayText(), "    PCIe port 0\n        Unknown\n");
}

TEST(KAdapterHealthPciExpressInfo, LinkThatIsNotUpShowsOnlyItsState)
{
    Link link = upLink(1, 0x11ab, 0x2533);
    link.linkStatus = Link::PEX_LINK_DOWN;
    EXPECT_EQ(link.displayText(), "    PCIe port 1\n        LINK_DOWN\n");
    link.linkStatus = Link::PEX_LINK_DISABLED;
    EXPECT_EQ(link.displayText(), "    PCIe port 1\n        (Disabled)\n");
}

TEST(KAdapterHealthPciExpressInfo, FibreChannelChipOnPortOne)
{
    EXPECT_EQ(upLink(1, 0x11ab, 0x2533).displayText(),
              "    PCIe port 1\n        LINK_UP, (FC ASIC)"
              "\n        Vendor/Device = 0x11ab / 0x2533 (Bluestem)"
              "\n        GEN 2 (5.0 Gbits/sec)"
              "\n        4x4\n");
}

TEST(KAdapterHealthPciExpressInfo, SasChipOnPortThreeAndDeviceZeroIsRedwingTwice)
{
    Link link = upLink(3, 0x1b4b, 0);
    link.linkSpeed = Link::PEX_LINK_SPEED_GEN1;
    link.linkWidth = Link::PEX_LINK_WIDTH_X1;
    EXPECT_EQ(link.displayText(),
              "    PCIe port 3\n        LINK_UP, (SAS ASIC)"
              "\n        Vendor/Device = 0x1b4b (Redwing) / 0x0 (Redwing)"
              "\n        GEN 1 (2.5 Gbits/sec)"
              "\n        1x1\n");
}

TEST(KAdapterHealthPciExpressInfo, DeviceNumberOfTheBluestemVendorIsNamedAfterTheVendor)
{
    EXPECT_EQ(upLink(2, 0x11ab, 0x11AB).displayText(),
              "    PCIe port 2\n        LINK_UP"
              "\n        Vendor/Device = 0x11ab (Bluestem w/SAS or SSD card) / 0x11ab (Bluestem?)"
              "\n        GEN 2 (5.0 Gbits/sec)"
              "\n        4x4\n");
}

TEST(KAdapterHealthPciExpressInfo, ChipNamesByDevice)
{
    EXPECT_EQ(chipAfterDevice(0x2831), " / 0x2831 (Redwing)");
    EXPECT_EQ(chipAfterDevice(0xF002), " / 0xf002 (Redwing)");
    EXPECT_EQ(chipAfterDevice(0x2533), " / 0x2533 (Bluestem)");
    EXPECT_EQ(chipAfterDevice(0x9445), " / 0x9445 (Bluestem)");
    EXPECT_EQ(chipAfterDevice(0xF001), " / 0xf001 (Bluestem)");
    EXPECT_EQ(chipAfterDevice(0x1234), " / 0x1234 (Bluestem?)");
}

TEST(KAdapterHealthInfo, UptimeDropsWholeDays)
{
    EXPECT_EQ(KAdapterHealthInfo::systemUptimeToText(90000), "1:0:0");
    EXPECT_EQ(KAdapterHealthInfo::systemUptimeToText(0), "0:0:0");
    EXPECT_EQ(KAdapterHealthInfo::systemUptimeToText(3 * 3600 + 25 * 60 + 7), "3:25:7");
    EXPECT_EQ(KAdapterHealthInfo::systemUptimeToText(4294967295u), "6:28:15");
}

TEST(KAdapterHealthInfo, BlankRecord)
{
    KAdapterHealthInfo health;
    EXPECT_EQ(health.displayText(),
              std::string(kBlankLinks) + "    Temperature (Front/Rear/CPU): 0 / 0 / 0 (Centigrade)" +
                  kAllDriversNotLoaded + "\n    System Uptime: 0:0:0\n\n");
    EXPECT_EQ(health.getSerialOffset(), 24u);
    EXPECT_EQ(health.getSerialSize(), 336u);
}

TEST(KAdapterHealthInfo, ThirdLinkIsLeftOut)
{
    KAdapterHealthInfo health;
    for (int i = 0; i < 4; ++i)
        health.pciExpressInfo[i].portNumber = i;
    std::string text = health.displayText();
    EXPECT_NE(text.find("PCIe port 0\n"), std::string::npos);
    EXPECT_NE(text.find("PCIe port 1\n"), std::string::npos);
    EXPECT_EQ(text.find("PCIe port 2\n"), std::string::npos);
    EXPECT_NE(text.find("PCIe port 3\n"), std::string::npos);
}

TEST(KAdapterHealthInfo, EverythingThatCanBeShown)
{
    KAdapterHealthInfo health;
    health.temperatureFront = 41;
    health.temperatureRear = 38;
    health.temperatureCpu = 62;
    health.temperatureNvdimm = 45;
    health.temperatureFcChip = 55;
    health.beaconPortMask = 0x5;
    health.dramEccSingleBitErrorCount = 3;
    health.dramEccDoubleBitErrorCount = 1;
    health.l2CacheUncorrectableErrorCount = 2;
    health.l2CacheCorrectableErrorCount = 7;
    health.driversLoadedMask = 0x811;
    health.bridgeParityMask = 0x9;
    health.errorMask = 0x80000013;
    health.snoopFilterParityError = true;
    health.l2CacheTagParityError = true;
    health.bootedFromSecondaryImage = 1;
    health.failedPostTest = 12;
    health.systemUptimeSeconds = 86400 + 2 * 3600 + 3 * 60 + 4;
    health.fsPartitionResetCount[1] = 2;
    health.fsPartitionResetCount[5] = 65535;
    EXPECT_EQ(health.displayText(),
              std::string(kBlankLinks) +
                  "    Temperature (Front/Rear/CPU): 41 / 38 / 62 (Centigrade)"
                  "\n    Temperature (NVDIMM Junction): 45 (Centigrade)"
                  "\n    Temperature (FC Chip Junction): 55 (Centigrade)"
                  "\n    Beacon in Port 1 is *ON*"
                  "\n    Beacon in Port 3 is *ON*"
                  "\n    DramEccSingleBitErrorCount:   3"
                  "\n    DramEccDoubleBitErrorCount:   1"
                  "\n    L2CacheUncorrectableErrorCnt: 2"
                  "\n    L2CacheCorrectableErrorCount: 7"
                  "\n    Internal drivers loaded OK:   ADAPTER, FC, BBRAM"
                  "\n    Internal drivers not loaded:  LED, ENDPOINT, BRAPP, SCSIMID, MV94XX, MPTSAS, MPI32XX, "
                  "MVIDMA, MVXDMA"
                  "\n    *** Coherent I/O Bridge Write Parity Error - Port 0 ***"
                  "\n    *** Coherent I/O Bridge Read Parity Error - Port 1 ***"
                  "\n    *** Access Error. Internal register access failed or unmapped address access (no "
                  "address decode match). ***"
                  "\n    *** CPU 0Snoop Parity Error. ***"
                  "\n    *** CPU 3 LSL1 State Parity Error ***"
                  "\n    *** Snoop Filter Parity Error ***"
                  "\n    *** L2 Cache Tag Parity Error ***"
                  "\n    *** Adapter booted from the secondary U-Boot image ***"
                  "\n    *** POST test #12 failed (I2C Probe test test) ***"
                  "\n    System Uptime: 2:3:4\n\n"
                  "    FS Partition[1] Reset Count = 2\n"
                  "    FS Partition[5] Reset Count = 65535\n");
}

TEST(KAdapterHealthInfo, ErrorBitZeroIsNeverShown)
{
    KAdapterHealthInfo health;
    health.errorMask = 0x1;
    EXPECT_EQ(health.displayText().find("***"), std::string::npos);
    health.errorMask = 0x4;
    EXPECT_NE(health.displayText().find("\n    *** Coherent I/O Bridge Parity Error ***"), std::string::npos);
}

TEST(KAdapterHealthInfo, BridgeBitsBeyondTheTableAreIgnored)
{
    KAdapterHealthInfo health;
    health.bridgeParityMask = 0xFFFFFFF0;
    EXPECT_EQ(health.displayText().find("***"), std::string::npos);
}

TEST(KAdapterHealthInfo, DriverBitsBeyondTheTableAreIgnored)
{
    KAdapterHealthInfo health;
    health.driversLoadedMask = 0xFFFFFFFF;
    EXPECT_NE(health.displayText().find("\n    Internal drivers loaded OK:   ADAPTER, LED, ENDPOINT, BRAPP, FC, "
                                        "SCSIMID, MV94XX, MPTSAS, MPI32XX, MVIDMA, MVXDMA, BBRAM"
                                        "\n    Internal drivers not loaded:  \n"),
              std::string::npos);
}

TEST(KAdapterHealthInfo, PostTestNames)
{
    KAdapterHealthInfo health;
    health.failedPostTest = 28;
    EXPECT_NE(health.displayText().find("\n    *** POST test #28 failed (FC ASIC Test) ***\n"), std::string::npos);
    health.failedPostTest = 1;
    EXPECT_NE(health.displayText().find("\n    *** POST test #1 failed (UART test) ***\n"), std::string::npos);
    health.failedPostTest = 7;
    EXPECT_NE(health.displayText().find("\n    *** POST test #7 failed ((Not Used) 7 test) ***\n"), std::string::npos);
    health.failedPostTest = 20;
    EXPECT_NE(health.displayText().find("\n    *** POST test #20 failed (Nand Bad Block test) ***\n"),
              std::string::npos);
}

TEST(KAdapterHealthInfo, PostTestBeyondTheTableHasNoName)
{
    KAdapterHealthInfo health;
    health.failedPostTest = 29;
    EXPECT_NE(health.displayText().find("\n    *** POST test #29 failed ***\n"), std::string::npos);
    health.failedPostTest = -3;
    EXPECT_NE(health.displayText().find("\n    *** POST test #-3 failed ***\n"), std::string::npos);
}

TEST(KAdapterHealthInfo, BeaconOfAPort)
{
    KAdapterHealthInfo health;
    health.beaconPortMask = 0x80000002;
    EXPECT_FALSE(health.isBeaconFlashing(1));
    EXPECT_TRUE(health.isBeaconFlashing(2));
    EXPECT_TRUE(health.isBeaconFlashing(32));
    EXPECT_FALSE(health.isBeaconFlashing(0));
    EXPECT_FALSE(health.isBeaconFlashing(33));
    EXPECT_FALSE(health.isBeaconFlashing(-1));
    EXPECT_NE(health.displayText().find("\n    Beacon in Port 32 is *ON*"), std::string::npos);
}

TEST(KAdapterHealthInfo, LinksByIndex)
{
    KAdapterHealthInfo health;
    EXPECT_EQ(health.pciExpressInfo_vecSize(), 4u);
    EXPECT_EQ(health.pciExpressInfo_vecAt(3), &health.pciExpressInfo[3]);
    EXPECT_EQ(health.pciExpressInfo_vecAt(4), nullptr);
}

TEST(KAdapterHealthInfo, CopyAndBlank)
{
    KAdapterHealthInfo health;
    health.pciExpressInfo[3] = upLink(3, 1, 2);
    health.failedPostTest = 5;
    health.reserved[63] = 0xAA;
    health.fsPartitionResetCount[5] = 9;
    KAdapterHealthInfo copy(health);
    EXPECT_EQ(copy.displayText(), health.displayText());
    EXPECT_EQ(copy.reserved[63], 0xAA);
    copy.init();
    EXPECT_EQ(copy.failedPostTest, 0);
    EXPECT_EQ(copy.reserved[63], 0);
    EXPECT_EQ(copy.fsPartitionResetCount[5], 0);
    EXPECT_EQ(copy.pciExpressInfo[3].linkStatus, Link::PEX_LINK_UNKNOWN);
}
