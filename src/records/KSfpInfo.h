// One SFP of a Fibre Channel port: identity, driver status and the raw
// memory that holds its diagnostics.
#pragma once

#include <string>

#include "records/PBase.h"

class KSfpInfo : public PBase {
public:
    static constexpr unsigned int SFP_DATA_SIZE = 512;

    enum DRIVER_STATUS : uint32_t {
        DRIVER_STATUS_NO_ERROR = 0,
        DRIVER_STATUS_NOT_READY = 1,
        DRIVER_STATUS_NO_RESOURCE = 2,
        DRIVER_STATUS_DATA_TRANSFER_ERROR = 3,
        DRIVER_STATUS_FIRMWARE_NO_RESOURCE = 4,
        DRIVER_STATUS_READ_TIMEOUT = 5,
        DRIVER_STATUS_SFP_NOT_PRESENT = 6,
        DRIVER_STATUS_UNKNOWN = 7,
    };

    KSfpInfo();
    KSfpInfo(const KSfpInfo& other);
    KSfpInfo& operator=(const KSfpInfo& other);
    ~KSfpInfo() override;

    void init() override;
    std::string displayText() const override;

    // One byte of the raw memory. An index beyond it is a programming error
    // and throws std::out_of_range.
    unsigned char& sfpDataRef(unsigned int index);
    const unsigned char& sfpDataRef(unsigned int index) const;

    static std::string driverStatusToText(uint32_t status);

    uint32_t portIndex; // from 0; shown plus one
    char vendorName[17];
    char serialNumber[17];
    uint32_t driverStatus;
    unsigned char sfpData[SFP_DATA_SIZE];

private:
    // Columns are the five figures, rows their value and four limits.
    float figure(unsigned int column, unsigned int row) const;
    std::string figureRow(const std::string& label, unsigned int row) const;
    std::string statusRow() const;
};

static_assert(sizeof(KSfpInfo) == 576, "KSfpInfo image");
ZEK_ASSERT_FIELD_OFFSET(KSfpInfo, driverStatus, 60)
ZEK_ASSERT_FIELD_OFFSET(KSfpInfo, sfpData, 64)

// Reading the diagnostics area. All analogue figures share one scale.
float getValue(char high, char low);
float getTemp(char high, char low);
std::string getSFPStatus(float value, float highAlarm, float highWarning, float lowWarning, float lowAlarm);
