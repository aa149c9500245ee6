// The adapter's non-volatile memory module and the super capacitor that
// powers its backup.
#pragma once

#include "records/PBase.h"

class KNvdimmInfo : public PBase {
public:
    enum KISA_SUPERCAP_HEALTH : int32_t {
        SUPERCAP_HEALTH_OVERCHARGED = 0,
        SUPERCAP_HEALTH_END_OF_LIFE = 1,
        SUPERCAP_HEALTH_WEAK = 2,
        SUPERCAP_HEALTH_GOOD = 3,
        SUPERCAP_HEALTH_UNKNOWN = 4,
    };

    // Status word of a record that the library has not filled.
    static constexpr uint32_t SUPERCAP_STATUS_EMPTY = 129;
    // The module is not armed: only then its additional status matters.
    static constexpr uint32_t NVDIMM_STATUS_NOT_ARMED = 1;

    KNvdimmInfo();
    KNvdimmInfo(const KNvdimmInfo& other);
    KNvdimmInfo& operator=(const KNvdimmInfo& other);
    ~KNvdimmInfo() override;

    void init() override;
    std::string displayText() const override;

    static std::string superCapHealthToText(KISA_SUPERCAP_HEALTH health);
    static std::string nvdimmStatusToText(uint32_t status);
    static std::string nvdimmAdditionalStatusToText(uint32_t status);
    static std::string superCapStatusToText(uint32_t status);
    static std::string superCapPowerStateToText(uint8_t state);
    static std::string superCapWarningToText(uint8_t warning);

    char firmwareVersion[3];
    char packagedVersion[3];
    int32_t temperature;
    char serialNumber[65];
    char partNumber[65];
    uint32_t nvdimmStatus;
    uint32_t nvdimmAdditionalStatus;
    bool superCapDetected;
    char superCapPartNumber[65];
    char superCapSerialNumber[65];
    uint32_t superCapFirmwareRevision;
    uint32_t superCapPackagedRevision;
    uint8_t superCapPowerState;
    KISA_SUPERCAP_HEALTH superCapHealth;
    uint32_t superCapStatus;
    uint8_t superCapWarning;
    uint8_t superCapChargedPercent;

private:
    // Bytes from firmwareVersion to the end of the record.
    unsigned int fieldsSize() const;
    std::string nvdimmText() const;
    std::string superCapText() const;
};

static_assert(sizeof(KNvdimmInfo) == 328, "KNvdimmInfo image");
