// Host IO figures of one adapter, as the adapter measures them on the PCI
// Express side: counts, sizes, rates and latencies of reads and writes.
#pragma once

#include "records/PBase.h"

class KHostPcieInfo : public PBase {
public:
    static constexpr unsigned int FIELD_COUNT = 26;

    KHostPcieInfo();
    KHostPcieInfo(const KHostPcieInfo& other);
    KHostPcieInfo& operator=(const KHostPcieInfo& other);
    ~KHostPcieInfo() override;

    void init() override;
    // The host IO section of the cache statistics view.
    std::string displayText() const override;
    // The host section of the short statistics view.
    std::string displayText2() const;

    // The fields by their number, 0 to 25, for the CSV files; 0 beyond.
    uint32_t fieldAt(unsigned int index) const;
    // The CSV column title of a field, ending in ","; empty beyond.
    static std::string csvTitleAt(unsigned int index);

    uint32_t readDiffTime;
    uint32_t writeDiffTime;
    uint32_t readIoCount;
    uint32_t readBytesCount;
    uint32_t writeIoCount;
    uint32_t writeBytesCount;
    uint32_t avgReadIosPerSec;
    uint32_t minReadIoSize; // bytes, like all IO sizes
    uint32_t maxReadIoSize;
    uint32_t avgReadIoSize;
    uint32_t avgReadBandwidth; // bytes per second
    uint32_t readIoDelay;
    uint32_t minReadLatency; // microseconds, like all latencies
    uint32_t maxReadLatency;
    uint32_t avgReadLatency;
    uint32_t readIoOutstanding;
    uint32_t avgWriteIosPerSec;
    uint32_t minWriteIoSize;
    uint32_t maxWriteIoSize;
    uint32_t avgWriteIoSize;
    uint32_t avgWriteBandwidth;
    uint32_t writeIoDelay;
    uint32_t minWriteLatency;
    uint32_t maxWriteLatency;
    uint32_t avgWriteLatency;
    uint32_t writeIoOutstanding;

    // Latencies are kept in microseconds and shown in milliseconds.
    static std::string latencyText(uint32_t microseconds);

    // The figures of one direction, reads or writes.
    struct Direction {
        uint32_t ioCount;
        uint32_t iosPerSec;
        uint32_t minSize;
        uint32_t maxSize;
        uint32_t avgSize;
        uint32_t bandwidth;
        uint32_t minLatency;
        uint32_t maxLatency;
        uint32_t avgLatency;
        uint32_t outstanding;
    };
    Direction reads() const;
    Direction writes() const;

private:
    static constexpr unsigned int FIELDS_SIZE = FIELD_COUNT * sizeof(uint32_t);
};

static_assert(sizeof(KHostPcieInfo) == 128, "KHostPcieInfo image");
