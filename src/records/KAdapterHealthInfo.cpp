#include "records/KAdapterHealthInfo.h"

ZEK_ASSERT_FIELD_OFFSET(KAdapterHealthInfo, pciExpressInfo, 24);
ZEK_ASSERT_FIELD_OFFSET(KAdapterHealthInfo, temperatureFront, 216);
ZEK_ASSERT_FIELD_OFFSET(KAdapterHealthInfo, reserved, 296);

namespace {

// Each table ends with an empty text.
const char* const kInternalDriverNames[] = {
    "ADAPTER", "LED",     "ENDPOINT", "BRAPP",  "FC",    "SCSIMID", "MV94XX",
    "MPTSAS",  "MPI32XX", "MVIDMA",   "MVXDMA", "BBRAM", "",
};

const char* const kBridgeParityErrors[] = {
    "Coherent I/O Bridge Write Parity Error - Port 0",
    "Coherent I/O Bridge Write Parity Error - Port 1",
    "Coherent I/O Bridge Read Parity Error - Port 0",
    "Coherent I/O Bridge Read Parity Error - Port 1",
    "",
};

const char* const kHardwareErrors[] = {
    "MBus erroneous read data indication",
    "Access Error. Internal register access failed or unmapped address access (no address decode match).",
    "Coherent I/O Bridge Parity Error",
    "Coherent I/O Bridge Access Error (I/O request doesn't match any memory window).",
    "CPU 0Snoop Parity Error.",
    "CPU 1 Snoop Parity Error",
    "CPU 2 Snoop Parity Error",
    "CPU 3 Snoop Parity Error",
    "CPU 0 Embedded Trace Buffer Parity Error",
    "CPU 1 Embedded Trace Buffer Parity Error",
    "CPU 2 Embedded Trace Buffer Parity Error",
    "CPU 3 Embedded Trace Buffer Parity Error",
    "CPU 0 Data Cache Parity Error",
    "CPU 1 Data Cache Parity Error",
    "CPU 2 Data Cache Parity Error",
    "CPU 3 Data Cache Parity Error",
    "CPU 0 Instruction Cache Parity Error",
    "CPU 1 Instruction Cache Parity Error",
    "CPU 2 Instruction Cache Parity Error",
    "CPU 3 Instruction Cached Parity Error",
    "CPU 0 MMU Parity Error",
    "CPU 1 MMU Parity Error",
    "CPU 2 MMU Parity Error",
    "CPU 3 MMU Parity Error",
    "CPU 0 LSL1 Attribute Parity Error",
    "CPU 1 LSL1 Attribute Parity Error",
    "CPU 2 LSL1 Attribute Parity Error",
    "CPU 3 LSL1 Attribute Parity Error",
    "CPU 0 LSL1 State Parity Error",
    "CPU 1 LSL1 State Parity Error",
    "CPU 2 LSL1 State Parity Error",
    "CPU 3 LSL1 State Parity Error",
    "",
};

const char* const kPostTestNames[] = {
    "i2C Temp. Sensor test",
    "UART test",
    "(Not Used) 2 test",
    "Memory Data Line test",
    "Memory Address Line test",
    "(Not Used) 5 test",
    "(Not Used) 6 test",
    "(Not Used) 7 test",
    "(Not Used) 8 test",
    "(Not Used) 9 test",
    "SRAM test",
    "(Not Used) 11 test",
    "I2C Probe test test",
    "SEEP Diagnostic area test",
    "SEEP Unused area test",
    "Real Time Clock test",
    "i2C External Temp Sensor test",
    "Internal Temp Sensor test",
    "PCIe Probe test",
    "(Not Used) 19 test",
    "Nand Bad Block test",
    "(Not Used) 21 test",
    "(Not Used) 22 test",
    "(Not Used) 23 test",
    "(Not Used) 24 test",
    "(Not Used) 25 test",
    "(Not Used) 26 test",
    "(Not Used) 27 test",
    "FC ASIC Test",
    "",
};

static_assert(sizeof kPostTestNames / sizeof kPostTestNames[0] == KAdapterHealthInfo::LAST_NAMED_POST_TEST + 2,
              "one name per power-on test and the end mark");

// The names whose bit in `mask` is `set`, from `firstBit` on, joined by ", ".
std::string namesByBit(const char* const* names, uint32_t mask, bool set, unsigned int firstBit)
{
    std::string text;
    for (unsigned int bit = firstBit; bit < 32 && names[bit][0] != '\0'; ++bit) {
        if (PBase::isBitSet(mask, bit) != set)
            continue;
        if (!text.empty())
            text += ", ";
        text += names[bit];
    }
    return text;
}

// One alarm line per set bit, from `firstBit` on.
std::string alarmsByBit(const char* const* names, uint32_t mask, unsigned int firstBit)
{
    std::string text;
    for (unsigned int bit = firstBit; bit < 32 && names[bit][0] != '\0'; ++bit) {
        if (PBase::isBitSet(mask, bit))
            text += std::string("\n    *** ") + names[bit] + " ***";
    }
    return text;
}

std::string countLine(const char* label, int32_t count)
{
    return count != 0 ? label + PBase::numberToText(count) : std::string();
}

std::string junctionLine(const char* label, int32_t temperature)
{
    return temperature != 0 ? label + PBase::numberToText(temperature) + " (Centigrade)" : std::string();
}

} // namespace

// ---- KAdapterHealthPciExpressInfo ----------------------------------------------

KAdapterHealthPciExpressInfo::KAdapterHealthPciExpressInfo() : PBase()
{
    init();
}

KAdapterHealthPciExpressInfo::KAdapterHealthPciExpressInfo(const KAdapterHealthPciExpressInfo& other) : PBase()
{
    init();
    *this = other;
}

KAdapterHealthPciExpressInfo& KAdapterHealthPciExpressInfo::operator=(const KAdapterHealthPciExpressInfo& other)
{
    if (this != &other) {
        init();
        portNumber = other.portNumber;
        vendorId = other.vendorId;
        deviceId = other.deviceId;
        linkStatus = other.linkStatus;
        linkSpeed = other.linkSpeed;
        linkWidth = other.linkWidth;
    }
    return *this;
}

KAdapterHealthPciExpressInfo::~KAdapterHealthPciExpressInfo()
{
    init();
}

void KAdapterHealthPciExpressInfo::init()
{
    portNumber = 0;
    vendorId = 0;
    deviceId = 0;
    linkStatus = PEX_LINK_UNKNOWN;
    linkSpeed = PEX_LINK_SPEED_UNKNOWN;
    linkWidth = PEX_LINK_WIDTH_UNKNOWN;
    initSerialization(&portNumber, sizeof(KAdapterHealthPciExpressInfo));
}

std::string KAdapterHealthPciExpressInfo::linkWidthToText(PEX_LINK_WIDTH width)
{
    switch (width) {
    case PEX_LINK_WIDTH_UNKNOWN:
        return "Unknown";
    case PEX_LINK_WIDTH_X1:
        return "1x1";
    case PEX_LINK_WIDTH_X4:
        return "4x4";
    default:
        return "UNKNOWN";
    }
}

std::string KAdapterHealthPciExpressInfo::linkSpeedToText(PEX_LINK_SPEED speed)
{
    switch (speed) {
    case PEX_LINK_SPEED_UNKNOWN:
        return "Unknown";
    case PEX_LINK_SPEED_GEN1:
        return "GEN 1 (2.5 Gbits/sec)";
    case PEX_LINK_SPEED_GEN2:
        return "GEN 2 (5.0 Gbits/sec)";
    default:
        return "UNKNOWN";
    }
}

std::string KAdapterHealthPciExpressInfo::linkStatusToText(PEX_LINK_STATUS status)
{
    switch (status) {
    case PEX_LINK_DOWN:
        return "LINK_DOWN";
    case PEX_LINK_UP:
        return "LINK_UP";
    case PEX_LINK_DISABLED:
        return "(Disabled)";
    case PEX_LINK_UNKNOWN:
        return "Unknown";
    default:
        return "UNKNOWN";
    }
}

std::string KAdapterHealthPciExpressInfo::displayText() const
{
    std::string text = "    PCIe port " + numberToText(portNumber) + "\n        " + linkStatusToText(linkStatus);
    if (linkStatus == PEX_LINK_UP)
        text += linkUpText();
    return text + "\n";
}

// What sits behind a working link: the chip on ports 1 and 3, the PCI
// identity with the chip's code name, speed and width.
std::string KAdapterHealthPciExpressInfo::linkUpText() const
{
    std::string text;
    if (portNumber == 1)
        text += ", (FC ASIC)";
    else if (portNumber == 3)
        text += ", (SAS ASIC)";
    text += "\n        Vendor/Device = 0x" + numberToHexText(static_cast<unsigned int>(vendorId));
    if (deviceId == 0)
        text += " (Redwing)";
    else if (deviceId == 0x11AB)
        text += " (Bluestem w/SAS or SSD card)";
    text += " / 0x" + numberToHexText(static_cast<unsigned int>(deviceId));
    switch (deviceId) {
    case 0:
    case 0x2831:
    case 0xF002:
        text += " (Redwing)";
        break;
    case 0x2533:
    case 0x9445:
    case 0xF001:
        text += " (Bluestem)";
        break;
    default:
        text += " (Bluestem?)";
        break;
    }
    text += "\n        " + linkSpeedToText(linkSpeed);
    text += "\n        " + linkWidthToText(linkWidth);
    return text;
}

// ---- KAdapterHealthInfo -----------------------------------------------------------

KAdapterHealthInfo::KAdapterHealthInfo() : PBase()
{
    init();
}

KAdapterHealthInfo::KAdapterHealthInfo(const KAdapterHealthInfo& other) : PBase()
{
    init();
    *this = other;
}

KAdapterHealthInfo& KAdapterHealthInfo::operator=(const KAdapterHealthInfo& other)
{
    if (this != &other) {
        init();
        for (unsigned int i = 0; i < PCI_EXPRESS_PORTS; ++i)
            pciExpressInfo[i] = other.pciExpressInfo[i];
        fastMemcpy(&temperatureFront, scalarBlockSize(), &other.temperatureFront, scalarBlockSize());
    }
    return *this;
}

KAdapterHealthInfo::~KAdapterHealthInfo()
{
    init();
}

unsigned int KAdapterHealthInfo::scalarBlockSize() const
{
    return static_cast<unsigned int>(reinterpret_cast<const char*>(this + 1) -
                                     reinterpret_cast<const char*>(&temperatureFront));
}

void KAdapterHealthInfo::init()
{
    for (KAdapterHealthPciExpressInfo& link : pciExpressInfo)
        link.init();
    fastMemsetZero(&temperatureFront, scalarBlockSize());
    initSerialization(pciExpressInfo, sizeof(KAdapterHealthInfo));
}

KAdapterHealthPciExpressInfo* KAdapterHealthInfo::pciExpressInfo_vecAt(unsigned int index)
{
    return index < PCI_EXPRESS_PORTS ? &pciExpressInfo[index] : nullptr;
}

const KAdapterHealthPciExpressInfo* KAdapterHealthInfo::pciExpressInfo_vecAt(unsigned int index) const
{
    return index < PCI_EXPRESS_PORTS ? &pciExpressInfo[index] : nullptr;
}

bool KAdapterHealthInfo::isBeaconFlashing(int port) const
{
    return port >= 1 && port <= 32 && isBitSet(beaconPortMask, static_cast<unsigned int>(port - 1));
}

std::string KAdapterHealthInfo::systemUptimeToText(unsigned int seconds)
{
    return numberToText(static_cast<int>((seconds / 3600) % 24)) + ":" +
        numberToText(static_cast<int>((seconds / 60) % 60)) + ":" + numberToText(static_cast<int>(seconds % 60));
}

std::string KAdapterHealthInfo::displayText() const
{
    // The third link is internal and not reported.
    std::string text =
        pciExpressInfo[0].displayText() + pciExpressInfo[1].displayText() + pciExpressInfo[3].displayText();
    text += temperaturesText();
    text += beaconsText();
    text += errorCountsText();
    text += driversText();
    text += hardwareErrorsText();
    text += postTestText();
    text += "\n    System Uptime: " + systemUptimeToText(systemUptimeSeconds) + "\n\n";
    return text + partitionResetsText();
}

std::string KAdapterHealthInfo::temperaturesText() const
{
    std::string text = "    Temperature (Front/Rear/CPU): " + numberToText(temperatureFront) + " / " +
        numberToText(temperatureRear) + " / " + numberToText(temperatureCpu) + " (Centigrade)";
    text += junctionLine("\n    Temperature (NVDIMM Junction): ", temperatureNvdimm);
    text += junctionLine("\n    Temperature (FC Chip Junction): ", temperatureFcChip);
    return text;
}

std::string KAdapterHealthInfo::beaconsText() const
{
    std::string text;
    for (unsigned int bit = 0; bit < 32; ++bit) {
        if (isBitSet(beaconPortMask, bit))
            text += "\n    Beacon in Port " + numberToText(static_cast<int>(bit + 1)) + " is *ON*";
    }
    return text;
}

std::string KAdapterHealthInfo::errorCountsText() const
{
    return countLine("\n    DramEccSingleBitErrorCount:   ", dramEccSingleBitErrorCount) +
        countLine("\n    DramEccDoubleBitErrorCount:   ", dramEccDoubleBitErrorCount) +
        countLine("\n    L2CacheUncorrectableErrorCnt: ", l2CacheUncorrectableErrorCount) +
        countLine("\n    L2CacheCorrectableErrorCount: ", l2CacheCorrectableErrorCount);
}

std::string KAdapterHealthInfo::driversText() const
{
    return "\n    Internal drivers loaded OK:   " + namesByBit(kInternalDriverNames, driversLoadedMask, true, 0) +
        "\n    Internal drivers not loaded:  " + namesByBit(kInternalDriverNames, driversLoadedMask, false, 0);
}

std::string KAdapterHealthInfo::hardwareErrorsText() const
{
    // Bit 0 of the error mask is not an error of its own and is never shown.
    std::string text =
        alarmsByBit(kBridgeParityErrors, bridgeParityMask, 0) + alarmsByBit(kHardwareErrors, errorMask, 1);
    if (snoopFilterParityError)
        text += "\n    *** Snoop Filter Parity Error ***";
    if (l2CacheTagParityError)
        text += "\n    *** L2 Cache Tag Parity Error ***";
    if (bootedFromSecondaryImage != 0)
        text += "\n    *** Adapter booted from the secondary U-Boot image ***";
    return text;
}

std::string KAdapterHealthInfo::postTestText() const
{
    if (failedPostTest == 0)
        return std::string();
    std::string text = "\n    *** POST test #" + numberToText(failedPostTest) + " failed";
    // A number outside the table (also a negative one from a faulty library)
    // has no name.
    if (failedPostTest > 0 && failedPostTest <= LAST_NAMED_POST_TEST)
        return text + " (" + kPostTestNames[failedPostTest] + ") ***";
    return text + " ***";
}

std::string KAdapterHealthInfo::partitionResetsText() const
{
    std::string text;
    for (unsigned int i = 0; i < FS_PARTITIONS; ++i) {
        if (fsPartitionResetCount[i] != 0)
            text += "    FS Partition[" + numberToText(static_cast<int>(i)) +
                "] Reset Count = " + numberToText(fsPartitionResetCount[i]) + "\n";
    }
    return text;
}
