#include "records/KCacheStatistics.h"

ZEK_ASSERT_FIELD_OFFSET(KCacheStatistics, totalCapacity, 24);
ZEK_ASSERT_FIELD_OFFSET(KCacheStatistics, reserved, 80);

KCacheStatistics::KCacheStatistics() : PBase()
{
    init();
}

KCacheStatistics::KCacheStatistics(const KCacheStatistics& other) : PBase()
{
    init();
    *this = other;
}

KCacheStatistics& KCacheStatistics::operator=(const KCacheStatistics& other)
{
    if (this != &other) {
        init();
        fastMemcpy(&totalCapacity, FIELDS_SIZE, &other.totalCapacity, FIELDS_SIZE);
    }
    return *this;
}

KCacheStatistics::~KCacheStatistics()
{
    init();
}

void KCacheStatistics::init()
{
    fastMemsetZero(&totalCapacity, FIELDS_SIZE);
    initSerialization(&totalCapacity, sizeof(KCacheStatistics));
}

std::string KCacheStatistics::hundredthsToText(unsigned long long hundredths)
{
    return ui64NumberToText(hundredths / 100) + "." + ui64NumberToText(hundredths % 100);
}

std::string KCacheStatistics::displayText() const
{
    // Sums are taken wide so that two large shares cannot wrap.
    unsigned long long usedPercent = static_cast<unsigned long long>(usedPercentFirst) + usedPercentSecond;
    unsigned long long hitsPercent = static_cast<unsigned long long>(readLoadPercent) + writeLoadPercent;
    std::string text = "    [Global Cache Statistics]\n\n";
    text += "    Total Cache Capacity             = " + longlongToMByteText(totalCapacity);
    text += "\n    Cache Capacity Used (SSD+RAM)    = " + longlongToMByteText(usedCapacity) + "\t(" +
        hundredthsToText(usedPercent) + "% of capacity)";
    text += "\n    Read Data                        = " + longlongToMByteText(readData);
    text += "\n    Cache Hits (Read Load)           = " + longlongToMByteText(readLoadHits) + "\t(" +
        hundredthsToText(readLoadPercent) + "% of Read Data)";
    text += "\n    Cache Hits (Write Load)          = " + longlongToMByteText(writeLoadHits) + "\t(" +
        hundredthsToText(writeLoadPercent) + "% of Read Data)";
    text += "\n    Cache Hits (Total)               = " + longlongToMByteText(readLoadHits + writeLoadHits) + "\t(" +
        hundredthsToText(hitsPercent) + "% of Read Data)";
    return text + "\n";
}
