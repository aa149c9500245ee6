#include "records/KTargetInfo.h"

// ---- Fibre Channel names ----------------------------------------------------

KFcTargetInfo::KFcTargetInfo() : PBase()
{
    init();
}

KFcTargetInfo::KFcTargetInfo(const KFcTargetInfo& other) : PBase()
{
    init();
    *this = other;
}

KFcTargetInfo& KFcTargetInfo::operator=(const KFcTargetInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(wwpn, getSerialSize(), other.wwpn, getSerialSize());
    }
    return *this;
}

KFcTargetInfo::~KFcTargetInfo()
{
    init();
}

void KFcTargetInfo::init()
{
    initSerialization(wwpn, sizeof(KFcTargetInfo));
    fastMemsetZero(wwpn, getSerialSize());
}

std::string KFcTargetInfo::displayText() const
{
    return displayText("");
}

std::string KFcTargetInfo::displayText(const std::string& prefix) const
{
    return "\n" + prefix + "WWNN:    " + wwnnToString() + "\n" + prefix + "WWPN:    " + wwpnToString() + "\n" + prefix +
        "Port ID: " + portIdToString() + "\n";
}

// ---- iSCSI names --------------------------------------------------------------

KIscsiTargetInfo::KIscsiTargetInfo() : PBase()
{
    init();
}

KIscsiTargetInfo::KIscsiTargetInfo(const KIscsiTargetInfo& other) : PBase()
{
    init();
    *this = other;
}

KIscsiTargetInfo& KIscsiTargetInfo::operator=(const KIscsiTargetInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(iscsiName, getSerialSize(), other.iscsiName, getSerialSize());
    }
    return *this;
}

KIscsiTargetInfo::~KIscsiTargetInfo()
{
    init();
}

void KIscsiTargetInfo::init()
{
    initSerialization(iscsiName, sizeof(KIscsiTargetInfo));
    fastMemsetZero(iscsiName, getSerialSize());
}

std::string KIscsiTargetInfo::displayText() const
{
    return displayText("");
}

std::string KIscsiTargetInfo::displayText(const std::string& prefix) const
{
    return "\n" + prefix + "iSCSI Name = " + charFieldToText(iscsiName) + "\n" + prefix + "CHAP is " +
        enableToText(chapEnabled) + "\n";
}

// ---- the target ---------------------------------------------------------------

KTargetInfo::KTargetInfo() : PBase()
{
    init();
}

KTargetInfo::KTargetInfo(const KTargetInfo& other) : PBase()
{
    init();
    *this = other;
}

KTargetInfo& KTargetInfo::operator=(const KTargetInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(&protocol, scalarBlockSize(), &other.protocol, scalarBlockSize());
        fc = other.fc;
        iscsi = other.iscsi;
    }
    return *this;
}

KTargetInfo::~KTargetInfo()
{
    init();
}

unsigned int KTargetInfo::scalarBlockSize() const
{
    return static_cast<unsigned int>(reinterpret_cast<const char*>(&portalMode + 1) -
                                     reinterpret_cast<const char*>(&protocol));
}

void KTargetInfo::init()
{
    fastMemsetZero(&protocol, scalarBlockSize());
    portalMode = PORTAL_MODE_UNSET;
    fc.init();
    iscsi.init();
    initSerialization(&protocol, sizeof(KTargetInfo));
}

bool KTargetInfo::serialize(bool write, FILE* file, std::string& error)
{
    return base_serialize(write, file, reinterpret_cast<char*>(&protocol), scalarBlockSize(), error) &&
        fc.serialize(write, file, error) && iscsi.serialize(write, file, error);
}

std::string KTargetInfo::portalModeToText(KISA_PORTAL_MODE_TYPE mode)
{
    switch (mode) {
    case PORTAL_MODE_FCP:
        return "FCP";
    case PORTAL_MODE_FRAME_SHUTTLE:
        return "FRAME_SHUTTLE";
    case PORTAL_MODE_FCOE:
        return "_FCOE";
    case PORTAL_MODE_ISCSI_OVER_FCOE:
        return "ISCSI_OVER_FCOE";
    default:
        return "Unknown";
    }
}

// The ports of discovery, named by the kind of port the target was seen on.
std::string KTargetInfo::portsText() const
{
    const std::string label = isFcTarget() ? "FC" : "ETH";
    if (discoveredOnPort1 && discoveredOnPort2)
        return ", " + label + "1/" + label + "2";
    if (discoveredOnPort1)
        return ", " + label + "1";
    if (discoveredOnPort2)
        return ", " + label + "2";
    return "";
}

std::string KTargetInfo::displayText() const
{
    return displayText("");
}

std::string KTargetInfo::displayText(const std::string& prefix) const
{
    const std::string indent = prefix + "    ";
    std::string text;
    if (isFcTarget())
        text = prefix + "FC Target " + fc.displayText(indent);
    else if (isIscsiTarget())
        text = prefix + "iSCSI Target " + iscsi.displayText(indent);
    else
        return prefix + "*** Target Info not initialized ***";

    text += indent + "Target State = " + (online ? "online" : "OFFLINE");
    if (mapped)
        text += ", mapped";
    text += portsText() + "\n";
    text += indent + "Target Portal Mode = " + portalModeToText(portalMode) + "\n";
    if (maxOutstandingIo != 0)
        text += indent + "Max Outstanding IO = " + ui64NumberToText(maxOutstandingIo) + "\n";
    return text;
}
