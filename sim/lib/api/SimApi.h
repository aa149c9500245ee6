// The simulated library's root object.
#pragma once

#include "api/Backend.h"
#include "api/HAdapterGroupLunCollection.h"
#include "api/HCluster.h"
#include "api/HClusterCollection.h"
#include "api/HIsaAdapterCollection.h"
#include "api/HbaMgmtApi.h"
#include "api/Objects.h"
#include "api/SimAdapter.h"

#include "records/KClusterInfo.h"

#include <vector>

namespace sim {

class SimCluster : public HCluster {
public:
    KClusterID* getClusterId() override { return &id; }
    KClusterInfo* getClusterInfo() override { return &info; }
    std::vector<KIsaAdapterPath>* getMemberPaths() override { return &members; }
    bool getPrimaryPath(KIsaAdapterPath& out) override;
    bool isPrimaryValid() override { return primaryValid; }
    bool isSecondaryValid() override { return secondaryValid; }

    KClusterID id;
    KClusterInfo info;
    std::vector<KIsaAdapterPath> members;
    bool hasPrimary = false;
    KIsaAdapterPath primary;
    bool primaryValid = false;
    bool secondaryValid = false;
};

class SimClusterCollection : public OwningCollection<HClusterCollection, SimCluster> {
public:
    bool contains(const KClusterID& id) override { return find(id) != nullptr; }
    HCluster* find(const KClusterID& id) override;
};

class SimAdapterCollection : public OwningCollection<HIsaAdapterCollection, SimAdapter> {
public:
    bool contains(const KIsaAdapterPath& path) override { return find(path) != nullptr; }
    HIsaAdapter* find(const KIsaAdapterPath& path) override;
    HIsaAdapter* findBySymbolicName(const std::string& name) override;
    SimAdapter* byId(u64 id);
};

class SimGroupLuns : public HAdapterGroupLunCollection {};

class SimApi : public HbaMgmtApi {
public:
    void uninitialize() override {}
    int64_t initialize(HbaMgmtApi*) override { return 0; }
    e_MHBA_RETURN getLibraryVersionInfo(KLibraryVersionInfo& out) override;
    e_MHBA_RETURN getRemoteAgentVersion(PIpAddress& agent, bool* agentFound, KLibraryVersionInfo& out) override;
    void registerMsgHandler(HMsgHandler* handler) override { backend_.setHandler(handler); }
    void unregisterMsgHandler(HMsgHandler* handler) override;
    void beginClientSession() override {}
    void endClientSession() override {}
    std::string returnCodeToText(int code) override;
    bool isFailure(int code) override;
    bool textToIpAddress(const std::string& text, PIpAddress& out, std::string& error) override;
    e_MHBA_RETURN testAgentConnection(PIpAddress& agent, std::string& error) override;
    e_MHBA_RETURN saveDemonstrationFile(const std::string& file, std::string& error) override;
    e_MHBA_RETURN loadDemonstrationFile(const std::string& file, std::string& error) override;

    HIsaAdapterCollection* getAdapters() override;
    void clearAdapters() override;
    HClusterCollection* getClusters() override { return &clusters_; }
    void clearClusters() override { clusters_.clear(); }
    HAdapterGroupLunCollection* getAdapterGroupLuns() override { return &groupLuns_; }
    void clearAdapterGroupLuns() override { groupLuns_.items.clear(); }
    e_MHBA_RETURN scanAdapterGroupLuns(const std::vector<KIsaAdapterPath>& adaptersInScope,
                                       std::string& error) override;
    e_MHBA_RETURN checkAdapterPath(KIsaAdapterPath& path) override;
    e_MHBA_RETURN scanAdapters(PIpAddress& agent, uint32_t* count) override;
    e_MHBA_RETURN scanFromAdapter(const KIsaAdapterPath& path, uint32_t* count) override;
    e_MHBA_RETURN registerAenCallback(AenCallback callback) override;
    void unregisterAenCallback(AenCallback callback) override;
    e_MHBA_RETURN pollAenEvents() override;

private:
    // The agent's host must be defined and answering.
    int agentAnswers(const San& san, const std::string& agent) const;
    SimAdapter* hold(const San& san, const Adapter& a);
    int scanHost(const std::string& agent, uint32_t* count);
    void buildClusters(const San& san, const std::vector<const Adapter*>& scope);

    Backend backend_;
    SimAdapterCollection adapters_;
    SimClusterCollection clusters_;
    SimGroupLuns groupLuns_;
    bool localsPresented_ = false;
    std::string sessionHost_; // the agent the session works through; empty: this host
    AenCallback aen_ = nullptr;
    long long aenSince_ = 0;
};

} // namespace sim
