// One LUN as a group of adapters sees it: which adapter caches it, which
// reach it without caching, and which one to ask for detail.
#pragma once

#include "records/PBase.h"
#include "records/PIpAddress.h"
#include "records/PUniqueID.h"

class KLunInfo;

class KAdapterGroupExtendedLunInfo : public PBase {
public:
    static constexpr unsigned int MAX_ADAPTERS = 64;

    // Higher wins. Ranks below 4 belong to the caller.
    enum PREFERRED_ADAPTER_TYPE : int32_t {
        PREFERRED_ADAPTER_NONE = 0,
        PREFERRED_ADAPTER_SEES_PEER_CACHE = 4,
        PREFERRED_ADAPTER_CACHES = 5,
    };

    KAdapterGroupExtendedLunInfo();
    KAdapterGroupExtendedLunInfo(const KAdapterGroupExtendedLunInfo& other);
    KAdapterGroupExtendedLunInfo& operator=(const KAdapterGroupExtendedLunInfo& other);
    ~KAdapterGroupExtendedLunInfo() override;

    void init() override;
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;
    // The adapters as -zek keywords, each behind the agent's keyword when
    // the group was reached through one.
    std::string displayHeaderText(const PIpAddress& agent) const;

    // Merges one adapter's view of the LUN into this record.
    void addInfoForOneLun(unsigned long long adapterId, const PLunID& lunId, const KLunInfo& info,
                          PREFERRED_ADAPTER_TYPE rank);

    KWwulnLunID wwulnLunId;
    PLunID lunId;
    uint32_t ui32NonCachedAdapterCount;
    uint64_t ui64NonCachedAdapters[MAX_ADAPTERS];
    bool bCached;
    uint64_t ui64CachingAdapter;
    uint64_t ui64PreferredAdapter;
    PREFERRED_ADAPTER_TYPE ePreferredAdapterRank;

private:
    // Bytes from ui32NonCachedAdapterCount to the end of ePreferredAdapterRank.
    unsigned int scalarBlockSize() const;
    unsigned int nonCachedCount() const;
    void addNonCachedAdapter(unsigned long long adapterId);
    void prefer(unsigned long long adapterId, PREFERRED_ADAPTER_TYPE rank);
};

static_assert(sizeof(KAdapterGroupExtendedLunInfo) == 1440, "KAdapterGroupExtendedLunInfo image");
ZEK_ASSERT_FIELD_OFFSET(KAdapterGroupExtendedLunInfo, wwulnLunId, 24)
ZEK_ASSERT_FIELD_OFFSET(KAdapterGroupExtendedLunInfo, lunId, 312)
ZEK_ASSERT_FIELD_OFFSET(KAdapterGroupExtendedLunInfo, ui64NonCachedAdapters, 896)
