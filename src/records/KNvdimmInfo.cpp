#include "records/KNvdimmInfo.h"

#include <cstring>

ZEK_ASSERT_FIELD_OFFSET(KNvdimmInfo, firmwareVersion, 20);
ZEK_ASSERT_FIELD_OFFSET(KNvdimmInfo, superCapFirmwareRevision, 304);
ZEK_ASSERT_FIELD_OFFSET(KNvdimmInfo, superCapChargedPercent, 325);

namespace {

struct BitName {
    uint32_t bit;
    const char* name;
};

// The names of the set bits joined by ", ", or `none` when no known bit is set.
template <size_t N>
std::string bitNames(uint32_t mask, const BitName (&names)[N], const char* none, std::string text = {})
{
    for (const BitName& entry : names) {
        if ((mask & entry.bit) == 0)
            continue;
        if (!text.empty())
            text += ", ";
        text += entry.name;
    }
    return text.empty() ? std::string(none) : text;
}

const BitName kNvdimmStatus[] = {
    {1, "Not Armed"},      {2, "Armed"}, {4, "NVDIMM Update in Progress"}, {8, "Super Cap Update in Progress"},
    {16, "Panic Deteced"},
};

const BitName kNvdimmAdditionalStatus[] = {
    {1, "Free Flash Block Warn"},
    {2, "Free Flash Block Fail"},
    {4, "Restore Failed"},
};

const BitName kSuperCapStatusFlags[] = {{4, "Full Charged"}, {128, "Initialized"}};

const char* const kSuperCapChargeStates[] = {"Idle", "Charging", "Discharged", "Self Test"};

const BitName kSuperCapPowerState[] = {{1, "Good"}, {2, "Backup output power good"}};

const BitName kSuperCapWarning[] = {
    {1, "Under Capacitance"},        {2, "Over ESR"},        {4, "Over Current Charging"},
    {8, "Over Current Discharging"}, {16, "Supercap Fault"},
};

std::string boundedText(const char* field, size_t size)
{
    return std::string(field, strnlen(field, size));
}

// " 0x" and the word in hexadecimal, then its meaning in parentheses.
std::string codeAndMeaning(uint32_t code, const std::string& meaning)
{
    return " 0x" + PBase::numberToHexText(code) + " (" + meaning + ")";
}

} // namespace

KNvdimmInfo::KNvdimmInfo() : PBase()
{
    init();
}

KNvdimmInfo::KNvdimmInfo(const KNvdimmInfo& other) : PBase()
{
    init();
    *this = other;
}

KNvdimmInfo& KNvdimmInfo::operator=(const KNvdimmInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(firmwareVersion, fieldsSize(), other.firmwareVersion, fieldsSize());
    }
    return *this;
}

KNvdimmInfo::~KNvdimmInfo()
{
    init();
}

unsigned int KNvdimmInfo::fieldsSize() const
{
    return static_cast<unsigned int>(reinterpret_cast<const char*>(this + 1) - firmwareVersion);
}

void KNvdimmInfo::init()
{
    fastMemsetZero(firmwareVersion, fieldsSize());
    superCapHealth = SUPERCAP_HEALTH_UNKNOWN;
    superCapStatus = SUPERCAP_STATUS_EMPTY;
    initSerialization(firmwareVersion, sizeof(KNvdimmInfo));
}

std::string KNvdimmInfo::superCapHealthToText(KISA_SUPERCAP_HEALTH health)
{
    switch (health) {
    case SUPERCAP_HEALTH_OVERCHARGED:
        return "Overcharged";
    case SUPERCAP_HEALTH_END_OF_LIFE:
        return "End of Life";
    case SUPERCAP_HEALTH_WEAK:
        return "Weak";
    case SUPERCAP_HEALTH_GOOD:
        return "Good";
    default:
        return "Unknown";
    }
}

std::string KNvdimmInfo::nvdimmStatusToText(uint32_t status)
{
    return bitNames(status, kNvdimmStatus, "Unknown");
}

std::string KNvdimmInfo::nvdimmAdditionalStatusToText(uint32_t status)
{
    return bitNames(status, kNvdimmAdditionalStatus, "Unknown");
}

// The low two bits always name a charge state, so this text is never
// "Unknown".
std::string KNvdimmInfo::superCapStatusToText(uint32_t status)
{
    return bitNames(status, kSuperCapStatusFlags, "Unknown", kSuperCapChargeStates[status & 3]);
}

std::string KNvdimmInfo::superCapPowerStateToText(uint8_t state)
{
    return bitNames(state, kSuperCapPowerState, "Unknown");
}

std::string KNvdimmInfo::superCapWarningToText(uint8_t warning)
{
    return bitNames(warning, kSuperCapWarning, "None");
}

std::string KNvdimmInfo::displayText() const
{
    return "    NVDIMM and Super Cap Information\n" + nvdimmText() + superCapText() + "\n\n";
}

std::string KNvdimmInfo::nvdimmText() const
{
    std::string text = "\n    NVDIMM Firmware Version:    " + boundedText(firmwareVersion, sizeof firmwareVersion);
    text += "\n    NVDIMM Packaged Version:    " + boundedText(packagedVersion, sizeof packagedVersion);
    text += "\n    NVDIMM Temperature:         " + numberToText(temperature) + "C";
    text += "\n    NVDIMM Serial Number:       " + boundedText(serialNumber, sizeof serialNumber);
    text += "\n    NVDIMM Part Number:         " + boundedText(partNumber, sizeof partNumber);
    text += "\n    NVDIMM Status:              " + codeAndMeaning(nvdimmStatus, nvdimmStatusToText(nvdimmStatus));
    if ((nvdimmStatus & NVDIMM_STATUS_NOT_ARMED) != 0)
        text += "\n    NVDIMM Additional Status:   " +
            codeAndMeaning(nvdimmAdditionalStatus, nvdimmAdditionalStatusToText(nvdimmAdditionalStatus));
    return text;
}

std::string KNvdimmInfo::superCapText() const
{
    std::string text = "\n    Super Cap Detected:         " + std::string(superCapDetected ? "True" : "False");
    text += "\n    Super Cap Serial Number:\t   " + boundedText(superCapSerialNumber, sizeof superCapSerialNumber);
    text += "\n    Super Cap Part Number:      " + boundedText(superCapPartNumber, sizeof superCapPartNumber);
    text += "\n    Super Cap Firmware Revision: 0x" + numberToHexText(superCapFirmwareRevision);
    text += "\n    Super Cap Packaged Revision: 0x" + numberToHexText(superCapPackagedRevision);
    text += "\n    Super Cap Status:           " + codeAndMeaning(superCapStatus, superCapStatusToText(superCapStatus));
    text += "\n    Super Cap Power Status:     " +
        codeAndMeaning(superCapPowerState, superCapPowerStateToText(superCapPowerState));
    text += "\n    Super Cap Health:           " +
        codeAndMeaning(static_cast<uint32_t>(superCapHealth), superCapHealthToText(superCapHealth));
    text +=
        "\n    Super Cap Warning:          " + codeAndMeaning(superCapWarning, superCapWarningToText(superCapWarning));
    text += "\n    Super Cap Charged Percent:  " + numberToText(superCapChargedPercent) + "%";
    return text;
}
