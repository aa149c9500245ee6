#include "records/KIsaAdapterPath.h"

#include <cstddef>

namespace {
// The plain fields from the identifier to the adapter type are saved as one
// block ahead of the agent address.
constexpr unsigned int kPlainFieldsSize = 24;
} // namespace

KIsaAdapterPath::KIsaAdapterPath()
{
    init();
}

KIsaAdapterPath::KIsaAdapterPath(const KIsaAdapterPath& other) : PBase()
{
    init();
    *this = other;
}

KIsaAdapterPath& KIsaAdapterPath::operator=(const KIsaAdapterPath& other)
{
    if (this == &other) {
        return *this;
    }
    init();
    ui64IsaHbaId = other.ui64IsaHbaId;
    iDeviceInstanceForAccess = other.iDeviceInstanceForAccess;
    bIsLocalDevice = other.bIsLocalDevice;
    eSelectAdapterPath = other.eSelectAdapterPath;
    eAdapterType = other.eAdapterType;
    ipAddrRemoteAgent = other.ipAddrRemoteAgent;
    return *this;
}

KIsaAdapterPath::~KIsaAdapterPath()
{
    init();
}

void KIsaAdapterPath::init()
{
    ZEK_ASSERT_FIELD_OFFSET(KIsaAdapterPath, ui64IsaHbaId, 24);
    ZEK_ASSERT_FIELD_OFFSET(KIsaAdapterPath, ipAddrRemoteAgent, 24 + kPlainFieldsSize);
    initSerialization(&ui64IsaHbaId, sizeof(KIsaAdapterPath));
    ui64IsaHbaId = NO_ADAPTER_ID;
    iDeviceInstanceForAccess = NO_DEVICE_INSTANCE;
    bIsLocalDevice = false;
    eSelectAdapterPath = SELECT_ADAPTER_PATH_NOT_SET;
    eAdapterType = ADAPTER_TYPE_NOT_SET;
    ipAddrRemoteAgent.init();
}

void KIsaAdapterPath::init(const unsigned long long& id, int instance, bool local, const PIpAddress& agent,
                           ADAPTER_TYPE type)
{
    init();
    ui64IsaHbaId = id;
    iDeviceInstanceForAccess = instance;
    bIsLocalDevice = local;
    ipAddrRemoteAgent = agent;
    eAdapterType = type;
    eSelectAdapterPath = hasRemoteAgent() ? SELECT_ADAPTER_PATH_REMOTE_AGENT : SELECT_ADAPTER_PATH_DIRECT;
}

bool KIsaAdapterPath::serialize(bool write, FILE* file, std::string& error)
{
    if (!base_serialize(write, file, reinterpret_cast<char*>(&ui64IsaHbaId), kPlainFieldsSize, error)) {
        return false;
    }
    return ipAddrRemoteAgent.serialize(write, file, error);
}

bool KIsaAdapterPath::operator==(const KIsaAdapterPath& other) const
{
    if (iDeviceInstanceForAccess != other.iDeviceInstanceForAccess || bIsLocalDevice != other.bIsLocalDevice ||
        eSelectAdapterPath != other.eSelectAdapterPath) {
        return false;
    }
    if (eSelectAdapterPath != SELECT_ADAPTER_PATH_DIRECT && ipAddrRemoteAgent != other.ipAddrRemoteAgent) {
        return false;
    }
    // A device on a host is one adapter whatever identifier it reports; an
    // adapter seen through the SAN is told apart by its identifier.
    if (bIsLocalDevice) {
        return true;
    }
    return ui64IsaHbaId == other.ui64IsaHbaId;
}

int KIsaAdapterPath::rpcType(ADAPTER_TYPE type)
{
    switch (type) {
    case ADAPTER_TYPE_1:
        return RPC_PROGRAM_ADAPTER_TYPE_1;
    case ADAPTER_TYPE_2:
        return RPC_PROGRAM_ADAPTER_TYPE_2;
    default:
        return -1;
    }
}

int KIsaAdapterPath::agentType() const
{
    int program = rpcType(eAdapterType);
    return program < 0 ? 0 : program;
}

bool KIsaAdapterPath::hasRemoteAgent() const
{
    return ipAddrRemoteAgent.getType() != PIpAddress::IPV_NOT_SET;
}

// Local device on this host 3, SAN access from this host 2, device on a
// remote host 1, SAN access from a remote host 0.
int KIsaAdapterPath::pathScore() const
{
    return (hasRemoteAgent() ? 0 : 2) + (bIsLocalDevice ? 1 : 0);
}

bool KIsaAdapterPath::isPreferredPathComparedTo(const KIsaAdapterPath& other) const
{
    return pathScore() >= other.pathScore();
}

std::string KIsaAdapterPath::ui64numberToHexText(unsigned long long value)
{
    return ui64NumberToHexText(value);
}

std::string KIsaAdapterPath::hbaIDText() const
{
    return ui64numberToHexText(ui64IsaHbaId);
}

std::string KIsaAdapterPath::displayText() const
{
    std::string instance = numberToText(iDeviceInstanceForAccess);
    std::string text = "Adapter ID          = " + hbaIDText();
    if (!hasRemoteAgent()) {
        text += bIsLocalDevice ? ", (Local device " + instance : ", (SAN access via local device " + instance;
    } else {
        std::string agent = ipAddrRemoteAgent.displayText();
        text += bIsLocalDevice ? ", (Device " + instance + " on remote host " + agent
                               : ", (SAN access via device " + instance + " on remote host " + agent;
    }
    return text + ")";
}
