// Health of one adapter: PCI Express links, temperatures, error counters,
// internal drivers, hardware error bits, power-on test result and uptime.
#pragma once

#include "records/PBase.h"

class KAdapterHealthPciExpressInfo : public PBase {
public:
    enum PEX_LINK_STATUS : int32_t {
        PEX_LINK_DOWN = 0,
        PEX_LINK_UP = 1,
        PEX_LINK_DISABLED = 2,
        PEX_LINK_UNKNOWN = 3,
    };

    enum PEX_LINK_SPEED : int32_t {
        PEX_LINK_SPEED_UNKNOWN = 0,
        PEX_LINK_SPEED_GEN1 = 1,
        PEX_LINK_SPEED_GEN2 = 2,
    };

    enum PEX_LINK_WIDTH : int32_t {
        PEX_LINK_WIDTH_UNKNOWN = 0,
        PEX_LINK_WIDTH_X1 = 1,
        PEX_LINK_WIDTH_X4 = 4,
    };

    KAdapterHealthPciExpressInfo();
    KAdapterHealthPciExpressInfo(const KAdapterHealthPciExpressInfo& other);
    KAdapterHealthPciExpressInfo& operator=(const KAdapterHealthPciExpressInfo& other);
    ~KAdapterHealthPciExpressInfo() override;

    void init() override;
    std::string displayText() const override;

    static std::string linkWidthToText(PEX_LINK_WIDTH width);
    static std::string linkSpeedToText(PEX_LINK_SPEED speed);
    static std::string linkStatusToText(PEX_LINK_STATUS status);

    int32_t portNumber;
    int32_t vendorId;
    int32_t deviceId;
    PEX_LINK_STATUS linkStatus;
    PEX_LINK_SPEED linkSpeed;
    PEX_LINK_WIDTH linkWidth;

private:
    std::string linkUpText() const;
};

static_assert(sizeof(KAdapterHealthPciExpressInfo) == 48, "KAdapterHealthPciExpressInfo image");

class KAdapterHealthInfo : public PBase {
public:
    static constexpr unsigned int PCI_EXPRESS_PORTS = 4;
    static constexpr unsigned int FS_PARTITIONS = 6;
    // The highest power-on test number that has a name.
    static constexpr int LAST_NAMED_POST_TEST = 28;

    KAdapterHealthInfo();
    KAdapterHealthInfo(const KAdapterHealthInfo& other);
    KAdapterHealthInfo& operator=(const KAdapterHealthInfo& other);
    ~KAdapterHealthInfo() override;

    void init() override;
    std::string displayText() const override;

    unsigned int pciExpressInfo_vecSize() const { return PCI_EXPRESS_PORTS; }
    // Null for an index outside the four links.
    KAdapterHealthPciExpressInfo* pciExpressInfo_vecAt(unsigned int index);
    const KAdapterHealthPciExpressInfo* pciExpressInfo_vecAt(unsigned int index) const;

    // Ports count from 1.
    bool isBeaconFlashing(int port) const;

    // Hours within the day, minutes and seconds; whole days are dropped.
    static std::string systemUptimeToText(unsigned int seconds);

    KAdapterHealthPciExpressInfo pciExpressInfo[PCI_EXPRESS_PORTS];
    int32_t temperatureFront; // degrees Centigrade, like the other temperatures
    int32_t temperatureRear;
    int32_t temperatureCpu;
    uint32_t beaconPortMask;
    int32_t dramEccSingleBitErrorCount;
    int32_t dramEccDoubleBitErrorCount;
    int32_t l2CacheUncorrectableErrorCount;
    int32_t l2CacheCorrectableErrorCount;
    uint32_t driversLoadedMask;
    uint32_t bridgeParityMask;
    uint32_t errorMask;
    bool snoopFilterParityError;
    bool l2CacheTagParityError;
    int32_t bootedFromSecondaryImage;
    int32_t failedPostTest;    // 0: none failed
    int32_t temperatureNvdimm; // 0: no such sensor
    int32_t temperatureFcChip;
    uint32_t systemUptimeSeconds;
    uint16_t fsPartitionResetCount[FS_PARTITIONS];
    unsigned char reserved[64];

private:
    std::string temperaturesText() const;
    std::string beaconsText() const;
    std::string errorCountsText() const;
    std::string driversText() const;
    std::string hardwareErrorsText() const;
    std::string postTestText() const;
    std::string partitionResetsText() const;
    // Bytes from temperatureFront to the end of the record.
    unsigned int scalarBlockSize() const;
};

static_assert(sizeof(KAdapterHealthInfo) == 360, "KAdapterHealthInfo image");
