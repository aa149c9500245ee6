// The cache configuration of one LUN: mode, profile, size windows, limit,
// mirror and the block ranges locked in the cache.
#pragma once

#include "records/KLogicalBlockRange.h"
#include "records/PBase.h"

class KLunCacheInfo : public PBase {
public:
    static constexpr unsigned int MAX_LOCKED_RANGES = 16;

    enum CACHE_MODE : int32_t {
        CACHE_MODE_NONE = 0,
        CACHE_MODE_READ_WRITE_THROUGH = 1,
        CACHE_MODE_READ_WRITE_BACK = 2,
        CACHE_MODE_READ_ONLY = 3,
        CACHE_MODE_WRITE_THROUGH_ONLY = 4,
        CACHE_MODE_WRITE_BACK_ONLY = 5,
        CACHE_MODE_PURGE_IN_PROGRESS = 6,
    };

    enum CACHE_PROFILE_TYPE : int32_t {
        CACHE_PROFILE_UNKNOWN = 0,
        CACHE_PROFILE_DEFAULT = 1,
        CACHE_PROFILE_ERP = 2,
        CACHE_PROFILE_WAREHOUSING = 3,
        CACHE_PROFILE_EXCHANGE = 4,
        CACHE_PROFILE_MEDIA_SERVER = 5,
        CACHE_PROFILE_VENDOR_SPECIFIC = 6,
    };

    enum MIRROR_CACHE_FLAG : int32_t {
        MIRROR_CACHE_FLAG_NONE = 0,
        MIRROR_CACHE_RESYNC_IN_PROGRESS = 1,
        MIRROR_CACHE_RESYNC_DONE = 2,
        MIRROR_CACHE_PEER_IN_PROGRESS = 3,
        MIRROR_CACHE_PEER_DONE = 4,
    };

    // Bit numbers of the mirror-state word.
    enum MIRROR_CACHE_BIT_STATE : int32_t {
        MIRROR_STATE_CONFIGURED = 0,
        MIRROR_STATE_SOFT_FAILURE = 4,
        MIRROR_STATE_IN_SYNCHRONY = 8,
        MIRROR_STATE_IN_TRANSITION = 9,
        MIRROR_STATE_FAILOVER = 10,
        MIRROR_STATE_FAILOVER_DONE = 11,
        MIRROR_STATE_WAIT_FOR_REBIND = 12,
        MIRROR_STATE_RESYNC_ON_BOOTUP = 13,
        MIRROR_STATE_PEER_IN_FACTORY_DEFAULT_MODE = 14,
    };

    KLunCacheInfo();
    KLunCacheInfo(const KLunCacheInfo& other);
    KLunCacheInfo& operator=(const KLunCacheInfo& other);
    ~KLunCacheInfo() override;

    void init() override;
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;
    // With false the text stops after the profile line.
    std::string displayText(bool bShowLimits) const;
    // For a LUN that a peer adapter caches: only the mirror figures.
    std::string displayMirrorLunText() const;

    bool isValid() const { return bValid; }
    bool isMirrorState(unsigned int bit) const;

    static std::string lunCacheModeToText(CACHE_MODE mode);
    static std::string lunCacheProfileTypeToText(CACHE_PROFILE_TYPE profile);
    static std::string mirrorStateToText(int unused, int bit);
    static std::string mirrorFlagToText(MIRROR_CACHE_FLAG flag);
    static std::string displayCSVTitle();

    bool bValid;
    CACHE_PROFILE_TYPE eProfileType;
    CACHE_MODE eCacheMode;
    MIRROR_CACHE_FLAG eMirrorFlag;
    uint64_t ui64MaxCacheBytes;
    uint32_t ui32MaxRead;
    uint32_t ui32MinRead;
    uint32_t ui32MaxWrite;
    uint32_t ui32MinWrite;
    uint32_t ui32LockedRangeCount;
    bool bMirrored;
    uint64_t ui64MirrorAdapter;
    uint16_t ui16MirrorState;
    uint64_t ui64MirrorDirtyCacheBytes;
    KLogicalBlockRange lockedRanges[MAX_LOCKED_RANGES];

private:
    // Bytes from bValid to the end of ui64MirrorDirtyCacheBytes.
    unsigned int scalarBlockSize() const;
    std::string mirrorStateText() const;
};

static_assert(sizeof(KLunCacheInfo) == 736, "KLunCacheInfo image");
ZEK_ASSERT_FIELD_OFFSET(KLunCacheInfo, ui64MirrorDirtyCacheBytes, 88)
ZEK_ASSERT_FIELD_OFFSET(KLunCacheInfo, lockedRanges, 96)
