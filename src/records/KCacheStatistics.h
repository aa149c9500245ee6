// Summary of the adapter's cache: capacity, use and read hits, with the
// percentages the adapter computes in hundredths.
#pragma once

#include "records/PBase.h"

class KCacheStatistics : public PBase {
public:
    KCacheStatistics();
    KCacheStatistics(const KCacheStatistics& other);
    KCacheStatistics& operator=(const KCacheStatistics& other);
    ~KCacheStatistics() override;

    void init() override;
    std::string displayText() const override;

    // A share in hundredths of a percent as its whole part, "." and the
    // remainder, without padding (5 reads "0.5").
    static std::string hundredthsToText(unsigned long long hundredths);

    uint64_t totalCapacity; // bytes, like the other sizes
    uint64_t usedCapacity;
    uint64_t readData;
    uint64_t writeLoadHits;
    uint64_t readLoadHits;
    // Their sum is the share of the capacity in use, in hundredths of a
    // percent.
    uint32_t usedPercentFirst;
    uint32_t usedPercentSecond;
    // Shares of the read data, in hundredths of a percent.
    uint32_t readLoadPercent;
    uint32_t writeLoadPercent;
    // Further figures of the library that this side does not show; they are
    // kept so that the image passes on whole.
    uint32_t reserved[4];

    static constexpr unsigned int IMAGE_SIZE = 96;

private:
    static constexpr unsigned int FIELDS_SIZE = IMAGE_SIZE - 24;
};

static_assert(sizeof(KCacheStatistics) == KCacheStatistics::IMAGE_SIZE, "KCacheStatistics image");
