// Use of the adapter's SSD storage: the cache pool and the data LUNs.
#pragma once

#include "records/PBase.h"

class KPoolInfo : public PBase {
public:
    KPoolInfo();
    KPoolInfo(const KPoolInfo& other);
    KPoolInfo& operator=(const KPoolInfo& other);
    ~KPoolInfo() override;

    void init() override;
    std::string displayText() const override;
    std::string displayText(bool showDataLuns) const;

    // All in bytes.
    uint64_t totalSsdStorage;
    uint64_t configuredForCachePool;
    uint64_t usedForCachePool;
    uint64_t freeSsdStorage;
    uint64_t usedForDataLuns;
};

static_assert(sizeof(KPoolInfo) == 64, "KPoolInfo image");
