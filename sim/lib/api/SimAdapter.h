// One simulated adapter as the API hands it out. It holds only what a real
// library would cache on the host side (its path, its last description and
// the gathered collections); the adapter's own state lives in the SAN.
#pragma once

#include "api/Backend.h"
#include "api/HIsaAdapter.h"
#include "api/HLunNameIndex.h"
#include "api/Ids.h"
#include "api/Objects.h"
#include "api/SimLogView.h"
#include "model/View.h"

#include "records/KIsaAdapterInfo.h"
#include "records/KIsaAdapterPath.h"
#include "records/PUniqueID.h"

#include <functional>
#include <memory>

namespace sim {

class SimAdapter;

class SimLunNameIndex : public HLunNameIndex {
public:
    explicit SimLunNameIndex(SimAdapter& adapter) : adapter_(adapter) {}
    HLunIdList* findLuns(const PLunsForOneNameID& name) override;
    bool lookup(PBase::LUN_NAME_TYPE type, const PTargetID& target) override;
    e_MHBA_RETURN scanAll(PBase::LUN_NAME_TYPE type) override;
    e_MHBA_RETURN scanTarget(PBase::LUN_NAME_TYPE type, const PTargetID& target, uint32_t first,
                             uint32_t last) override;
    void clear();

private:
    e_MHBA_RETURN scan(PBase::LUN_NAME_TYPE type, const PTargetID* target);
    void add(const PLunsForOneNameID& key, const PLunID& id);

    SimAdapter& adapter_;
    std::vector<std::pair<PLunsForOneNameID, std::unique_ptr<SimLunIdList>>> entries_;
    std::vector<std::pair<int, PTargetID>> scannedTargets_;
    bool scannedAll_[3] = {false, false, false};
};

class SimAdapter : public HIsaAdapter {
public:
    SimAdapter(Backend& backend, const San& san, const Adapter& a);

    u64 id() const { return id_; }
    Backend& backend() { return backend_; }
    // Brings the held description and path up to date with the SAN.
    void refresh(const San& san, const Adapter& a);

    KIsaAdapterPath* getAdapterPath() override { return &path_; }
    KIsaAdapterInfo* getCachedAdapterInfo() override { return &info_; }
    KClusterID* getClusterId() override { return &cluster_; }
    HInitiatorCollection* getInitiators() override { return discoverOnce(), &initiators_; }
    void clearInitiators() override { discovered_ = true, initiators_.clear(); }
    HTargetCollection* getTargets() override { return discoverOnce(), &targets_; }
    e_MHBA_RETURN setTargetMaxOutstandingIo(const PTargetID& target, uint32_t count) override;
    void clearTargets() override { discovered_ = true, targets_.clear(); }
    HDriveCollection* getDrives() override { return &drives_; }
    void clearDrives() override;
    HDrivePoolCollection* getDrivePools() override { return &pools_; }
    HDeviceCollection* getDevices() override { return discoverOnce(), &devices_; }
    void clearDevices() override { discovered_ = true, devices_.clear(); }
    HLunCollection* getLuns() override { return &luns_; }
    void clearLuns() override;
    HLunNameIndex* getLunNameIndex() override { return &nameIndex_; }
    HLunPathTable* getLunPathTable() override { return &pathTable_; }

    e_MHBA_RETURN factoryReset(int mode) override;
    e_MHBA_RETURN setPassword(const char* account, const char* oldPassword, const char* newPassword) override;
    e_MHBA_RETURN restart(int mode) override;
    e_MHBA_RETURN saveCaptureFile(const std::string& file) override;
    e_MHBA_RETURN saveFruFile(const std::string& file) override;
    e_MHBA_RETURN restoreFruFile(const std::string& file) override;
    e_MHBA_RETURN getSystemCapture(std::string& text) override;
    e_MHBA_RETURN restoreDriveConfig(uint64_t ownerId) override;
    e_MHBA_RETURN saveCacheDump(int kind, const std::string& path) override;
    e_MHBA_RETURN updateFirmware(const char* file) override;
    e_MHBA_RETURN getFile(const char* localFile, const char* name, bool clearAfter) override;
    e_MHBA_RETURN putFile(const char* localFile, const char* name, bool clearFirst) override;

    e_MHBA_RETURN getAdapterInfo(KIsaAdapterInfo& out) override;
    e_MHBA_RETURN setSymbolicName(const char* name, size_t length) override;
    e_MHBA_RETURN getMemoryInfo(KMemoryInfo& out) override;
    e_MHBA_RETURN getAdapterStatistics(KCacheStatistics& out) override;
    e_MHBA_RETURN clearAdapterStatistics() override;
    e_MHBA_RETURN getPoolInfo(KPoolInfo& out) override;
    e_MHBA_RETURN setPoolSize(uint32_t megabytes) override;
    e_MHBA_RETURN removePool() override;
    e_MHBA_RETURN setFcPortEnabled(uint32_t portIndex, bool enable) override;
    e_MHBA_RETURN getFcInfo(uint32_t portIndex, KFcInfo& out) override;
    e_MHBA_RETURN setFcInfo(uint32_t portIndex, int32_t linkRate, int32_t connectionOption,
                            uint32_t executionThrottle) override;
    e_MHBA_RETURN getSfpInfo(uint32_t portIndex, KSfpInfo& out) override;
    e_MHBA_RETURN getAdapterHealth(KAdapterHealthInfo& out) override;
    e_MHBA_RETURN setBeacon(uint32_t portIndex, bool enable) override;
    e_MHBA_RETURN executeNvdimmCommand(int command) override;
    e_MHBA_RETURN getNvdimmInfo(KNvdimmInfo& out) override;

    e_MHBA_RETURN getTargetsAndInitiators(MHbaReturnBuffer* firstError) override;
    e_MHBA_RETURN getLunsForSpecificTarget(HTarget* target, MHbaReturnBuffer* firstError) override;
    e_MHBA_RETURN getLunIoStatistics(const uint8_t* wwuln, uint32_t wwulnLength, bool withCacheStatistics,
                                     KLunIoStatistics& out) override;
    e_MHBA_RETURN getDrivesWithErrorDetails(MHbaReturnBuffer* firstError) override;
    e_MHBA_RETURN addDriveToPoolBySsdId(const KWwulnLunID& ssdId) override;
    e_MHBA_RETURN addDriveToPool(const KDriveID& drive) override;
    e_MHBA_RETURN removeDriveFromPool(const KDriveID& drive) override;
    e_MHBA_RETURN removeDriveFromPoolBySsdId(const KWwulnLunID& ssdId) override;
    e_MHBA_RETURN getSmartDriveInfo(const KDriveID& drive) override;

    e_MHBA_RETURN createLun(uint64_t sizeBytes, const std::string& name, int mirrorType, uint64_t mirrorAdapter,
                            KWwulnLunID& newLun) override;
    e_MHBA_RETURN modifyLun(const PLunID& lun, uint64_t sizeBytes, const std::string& name) override;
    e_MHBA_RETURN setLunMirror(const PLunID& lun, int mirrorType, uint64_t mirrorAdapter) override;
    e_MHBA_RETURN removeLun(const PLunID& lun, std::string& text) override;
    e_MHBA_RETURN clearLunStatistics(const uint8_t* wwuln, uint32_t wwulnLength, bool withCacheStatistics) override;
    e_MHBA_RETURN enableCache(const PLunID& lun, int mode, int profile, uint32_t maxCache, uint32_t minRead,
                              uint32_t maxRead, uint32_t minWrite, uint32_t maxWrite, uint64_t mirrorAdapter) override;
    e_MHBA_RETURN modifyCache(const PLunID& lun, int mode, int profile, uint32_t maxCache, uint32_t minRead,
                              uint32_t maxRead, uint32_t minWrite, uint32_t maxWrite, uint64_t mirrorAdapter,
                              bool useDefaults) override;
    e_MHBA_RETURN disableCache(const KWwulnLunID& lun) override;
    e_MHBA_RETURN disableCacheByWwuln(const KWwulnLunID& lun) override;
    e_MHBA_RETURN startCacheFlush(const PLunID& lun) override;
    e_MHBA_RETURN getCacheFlushProgress(const PLunID& lun, uint32_t* inProgress) override;
    e_MHBA_RETURN lockCache(const PLunID& lun, uint64_t startLba, uint64_t sizeLba) override;
    e_MHBA_RETURN unlockCache(const PLunID& lun, uint64_t startLba, uint64_t sizeLba) override;
    e_MHBA_RETURN invalidateCache(const PLunID& lun, uint64_t startLba, uint64_t endLba) override;
    e_MHBA_RETURN getReservations(const PLunID& lun, KLunReservationInfo& out) override;
    e_MHBA_RETURN clearReservation(const PLunID& lun) override;
    e_MHBA_RETURN getCacheStatistics(KCacheInfoList& out) override;
    e_MHBA_RETURN getStatistics(KHostPcieInfo& out) override;

    e_MHBA_RETURN createCluster(const KIsaAdapterPath& primary, const KIsaAdapterPath& secondary, const KClusterID& id,
                                int hostClusterType) override;
    e_MHBA_RETURN destroyCluster(const KClusterID& id) override;
    e_MHBA_RETURN addClusterMember(const KIsaAdapterPath& member, const KClusterID& id) override;
    e_MHBA_RETURN removeClusterMember(const KIsaAdapterPath& member, const KClusterID& id) override;

    e_MHBA_RETURN clearLog() override;
    HLogView* getLogView() override { return logView_.get(); }
    HLogView* getLogViewFromFile(const std::string& file) override;
    bool saveLogFile(const std::string& file) override;
    e_MHBA_RETURN loadLog(int mode) override;

    // Runs `read` on the SAN and this adapter when the adapter answers.
    using Reader = std::function<int(const San&, const Adapter&)>;
    int withAdapter(const char* operation, const Reader& read, MHbaReturnBuffer* firstError = nullptr);
    e_MHBA_RETURN clearDriveLunStatistics(const uint8_t* wwuln, uint32_t wwulnLength);

private:
    using Rule = std::function<int(San&, long long)>;
    int apply(const char* operation, const Rule& rule, bool keepAlways = false);
    using LunRule = std::function<int(San&, long long, const PathRef&)>;
    int applyToLun(const char* operation, const PLunID& lun, const LunRule& rule, bool keepAlways = false);
    int applyToWwuln(const char* operation, const KWwulnLunID& id, bool viaPrimary);
    int writeFile(const std::string& file, const std::string& text);
    int changePool(const char* operation, const KUniqueID& drive, bool bySsdId, bool add);
    void fillLun(SimLun& lun, const San& san, const Adapter& a, const VisiblePath& p);
    e_MHBA_RETURN refreshLun(SimLun& lun);
    int gatherLunsOf(const San& san, const Adapter& a, SimTarget& target);
    // The target of that name as this adapter sees it, its internal target
    // included before the SAN holds one.
    const Target* targetNamed(const San& san, const Adapter& a, const std::string& name);
    SimLun* holdLun(const PLunID& id);
    void gatherDriveLuns(const San& san, const Adapter& a, SimTarget& target);
    void fillDriveLun(SimLun& lun, const San& san, const Adapter& a, const Drive& d);
    // True when the path is one of this adapter's drives, which no LUN or
    // cache operation may touch.
    bool presentsDrive(const PLunID& lun);
    int refuseDriveLun(const char* operation);
    std::string capture(const San& san, const Adapter& a) const;
    // The adapter reports what it sees on the fabric when it is first asked,
    // as a library that found it would have gathered that already.
    void discoverOnce();
    int gatherFabric(const San& san, const Adapter& a);

    Backend& backend_;
    u64 id_;
    KIsaAdapterPath path_;
    KIsaAdapterInfo info_;
    KClusterID cluster_;
    SimTargetCollection targets_;
    SimInitiatorCollection initiators_;
    SimDeviceCollection devices_;
    SimDriveCollection drives_;
    SimDrivePoolCollection pools_;
    SimLunCollection luns_;
    SimLunPathTable pathTable_;
    SimLunNameIndex nameIndex_;
    WwulnIndex wwulnIndex_;
    std::unique_ptr<SimLogView> logView_;
    std::unique_ptr<SimLogView> fileView_;
    bool discovered_ = false;
    Target madeInternal_; // the internal target while the SAN holds none
};

inline e_MHBA_RETURN asReturn(int code)
{
    return static_cast<e_MHBA_RETURN>(code);
}

} // namespace sim
