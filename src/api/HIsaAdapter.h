// One adapter, as the library hands it out from the adapter collection.
//
// Slot order matters; see HbaMgmtApi.h. The gathering operations work by
// clear and fill: a command clears what it wants fresh, asks for it to be
// gathered, then walks the collections. Everything returned by pointer
// belongs to the library and stays good until the matching clear or a new
// scan. The real interface has further operations past the last one here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "api/ApiForward.h"
#include "api/MhbaReturn.h"

class HIsaAdapter {
public:
    virtual ~HIsaAdapter() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}

    // ---- identity and the collections of what the adapter sees ----------
    virtual KIsaAdapterPath* getAdapterPath() = 0;
    // The description held in memory, without asking the device.
    virtual KIsaAdapterInfo* getCachedAdapterInfo() = 0;
    // An empty identifier when the adapter is in no cluster.
    virtual KClusterID* getClusterId() = 0;
    virtual HInitiatorCollection* getInitiators() = 0;
    virtual void clearInitiators() = 0;
    virtual HTargetCollection* getTargets() = 0;
    virtual e_MHBA_RETURN setTargetMaxOutstandingIo(const PTargetID& target, uint32_t count) = 0;
    virtual void clearTargets() = 0;
    virtual HDriveCollection* getDrives() = 0;
    virtual void clearDrives() = 0;
    virtual HDrivePoolCollection* getDrivePools() = 0;
    virtual void reserved_16() {}
    virtual HDeviceCollection* getDevices() = 0;
    virtual void clearDevices() = 0;
    virtual HLunCollection* getLuns() = 0;
    virtual void clearLuns() = 0;
    virtual void reserved_21() {}
    virtual void reserved_22() {}
    virtual HLunNameIndex* getLunNameIndex() = 0;
    virtual void reserved_24() {}
    virtual HLunPathTable* getLunPathTable() = 0;
    virtual void reserved_26() {}
    virtual void reserved_27() {}

    // ---- maintenance -------------------------------------------------------
    // Always called with 0; 1 is success with a restart required.
    virtual e_MHBA_RETURN factoryReset(int mode) = 0;
    virtual e_MHBA_RETURN setPassword(const char* account, const char* oldPassword, const char* newPassword) = 0;
    // Always called with 1; the adapter then stops answering for a while.
    virtual e_MHBA_RETURN restart(int mode) = 0;
    virtual e_MHBA_RETURN saveCaptureFile(const std::string& file) = 0;
    virtual e_MHBA_RETURN saveFruFile(const std::string& file) = 0;
    virtual e_MHBA_RETURN restoreFruFile(const std::string& file) = 0;
    // One human-readable text of the adapter's state.
    virtual e_MHBA_RETURN getSystemCapture(std::string& text) = 0;
    virtual e_MHBA_RETURN restoreDriveConfig(uint64_t ownerId) = 0;
    // Always called with 2; writes the cache information into `path`.
    virtual e_MHBA_RETURN saveCacheDump(int kind, const std::string& path) = 0;
    // 1 when a restart is needed.
    virtual e_MHBA_RETURN updateFirmware(const char* file) = 0;
    // `name` may be null: the adapter then picks its own file.
    virtual e_MHBA_RETURN getFile(const char* localFile, const char* name, bool clearAfter) = 0;
    virtual e_MHBA_RETURN putFile(const char* localFile, const char* name, bool clearFirst) = 0;
    virtual void reserved_40() {}
    virtual void reserved_41() {}

    // ---- adapter, pool, ports and health -----------------------------------
    // Asks the device; non-zero means the adapter did not answer.
    virtual e_MHBA_RETURN getAdapterInfo(KIsaAdapterInfo& out) = 0;
    // 1 is success with a restart required.
    virtual e_MHBA_RETURN setSymbolicName(const char* name, size_t length) = 0;
    virtual e_MHBA_RETURN getMemoryInfo(KMemoryInfo& out) = 0;
    virtual e_MHBA_RETURN getAdapterStatistics(KCacheStatistics& out) = 0;
    virtual e_MHBA_RETURN clearAdapterStatistics() = 0;
    virtual e_MHBA_RETURN getPoolInfo(KPoolInfo& out) = 0;
    virtual e_MHBA_RETURN setPoolSize(uint32_t megabytes) = 0;
    virtual e_MHBA_RETURN removePool() = 0;
    // Ports are counted from 0 here. 1015 when the port cannot be disabled.
    virtual e_MHBA_RETURN setFcPortEnabled(uint32_t portIndex, bool enable) = 0;
    virtual e_MHBA_RETURN getFcInfo(uint32_t portIndex, KFcInfo& out) = 0;
    // The link rate is a PBase::FC_LINK_RATE and the option a
    // KFcInfo::PROGRAMMED_CONNECTION_OPTION, both passed as their 32-bit value.
    virtual e_MHBA_RETURN setFcInfo(uint32_t portIndex, int32_t linkRate, int32_t connectionOption,
                                    uint32_t executionThrottle) = 0;
    virtual e_MHBA_RETURN getSfpInfo(uint32_t portIndex, KSfpInfo& out) = 0;
    virtual void reserved_54() {}
    virtual e_MHBA_RETURN getAdapterHealth(KAdapterHealthInfo& out) = 0;
    virtual e_MHBA_RETURN setBeacon(uint32_t portIndex, bool enable) = 0;
    virtual e_MHBA_RETURN executeNvdimmCommand(int command) = 0;
    // 1003 when the adapter has no NVDIMM support.
    virtual e_MHBA_RETURN getNvdimmInfo(KNvdimmInfo& out) = 0;
    virtual void reserved_59() {}

    // ---- gathering targets, LUNs and drives --------------------------------
    // Fills targets, initiators and devices. 2 is partial success, with the
    // first inner failure in `firstError`.
    virtual e_MHBA_RETURN getTargetsAndInitiators(MHbaReturnBuffer* firstError) = 0;
    // Fills the LUN collection and the target's LUN identifier list.
    virtual e_MHBA_RETURN getLunsForSpecificTarget(HTarget* target, MHbaReturnBuffer* firstError) = 0;
    virtual void reserved_62() {}
    virtual e_MHBA_RETURN getLunIoStatistics(const uint8_t* wwuln, uint32_t wwulnLength, bool withCacheStatistics,
                                             KLunIoStatistics& out) = 0;
    virtual void reserved_64() {}
    // Fills drives and pools. 2 is partial success, as above.
    virtual e_MHBA_RETURN getDrivesWithErrorDetails(MHbaReturnBuffer* firstError) = 0;
    virtual e_MHBA_RETURN addDriveToPoolBySsdId(const KWwulnLunID& ssdId) = 0;
    virtual e_MHBA_RETURN addDriveToPool(const KDriveID& drive) = 0;
    virtual e_MHBA_RETURN removeDriveFromPool(const KDriveID& drive) = 0;
    virtual e_MHBA_RETURN removeDriveFromPoolBySsdId(const KWwulnLunID& ssdId) = 0;
    virtual void reserved_70() {}
    // Reads SMART data into the drive's held KDriveInfo.
    virtual e_MHBA_RETURN getSmartDriveInfo(const KDriveID& drive) = 0;
    virtual void reserved_72() {}

    // ---- LUNs and their cache ----------------------------------------------
    // On the adapter's own storage; gives back the new LUN's WWULN.
    virtual e_MHBA_RETURN createLun(uint64_t sizeBytes, const std::string& name, int mirrorType, uint64_t mirrorAdapter,
                                    KWwulnLunID& newLun) = 0;
    virtual e_MHBA_RETURN modifyLun(const PLunID& lun, uint64_t sizeBytes, const std::string& name) = 0;
    virtual e_MHBA_RETURN setLunMirror(const PLunID& lun, int mirrorType, uint64_t mirrorAdapter) = 0;
    // May leave a failure text in `text`.
    virtual e_MHBA_RETURN removeLun(const PLunID& lun, std::string& text) = 0;
    virtual e_MHBA_RETURN clearLunStatistics(const uint8_t* wwuln, uint32_t wwulnLength, bool withCacheStatistics) = 0;
    // Sizes travel in 512-byte blocks; a mirror adapter of 0 means none.
    // 1020 when the LUN is already cached.
    virtual e_MHBA_RETURN enableCache(const PLunID& lun, int mode, int profile, uint32_t maxCache, uint32_t minRead,
                                      uint32_t maxRead, uint32_t minWrite, uint32_t maxWrite,
                                      uint64_t mirrorAdapter) = 0;
    // 1021 when the LUN is not cached.
    virtual e_MHBA_RETURN modifyCache(const PLunID& lun, int mode, int profile, uint32_t maxCache, uint32_t minRead,
                                      uint32_t maxRead, uint32_t minWrite, uint32_t maxWrite, uint64_t mirrorAdapter,
                                      bool useDefaults) = 0;
    // 185 when another adapter caches the LUN.
    virtual e_MHBA_RETURN disableCache(const KWwulnLunID& lun) = 0;
    // The same, addressed to a cluster's primary adapter.
    virtual e_MHBA_RETURN disableCacheByWwuln(const KWwulnLunID& lun) = 0;
    virtual e_MHBA_RETURN startCacheFlush(const PLunID& lun) = 0;
    // Sets the flag to 0 once the flush has ended.
    virtual e_MHBA_RETURN getCacheFlushProgress(const PLunID& lun, uint32_t* inProgress) = 0;
    virtual e_MHBA_RETURN lockCache(const PLunID& lun, uint64_t startLba, uint64_t sizeLba) = 0;
    virtual e_MHBA_RETURN unlockCache(const PLunID& lun, uint64_t startLba, uint64_t sizeLba) = 0;
    // The third argument is an end, not a size.
    virtual e_MHBA_RETURN invalidateCache(const PLunID& lun, uint64_t startLba, uint64_t endLba) = 0;
    virtual e_MHBA_RETURN getReservations(const PLunID& lun, KLunReservationInfo& out) = 0;
    virtual e_MHBA_RETURN clearReservation(const PLunID& lun) = 0;
    virtual void reserved_89() {}
    virtual e_MHBA_RETURN getCacheStatistics(KCacheInfoList& out) = 0;
    virtual e_MHBA_RETURN getStatistics(KHostPcieInfo& out) = 0;

    // ---- clusters ------------------------------------------------------------
    virtual e_MHBA_RETURN createCluster(const KIsaAdapterPath& primary, const KIsaAdapterPath& secondary,
                                        const KClusterID& id, int hostClusterType) = 0;
    // Removes all adapters from the cluster.
    virtual e_MHBA_RETURN destroyCluster(const KClusterID& id) = 0;
    virtual e_MHBA_RETURN addClusterMember(const KIsaAdapterPath& member, const KClusterID& id) = 0;
    virtual e_MHBA_RETURN removeClusterMember(const KIsaAdapterPath& member, const KClusterID& id) = 0;

    // ---- log -------------------------------------------------------------------
    virtual e_MHBA_RETURN clearLog() = 0;
    virtual void reserved_97() {}
    // The view of the log that loadLog fetched.
    virtual HLogView* getLogView() = 0;
    // Null when the file cannot be read as a saved log.
    virtual HLogView* getLogViewFromFile(const std::string& file) = 0;
    virtual bool saveLogFile(const std::string& file) = 0;
    // Always called with 0.
    virtual e_MHBA_RETURN loadLog(int mode) = 0;
};
