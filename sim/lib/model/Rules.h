// What the simulated adapters do with a request: each rule checks the request
// against the SAN as it stands, answers with a device code, and changes the
// SAN only when it succeeds. Callers run rules inside a state-file update.
#pragma once

#include "model/View.h"

#include <string>

namespace sim::rules {

struct CacheRequest {
    int mode = 0; // 0 stop caching, 6 purge
    int profile = 1;
    u32 maxCacheMb = 0;
    u32 minRead = 0, maxRead = 0, minWrite = 0, maxWrite = 0; // 512-byte blocks
    u64 mirrorAdapter = 0;
};

// Firmware defaults of the size windows, in 512-byte blocks.
inline constexpr u32 kDefaultMinRead = 1;
inline constexpr u32 kDefaultMaxRead = 2048;
inline constexpr u32 kDefaultMinWrite = 1;
inline constexpr u32 kDefaultMaxWrite = 2048;

// Brings time-driven state up to `now`: restarts that ended, flushes and
// purges that completed.
void settle(San& san, long long now);

int enableCache(San& san, u64 adapter, const PathRef& path, const CacheRequest& req, long long now);
int modifyCache(San& san, u64 adapter, const PathRef& path, const CacheRequest& req, bool useDefaults, long long now);
int disableCacheByWwuln(San& san, u64 adapter, const std::string& wwuln, bool viaClusterPrimary, long long now);
int startFlush(San& san, u64 adapter, const PathRef& path, long long now);
int flushProgress(San& san, u64 adapter, const PathRef& path, bool& inProgress, long long now);
int lockRange(San& san, u64 adapter, const PathRef& path, u64 start, u64 size, long long now);
int unlockRange(San& san, u64 adapter, const PathRef& path, u64 start, u64 size, long long now);
int invalidateRange(San& san, u64 adapter, const PathRef& path, u64 start, u64 end, long long now);
int clearReservation(San& san, u64 adapter, const PathRef& path, long long now);

int createLun(San& san, u64 adapter, u64 sizeBytes, const std::string& name, int mirrorType, u64 mirrorAdapter,
              std::string& newWwuln, long long now);
int modifyLun(San& san, u64 adapter, const PathRef& path, u64 sizeBytes, const std::string& name, long long now);
int setLunMirror(San& san, u64 adapter, const PathRef& path, int mirrorType, u64 mirrorAdapter, long long now);
int removeLun(San& san, u64 adapter, const PathRef& path, std::string& text, long long now);

int setPoolSize(San& san, u64 adapter, u32 megabytes, long long now);
int removePool(San& san, u64 adapter, long long now);
int addDriveToPool(San& san, u64 adapter, const std::string& drive, long long now);
int removeDriveFromPool(San& san, u64 adapter, const std::string& drive, long long now);

int createCluster(San& san, u64 adapter, u64 primary, u64 secondary, const std::string& id, int type, long long now);
int destroyCluster(San& san, u64 adapter, const std::string& id, long long now);
int addClusterMember(San& san, u64 adapter, u64 member, const std::string& id, long long now);
int removeClusterMember(San& san, u64 adapter, u64 member, const std::string& id, long long now);

int setSymbolicName(San& san, u64 adapter, const std::string& name, long long now);
int setPassword(San& san, u64 adapter, const std::string& oldPassword, const std::string& newPassword, long long now);
int factoryReset(San& san, u64 adapter, long long now);
int restart(San& san, u64 adapter, long long now);
int pollWhileRestarting(San& san, u64 adapter, long long now);
int setPortEnabled(San& san, u64 adapter, u32 port, bool enable, long long now);
int setBeacon(San& san, u64 adapter, u32 port, bool enable, long long now);
int setTargetMaxOutstandingIo(San& san, u64 adapter, const std::string& target, u32 count, long long now);
int setPortSettings(San& san, u64 adapter, u32 port, int linkRate, int option, u32 throttle, long long now);
int installFirmware(San& san, u64 adapter, const std::string& version, long long now);
int storeFile(San& san, u64 adapter, const std::string& name, const std::string& content, bool clearFirst,
              long long now);
int fetchFile(San& san, u64 adapter, const std::string& name, bool clearAfter, std::string& content, long long now);
int runNvdimmCommand(San& san, u64 adapter, int command, long long now);
int restoreDriveConfig(San& san, u64 adapter, u64 owner, long long now);
int clearLunStatistics(San& san, u64 adapter, const std::string& wwuln, long long now);
int clearStatistics(San& san, u64 adapter, long long now);
int clearLog(San& san, u64 adapter, long long now);
void appendLog(Adapter& a, long long now, int severity, const std::string& source, const std::string& message);

// Consumes a matching fault. Returns its code (0 when none) and, for a
// gathering fault, the inner code in `firstError`.
int takeFault(San& san, u64 adapter, const std::string& operation, int& firstError);
bool hasFault(const San& san, u64 adapter, const std::string& operation);

} // namespace sim::rules
