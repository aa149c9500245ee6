#include "records/KPoolInfo.h"

KPoolInfo::KPoolInfo() : PBase()
{
    init();
}

KPoolInfo::KPoolInfo(const KPoolInfo& other) : PBase()
{
    init();
    *this = other;
}

KPoolInfo& KPoolInfo::operator=(const KPoolInfo& other)
{
    if (this != &other) {
        init();
        totalSsdStorage = other.totalSsdStorage;
        configuredForCachePool = other.configuredForCachePool;
        usedForCachePool = other.usedForCachePool;
        freeSsdStorage = other.freeSsdStorage;
        usedForDataLuns = other.usedForDataLuns;
    }
    return *this;
}

KPoolInfo::~KPoolInfo()
{
    init();
}

void KPoolInfo::init()
{
    totalSsdStorage = 0;
    configuredForCachePool = 0;
    usedForCachePool = 0;
    freeSsdStorage = 0;
    usedForDataLuns = 0;
    initSerialization(&totalSsdStorage, sizeof(KPoolInfo));
}

std::string KPoolInfo::displayText() const
{
    return displayText(false);
}

std::string KPoolInfo::displayText(bool showDataLuns) const
{
    std::string text = "    Total SSD Storage                     = " + longlongToMByteText(totalSsdStorage);
    text += "\n    Free SSD Storage                      = " + longlongToMByteText(freeSsdStorage);
    text += "\n    SSD Storage Configured for Cache Pool = " + longlongToMByteText(configuredForCachePool);
    text += "\n    SSD Storage Used for Cache Pool       = " + longlongToMByteText(usedForCachePool);
    if (showDataLuns)
        text += "\n    SSD Storage Used for Data LUNs        = " + longlongToMByteText(usedForDataLuns);
    return text + "\n";
}
