// One range of 512-byte logical blocks, as the adapter keeps it for a
// locked area of a LUN's cache.
#pragma once

#include "records/PBase.h"

class KLogicalBlockRange : public PBase {
public:
    KLogicalBlockRange();
    KLogicalBlockRange(const KLogicalBlockRange& other);
    KLogicalBlockRange& operator=(const KLogicalBlockRange& other);
    ~KLogicalBlockRange() override;

    void init() override;
    std::string displayText() const override;

    uint64_t ui64StartLba;
    uint32_t ui32Size;
};

static_assert(sizeof(KLogicalBlockRange) == 40, "KLogicalBlockRange image");
