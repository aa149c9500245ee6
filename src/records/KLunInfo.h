// One LUN as seen through one adapter: what it is, how it is named, whether
// and where it is cached, and its cache configuration.
#pragma once

#include "records/KLunCacheInfo.h"
#include "records/KSsdLunInfo.h"
#include "records/PBase.h"

class KLunInfo : public PBase {
public:
    // SCSI peripheral class as the adapter reports it.
    enum KISA_LUN_TYPE : int32_t {
        LUN_TYPE_UNKNOWN = 0,
        LUN_TYPE_DIRECT_ACCESS = 1,
        LUN_TYPE_SEQUENTIAL_ACCESS = 2,
        LUN_TYPE_PRINTER = 3,
        LUN_TYPE_PROCESSOR = 4,
        LUN_TYPE_WORM = 5,
        LUN_TYPE_DVD = 6,
        LUN_TYPE_SCANNER = 7,
        LUN_TYPE_OPTICAL = 8,
        LUN_TYPE_MEDIUM_CHANGER = 9,
        LUN_TYPE_COMMUNICATION = 10,
        LUN_TYPE_SAN_CONTROLLER = 11,
        LUN_TYPE_ENCLOSURE = 12,
    };

    enum KISA_CACHE_STATE : int32_t {
        CACHE_STATE_UNKNOWN = 0,
        CACHE_STATE_NOT_CACHED = 1,
        CACHE_STATE_CACHED_LOCAL = 2,
        CACHE_STATE_CACHED_PEER = 3,
    };

    enum KISA_MIRROR_STATE : int32_t {
        MIRROR_STATE_UNKNOWN = 0,
        MIRROR_STATE_NOT_MIRRORED = 1,
        MIRROR_STATE_PRIMARY = 2,
        MIRROR_STATE_SECONDARY = 3,
    };

    // The words of the -mode keyword; 1 to 5 equal the cache modes.
    enum KISA_CACHE_CONFIG_TYPE : int32_t {
        CACHE_CONFIG_NONE = 0,
        CACHE_CONFIG_READ_WRITE_THROUGH = 1,
        CACHE_CONFIG_READ_WRITE_BACK = 2,
        CACHE_CONFIG_READ_ONLY = 3,
        CACHE_CONFIG_WRITE_THROUGH_ONLY = 4,
        CACHE_CONFIG_WRITE_BACK_ONLY = 5,
    };

    // Bit numbers of ui32LunState; the unnamed ones are unused.
    enum KISA_LUN_STATE_BIT_TYPE : int32_t {
        LUN_STATE_ONLINE = 0,
        LUN_STATE_MAPPING_DISABLED = 5,
        LUN_STATE_STORAGE_CONTROLLER_LUN = 7,
        LUN_STATE_MAPPED = 11,
        LUN_STATE_DATA_MANAGEMENT_LUN = 12,
        LUN_STATE_LOCAL = 14,
        LUN_STATE_REMOTE = 15,
        LUN_STATE_READ_ONLY = 16,
        LUN_STATE_DELETE_IN_PROGRESS = 17,
        LUN_STATE_STORAGE_MEDIA_SSD = 18,
        LUN_STATE_CACHE_STORE = 19,
        LUN_STATE_CACHE_READY = 21,
        LUN_STATE_MIRROR = 22,
        LUN_STATE_META_LUN = 23,
        LUN_STATE_TP_CONTROLLER_LUN = 24,
        LUN_STATE_TP_BBRAM_EXTENTS = 25,
        LUN_STATE_LOGICAL_CACHE_POOL_LUN = 26,
        LUN_STATE_EXTERNAL_CACHE_STORE_LUN = 27,
        LUN_STATE_NON_ROTATING_MEDIUM = 28,
    };

    KLunInfo();
    KLunInfo(const KLunInfo& other);
    KLunInfo& operator=(const KLunInfo& other);
    ~KLunInfo() override;

    void init() override;
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;

    bool isLunInfoValid() const { return bValid; }
    bool isLunCached() const { return m_eCacheState > CACHE_STATE_NOT_CACHED; }
    bool isLunState(unsigned int bit) const;
    bool isOnline() const { return isLunState(LUN_STATE_ONLINE); }
    bool isSanLun() const;
    bool isCacheSynchronizing() const { return bCacheSynchronizing; }

    KISA_LUN_TYPE eLunType() const { return m_eLunType; }
    KISA_CACHE_STATE eCacheState() const { return m_eCacheState; }
    unsigned long long ui64ClusterCacheAdapterPrimary() const { return m_ui64ClusterCacheAdapterPrimary; }
    KISA_MIRROR_STATE eMirrorState() const { return m_eMirrorState; }

    // "    LUN State  = 0x..." with the names of the set bits, no line end.
    std::string displayLunStateText() const;

    static std::string lunStateToText(int unused, int bit);
    static std::string lunTypeToText(KISA_LUN_TYPE type);
    static std::string lunCacheStateToText(KISA_CACHE_STATE state);
    static std::string lunMirrorTypeToText(KISA_MIRROR_STATE state);

    // Fields in image order. The four whose accessors carry the field's own
    // name are kept with an "m_" prefix.
    bool bValid;
    uint64_t ui64LunSizeBytes;
    KISA_LUN_TYPE m_eLunType;
    KISA_CACHE_STATE m_eCacheState;
    uint64_t m_ui64ClusterCacheAdapterPrimary;
    KISA_MIRROR_STATE m_eMirrorState;
    bool bCacheSynchronizing;
    char szVendorId[9];
    char szProductId[17];
    char szRevisionLevel[5];
    uint8_t ui8SerialNumber[8];
    char szPage80Serial[256];
    uint32_t ui32Page80SerialLength;
    uint8_t ui8Wwuln[256];
    WWULN_CODE_SET_TYPE eWwulnCodeSet;
    uint32_t ui32WwulnLength;
    uint32_t ui32LunState;
    uint32_t ui32LunStateReserved;
    KSsdLunInfo ssdLunInfo;
    KLunCacheInfo cacheInfo;
    // Firmware defaults, in 512-byte blocks. They are copied and cleared
    // with the rest but are not part of the saved image.
    uint32_t ui32DefaultMaxRead;
    uint32_t ui32DefaultMinRead;
    uint32_t ui32DefaultMaxWrite;
    uint32_t ui32DefaultMinWrite;

private:
    // Bytes from bValid to the end of ui32LunStateReserved.
    unsigned int scalarBlockSize() const;
    std::string wwulnText() const;
};

static_assert(sizeof(KLunInfo) == 1560, "KLunInfo image");
ZEK_ASSERT_FIELD_OFFSET(KLunInfo, bValid, 20)
ZEK_ASSERT_FIELD_OFFSET(KLunInfo, ui32LunStateReserved, 620)
ZEK_ASSERT_FIELD_OFFSET(KLunInfo, ssdLunInfo, 624)
ZEK_ASSERT_FIELD_OFFSET(KLunInfo, cacheInfo, 808)
ZEK_ASSERT_FIELD_OFFSET(KLunInfo, ui32DefaultMaxRead, 1544)
