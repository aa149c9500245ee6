#include "statistics/IoStatData.h"

#include <algorithm>
#include <cstring>

#include "records/KLunInfo.h"

namespace {

// (part * scale) / whole, 0 for nothing read.
uint64_t shareOf(uint64_t part, uint64_t whole, uint64_t scale)
{
    return whole == 0 ? 0 : part * scale / whole;
}

uint32_t hundredths(uint64_t part, uint64_t whole)
{
    return static_cast<uint32_t>(shareOf(part, whole, 10000));
}

} // namespace

IoStatData::IoStatData(PLunID const& id, KLunInfo const& info)
    : wwulnLength(std::min<uint32_t>(info.ui32WwulnLength, sizeof wwuln)),
      cached(info.isSanLun() && info.isLunCached()), lunId(id), targetId(id.targetID())
{
    std::memcpy(wwuln, info.ui8Wwuln, wwulnLength);
}

void IoStatData::addChange(KLunIoStatistics const& change)
{
    KLunCacheStatistics const& figures = change.cacheStatistics;
    ++samples;
    totalReadBytes += figures.ui64TotalRead;
    totalReadHits += figures.ui64ReadHitBytes;
    totalWriteHits += figures.ui64WriteHitBytes;
}

LunStatisticsRow::LunStatisticsRow(IoStatData const& data, KLunIoStatistics const& sample)
{
    KLunCacheStatistics const& s = sample.cacheStatistics;
    readHits = hundredths(s.ui64ReadHitBytes, s.ui64TotalRead);
    writeHits = hundredths(s.ui64WriteHitBytes, s.ui64TotalRead);
    allHits = hundredths(s.ui64ReadHitBytes + s.ui64WriteHitBytes, s.ui64TotalRead);
    averageReadHits = hundredths(data.totalReadHits, data.totalReadBytes);
    averageWriteHits = hundredths(data.totalWriteHits, data.totalReadBytes);
    averageAllHits = hundredths(data.totalReadHits + data.totalWriteHits, data.totalReadBytes);
    readBytes = sample.ui64ReadBlocks << 9;
    usedBytes = s.ui64CleanBytes + s.ui64DirtyBytes + s.ui64LockedBytes;
}

std::vector<double> LunStatisticsRow::csvValues(IoStatData const& data, KLunIoStatistics const& sample)
{
    KLunCacheStatistics const& s = sample.cacheStatistics;
    auto percent = [](uint64_t part, uint64_t whole) { return static_cast<double>(shareOf(part, whole, 100)); };
    auto cachedOnly = [&](double value) { return data.cached ? value : 0.0; };
    return {
        cachedOnly(1.0),
        cachedOnly(percent(s.ui64ReadHitBytes, s.ui64TotalRead)),
        cachedOnly(percent(data.totalReadHits, data.totalReadBytes)),
        cachedOnly(percent(s.ui64WriteHitBytes, s.ui64TotalRead)),
        cachedOnly(percent(data.totalWriteHits, data.totalReadBytes)),
        percent(s.ui64ReadHitBytes + s.ui64WriteHitBytes, s.ui64TotalRead),
        percent(data.totalReadHits + data.totalWriteHits, data.totalReadBytes),
        static_cast<double>(sample.ui64ReadCount),
        static_cast<double>(sample.ui64WriteCount),
        static_cast<double>(sample.ui64ReadBlocks),
        static_cast<double>(sample.ui64WriteBlocks),
        cachedOnly(static_cast<double>(s.ui64ReadHitBytes)),
        cachedOnly(static_cast<double>(s.ui64WriteHitBytes)),
        cachedOnly(static_cast<double>(s.ui64TotalRead)),
        cachedOnly(static_cast<double>(s.ui64TotalWritten)),
    };
}
