#include "records/KLunCacheStatistics.h"

KLunCacheStatistics::KLunCacheStatistics() : PBase()
{
    init();
}

KLunCacheStatistics::KLunCacheStatistics(const KLunCacheStatistics& other) : PBase()
{
    init();
    *this = other;
}

KLunCacheStatistics& KLunCacheStatistics::operator=(const KLunCacheStatistics& other)
{
    if (this != &other) {
        init();
        fastMemcpy(&bValid, getSerialSize(), &other.bValid, getSerialSize());
    }
    return *this;
}

KLunCacheStatistics::~KLunCacheStatistics()
{
    init();
}

void KLunCacheStatistics::init()
{
    initSerialization(&bValid, sizeof(KLunCacheStatistics));
    fastMemsetZero(&bValid, getSerialSize());
}

void KLunCacheStatistics::subtract(const KLunCacheStatistics& other)
{
    ui32ReadHitPercent -= other.ui32ReadHitPercent;
    ui32WriteHitPercent -= other.ui32WriteHitPercent;
    ui64TotalRead -= other.ui64TotalRead;
    ui64TotalWritten -= other.ui64TotalWritten;
    ui64WriteHitBytes -= other.ui64WriteHitBytes;
    ui64ReadHitBytes -= other.ui64ReadHitBytes;
    ui64CleanBytes -= other.ui64CleanBytes;
    ui64DirtyBytes -= other.ui64DirtyBytes;
    ui64LockedBytes -= other.ui64LockedBytes;
}

std::string KLunCacheStatistics::displayPercentTenthsForHundredthsLSB(uint32_t value)
{
    uint32_t whole = value / 100;
    uint32_t tenth = (value % 100 + 5) / 10;
    if (tenth > 9) {
        whole += 1;
        tenth = 0;
    }
    return ui64NumberToText(whole) + "." + ui64NumberToText(tenth);
}

std::string KLunCacheStatistics::displayCSVTitle()
{
    return "Cache Hit (Read Load) (Bytes), Cache Hit (Read Load) %, Cache Hit (Write Load) (Bytes), "
           "Cache Hit (Write Load)%, Total data read by host (Bytes), Total data written by host "
           "(bytes), Clean Cache in-use (Bytes), Dirty Cache in-use (Bytes), Locked Cache in-use "
           "(Bytes)";
}

std::string KLunCacheStatistics::displayText() const
{
    std::string text = "        Cache Capacity Used (Clean) = " + longlongToMByteText(ui64CleanBytes);
    // The gauges are compared as signed values: a wrapped difference left by
    // subtract counts as nothing in use.
    if (static_cast<int64_t>(ui64DirtyBytes) > 0)
        text += "\n        Cache Capacity Used (Dirty) = " + longlongToMByteText(ui64DirtyBytes);
    if (static_cast<int64_t>(ui64LockedBytes) > 0)
        text += "\n        Cache Capacity Used (Locked) = " + longlongToMByteText(ui64LockedBytes);
    text += "\n        Read Data                   = " + longlongToMByteText(ui64TotalRead);
    text += "\n        Cache Hits (Read Load))     = " + longlongToMByteText(ui64ReadHitBytes) + "\t(" +
        displayPercentTenthsForHundredthsLSB(ui32ReadHitPercent) + "% of Read Data)";
    text += "\n        Cache Hits (Write Load)     = " + longlongToMByteText(ui64WriteHitBytes) + "\t(" +
        displayPercentTenthsForHundredthsLSB(ui32WriteHitPercent) + "% of Read Data)";
    text += "\n        Cache Hits (Total)          = " + longlongToMByteText(ui64ReadHitBytes + ui64WriteHitBytes) +
        "\t(" + displayPercentTenthsForHundredthsLSB(ui32ReadHitPercent + ui32WriteHitPercent) + "% of Read Data)" +
        "\n";
    return text;
}
