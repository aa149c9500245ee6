#include "records/KLunCacheInfo.h"

namespace {

const char* const kMirrorStateBitTexts[16] = {
    "Configured", "Unused 1",      "Unused 2",        "Unused 3",         "Soft Failure",
    "Unused 4",   "Unused 5",      "Unused 6",        "In Synchrony",     "In Transition",
    "Failover",   "Failover Done", "Wait for Rebind", "Resync on Bootup", "Peer in Factory Default Mode",
    "Unused 7",
};

} // namespace

KLunCacheInfo::KLunCacheInfo() : PBase()
{
    init();
}

KLunCacheInfo::KLunCacheInfo(const KLunCacheInfo& other) : PBase()
{
    init();
    *this = other;
}

KLunCacheInfo& KLunCacheInfo::operator=(const KLunCacheInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(&bValid, scalarBlockSize(), &other.bValid, scalarBlockSize());
        for (unsigned int i = 0; i < MAX_LOCKED_RANGES; ++i)
            lockedRanges[i] = other.lockedRanges[i];
    }
    return *this;
}

KLunCacheInfo::~KLunCacheInfo()
{
    init();
}

unsigned int KLunCacheInfo::scalarBlockSize() const
{
    return static_cast<unsigned int>(reinterpret_cast<const char*>(&ui64MirrorDirtyCacheBytes + 1) -
                                     reinterpret_cast<const char*>(&bValid));
}

void KLunCacheInfo::init()
{
    fastMemsetZero(&bValid, scalarBlockSize());
    for (KLogicalBlockRange& range : lockedRanges)
        range.init();
    initSerialization(&bValid, sizeof(KLunCacheInfo));
}

bool KLunCacheInfo::serialize(bool write, FILE* file, std::string& error)
{
    if (!base_serialize(write, file, reinterpret_cast<char*>(&bValid), scalarBlockSize(), error))
        return false;
    for (KLogicalBlockRange& range : lockedRanges) {
        if (!range.serialize(write, file, error))
            return false;
    }
    return true;
}

bool KLunCacheInfo::isMirrorState(unsigned int bit) const
{
    return bit < 16 && isBitSet(ui16MirrorState, bit);
}

std::string KLunCacheInfo::lunCacheModeToText(CACHE_MODE mode)
{
    switch (mode) {
    case CACHE_MODE_READ_WRITE_THROUGH:
        return "Read_Write_Through";
    case CACHE_MODE_READ_WRITE_BACK:
        return "Read_Write_Back";
    case CACHE_MODE_READ_ONLY:
        return "Read_Only";
    case CACHE_MODE_WRITE_THROUGH_ONLY:
        return "Write_Through_Only";
    case CACHE_MODE_WRITE_BACK_ONLY:
        return "Write_Back_Only";
    case CACHE_MODE_PURGE_IN_PROGRESS:
        return "Purge_In_Progress";
    default:
        return "    ****\n";
    }
}

std::string KLunCacheInfo::lunCacheProfileTypeToText(CACHE_PROFILE_TYPE profile)
{
    switch (profile) {
    case CACHE_PROFILE_DEFAULT:
        return "Default";
    case CACHE_PROFILE_ERP:
        return "ERP";
    case CACHE_PROFILE_WAREHOUSING:
        return "Warehousing";
    case CACHE_PROFILE_EXCHANGE:
        return "Exchange";
    case CACHE_PROFILE_MEDIA_SERVER:
        return "Media Server";
    case CACHE_PROFILE_VENDOR_SPECIFIC:
        return "Vendor Specific";
    default:
        return "    ****\n";
    }
}

std::string KLunCacheInfo::mirrorStateToText(int /*unused*/, int bit)
{
    if (bit < 0 || bit >= 16)
        return "";
    return kMirrorStateBitTexts[bit];
}

std::string KLunCacheInfo::mirrorFlagToText(MIRROR_CACHE_FLAG flag)
{
    switch (flag) {
    case MIRROR_CACHE_RESYNC_IN_PROGRESS:
        return "Mirror Cache Re-Synchrony in Progress";
    case MIRROR_CACHE_RESYNC_DONE:
        return "Mirror Cache Re-Synchrony Done";
    case MIRROR_CACHE_PEER_IN_PROGRESS:
        return "Peer Mirror Cache in Progress";
    case MIRROR_CACHE_PEER_DONE:
        return "Peer Mirror Cache Done";
    default:
        return "";
    }
}

std::string KLunCacheInfo::displayCSVTitle()
{
    return "Cache Mode, Max Cache (Bytes), Max Read Size to be Cached, Min Read Size to be Cached, "
           "Max Write Size to be Cached, Min Write Size to be Cached, Number of Locked Range";
}

// The state word in hexadecimal and, when any bit is set, the names of the
// set bits followed by the flag line; both cache texts share it.
std::string KLunCacheInfo::mirrorStateText() const
{
    std::string text = "        Mirror State: " + std::string(" 0x") + numberToHexText(ui16MirrorState);
    if (ui16MirrorState == 0)
        return text;
    std::string names;
    for (int bit = 0; bit < 16; ++bit) {
        if (!isMirrorState(static_cast<unsigned int>(bit)))
            continue;
        if (!names.empty())
            names += ", ";
        names += mirrorStateToText(0, bit);
    }
    return text + " (" + names + ")\n" + "        Mirror Flag: " + mirrorFlagToText(eMirrorFlag);
}

std::string KLunCacheInfo::displayText() const
{
    return displayText(false);
}

std::string KLunCacheInfo::displayText(bool bShowLimits) const
{
    std::string text;
    if (eCacheMode != CACHE_MODE_NONE) {
        text += "        Mode: " + lunCacheModeToText(eCacheMode);
        if (bMirrored)
            text += " (mirrored at adapter " + ui64NumberToHexText(ui64MirrorAdapter) + ")\n" + mirrorStateText();
        text += "\n";
    }
    if (eProfileType != CACHE_PROFILE_UNKNOWN)
        text += "        Profile Type: " + lunCacheProfileTypeToText(eProfileType) + "\n";
    if (!bShowLimits)
        return text;

    if (ui64MaxCacheBytes != 0)
        text += "        Cache usage for this LUN is limited to " + longlongToMByteText(ui64MaxCacheBytes) + "\n";
    else
        text += "        (Cache usage for this LUN is not limited)\n";
    // Sizes are kept in 512-byte blocks; halving gives whole kilobytes.
    text += "        Reads with size  " + ui64NumberToText(ui32MinRead >> 1) + " KB to " +
        ui64NumberToText(ui32MaxRead >> 1) + " KB will be cached\n";
    text += "        Writes with size " + ui64NumberToText(ui32MinWrite >> 1) + " KB to " +
        ui64NumberToText(ui32MaxWrite >> 1) + " KB will be cached\n";
    if (ui32LockedRangeCount != 0) {
        text += "    (LBA ranges are specified in 512 byte logical blocks)\n";
        text += "    LBA ranges locked in cache:\n";
        // A count beyond the table can only come from a damaged record.
        unsigned int count = ui32LockedRangeCount < MAX_LOCKED_RANGES ? ui32LockedRangeCount : MAX_LOCKED_RANGES;
        for (unsigned int i = 0; i < count; ++i)
            text += "        -lun_start_lba=" + ui64NumberToText(lockedRanges[i].ui64StartLba) +
                " -lun_size_lba=" + ui64NumberToText(lockedRanges[i].ui32Size) + "\n";
    }
    return text;
}

std::string KLunCacheInfo::displayMirrorLunText() const
{
    if (ui16MirrorState == 0)
        return "";
    return mirrorStateText() +
        "\n        Mirror LUN Dirty Cache Capacity Used: " + longlongToMByteText(ui64MirrorDirtyCacheBytes);
}
