#include "records/KSfpInfo.h"

#include <stdexcept>

namespace {

constexpr unsigned int kFigureCount = 5; // temperature, voltage, Tx bias, Tx power, Rx power

enum FigureRow : unsigned int {
    ROW_VALUE = 0,
    ROW_HIGH_ALARM = 1,
    ROW_HIGH_WARNING = 2,
    ROW_LOW_WARNING = 3,
    ROW_LOW_ALARM = 4,
};

// Index of the high byte of each figure in the raw memory; the low byte
// follows it. The limits lie in the diagnostics area that starts at 256.
constexpr unsigned int kFigureIndex[kFigureCount][5] = {
    // value, high alarm, high warning, low warning, low alarm
    {352, 256, 260, 262, 258}, {354, 264, 268, 270, 266}, {356, 272, 276, 278, 274},
    {358, 280, 284, 286, 282}, {360, 288, 292, 294, 290},
};

const char* const kDriverStatusTexts[8] = {
    "No error",
    "Driver not ready",
    "Driver no resource",
    "Data transfer error",
    "Firmware no resource",
    "Read timeout",
    "SFP not present",
    "Unknown",
};

} // namespace

float getValue(char high, char low)
{
    const unsigned int raw = static_cast<unsigned char>(high) * 256u + static_cast<unsigned char>(low);
    return static_cast<float>(static_cast<float>(raw) * 100.0 * 0.000001);
}

// Whole degrees in the high byte, 1/256 degrees in the low byte. Below zero
// the low byte is taken as its complement.
float getTemp(char high, char low)
{
    const int whole = static_cast<signed char>(high);
    const int fraction = static_cast<signed char>(low);
    if (whole >= 0)
        return static_cast<float>(whole + fraction * 0.00390625);
    return static_cast<float>(whole + (~fraction) * 0.00390625);
}

std::string getSFPStatus(float value, float highAlarm, float highWarning, float lowWarning, float lowAlarm)
{
    if (value > highAlarm || value < lowAlarm)
        return "Fault";
    if (value > highWarning || value < lowWarning)
        return "Warning";
    return "Normal";
}

KSfpInfo::KSfpInfo() : PBase()
{
    init();
}

KSfpInfo::KSfpInfo(const KSfpInfo& other) : PBase()
{
    init();
    *this = other;
}

KSfpInfo& KSfpInfo::operator=(const KSfpInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(&portIndex, getSerialSize(), &other.portIndex, getSerialSize());
    }
    return *this;
}

KSfpInfo::~KSfpInfo()
{
    init();
}

void KSfpInfo::init()
{
    initSerialization(&portIndex, sizeof(KSfpInfo));
    fastMemsetZero(&portIndex, getSerialSize());
    driverStatus = DRIVER_STATUS_UNKNOWN;
}

unsigned char& KSfpInfo::sfpDataRef(unsigned int index)
{
    if (index >= SFP_DATA_SIZE)
        throw std::out_of_range("SFP data index " + std::to_string(index) + " is beyond the SFP memory");
    return sfpData[index];
}

const unsigned char& KSfpInfo::sfpDataRef(unsigned int index) const
{
    return const_cast<KSfpInfo*>(this)->sfpDataRef(index);
}

std::string KSfpInfo::driverStatusToText(uint32_t status)
{
    if (status > DRIVER_STATUS_UNKNOWN)
        return "";
    return kDriverStatusTexts[status];
}

float KSfpInfo::figure(unsigned int column, unsigned int row) const
{
    const unsigned int index = kFigureIndex[column][row];
    const char high = static_cast<char>(sfpDataRef(index));
    const char low = static_cast<char>(sfpDataRef(index + 1));
    return column == 0 ? getTemp(high, low) : getValue(high, low);
}

std::string KSfpInfo::figureRow(const std::string& label, unsigned int row) const
{
    std::string text = label;
    for (unsigned int column = 0; column < kFigureCount; ++column) {
        if (column != 0)
            text += "\t";
        text += floatToText(figure(column, row));
    }
    return text;
}

std::string KSfpInfo::statusRow() const
{
    std::string text = "\n    Status   \t\t";
    for (unsigned int column = 0; column < kFigureCount; ++column) {
        if (column != 0)
            text += "\t\t";
        text +=
            getSFPStatus(figure(column, ROW_VALUE), figure(column, ROW_HIGH_ALARM), figure(column, ROW_HIGH_WARNING),
                         figure(column, ROW_LOW_WARNING), figure(column, ROW_LOW_ALARM));
    }
    return text;
}

std::string KSfpInfo::displayText() const
{
    std::string text = "    SFP Port = " + ui64NumberToText(portIndex + 1ULL);
    text += "\n    Vendor Name = " + charFieldToText(vendorName);
    text += "\n    Serial Number = " + charFieldToText(serialNumber);
    text += "\n    Driver Status = " + driverStatusToText(driverStatus) + "\n";
    text += "\n    SFP General Status\n";
    // "Bia" is how the column has always been headed.
    text += "\t \t\tTemperature(C)\tVoltage(V)\tTx Bia(mA)\tTx Power(mW)\tRx Power(mW)";
    text += figureRow("\n    Value\t\t", ROW_VALUE);
    text += statusRow();
    text += figureRow("\n    High Alarm   \t", ROW_HIGH_ALARM);
    text += figureRow("\n    High Warning \t", ROW_HIGH_WARNING);
    text += figureRow("\n    Low  Warning \t", ROW_LOW_WARNING);
    text += figureRow("\n    Low  Alarm   \t", ROW_LOW_ALARM);
    return text;
}
