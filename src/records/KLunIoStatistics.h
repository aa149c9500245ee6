// I/O counters of one LUN, with the cache counters beside them.
#pragma once

#include "records/KLunCacheStatistics.h"
#include "records/PBase.h"

class KLunIoStatistics : public PBase {
public:
    KLunIoStatistics();
    KLunIoStatistics(const KLunIoStatistics& other);
    KLunIoStatistics& operator=(const KLunIoStatistics& other);
    ~KLunIoStatistics() override;

    void init() override;
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;

    // Only the four I/O counters; the cache counters are left as they are.
    void subtract(const KLunIoStatistics& other);

    uint64_t ui64ReadCount;
    uint64_t ui64WriteCount;
    uint64_t ui64ReadBlocks;  // 512-byte blocks
    uint64_t ui64WriteBlocks; // 512-byte blocks
    KLunCacheStatistics cacheStatistics;

private:
    // Bytes from ui64ReadCount to the end of ui64WriteBlocks.
    unsigned int scalarBlockSize() const;
};

static_assert(sizeof(KLunIoStatistics) == 144, "KLunIoStatistics image");
ZEK_ASSERT_FIELD_OFFSET(KLunIoStatistics, cacheStatistics, 56)
