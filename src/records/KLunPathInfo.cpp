#include "records/KLunPathInfo.h"

#include <cstring>

// ---- Fibre Channel path -------------------------------------------------------

KFcLunPathInfo::KFcLunPathInfo() : PBase()
{
    init();
}

KFcLunPathInfo::KFcLunPathInfo(const KFcLunPathInfo& other) : PBase()
{
    init();
    *this = other;
}

KFcLunPathInfo& KFcLunPathInfo::operator=(const KFcLunPathInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(ui8Wwpn, getSerialSize(), other.ui8Wwpn, getSerialSize());
    }
    return *this;
}

KFcLunPathInfo::~KFcLunPathInfo()
{
    init();
}

void KFcLunPathInfo::init()
{
    initSerialization(ui8Wwpn, sizeof(KFcLunPathInfo));
    fastMemsetZero(ui8Wwpn, getSerialSize());
}

std::string KFcLunPathInfo::displayText() const
{
    unsigned char portId[sizeof(ui8PortId)];
    memcpy(portId, ui8PortId, sizeof(portId));
    return "            WWPN = " + wwnameToText(ui8Wwpn) + "\n            WWNN = " + wwnameToText(ui8Wwnn) +
        "\n            Port ID = " + portIdToText(portId, sizeof(portId)) + "\n";
}

// ---- iSCSI path ---------------------------------------------------------------

KIscsiLunPathInfo::KIscsiLunPathInfo() : PBase()
{
    init();
}

KIscsiLunPathInfo::KIscsiLunPathInfo(const KIscsiLunPathInfo& other) : PBase()
{
    init();
    *this = other;
}

KIscsiLunPathInfo& KIscsiLunPathInfo::operator=(const KIscsiLunPathInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(szTargetName, scalarBlockSize(), other.szTargetName, scalarBlockSize());
        ipAddress = other.ipAddress;
    }
    return *this;
}

KIscsiLunPathInfo::~KIscsiLunPathInfo()
{
    init();
}

unsigned int KIscsiLunPathInfo::scalarBlockSize() const
{
    return static_cast<unsigned int>(reinterpret_cast<const char*>(&ui32TcpPort + 1) - szTargetName);
}

void KIscsiLunPathInfo::init()
{
    fastMemsetZero(szTargetName, scalarBlockSize());
    ipAddress.init();
    initSerialization(szTargetName, sizeof(KIscsiLunPathInfo));
}

bool KIscsiLunPathInfo::serialize(bool write, FILE* file, std::string& error)
{
    return base_serialize(write, file, szTargetName, scalarBlockSize(), error) &&
        ipAddress.serialize(write, file, error);
}

std::string KIscsiLunPathInfo::displayText() const
{
    return "            iSCSI Target Name = " + charFieldToText(szTargetName) +
        "\n            IP Address = " + ipAddress.displayText() +
        "\n            TCP Port = " + ui64NumberToText(ui32TcpPort) + "\n";
}

// ---- one path -----------------------------------------------------------------

KLunPathInfo::KLunPathInfo() : PBase()
{
    init();
}

KLunPathInfo::KLunPathInfo(const KLunPathInfo& other) : PBase()
{
    init();
    *this = other;
}

KLunPathInfo& KLunPathInfo::operator=(const KLunPathInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(&ui32PathReserved, scalarBlockSize(), &other.ui32PathReserved, scalarBlockSize());
        fcPath = other.fcPath;
        iscsiPath = other.iscsiPath;
    }
    return *this;
}

KLunPathInfo::~KLunPathInfo()
{
    init();
}

unsigned int KLunPathInfo::scalarBlockSize() const
{
    return static_cast<unsigned int>(reinterpret_cast<const char*>(&ePathStatus + 1) -
                                     reinterpret_cast<const char*>(&ui32PathReserved));
}

void KLunPathInfo::init()
{
    fastMemsetZero(&ui32PathReserved, scalarBlockSize());
    fcPath.init();
    iscsiPath.init();
    initSerialization(&ui32PathReserved, sizeof(KLunPathInfo));
}

bool KLunPathInfo::serialize(bool write, FILE* file, std::string& error)
{
    return base_serialize(write, file, reinterpret_cast<char*>(&ui32PathReserved), scalarBlockSize(), error) &&
        fcPath.serialize(write, file, error) && iscsiPath.serialize(write, file, error);
}

std::string KLunPathInfo::lunPathStatusToText(LUNPATH_STATUS_TYPE status)
{
    switch (status) {
    case LUNPATH_STATUS_OFFLINE:
        return "Offline";
    case LUNPATH_STATUS_ACTIVE:
        return "Active";
    case LUNPATH_STATUS_ACTIVE_CURRENT_OPTIMIZED:
        return "Active Current Optimized";
    case LUNPATH_STATUS_ACTIVE_OPTIMIZED:
        return "Active Optimized";
    case LUNPATH_STATUS_ACTIVE_CURRENT:
        return "Active Current";
    case LUNPATH_STATUS_PASSIVE:
        return "Passive";
    case LUNPATH_STATUS_PASSIVE_CURRENT_OPTIMIZED:
        return "Passive Current Optimized";
    case LUNPATH_STATUS_PASSIVE_OPTIMIZED:
        return "Passive Optimized";
    case LUNPATH_STATUS_PASSIVE_CURRENT:
        return "Passive Current";
    case LUNPATH_STATUS_OPTIMIZED:
        return "Optimized";
    case LUNPATH_STATUS_CURRENT_OPTIMIZED:
        return "Current Optimized";
    case LUNPATH_STATUS_CURRENT:
        return "Current";
    default:
        return "Unknown";
    }
}

std::string KLunPathInfo::displayText() const
{
    std::string text;
    if (isFcTarget())
        text = fcPath.displayText();
    else if (isIscsiTarget())
        text = iscsiPath.displayText();
    return text + "            Status:  " + lunPathStatusToText(ePathStatus) + "\n";
}
