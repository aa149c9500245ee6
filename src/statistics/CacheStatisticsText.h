// The text of the cache statistics view, laid out from one cycle's model:
// global IO, global cache, the per-LUN cache and the analysis. With `delta`
// each figure is followed by its change since the previous cycle.
#pragma once

#include <string>

#include "statistics/CacheStatisticsModel.h"

class CacheStatisticsText {
public:
    explicit CacheStatisticsText(CacheStatisticsModel const& model) : model(model) {}

    std::string displayGlobalIoText(bool delta) const;
    std::string displayGlobalCacheText(bool delta) const;
    // The size warnings of each LUN appear only when the view repeats
    // (`interval` above 0).
    std::string displayLunCacheText(bool delta, unsigned interval) const;
    std::string displayAnalysisCacheText(bool delta) const;

private:
    std::string streamLines() const;
    std::string capacityLine(CacheStatisticsModel::Capacity const& line, bool delta) const;
    std::string hitLine(CacheStatisticsModel::Hits const& line, bool delta) const;
    std::string lunRow(CacheStatisticsModel::Lun const& lun, bool delta) const;
    std::string lunWarnings(KLunCacheInfo const& cache) const;
    std::string mirrorLunRow(CacheStatisticsModel::MirrorLun const& lun, bool delta) const;
    std::string analysisText() const;
    std::string analysisDeltaText() const;

    CacheStatisticsModel const& model;
};
