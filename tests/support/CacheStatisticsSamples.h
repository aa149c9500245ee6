// Samples of the cache statistics made by hand, for the tests of the model
// and of its views.
#pragma once

#include <cstring>
#include <string>

#include "statistics/CacheStatisticsSample.h"

namespace samples {

// Appends a counter to the table, the way the adapter fills it.
inline void addCounter(KCacheInfoList& list, std::string const& name, long long value)
{
    KCacheInfo& item = list.items[list.count++];
    item.init();
    std::memcpy(item.name, name.data(), std::min(name.size(), sizeof item.name));
    item.value = value;
}

// A binary WWULN of 16 bytes, all `fill` but the last, which is `last`.
inline void setWwuln(KLunInfo& info, unsigned char fill, unsigned char last)
{
    std::memset(info.ui8Wwuln, fill, 16);
    info.ui8Wwuln[15] = last;
    info.ui32WwulnLength = 16;
    info.eWwulnCodeSet = PBase::WWULN_CODE_SET_BINARY;
}

// A LUN cached here with the given size, cache limit and use.
inline CachedLunSample cachedLun(unsigned char last, unsigned long long size, unsigned long long limit,
                                 unsigned long long clean, unsigned long long dirty)
{
    CachedLunSample lun;
    lun.info.bValid = true;
    setWwuln(lun.info, 0x60, last);
    lun.info.ui64LunSizeBytes = size;
    lun.info.cacheInfo.ui64MaxCacheBytes = limit;
    lun.info.cacheInfo.eCacheMode = KLunCacheInfo::CACHE_MODE_READ_WRITE_BACK;
    lun.info.cacheInfo.ui32MinRead = 16;   // 8 KB
    lun.info.cacheInfo.ui32MaxRead = 2048; // 1 MB
    lun.info.cacheInfo.ui32MinWrite = 8;
    lun.info.cacheInfo.ui32MaxWrite = 1024;
    lun.io.cacheStatistics.ui64CleanBytes = clean;
    lun.io.cacheStatistics.ui64DirtyBytes = dirty;
    return lun;
}

} // namespace samples
