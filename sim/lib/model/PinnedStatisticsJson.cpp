// As in Scenario.cpp, which reads and writes the rest of the scenario.
#define JSON_DIAGNOSTICS 1
#include <nlohmann/json.hpp>

#include "model/PinnedStatisticsJson.h"

#include "model/SanFields.h"

#include <climits>

namespace sim {

NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(PinnedAdapterFigures, SIM_FIELDS_PinnedAdapterFigures)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(FixedStatistics, SIM_FIELDS_FixedStatistics)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(FixedIoStatistics, SIM_FIELDS_FixedIoStatistics)

namespace {

long long wholeNumber(const nlohmann::json& j, const char* what)
{
    if (!j.is_number_integer())
        throw std::invalid_argument(std::string(what) + " must be a whole number, not " + j.dump());
    if (j.is_number_unsigned() && j.get<unsigned long long>() > static_cast<unsigned long long>(LLONG_MAX))
        throw std::invalid_argument(std::string(what) + " " + j.dump() + " is too large");
    return j.get<long long>();
}

} // namespace

void to_json(nlohmann::json& j, const PinnedFigure& figure)
{
    if (figure.perSecond == 0)
        j = figure.value;
    else
        j = nlohmann::json{{"perSecond", figure.perSecond}, {"value", figure.value}};
}

void from_json(const nlohmann::json& j, PinnedFigure& figure)
{
    figure = PinnedFigure{};
    if (!j.is_object()) {
        figure.value = wholeNumber(j, "a statistics figure");
        return;
    }
    for (auto it = j.begin(); it != j.end(); ++it) {
        if (it.key() == "value")
            figure.value = wholeNumber(*it, "\"value\"");
        else if (it.key() == "perSecond")
            figure.perSecond = wholeNumber(*it, "\"perSecond\"");
        else
            throw std::invalid_argument("a statistics figure has only \"value\" and \"perSecond\", not \"" + it.key() +
                                        "\"");
    }
}

void to_json(nlohmann::json& j, const PinnedCounter& counter)
{
    j = nlohmann::json::array({counter.name, counter.figure.value});
    if (counter.figure.perSecond != 0)
        j.push_back(counter.figure.perSecond);
}

void from_json(const nlohmann::json& j, PinnedCounter& counter)
{
    if (!j.is_array() || j.size() < 2 || j.size() > 3 || !j[0].is_string())
        throw std::invalid_argument("a counter is [name, value] or [name, value, perSecond], not " + j.dump());
    counter.name = j[0].get<std::string>();
    counter.figure.value = wholeNumber(j[1], "a counter value");
    counter.figure.perSecond = j.size() == 3 ? wholeNumber(j[2], "a counter's perSecond") : 0;
}

namespace {

template <class T>
void optionalToJson(nlohmann::json& j, const std::optional<T>& fixed)
{
    if (fixed)
        j = *fixed;
    else
        j = nullptr;
}

template <class T>
void optionalFromJson(const nlohmann::json& j, std::optional<T>& fixed)
{
    if (j.is_null())
        fixed.reset();
    else
        fixed = j.get<T>();
}

} // namespace

void to_json(nlohmann::json& j, const std::optional<FixedStatistics>& fixed)
{
    optionalToJson(j, fixed);
}

void from_json(const nlohmann::json& j, std::optional<FixedStatistics>& fixed)
{
    optionalFromJson(j, fixed);
}

void to_json(nlohmann::json& j, const std::optional<FixedIoStatistics>& fixed)
{
    optionalToJson(j, fixed);
}

void from_json(const nlohmann::json& j, std::optional<FixedIoStatistics>& fixed)
{
    optionalFromJson(j, fixed);
}

const nlohmann::json* pinnedStatisticsDefaults(std::string_view key)
{
    static const nlohmann::json adapterDefaults = FixedStatistics{};
    static const nlohmann::json lunDefaults = FixedIoStatistics{};
    if (key == "fixedStatistics")
        return &adapterDefaults;
    if (key == "fixedIoStatistics")
        return &lunDefaults;
    return nullptr;
}

} // namespace sim
