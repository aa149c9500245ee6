// Cache counters of one LUN: hit shares, host traffic and cache use.
#pragma once

#include "records/PBase.h"

class KLunCacheStatistics : public PBase {
public:
    KLunCacheStatistics();
    KLunCacheStatistics(const KLunCacheStatistics& other);
    KLunCacheStatistics& operator=(const KLunCacheStatistics& other);
    ~KLunCacheStatistics() override;

    void init() override;
    std::string displayText() const override;

    bool isValid() const { return bValid; }
    // Field by field difference; unsigned wrap-around is kept as it comes.
    void subtract(const KLunCacheStatistics& other);

    // Hundredths of a percent shown with one rounded decimal.
    static std::string displayPercentTenthsForHundredthsLSB(uint32_t value);
    static std::string displayCSVTitle();

    bool bValid;
    uint32_t ui32ReadHitPercent;  // hundredths of a percent
    uint32_t ui32WriteHitPercent; // hundredths of a percent
    uint64_t ui64TotalRead;
    uint64_t ui64TotalWritten;
    uint64_t ui64WriteHitBytes;
    uint64_t ui64ReadHitBytes;
    uint64_t ui64CleanBytes;
    uint64_t ui64DirtyBytes;
    uint64_t ui64LockedBytes;
};

static_assert(sizeof(KLunCacheStatistics) == 88, "KLunCacheStatistics image");
