#include "records/KVitalProductData.h"

#include <cstddef>

namespace {

constexpr size_t kSerialNumberOffset = 20;

} // namespace

KVitalProductData::KVitalProductData()
{
    init();
}

KVitalProductData::KVitalProductData(const KVitalProductData& other) : PBase()
{
    init();
    *this = other;
}

KVitalProductData& KVitalProductData::operator=(const KVitalProductData& other)
{
    if (this == &other) {
        return *this;
    }
    init();
    fastMemcpy(serialNumber, TEXT_BLOCK_SIZE, other.serialNumber, TEXT_BLOCK_SIZE);
    adapterPath = other.adapterPath;
    return *this;
}

KVitalProductData::~KVitalProductData()
{
    init();
}

void KVitalProductData::init()
{
    ZEK_ASSERT_FIELD_OFFSET(KVitalProductData, serialNumber, kSerialNumberOffset);
    ZEK_ASSERT_FIELD_OFFSET(KVitalProductData, adapterPath, kSerialNumberOffset + TEXT_BLOCK_SIZE);
    initSerialization(serialNumber, sizeof(KVitalProductData));
    fastMemsetZero(serialNumber, TEXT_BLOCK_SIZE);
    adapterPath.init();
}

bool KVitalProductData::serialize(bool write, FILE* file, std::string& error)
{
    if (!adapterPath.serialize(write, file, error)) {
        return false;
    }
    return base_serialize(write, file, serialNumber, TEXT_BLOCK_SIZE, error);
}

std::string KVitalProductData::displayText() const
{
    const std::string rule(78, '-');
    return rule + "\nZEK             : " + adapterPath.displayText() +
        "\nSN              : " + charFieldToText(serialNumber) + "\nZEK Model       : " + charFieldToText(partNumber) +
        "\nZEK Desc.       : " + charFieldToText(productIdentifier) +
        "\nFW Version      : " + charFieldToText(firmwareVersion) + rule +
        "\nProduct Identifier                        : " + charFieldToText(productIdentifier) +
        "\nPart Number                               : " + charFieldToText(partNumber) +
        "\nSerial Number                             : " + charFieldToText(serialNumber) +
        "\nMisc. Information                         : " + charFieldToText(miscInformation) +
        "\nManufacturing Id                          : " + charFieldToText(manufacturingId) +
        "\nEFI Driver Version                        : " + charFieldToText(efiDriverVersion) +
        "\nFirmware Version                          : " + charFieldToText(firmwareVersion) +
        "\nBIOS Version                              : " + charFieldToText(biosVersion) +
        "\nFCode Version                             : " + charFieldToText(fcodeVersion) + "\n";
}
