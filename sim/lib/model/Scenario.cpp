#include "model/Scenario.h"

// Errors then name the place in the file where they were found.
#define JSON_DIAGNOSTICS 1
#include <nlohmann/json.hpp>

#include "model/Base64.h"
#include "model/PinnedStatisticsJson.h"
#include "model/SanFields.h"
#include "model/ScenarioCodec.h"
#include "model/States.h"

#include <arpa/inet.h>
#include <cinttypes>
#include <cmath>
#include <cstdio>
#include <set>
#include <string_view>
#include <unordered_set>

namespace sim {

std::string adapterIdText(u64 id)
{
    char buf[24];
    std::snprintf(buf, sizeof buf, "%" PRIX64, id);
    return buf;
}

bool parseAdapterId(const std::string& text, u64& out)
{
    std::string digits = text;
    if (digits.size() > 2 && digits[0] == '0' && (digits[1] == 'x' || digits[1] == 'X'))
        digits = digits.substr(2);
    if (digits.empty() || digits.size() > 16)
        return false;
    u64 value = 0;
    for (char c : digits) {
        int d;
        if (c >= '0' && c <= '9')
            d = c - '0';
        else if (c >= 'a' && c <= 'f')
            d = c - 'a' + 10;
        else if (c >= 'A' && c <= 'F')
            d = c - 'A' + 10;
        else
            return false;
        value = value * 16 + static_cast<u64>(d);
    }
    out = value;
    return true;
}

void to_json(nlohmann::json& j, const AdapterId& id)
{
    j = adapterIdText(id.value);
}

void from_json(const nlohmann::json& j, AdapterId& id)
{
    if (j.is_number_unsigned()) {
        id.value = j.get<u64>();
        return;
    }
    if (!j.is_string() || !parseAdapterId(j.get<std::string>(), id.value))
        throw std::invalid_argument("an adapter id must be up to 16 hexadecimal digits, not " + j.dump());
}

NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Host, SIM_FIELDS_Host)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Sfp, SIM_FIELDS_Sfp)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Port, SIM_FIELDS_Port)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(SmartAttribute, SIM_FIELDS_SmartAttribute)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Drive, SIM_FIELDS_Drive)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(LogRecord, SIM_FIELDS_LogRecord)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Health, SIM_FIELDS_Health)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Nvdimm, SIM_FIELDS_Nvdimm)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Fault, SIM_FIELDS_Fault)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Adapter, SIM_FIELDS_Adapter)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Cluster, SIM_FIELDS_Cluster)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Target, SIM_FIELDS_Target)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Initiator, SIM_FIELDS_Initiator)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(LunPath, SIM_FIELDS_LunPath)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(LockedRange, SIM_FIELDS_LockedRange)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(CacheSettings, SIM_FIELDS_CacheSettings)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(LocalLun, SIM_FIELDS_LocalLun)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Reservation, SIM_FIELDS_Reservation)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Lun, SIM_FIELDS_Lun)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(San, SIM_FIELDS_San)

namespace {

// Default values of the elements of each list, by the list's field name.
const nlohmann::json& elementDefaults()
{
    static const nlohmann::json defaults = {
        {"hosts", Host{}},           {"adapters", Adapter{}}, {"ports", Port{}},       {"drives", Drive{}},
        {"smart", SmartAttribute{}}, {"log", LogRecord{}},    {"clusters", Cluster{}}, {"targets", Target{}},
        {"initiators", Initiator{}}, {"luns", Lun{}},         {"paths", LunPath{}},    {"lockedRanges", LockedRange{}},
        {"faults", Fault{}},
    };
    return defaults;
}

// Leaves out every field that holds its default value, so that a scenario
// shows what is particular about the SAN and stays small.
void pruneDefaults(nlohmann::json& j, const nlohmann::json& defaults)
{
    for (auto it = j.begin(); it != j.end();) {
        const std::string key = it.key();
        if (!defaults.contains(key)) {
            ++it;
            continue;
        }
        const nlohmann::json& d = defaults.at(key);
        if (*it == d) {
            it = j.erase(it);
            continue;
        }
        if (it->is_object() && d.is_object())
            pruneDefaults(*it, d);
        else if (it->is_object() && d.is_null() && pinnedStatisticsDefaults(key))
            pruneDefaults(*it, *pinnedStatisticsDefaults(key));
        else if (it->is_array() && elementDefaults().contains(key))
            for (nlohmann::json& element : *it)
                if (element.is_object())
                    pruneDefaults(element, elementDefaults().at(key));
        ++it;
    }
}

} // namespace

std::string generalScenarioToText(const San& san)
{
    nlohmann::json j = san;
    nlohmann::json defaults = San{};
    defaults.erase("format"); // the header stays, for readers to know the file
    defaults.erase("version");
    pruneDefaults(j, defaults);
    return j.dump(1) + "\n";
}

namespace {

// The library's own comparison takes -5 and 2^64 - 5 as equal; here a whole
// number must come back with the same digits.
bool isSameNumber(const nlohmann::json& given, const nlohmann::json& kept)
{
    if (kept.is_number_float())
        return given.get<double>() == kept.get<double>();
    if (!given.is_number_float())
        return given.dump() == kept.dump();
    // A whole value written with a fraction ("2.0") is that whole number,
    // within the range a double holds exactly.
    double const value = given.get<double>();
    return std::fabs(value) < 9007199254740992.0 && value == std::trunc(value) &&
        nlohmann::json(static_cast<long long>(value)).dump() == kept.dump();
}

// A misspelt field would otherwise be dropped without a word, and a number
// out of its field's range changed; compare what was read with what it reads
// back as, and name the first stray key or changed number. Every command
// reads the state, so the walk builds no text unless it reports: `path` grows
// and shrinks in place.
bool findUnknownKey(const nlohmann::json& given, const nlohmann::json& known, std::string& path, std::string& error)
{
    auto visit = [&](const nlohmann::json& g, const nlohmann::json& k, const std::string& step) {
        // A number its field cannot hold (negative, too large, a fraction)
        // comes back changed: say so rather than keep another value.
        if (g.is_number() && k.is_number() && !isSameNumber(g, k)) {
            error = "the field \"" + path + "/" + step + "\" is out of range: " + g.dump();
            return true;
        }
        if (!g.is_structured() || !k.is_structured())
            return false;
        size_t const mark = path.size();
        path += "/";
        path += step;
        bool const found = findUnknownKey(g, k, path, error);
        path.resize(mark);
        return found;
    };
    if (given.is_object() && known.is_object()) {
        for (auto it = given.begin(); it != given.end(); ++it) {
            auto match = known.find(it.key());
            if (match == known.end()) {
                error = "unknown field \"" + path + "/" + it.key() + "\"";
                return true;
            }
            if (visit(it.value(), *match, it.key()))
                return true;
        }
    } else if (given.is_array() && known.is_array()) {
        for (size_t i = 0; i < given.size() && i < known.size(); ++i)
            if (visit(given[i], known[i], std::to_string(i)))
                return true;
    }
    return false;
}

bool checkHeader(const nlohmann::json& j, std::string& error)
{
    if (!j.is_object()) {
        error = "the top level must be a JSON object";
        return false;
    }
    if (!j.contains("format") || j["format"] != "hbasim-scenario") {
        error = "not an hbasim scenario (the field \"format\" must be \"hbasim-scenario\")";
        return false;
    }
    if (!j.contains("version") || !j["version"].is_number_integer()) {
        error = "the field \"version\" is missing or not a whole number";
        return false;
    }
    int version = j["version"].get<int>();
    if (version > kScenarioVersion || version < 1) {
        error = "format version " + std::to_string(version) + " is not supported (this simulator reads version " +
            std::to_string(kScenarioVersion) + "); it may come from a newer hbasim";
        return false;
    }
    return true;
}

} // namespace

std::string scenarioToText(const San& san)
{
    std::string text;
    // Text that is not UTF-8 cannot be written as JSON; the general path
    // says so in its own words.
    return codec::write(san, text) ? text : generalScenarioToText(san);
}

bool scenarioFromText(const std::string& text, const std::string& origin, San& out, std::string& error)
{
    San san;
    if (codec::read(text, san) && validateSan(san, error)) {
        out = std::move(san);
        return true;
    }
    return generalScenarioFromText(text, origin, out, error);
}

bool generalScenarioFromText(const std::string& text, const std::string& origin, San& out, std::string& error)
{
    std::string what;
    try {
        nlohmann::json j = nlohmann::json::parse(text);
        if (checkHeader(j, what)) {
            San san = j.get<San>();
            nlohmann::json known = san;
            std::string path;
            if (!findUnknownKey(j, known, path, what) && validateSan(san, what)) {
                out = std::move(san);
                return true;
            }
        }
    } catch (const std::exception& e) {
        what = e.what();
        // Keep the library's words, not its internal error number.
        if (what.rfind("[json.exception.", 0) == 0 && what.find("] ") != std::string::npos)
            what = what.substr(what.find("] ") + 2);
    }
    error = origin + ": " + what;
    return false;
}

namespace {

bool fail(std::string& error, const std::string& text)
{
    error = text;
    return false;
}

// Agents are found by the numeric text of their address, so a scenario must
// write it the way the address reads back.
bool checkAgentAddress(const std::string& agent, std::string& error)
{
    unsigned char bytes[16];
    char canonical[INET6_ADDRSTRLEN] = "";
    int family = agent.find(':') == std::string::npos ? AF_INET : AF_INET6;
    if (inet_pton(family, agent.c_str(), bytes) != 1)
        return fail(error, "host agent \"" + agent + "\" is not a numeric IPv4 or IPv6 address");
    inet_ntop(family, bytes, canonical, sizeof canonical);
    if (agent != canonical)
        return fail(error, "host agent \"" + agent + "\" must be written \"" + canonical + "\"");
    return true;
}

// Every command that reads the state checks it, so the checks keep views of
// the names rather than copies.
using NameSet = std::unordered_set<std::string_view>;

struct PathKey {
    std::string_view target;
    u32 lun;
    u32 vpGroup;
    bool operator==(const PathKey&) const = default;
};

struct PathKeyHash {
    size_t operator()(const PathKey& key) const
    {
        size_t h = std::hash<std::string_view>()(key.target);
        return h ^ (std::hash<u64>()((u64{key.lun} << 32) | key.vpGroup) + 0x9e3779b97f4a7c15ull + (h << 6) + (h >> 2));
    }
};

std::unordered_set<u64> adapterIds(const San& san)
{
    std::unordered_set<u64> ids;
    for (const Adapter& a : san.adapters)
        ids.insert(a.id.value);
    return ids;
}

// Files that are not text are kept in base64, which a hand-edited scenario
// may have damaged; and a name has one content, so it is in one map only.
bool checkBinaryFiles(const Adapter& a, const std::string& adapterName, std::string& error)
{
    for (const auto& [file, text] : a.binaryFiles) {
        if (a.files.count(file))
            return fail(error, adapterName + " file \"" + file + "\" is both in \"files\" and in \"binaryFiles\"");
        if (!base64::isValid(text))
            return fail(error, adapterName + " file \"" + file + "\" is not valid base64");
    }
    return true;
}

bool validateAdapters(const San& san, std::string& error)
{
    std::unordered_set<u64> ids;
    std::set<std::pair<std::string_view, int>> devices;
    NameSet hosts;
    for (const Host& h : san.hosts) {
        if (!hosts.insert(h.agent).second)
            return fail(error, "host \"" + h.agent + "\" is defined twice");
        if (!h.agent.empty() && !checkAgentAddress(h.agent, error))
            return false;
    }
    for (const Adapter& a : san.adapters) {
        auto name = [&] { return "adapter " + adapterIdText(a.id.value); };
        if (!ids.insert(a.id.value).second)
            return fail(error, name() + " is defined twice");
        if (!hosts.count(a.host))
            return fail(error, name() + " names host \"" + a.host + "\", which is not defined");
        if (a.device >= 0 && !devices.insert({a.host, a.device}).second)
            return fail(error, name() + " uses device " + std::to_string(a.device) + " twice on its host");
        if (a.state != AdapterOnline && a.state != AdapterOffline)
            return fail(error, name() + " has state " + std::to_string(a.state) + " (1 online, 2 offline)");
        if (a.ports.size() > 4)
            return fail(error, name() + " has more than 4 ports");
        if (a.drives.size() > 64)
            return fail(error, name() + " has more than 64 drives");
        for (const Drive& d : a.drives)
            if (d.smart.size() > 32)
                return fail(error, name() + " drive " + d.id + " has more than 32 SMART attributes");
        if (!checkBinaryFiles(a, name(), error))
            return false;
        if (a.fixedStatistics && !pinnedStatisticsProblem(*a.fixedStatistics).empty())
            return fail(error, name() + " fixedStatistics: " + pinnedStatisticsProblem(*a.fixedStatistics));
    }
    return true;
}

bool validateClusters(const San& san, std::string& error)
{
    std::unordered_set<u64> ids = adapterIds(san);
    std::unordered_set<u64> clustered;
    NameSet names;
    for (const Cluster& c : san.clusters) {
        if (!names.insert(c.id).second)
            return fail(error, "cluster \"" + c.id + "\" is defined twice");
        for (const AdapterId& m : c.members) {
            if (!ids.count(m.value))
                return fail(error, "cluster \"" + c.id + "\" names unknown adapter " + adapterIdText(m.value));
            if (!clustered.insert(m.value).second)
                return fail(error, "adapter " + adapterIdText(m.value) + " is in more than one cluster");
        }
    }
    return true;
}

bool validateLuns(const San& san, std::string& error)
{
    NameSet targets;
    std::unordered_set<u64> ids = adapterIds(san);
    for (const Target& t : san.targets)
        if (!targets.insert(t.name).second)
            return fail(error, "target \"" + t.name + "\" is defined twice");
    std::unordered_set<PathKey, PathKeyHash> paths;
    NameSet names;
    names.reserve(san.luns.size());
    for (const Lun& l : san.luns) {
        auto name = [&] { return "LUN \"" + l.wwuln + "\""; };
        if (l.wwuln.empty())
            return fail(error, "a LUN has no wwuln");
        if (!names.insert(l.wwuln).second)
            return fail(error, name() + " is defined twice");
        if (l.codeSet != 1 && l.codeSet != 2)
            return fail(error, name() + " has codeSet " + std::to_string(l.codeSet) + " (1 binary, 2 text)");
        for (const LunPath& p : l.paths) {
            if (!targets.count(p.target))
                return fail(error, name() + " has a path through unknown target \"" + p.target + "\"");
            if (!paths.insert({p.target, p.lun, p.vpGroup}).second)
                return fail(error,
                            name() + " reuses LUN number " + std::to_string(p.lun) + " of target \"" + p.target + "\"");
        }
        if (l.cached && !ids.count(l.cache.adapter.value))
            return fail(error, name() + " is cached on unknown adapter " + adapterIdText(l.cache.adapter.value));
        if (l.cache.lockedRanges.size() > 16)
            return fail(error, name() + " has more than 16 locked ranges");
        if (l.local && !ids.count(l.localInfo.owner.value))
            return fail(error, name() + " belongs to unknown adapter " + adapterIdText(l.localInfo.owner.value));
    }
    return true;
}

} // namespace

bool validateSan(const San& san, std::string& error)
{
    return validateAdapters(san, error) && validateClusters(san, error) && validateLuns(san, error);
}

} // namespace sim
