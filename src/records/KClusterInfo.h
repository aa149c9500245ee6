// The primary and secondary adapters of a cluster.
#pragma once

#include <cstdint>
#include <string>

#include "records/PBase.h"

class KClusterInfo : public PBase {
public:
    KClusterInfo();
    KClusterInfo(const KClusterInfo& other);
    KClusterInfo& operator=(const KClusterInfo& other);
    ~KClusterInfo() override;

    void init() override;
    std::string displayText() const override;

    uint64_t primaryAdapterId;   // 0: none
    uint64_t secondaryAdapterId; // 0: none
};

static_assert(sizeof(KClusterInfo) == 40, "cluster image");
