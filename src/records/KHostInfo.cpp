#include "records/KHostInfo.h"

#include <cstddef>
#include <vector>

namespace {

// Where the parts of a host record sit in its image.
constexpr size_t kHostTypeOffset = 20;
constexpr size_t kLinuxHostOffset = 24;
constexpr size_t kWindowsHostOffset = 568;

template <size_t N>
bool isEmptyField(const char (&field)[N])
{
    return field[0] == '\0';
}

} // namespace

// ---- KLinuxHostInfo ---------------------------------------------------------

KLinuxHostInfo::KLinuxHostInfo()
{
    init();
}

KLinuxHostInfo::KLinuxHostInfo(const KLinuxHostInfo& other) : PBase()
{
    init();
    *this = other;
}

KLinuxHostInfo& KLinuxHostInfo::operator=(const KLinuxHostInfo& other)
{
    init();
    copySavedArea(&other);
    return *this;
}

KLinuxHostInfo::~KLinuxHostInfo()
{
    init();
}

void KLinuxHostInfo::init()
{
    ZEK_ASSERT_FIELD_OFFSET(KLinuxHostInfo, systemName, 20);
    initSerialization(systemName, sizeof(KLinuxHostInfo));
    fastMemsetZero(systemName, serialSize);
}

std::string KLinuxHostInfo::displayText() const
{
    return "        System name:         " + charFieldToText(systemName) + "\n" +
        "        Node name:           " + charFieldToText(nodeName) + "\n" +
        "        OS version:          " + charFieldToText(osVersion) + "\n" +
        "        OS build date:       " + charFieldToText(osBuildDate) + "\n" +
        "        Machine name:        " + charFieldToText(machineName) + "\n" +
        "        Domain name:         " + charFieldToText(domainName) + "\n" +
        "        Driver version:      " + charFieldToText(driverVersion) + "\n";
}

// A host that calls itself "localhost" in no domain is told apart by its
// kernel version and build date.
std::string KLinuxHostInfo::hostLabelText(const std::string&) const
{
    if (charFieldToText(nodeName) != "localhost") {
        return charFieldToText(nodeName);
    }
    if (charFieldToText(domainName) != "(none)") {
        return charFieldToText(domainName);
    }
    return "_" + charFieldToText(osVersion) + "_" + charFieldToText(osBuildDate);
}

// ---- KWindowsHostInfo -------------------------------------------------------

KWindowsHostInfo::KWindowsHostInfo()
{
    init();
}

KWindowsHostInfo::KWindowsHostInfo(const KWindowsHostInfo& other) : PBase()
{
    init();
    *this = other;
}

KWindowsHostInfo& KWindowsHostInfo::operator=(const KWindowsHostInfo& other)
{
    init();
    copySavedArea(&other);
    return *this;
}

KWindowsHostInfo::~KWindowsHostInfo()
{
    init();
}

void KWindowsHostInfo::init()
{
    ZEK_ASSERT_FIELD_OFFSET(KWindowsHostInfo, systemInfo, 20);
    initSerialization(systemInfo, sizeof(KWindowsHostInfo));
    fastMemsetZero(systemInfo, serialSize);
}

std::string KWindowsHostInfo::displayText() const
{
    return "        System Info:     " + charFieldToText(systemInfo) +
        "\n        Host name:      " + charFieldToText(hostName) +
        "\n        Driver version: " + charFieldToText(driverVersion) + "\n";
}

std::string KWindowsHostInfo::hostLabelText(const std::string&) const
{
    if (!isEmptyField(hostName)) {
        return charFieldToText(hostName);
    }
    if (!isEmptyField(systemInfo)) {
        return charFieldToText(systemInfo);
    }
    return "Windows host";
}

// ---- KHostInfo --------------------------------------------------------------

KHostInfo::KHostInfo()
{
    init();
}

KHostInfo::KHostInfo(const KHostInfo& other) : PBase()
{
    init();
    *this = other;
}

KHostInfo& KHostInfo::operator=(const KHostInfo& other)
{
    if (this == &other) {
        return *this;
    }
    init();
    hostType = other.hostType;
    linuxHostInfo = other.linuxHostInfo;
    windowsHostInfo = other.windowsHostInfo;
    return *this;
}

KHostInfo::~KHostInfo()
{
    init();
}

void KHostInfo::init()
{
    ZEK_ASSERT_FIELD_OFFSET(KHostInfo, hostType, kHostTypeOffset);
    ZEK_ASSERT_FIELD_OFFSET(KHostInfo, linuxHostInfo, kLinuxHostOffset);
    ZEK_ASSERT_FIELD_OFFSET(KHostInfo, windowsHostInfo, kWindowsHostOffset);
    initSerialization(&hostType, sizeof(KHostInfo));
    hostType = HOST_TYPE_UNKNOWN;
    linuxHostInfo.init();
    windowsHostInfo.init();
}

// The saved image runs over the two host records, virtual-table pointers
// included, as the library expects. On reading, the fields are taken over one
// by one so that this process's pointers survive.
bool KHostInfo::serialize(bool write, FILE* file, std::string& error)
{
    if (write) {
        return PBase::serialize(true, file, error);
    }
    std::vector<char> image(sizeof(KHostInfo), 0);
    if (!base_serialize(false, file, image.data() + serialOffset, serialSize, error)) {
        return false;
    }
    assignFromImage(image.data());
    return true;
}

void KHostInfo::assignFromImage(const void* image)
{
    const char* bytes = static_cast<const char*>(image);
    init();
    fastMemcpy(&hostType, sizeof hostType, bytes + kHostTypeOffset, sizeof hostType);
    linuxHostInfo.copySavedArea(bytes + kLinuxHostOffset);
    windowsHostInfo.copySavedArea(bytes + kWindowsHostOffset);
}

std::string KHostInfo::hostTypeToText(ISA_ADAPTER_HOST_TYPE type)
{
    switch (type) {
    case HOST_TYPE_BSD:
        return "BSD";
    case HOST_TYPE_LINUX:
        return "Linux";
    case HOST_TYPE_VMWARE:
        return "VMware";
    case HOST_TYPE_WINDOWS:
        return "Windows";
    default:
        return "Unknown";
    }
}

std::string KHostInfo::hostLabelText(bool isRemote, const std::string& remoteText, bool plainLabel) const
{
    if (plainLabel) {
        return isRemote ? remoteText : "localhost";
    }
    switch (hostType) {
    case HOST_TYPE_UNKNOWN:
        return "Unknown host";
    case HOST_TYPE_BSD:
    case HOST_TYPE_LINUX:
    case HOST_TYPE_VMWARE:
        return linuxHostInfo.hostLabelText(remoteText);
    case HOST_TYPE_WINDOWS:
        return windowsHostInfo.hostLabelText(remoteText);
    default:
        return "UNKNOWN host";
    }
}

std::string KHostInfo::displayText() const
{
    switch (hostType) {
    case HOST_TYPE_BSD:
        return "        BSD Host\n" + linuxHostInfo.displayText();
    case HOST_TYPE_LINUX:
        return "        Linux Host\n" + linuxHostInfo.displayText();
    case HOST_TYPE_VMWARE:
        return "        VMware Host\n" + linuxHostInfo.displayText();
    case HOST_TYPE_SOLARIS:
        return "        Solaris Host\n" + linuxHostInfo.displayText();
    case HOST_TYPE_WINDOWS:
        return "        Windows Host\n" + windowsHostInfo.displayText();
    case HOST_TYPE_UNKNOWN:
        return "        *** Unknown host type ***\n";
    default:
        return "        *** UNKNOWN host type ***\n";
    }
}
