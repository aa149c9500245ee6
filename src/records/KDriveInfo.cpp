#include "records/KDriveInfo.h"

#include <cstring>

ZEK_ASSERT_FIELD_OFFSET(KDriveInfo, vendorId, 20);
// The saved plain block is the 100 bytes in front of the SMART data.
ZEK_ASSERT_FIELD_OFFSET(KDriveInfo, smartInfo, 20 + KDriveInfo::PLAIN_BLOCK_SIZE);

namespace {

std::string boundedText(const char* field, size_t size)
{
    return std::string(field, strnlen(field, size));
}

} // namespace

KDriveInfo::KDriveInfo() : PBase()
{
    init();
}

KDriveInfo::KDriveInfo(const KDriveInfo& other) : PBase()
{
    init();
    *this = other;
}

KDriveInfo& KDriveInfo::operator=(const KDriveInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(vendorId, PLAIN_BLOCK_SIZE, other.vendorId, PLAIN_BLOCK_SIZE);
        smartInfo = other.smartInfo;
    }
    return *this;
}

KDriveInfo::~KDriveInfo()
{
    init();
}

void KDriveInfo::init()
{
    fastMemsetZero(vendorId, PLAIN_BLOCK_SIZE);
    driveStatus = DRIVE_STATUS_UNKNOWN;
    smartInfo.init();
    initSerialization(vendorId, sizeof(KDriveInfo));
}

bool KDriveInfo::serialize(bool write, FILE* file, std::string& error)
{
    if (!base_serialize(write, file, vendorId, PLAIN_BLOCK_SIZE, error))
        return false;
    return smartInfo.serialize(write, file, error);
}

std::string KDriveInfo::driveStateToText(DRIVE_STATUS_TYPE state)
{
    switch (state) {
    case DRIVE_STATUS_UNKNOWN:
        return "Unknown";
    case DRIVE_STATUS_UNCONFIGURED:
        return "Unconfigured";
    case DRIVE_STATUS_CONFIGURED:
        return "Configured";
    default:
        return "UNKNOWN";
    }
}

std::string KDriveInfo::displayText() const
{
    std::string text = "        " + driveStateToText(driveStatus);
    text += "\n        Owner ID =       " + ui64NumberToHexText(ownerId);
    if (!isOnline)
        return text + "\n        State =          Offline";
    text += "\n        State =          Online";
    text += "\n        Size =           " + longlongToMByteText(sizeBytes);
    text += "\n        Vendor ID =      " + boundedText(vendorId, sizeof vendorId);
    text += "\n        Product ID =     " + boundedText(productId, sizeof productId);
    text += "\n        Revision =       " + boundedText(revision, sizeof revision);
    text += "\n        Serial Number =  " + boundedText(serialNumber, sizeof serialNumber);
    text += "\n";
    return text + flagsText();
}

// Where the drive sits and what is wrong with it; the location alone is not
// worth a line.
std::string KDriveInfo::flagsText() const
{
    if (!isExternal && !isPcieSsd && !isSecurityLocked && !isIdentityConflict)
        return std::string();
    std::string text = "        (";
    text += isExternal ? " External Drive " : " Internal Drive ";
    if (isPcieSsd)
        text += " PCIE SSD ";
    if (isSecurityLocked)
        text += " Security Locked ";
    if (isIdentityConflict)
        text += " PSST and Drive Identity Conflict ";
    return text + ")";
}

std::string KDriveInfo::displaySmartDriveInfoText() const
{
    if (smartInfo.isSmartDataValid == 0)
        return std::string();
    return smartInfo.displayText(KSmartDriveAttribute::SMART_DISPLAY_ALWAYS);
}

std::string KDriveInfo::displaySmartDriveInfoVerboseText() const
{
    if (smartInfo.isSmartDataValid == 0)
        return std::string();
    return smartInfo.displayText(KSmartDriveAttribute::SMART_DISPLAY_VERBOSE);
}
