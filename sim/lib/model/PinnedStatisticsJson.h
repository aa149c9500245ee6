// The JSON forms of pinned statistics for the general scenario path (the
// streaming codec has its own). A figure is a number or an object, a counter
// a short list; neither is a plain struct of named fields.
#pragma once

#include "model/PinnedStatistics.h"

// Include after defining JSON_DIAGNOSTICS as Scenario.cpp does: the
// library's types differ with it.
#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <string_view>

namespace sim {

void to_json(nlohmann::json& j, const PinnedFigure& figure);
void from_json(const nlohmann::json& j, PinnedFigure& figure);
void to_json(nlohmann::json& j, const PinnedCounter& counter);
void from_json(const nlohmann::json& j, PinnedCounter& counter);

// Absent (null) means the workload model, so an empty optional is null. A
// present one is written with every field; the scenario writer leaves out
// those at their defaults (see pinnedStatisticsDefaults).
void to_json(nlohmann::json& j, const std::optional<FixedStatistics>& fixed);
void from_json(const nlohmann::json& j, std::optional<FixedStatistics>& fixed);
void to_json(nlohmann::json& j, const std::optional<FixedIoStatistics>& fixed);
void from_json(const nlohmann::json& j, std::optional<FixedIoStatistics>& fixed);

// The defaults of the fields of the pinned statistics object that the field
// `key` holds ("fixedStatistics", "fixedIoStatistics"); null for any other.
const nlohmann::json* pinnedStatisticsDefaults(std::string_view key);

} // namespace sim
