#include "records/KLunIoStatistics.h"

KLunIoStatistics::KLunIoStatistics() : PBase()
{
    init();
}

KLunIoStatistics::KLunIoStatistics(const KLunIoStatistics& other) : PBase()
{
    init();
    *this = other;
}

KLunIoStatistics& KLunIoStatistics::operator=(const KLunIoStatistics& other)
{
    if (this != &other) {
        init();
        fastMemcpy(&ui64ReadCount, scalarBlockSize(), &other.ui64ReadCount, scalarBlockSize());
        cacheStatistics = other.cacheStatistics;
    }
    return *this;
}

KLunIoStatistics::~KLunIoStatistics()
{
    init();
}

unsigned int KLunIoStatistics::scalarBlockSize() const
{
    return static_cast<unsigned int>(reinterpret_cast<const char*>(&ui64WriteBlocks + 1) -
                                     reinterpret_cast<const char*>(&ui64ReadCount));
}

void KLunIoStatistics::init()
{
    fastMemsetZero(&ui64ReadCount, scalarBlockSize());
    cacheStatistics.init();
    initSerialization(&ui64ReadCount, sizeof(KLunIoStatistics));
}

bool KLunIoStatistics::serialize(bool write, FILE* file, std::string& error)
{
    return base_serialize(write, file, reinterpret_cast<char*>(&ui64ReadCount), scalarBlockSize(), error) &&
        cacheStatistics.serialize(write, file, error);
}

void KLunIoStatistics::subtract(const KLunIoStatistics& other)
{
    ui64ReadCount -= other.ui64ReadCount;
    ui64WriteCount -= other.ui64WriteCount;
    ui64ReadBlocks -= other.ui64ReadBlocks;
    ui64WriteBlocks -= other.ui64WriteBlocks;
}

std::string KLunIoStatistics::displayText() const
{
    return "        I/O Count Read/Write:       [ " + ui64NumberToText(ui64ReadCount) + "\t/ " +
        ui64NumberToText(ui64WriteCount) + " ]\n" + "        Read/Write I/O:             [ " +
        longlongToMByteText(ui64ReadBlocks * 512) + "\t/ " + longlongToMByteText(ui64WriteBlocks * 512) + " ]\n";
}
