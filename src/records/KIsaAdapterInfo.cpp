#include "records/KIsaAdapterInfo.h"

#include <cstddef>
#include <vector>

namespace {

constexpr size_t kFirstFieldOffset = 20;
constexpr size_t kHostInfoOffset = 648;

void endWithNewline(std::string& text)
{
    if (text.empty() || text.back() != '\n') {
        text += "\n";
    }
}

void appendIfSet(std::string& text, const char* label, const std::string& value)
{
    if (!value.empty()) {
        text += label + value;
    }
}

} // namespace

KIsaAdapterInfo::KIsaAdapterInfo()
{
    init();
}

KIsaAdapterInfo::KIsaAdapterInfo(const KIsaAdapterInfo& other) : PBase()
{
    init();
    *this = other;
}

KIsaAdapterInfo& KIsaAdapterInfo::operator=(const KIsaAdapterInfo& other)
{
    if (this == &other) {
        return *this;
    }
    init();
    copyPlainFieldsFrom(&other);
    hostInfo = other.hostInfo;
    return *this;
}

KIsaAdapterInfo::~KIsaAdapterInfo()
{
    init();
}

void KIsaAdapterInfo::init()
{
    ZEK_ASSERT_FIELD_OFFSET(KIsaAdapterInfo, bClusterMember, kFirstFieldOffset);
    ZEK_ASSERT_FIELD_OFFSET(KIsaAdapterInfo, productName, 40);
    ZEK_ASSERT_FIELD_OFFSET(KIsaAdapterInfo, fcPortCount, 624);
    ZEK_ASSERT_FIELD_OFFSET(KIsaAdapterInfo, capabilities, 632);
    ZEK_ASSERT_FIELD_OFFSET(KIsaAdapterInfo, adapterState, 640);
    ZEK_ASSERT_FIELD_OFFSET(KIsaAdapterInfo, hostInfo, kHostInfoOffset);
    initSerialization(&bClusterMember, sizeof(KIsaAdapterInfo));
    fastMemsetZero(&bClusterMember, kHostInfoOffset - kFirstFieldOffset);
    hostInfo.init();
}

void KIsaAdapterInfo::copyPlainFieldsFrom(const void* image)
{
    fastMemcpy(&bClusterMember, kHostInfoOffset - kFirstFieldOffset,
               static_cast<const char*>(image) + kFirstFieldOffset, kHostInfoOffset - kFirstFieldOffset);
}

// The image is saved whole, as the library lays it out; reading takes the
// fields over one by one so that this process's virtual-table pointers of
// the host records survive.
bool KIsaAdapterInfo::serialize(bool write, FILE* file, std::string& error)
{
    if (write) {
        return PBase::serialize(true, file, error);
    }
    std::vector<char> image(sizeof(KIsaAdapterInfo), 0);
    if (!base_serialize(false, file, image.data() + serialOffset, serialSize, error)) {
        return false;
    }
    init();
    copyPlainFieldsFrom(image.data());
    hostInfo.assignFromImage(image.data() + kHostInfoOffset);
    return true;
}

bool KIsaAdapterInfo::isCapable(ZEK_CAPABILITY_TYPE type) const
{
    if (type < 0 || static_cast<unsigned int>(type) >= CAPABILITY_COUNT) {
        return false;
    }
    return capabilities[type] != 0;
}

std::string KIsaAdapterInfo::zekCapabilityToText(ZEK_CAPABILITY_TYPE type)
{
    switch (type) {
    case WRITE_BACK_CACHE:
        return "WRITE_BACK_CACHE";
    case WRITE_THROUGH_CACHE:
        return "WRITE_THROUGH_CACHE";
    case LOCAL_SSD_DATA_LUN:
        return "LOCAL_SSD_DATA_LUN";
    default:
        return "";
    }
}

std::string KIsaAdapterInfo::clusterRoleText() const
{
    if (bClusterPrimary) {
        return "        [Cluster Primary]";
    }
    if (bClusterSecondary) {
        return "        [Cluster Secondary]";
    }
    if (bClusterMember) {
        return "        [Cluster Member]";
    }
    return "        (Not part of any cluster)";
}

std::string KIsaAdapterInfo::mismatchedIdText(const char* role, uint64_t id) const
{
    return std::string("\n        <This adapter has a ") + role + " adapter ID (" + ui64NumberToHexText(id) +
        ") that does not match the " + role + " for the cluster>\n";
}

// An adapter that does not answer shows one line instead of everything it
// would have said about itself.
std::string KIsaAdapterInfo::offlineText() const
{
    switch (adapterState) {
    case ADAPTER_STATE_OFFLINE:
        return "        *** OFFLINE ***";
    case 0:
        return "        ***";
    default:
        return "        ******";
    }
}

std::string KIsaAdapterInfo::productText() const
{
    std::string text;
    appendIfSet(text, "\n        Product Name        = ", charFieldToText(productName));
    appendIfSet(text, "\n        Symbolic Name       = ", charFieldToText(symbolicName));
    appendIfSet(text, "\n        Serial Number       = ", charFieldToText(serialNumber));
    appendIfSet(text, "\n        SW Version          = ", charFieldToText(swVersion));
    return text;
}

std::string KIsaAdapterInfo::displayText() const
{
    if (adapterState != ADAPTER_STATE_ONLINE) {
        return offlineText() + hostInfo.displayText();
    }
    std::string text = clusterRoleText();
    if (bAutoClusterEnabled) {
        text += "\n        Auto-Clustering     = ENABLED\n";
    }
    if (bClusterMember && !bClusterPrimary) {
        if (primaryAdapterId != 0) {
            text += mismatchedIdText("primary", primaryAdapterId);
        }
        if (secondaryAdapterId != 0) {
            text += mismatchedIdText("secondary", secondaryAdapterId);
        }
    }
    text += productText();
    endWithNewline(text);
    text += "        u-boot BIOS Version = " + charFieldToText(ubootBiosVersion);
    endWithNewline(text);
    text += "        HW Version          = " + charFieldToText(hwVersion);
    endWithNewline(text);
    text += "        BIOS Version        = " + charFieldToText(biosVersion);
    endWithNewline(text);
    text += "        EFI Version         = " + charFieldToText(efiVersion) + "\n";
    return text + hostInfo.displayText();
}
