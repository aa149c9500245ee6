#include "api/SimApi.h"

#include "api/GroupScan.h"
#include "api/Ids.h"
#include "api/KAdapterEventNotificationInfo.h"
#include "model/Codes.h"
#include "model/Scenario.h"
#include "state/StateStore.h"

#include "records/KAdapterGroupExtendedLunInfo.h"
#include "records/KLibraryVersionInfo.h"

namespace sim {

namespace {

constexpr uint32_t kLibraryVersion[4] = {2, 103, 6, 4};

class SimEvent : public KAdapterEventNotificationInfo {
public:
    explicit SimEvent(std::string text) : text_(std::move(text)) {}
    std::string displayText() const override { return text_; }

private:
    std::string text_;
};

bool answers(const Adapter& a, long long now)
{
    return adapterAnswers(a, now);
}

} // namespace

// ---- collections ------------------------------------------------------------------

bool SimCluster::getPrimaryPath(KIsaAdapterPath& out)
{
    if (!hasPrimary)
        return false;
    out = primary;
    return true;
}

HCluster* SimClusterCollection::find(const KClusterID& id)
{
    for (const auto& c : owned())
        if (c->id == id)
            return c.get();
    return nullptr;
}

HIsaAdapter* SimAdapterCollection::find(const KIsaAdapterPath& path)
{
    for (const auto& a : owned())
        if (*a->getAdapterPath() == path)
            return a.get();
    // A path through the SAN names its adapter by identifier alone.
    for (const auto& a : owned())
        if (!path.isLocalDevice() && a->id() == path.isaHbaId() &&
            agentText(a->getAdapterPath()->ipAddrRemoteAgentHost()) == agentText(path.ipAddrRemoteAgentHost()))
            return a.get();
    return nullptr;
}

HIsaAdapter* SimAdapterCollection::findBySymbolicName(const std::string& name)
{
    if (name.empty())
        return nullptr;
    for (const auto& a : owned())
        if (name == a->getCachedAdapterInfo()->symbolicName)
            return a.get();
    return nullptr;
}

SimAdapter* SimAdapterCollection::byId(u64 id)
{
    for (const auto& a : owned())
        if (a->id() == id)
            return a.get();
    return nullptr;
}

// ---- the library ------------------------------------------------------------------

e_MHBA_RETURN SimApi::getLibraryVersionInfo(KLibraryVersionInfo& out)
{
    out.init();
    out.versionMajor = kLibraryVersion[0];
    out.versionMinor = kLibraryVersion[1];
    out.versionPatch = kLibraryVersion[2];
    out.versionBuild = kLibraryVersion[3];
    return MHBA_S_OK;
}

int SimApi::agentAnswers(const San& san, const std::string& agent) const
{
    const Host* h = findHost(san, agent);
    return h && h->online ? code::Ok : code::AgentNotAnswering;
}

e_MHBA_RETURN SimApi::getRemoteAgentVersion(PIpAddress& agent, bool* agentFound, KLibraryVersionInfo& out)
{
    if (agentFound)
        *agentFound = false;
    out.init();
    const San* san = backend_.view();
    if (!san)
        return asReturn(code::StateFileError);
    std::string host = agentText(agent);
    int rc = agentAnswers(*san, host);
    if (rc != code::Ok)
        return asReturn(host.empty() ? code::NoAdapterFound : rc);
    const Host* h = findHost(*san, host);
    if (agentFound)
        *agentFound = !host.empty();
    const std::vector<u32>& v = host.empty() ? std::vector<u32>(kLibraryVersion, kLibraryVersion + 4) : h->agentVersion;
    out.versionMajor = v.size() > 0 ? v[0] : 0;
    out.versionMinor = v.size() > 1 ? v[1] : 0;
    out.versionPatch = v.size() > 2 ? v[2] : 0;
    out.versionBuild = v.size() > 3 ? v[3] : 0;
    for (const Adapter& a : san->adapters)
        if (a.host == host)
            return MHBA_S_OK;
    return asReturn(host.empty() ? code::NoAdapterFound : code::AgentHasNoAdapter);
}

void SimApi::unregisterMsgHandler(HMsgHandler* handler)
{
    if (backend_.handler() == handler)
        backend_.setHandler(nullptr);
}

std::string SimApi::returnCodeToText(int code)
{
    return code::text(code);
}

bool SimApi::isFailure(int code)
{
    return code::isFailure(code);
}

bool SimApi::textToIpAddress(const std::string& text, PIpAddress& out, std::string& error)
{
    return parseAgentAddress(text, out, error);
}

e_MHBA_RETURN SimApi::testAgentConnection(PIpAddress& agent, std::string& error)
{
    const San* san = backend_.view();
    if (!san)
        return asReturn(code::StateFileError);
    std::string host = agentText(agent);
    if (agentAnswers(*san, host) == code::Ok) {
        // From now on this session works through that agent: its adapters
        // are the ones present without a scan.
        if (!localsPresented_)
            sessionHost_ = host;
        return MHBA_S_OK;
    }
    error = "No remote agent answers at " + host;
    return MHBA_E_AGENT_NOT_RESPONDING;
}

e_MHBA_RETURN SimApi::saveDemonstrationFile(const std::string& file, std::string& error)
{
    const San* san = backend_.view();
    if (!san)
        return asReturn(code::StateFileError);
    San copy = *san;
    copy.faults.clear(); // a demonstration shows the SAN, not the test bench
    if (!writeTextFileAtomically(file, scenarioToText(copy), error))
        return asReturn(code::FileError);
    return MHBA_S_OK;
}

e_MHBA_RETURN SimApi::loadDemonstrationFile(const std::string& file, std::string& error)
{
    if (!backend_.loadDemonstration(file, error)) {
        backend_.warning(error);
        return asReturn(code::FileError);
    }
    adapters_.clear();
    clusters_.clear();
    groupLuns_.items.clear();
    localsPresented_ = false;
    return MHBA_S_OK;
}

SimAdapter* SimApi::hold(const San& san, const Adapter& a)
{
    SimAdapter* held = adapters_.byId(a.id.value);
    if (held) {
        held->refresh(san, a);
        return held;
    }
    return adapters_.add(std::make_unique<SimAdapter>(backend_, san, a));
}

HIsaAdapterCollection* SimApi::getAdapters()
{
    if (!localsPresented_) {
        localsPresented_ = true;
        if (const San* san = backend_.view())
            for (const Adapter& a : san->adapters)
                if (a.host == sessionHost_ && a.device >= 0)
                    hold(*san, a);
    }
    return &adapters_;
}

void SimApi::clearAdapters()
{
    localsPresented_ = true; // from now on only scans and checks bring adapters in
    adapters_.clear();
}

e_MHBA_RETURN SimApi::checkAdapterPath(KIsaAdapterPath& path)
{
    const San* san = backend_.view();
    if (!san)
        return asReturn(code::StateFileError);
    std::string agent = agentText(path.ipAddrRemoteAgentHost());
    if (!agent.empty() && agentAnswers(*san, agent) != code::Ok)
        return MHBA_E_AGENT_NOT_RESPONDING;
    const Adapter* a = adapterForPath(*san, path);
    if (!a)
        return MHBA_E_OBJECT_NOT_FOUND;
    if (a->state != AdapterOnline)
        return asReturn(code::AdapterNotResponding);
    localsPresented_ = true;
    path = *hold(*san, *a)->getAdapterPath();
    return MHBA_S_OK;
}

void SimApi::buildClusters(const San& san, const std::vector<const Adapter*>& scope)
{
    auto inScope = [&](u64 id) {
        for (const Adapter* a : scope)
            if (a->id.value == id)
                return true;
        return false;
    };
    auto valid = [&](const AdapterId& id) {
        const Adapter* a = findAdapter(san, id.value);
        return a && a->state == 1;
    };
    for (const Cluster& c : san.clusters) {
        bool touches = false;
        for (const AdapterId& m : c.members)
            touches = touches || inScope(m.value);
        if (!touches || clusters_.contains(clusterId(c.id)))
            continue;
        auto held = std::make_unique<SimCluster>();
        held->id = clusterId(c.id);
        held->info.primaryAdapterId = findAdapter(san, c.primary.value) ? c.primary.value : 0;
        held->info.secondaryAdapterId = findAdapter(san, c.secondary.value) ? c.secondary.value : 0;
        for (const AdapterId& m : c.members)
            if (const Adapter* a = findAdapter(san, m.value))
                held->members.push_back(adapterPath(*a));
        if (const Adapter* p = findAdapter(san, c.primary.value)) {
            held->hasPrimary = true;
            held->primary = adapterPath(*p);
        }
        held->primaryValid = valid(c.primary);
        held->secondaryValid = valid(c.secondary);
        clusters_.add(std::move(held));
    }
    auto pseudo = std::make_unique<SimCluster>();
    for (const Adapter* a : scope)
        if (!clusterOf(san, a->id.value))
            pseudo->members.push_back(adapterPath(*a));
    if (!pseudo->members.empty() && !clusters_.contains(KClusterID()))
        clusters_.add(std::move(pseudo));
}

int SimApi::scanHost(const std::string& agent, uint32_t* count)
{
    if (count)
        *count = 0;
    const San* san = backend_.view();
    if (!san)
        return code::StateFileError;
    if (!agent.empty() && agentAnswers(*san, agent) != code::Ok)
        return code::AgentNotAnswering;
    std::vector<const Adapter*> scope;
    for (const Adapter& a : san->adapters)
        if (a.host == agent)
            scope.push_back(&a);
    if (scope.empty())
        return agent.empty() ? code::NoAdapterFound : code::AgentHasNoAdapter;
    localsPresented_ = true;
    for (const Adapter* a : scope)
        hold(*san, *a);
    buildClusters(*san, scope);
    if (count)
        *count = static_cast<uint32_t>(scope.size());
    return code::Ok;
}

e_MHBA_RETURN SimApi::scanAdapters(PIpAddress& agent, uint32_t* count)
{
    return asReturn(scanHost(agentText(agent), count));
}

e_MHBA_RETURN SimApi::scanFromAdapter(const KIsaAdapterPath& path, uint32_t* count)
{
    const San* san = backend_.view();
    if (!san)
        return asReturn(code::StateFileError);
    // The scan runs from the host side, so an adapter that is down still
    // shows where it stands.
    const Adapter* a = adapterForPath(*san, path);
    if (!a)
        return MHBA_E_OBJECT_NOT_FOUND;
    // A fault on the adapter's scan stands for a rescan that the adapter
    // could not answer; no earlier objects are kept either way.
    if (int const injected = backend_.fault(a->id.value, "scanFromAdapter"))
        if (!code::keepsChange(injected))
            return asReturn(injected);
    std::string host = a->host;
    return asReturn(scanHost(host, count));
}

e_MHBA_RETURN SimApi::scanAdapterGroupLuns(const std::vector<KIsaAdapterPath>& adaptersInScope, std::string& error)
{
    const San* san = backend_.view();
    if (!san) {
        error = code::text(code::StateFileError);
        return asReturn(code::StateFileError);
    }
    long long now = backend_.now();
    AdapterGroupScan scan(*san, groupLuns_.items);
    for (const KIsaAdapterPath& path : adaptersInScope) {
        const Adapter* a = adapterForPath(*san, path);
        if (!a || !answers(*a, now))
            continue;
        // Adapters reached directly are better to ask than those seen through the SAN.
        scan.addAdapter(*a, static_cast<KAdapterGroupExtendedLunInfo::PREFERRED_ADAPTER_TYPE>(a->device >= 0 ? 2 : 1));
    }
    return MHBA_S_OK;
}

e_MHBA_RETURN SimApi::registerAenCallback(AenCallback callback)
{
    if (!callback)
        return MHBA_E_INVALID_ARG;
    aen_ = callback;
    aenSince_ = backend_.now();
    return MHBA_S_OK;
}

void SimApi::unregisterAenCallback(AenCallback callback)
{
    if (aen_ == callback)
        aen_ = nullptr;
}

e_MHBA_RETURN SimApi::pollAenEvents()
{
    if (!aen_)
        return MHBA_E_INVALID_ARG;
    const San* san = backend_.view();
    if (!san)
        return asReturn(code::StateFileError);
    // New records in the logs of the local adapters are the events.
    long long newest = aenSince_;
    for (const Adapter& a : san->adapters) {
        if (!a.host.empty())
            continue;
        for (const LogRecord& r : a.log) {
            if (r.time <= aenSince_)
                continue;
            aen_(SimEvent("-zek=" + adapterIdText(a.id.value) + " " + r.source + ": " + r.message));
            newest = std::max(newest, r.time);
        }
    }
    aenSince_ = newest;
    return MHBA_S_OK;
}

} // namespace sim
