// The simulated SAN as plain data. Everything the simulated library knows
// lives in one San value; the state file, scenario files and demonstration
// files are all this value written as JSON (see Scenario.h).
#pragma once

#include "model/PinnedStatistics.h"
#include "model/States.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace sim {

using u64 = std::uint64_t;
using u32 = std::uint32_t;

// Adapter identifiers are written in hexadecimal in scenario files, the way
// an administrator types them after -zek=.
struct AdapterId {
    u64 value = 0;
    bool operator==(const AdapterId&) const = default;
    auto operator<=>(const AdapterId&) const = default;
};

struct Host {
    std::string agent; // empty for the local host, else the agent address
    int hostType = 2;  // 2 Linux
    std::string systemName = "Linux";
    std::string nodeName;
    std::string osVersion;
    std::string osBuildDate;
    std::string machineName = "x86_64";
    std::string domainName = "(none)";
    std::string driverVersion;
    bool online = true; // an agent that is down does not answer
    std::vector<u32> agentVersion = {2, 103, 6, 4};
};

struct Sfp {
    std::string vendorName = "SIMOPTIC";
    std::string serialNumber;
    int driverStatus = 0;
    double temperatureC = 38.5;
    double voltage = 3.3;
    double txBiasMa = 4.8;
    double txPowerMw = 0.55;
    double rxPowerMw = 0.48;
};

struct Port {
    bool enabled = true;
    bool online = true; // link up when enabled and online
    int fcMode = 0;
    int linkRate = 3;           // PBase::FC_LINK_RATE value in use (8 Gb)
    int programmedLinkRate = 0; // 0 auto
    std::string wwnn;
    std::string wwpn;
    u32 portId = 0;
    std::string firmwareRevision = "8.07.00";
    int frameSize = 2048;
    int sfpState = 3;
    u32 executionThrottle = 64;
    int connectionMode = 1;
    int connectionOption = 2;
    bool fcipLink = false; // a port carrying an FCIP link cannot be disabled
    bool beacon = false;
    Sfp sfp;
};

struct SmartAttribute {
    int id = 0;
    std::string name;
    int value = 100;
    int worst = 100;
    int threshold = 10;
    std::string raw = "0";
    int displayType = 1;
};

struct Drive {
    std::string id; // the drive identifier the user names
    std::string vendor = "SIMSSD";
    std::string product = "FLASH-400";
    std::string revision = "1.00";
    std::string serial;
    u64 sizeBytes = 0;
    bool configured = false; // member of the pool
    AdapterId owner;         // whose configuration it carries; 0 the adapter that holds it
    bool online = true;
    bool pcieSsd = false;
    bool securityLocked = false;
    bool identityConflict = false;
    bool external = false;
    int smartStatus = 0; // 0 pass, 1 fail
    std::vector<SmartAttribute> smart;
};

struct LogRecord {
    long long time = 0;
    int severity = 5;
    std::string source;
    std::string message;
};

struct Health {
    int temperatureFront = 41;
    int temperatureRear = 44;
    int temperatureCpu = 58;
    int temperatureNvdimm = 0;
    int temperatureFcChip = 52;
    u32 driversLoadedMask = 0x7F;
    u32 errorMask = 0;
    u32 dramEccSingleBitErrors = 0;
    int failedPostTest = 0;
};

struct Nvdimm {
    bool present = false;
    std::string firmwareVersion = "12";
    std::string serialNumber;
    std::string partNumber = "NV-8G-SIM";
    int temperature = 33;
    u32 status = 2;
    bool superCap = true;
    int superCapCharged = 100;
};

// A fault makes one operation on one adapter answer with a chosen code.
struct Fault {
    AdapterId adapter;
    std::string operation; // API operation name, "*" for any
    int code = 1000;
    bool once = true;
    int firstError = 0; // for gathering operations: partial success with this inner code
};

struct Adapter {
    AdapterId id;
    std::string host;  // "" local host, else the agent address of its host
    int device = -1;   // device instance on its host, -1 when reached only through the SAN
    int viaDevice = 0; // for SAN-only adapters: the local device through which it is reached
    int state = AdapterOnline;
    std::string productName = "ZEK-8200 Caching HBA";
    std::string symbolicName;
    std::string serialNumber;
    std::string hwVersion = "B2";
    std::string swVersion = "4.2.1.7";
    std::string ubootVersion = "2.1.0";
    std::string biosVersion = "3.10";
    std::string efiVersion = "1.22";
    std::vector<std::string> capabilities = {"WRITE_BACK_CACHE", "WRITE_THROUGH_CACHE", "LOCAL_SSD_DATA_LUN"};
    std::string password = "zek";
    bool autoCluster = false;
    std::vector<Port> ports;
    std::vector<Drive> drives;
    u64 cachePoolBytes = 0; // part of the configured drives given to the cache
    Health health;
    Nvdimm nvdimm;
    std::map<std::string, std::string> files;       // adapter file store: files whose content is UTF-8 text
    std::map<std::string, std::string> binaryFiles; // the other files, base64-encoded; a name is in one map only
    std::vector<LogRecord> log;
    long long bootTime = 0;     // restart and uptime
    long long restartUntil = 0; // not answering until then
    u32 restartPolls = 0;       // polls seen while restarting; bounds a pinned clock
    long long statsClearedAt = 0;
    bool needsRestart = false;
    u32 memoryScale = 1;
    std::optional<FixedStatistics> fixedStatistics; // absent: the workload model
};

struct Cluster {
    std::string id;
    int hostClusterType = 0;
    AdapterId primary;
    AdapterId secondary;
    std::vector<AdapterId> members; // primary and secondary first, then plain members
};

struct Target {
    std::string name; // scenario handle
    int protocol = 1; // 1 FC, 2 iSCSI
    std::string wwpn;
    std::string wwnn;
    u32 portId = 0;
    std::string iscsiName;
    bool chap = false;
    std::vector<int> ports = {1}; // ports of discovery
    bool online = true;
    bool mapped = true;
    bool internal = false;
    int portalMode = 0;
    u32 maxOutstandingIo = 0;
    std::vector<AdapterId> seenBy; // empty: every adapter on the fabric
};

struct Initiator {
    int protocol = 1;
    std::string wwpn;
    std::string wwnn;
    u32 portId = 0;
    std::string iscsiName;
    bool loggedIn = true;
    bool target = false;
    bool dm = false;
    std::vector<AdapterId> seenBy;
};

struct LunPath {
    std::string target;
    u32 lun = 0;
    u32 vpGroup = 1;
    int status = 3;
};

struct LockedRange {
    u64 start = 0;
    u32 size = 0;
    bool operator==(const LockedRange&) const = default;
};

struct CacheSettings {
    AdapterId adapter; // the adapter that caches the LUN
    int mode = CacheReadWriteThrough;
    int profile = 1;
    u64 maxCacheBytes = 0;
    u32 minRead = 1;
    u32 maxRead = 2048;
    u32 minWrite = 1;
    u32 maxWrite = 2048;
    std::vector<LockedRange> lockedRanges;
    bool mirrored = false;
    AdapterId mirrorAdapter;
    u32 mirrorState = 0;
    int mirrorFlag = MirrorFlagNone;
    u64 dirtyBytes = 0;
    long long flushStarted = 0; // 0 no flush running
    u32 flushPolls = 0;         // polls seen since the start; bounds a pinned clock
    long long since = 0;
};

struct LocalLun {
    AdapterId owner;
    std::string name;
    bool readOnly = false;
    int mirrorType = LocalMirrorNone;
    AdapterId mirrorPeer;
};

struct Reservation {
    int type = 1;
    std::string key; // 16 hexadecimal digits
};

struct Lun {
    std::string wwuln; // text, or hexadecimal digits for a binary WWULN
    int codeSet = 1;   // 1 binary, 2 text
    int type = kDirectAccessLun;
    u64 sizeBytes = 0;
    std::string vendor = "SIMSTOR";
    std::string product = "VIRTUAL-DISK";
    std::string revision = "0001";
    std::string serial; // 16 hexadecimal digits
    std::string page80;
    bool online = true;
    u32 extraState = 0; // further state bits beyond those derived
    std::vector<LunPath> paths;
    Reservation reservation;
    bool cached = false;
    CacheSettings cache;
    long long statsClearedAt = 0;
    bool local = false; // carved from an adapter's drives
    LocalLun localInfo;
    std::optional<FixedIoStatistics> fixedIoStatistics; // absent: the workload model
};

struct San {
    std::string format = "hbasim-scenario";
    int version = 1;
    std::string name = "default";
    std::vector<Host> hosts;
    std::vector<Adapter> adapters;
    std::vector<Cluster> clusters;
    std::vector<Target> targets;
    std::vector<Initiator> initiators;
    std::vector<Lun> luns;
    std::vector<Fault> faults;
    u64 nextLocalLun = 1;
};

inline constexpr int kScenarioVersion = 1;

} // namespace sim
