#include "records/KInitiatorInfo.h"

// ---- Fibre Channel names ----------------------------------------------------

KFcInitiatorInfo::KFcInitiatorInfo() : PBase()
{
    init();
}

KFcInitiatorInfo::KFcInitiatorInfo(const KFcInitiatorInfo& other) : PBase()
{
    init();
    *this = other;
}

KFcInitiatorInfo& KFcInitiatorInfo::operator=(const KFcInitiatorInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(&fcMode, getSerialSize(), &other.fcMode, getSerialSize());
    }
    return *this;
}

KFcInitiatorInfo::~KFcInitiatorInfo()
{
    init();
}

void KFcInitiatorInfo::init()
{
    initSerialization(&fcMode, sizeof(KFcInitiatorInfo));
    fastMemsetZero(&fcMode, getSerialSize());
    fcMode = KFcInfo::FC_MODE_UNSET;
}

std::string KFcInitiatorInfo::displayText() const
{
    return displayText("");
}

std::string KFcInitiatorInfo::displayText(const std::string& prefix) const
{
    return prefix + "(" + KFcInfo::fcModeToText(fcMode) + ") Fibre Channel Initiator " + wwnnToString() + ", " +
        wwpnToString() + "\n" + prefix + "Port ID = " + portIdToString() + "\n";
}

// ---- iSCSI names --------------------------------------------------------------

KIscsiInitiatorInfo::KIscsiInitiatorInfo() : PBase()
{
    init();
}

KIscsiInitiatorInfo::KIscsiInitiatorInfo(const KIscsiInitiatorInfo& other) : PBase()
{
    init();
    *this = other;
}

KIscsiInitiatorInfo& KIscsiInitiatorInfo::operator=(const KIscsiInitiatorInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(iscsiName, getSerialSize(), other.iscsiName, getSerialSize());
    }
    return *this;
}

KIscsiInitiatorInfo::~KIscsiInitiatorInfo()
{
    init();
}

void KIscsiInitiatorInfo::init()
{
    initSerialization(iscsiName, sizeof(KIscsiInitiatorInfo));
    fastMemsetZero(iscsiName, getSerialSize());
}

std::string KIscsiInitiatorInfo::displayText() const
{
    return displayText("");
}

// The heading reads "Target" and the secret is shown in clear: both are
// what administrators' scripts already expect from this record.
std::string KIscsiInitiatorInfo::displayText(const std::string& prefix) const
{
    return prefix + "iSCSI Target\n" + prefix + "iSCSI Name = " + charFieldToText(iscsiName) + "\n" + prefix +
        "CHAP is " + enableToText(chapEnabled) + "\n" + prefix + "CHAP Secret = " + charFieldToText(chapSecret) + "\n";
}

// ---- the initiator --------------------------------------------------------------

KInitiatorInfo::KInitiatorInfo() : PBase()
{
    init();
}

KInitiatorInfo::KInitiatorInfo(const KInitiatorInfo& other) : PBase()
{
    init();
    *this = other;
}

KInitiatorInfo& KInitiatorInfo::operator=(const KInitiatorInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(&protocol, scalarBlockSize(), &other.protocol, scalarBlockSize());
        fc = other.fc;
        iscsi = other.iscsi;
    }
    return *this;
}

KInitiatorInfo::~KInitiatorInfo()
{
    init();
}

unsigned int KInitiatorInfo::scalarBlockSize() const
{
    return static_cast<unsigned int>(reinterpret_cast<const char*>(&fcoeInitiator + 1) -
                                     reinterpret_cast<const char*>(&protocol));
}

void KInitiatorInfo::init()
{
    fastMemsetZero(&protocol, scalarBlockSize());
    fc.init();
    iscsi.init();
    initSerialization(&protocol, sizeof(KInitiatorInfo));
}

bool KInitiatorInfo::serialize(bool write, FILE* file, std::string& error)
{
    return base_serialize(write, file, reinterpret_cast<char*>(&protocol), scalarBlockSize(), error) &&
        fc.serialize(write, file, error) && iscsi.serialize(write, file, error);
}

std::string KInitiatorInfo::displayText() const
{
    return displayText("");
}

std::string KInitiatorInfo::displayText(const std::string& prefix) const
{
    const std::string indent = prefix + "    ";
    std::string text;
    if (isFcInitiator())
        text = prefix + "FC Initiator\n" + fc.displayText(indent);
    else if (isIscsiInitiator())
        text = prefix + "iSCSI Initiator\n" + iscsi.displayText(indent);
    else
        return prefix + "******";

    text += indent + "Operational State = " + (loggedIn ? "Logged In" : "Logged Out");
    if (targetInitiator)
        text += ", Target";
    if (dmInitiator)
        text += ", DM";
    if (fcoeInitiator)
        text += ", FCOE";
    return text + "\n";
}
