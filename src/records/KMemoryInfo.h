// Free and total counts of the adapter's memory and of its internal block
// pools.
#pragma once

#include "records/PBase.h"

class KMemoryInfo : public PBase {
public:
    KMemoryInfo();
    KMemoryInfo(const KMemoryInfo& other);
    KMemoryInfo& operator=(const KMemoryInfo& other);
    ~KMemoryInfo() override;

    void init() override;
    std::string displayText() const override;

    // Six pairs, total then free.
    int32_t physicalTotal;
    int32_t physicalFree;
    int32_t bufferPoolTotal;
    int32_t bufferPoolFree;
    int32_t processBlocksTotal;
    int32_t processBlocksFree;
    int32_t requestBlocksTotal;
    int32_t requestBlocksFree;
    int32_t eventBlocksTotal;
    int32_t eventBlocksFree;
    int32_t controlBlocksTotal;
    int32_t controlBlocksFree;

private:
    static constexpr unsigned int FIELDS_SIZE = 12 * sizeof(int32_t);
};

static_assert(sizeof(KMemoryInfo) == 72, "KMemoryInfo image");
