#include "model/DefaultSan.h"

#include "model/Scenario.h"
#include "model/States.h"
#include "state/Clock.h"

#include <cstdio>

namespace sim {

namespace {

constexpr u64 GiB = 1024ull * 1024 * 1024;
constexpr u64 kDev0 = 0x2000001B32A10C00ull;
constexpr u64 kDev1 = 0x2000001B32A10D00ull;
constexpr u64 kSanOnly = 0x2000001B32A10E00ull;
constexpr u64 kSanOffline = 0x2000001B32A10F00ull;
constexpr u64 kRemote = 0x2000001B32B20100ull;
constexpr const char* kAgent = "127.0.10.1";

Host localHost()
{
    Host h;
    h.nodeName = "sanhost01";
    h.osVersion = "5.15.0-91-generic";
    h.osBuildDate = "#101-Ubuntu SMP Tue Nov 14 13:30:08 UTC 2023";
    h.domainName = "lab.example";
    h.driverVersion = "zek 4.2.1.7";
    return h;
}

Host agentHost()
{
    Host h = localHost();
    h.agent = kAgent;
    h.nodeName = "sanhost02";
    return h;
}

std::vector<SmartAttribute> smartAttributes(int wear)
{
    return {
        {5, "Reallocated_Sector_Ct", 100, 100, 10, "0", 1},
        {9, "Power_On_Hours", 98, 98, 0, "8812", 1},
        {12, "Power_Cycle_Count", 99, 99, 0, "41", 1},
        {177, "Wear_Leveling_Count", 100 - wear, 100 - wear, 5, std::to_string(wear * 37), 1},
        {181, "Program_Fail_Cnt_Total", 100, 100, 10, "0", 2},
        {194, "Temperature_Celsius", 67, 55, 0, "33", 1},
        {241, "Total_LBAs_Written", 99, 99, 0, "30877429301", 2},
    };
}

Adapter makeAdapter(u64 id, const std::string& host, int device, const std::string& name, int serial)
{
    Adapter a;
    a.id.value = id;
    a.host = host;
    a.device = device;
    a.symbolicName = name;
    char sn[32];
    std::snprintf(sn, sizeof sn, "ZK%08d", serial);
    a.serialNumber = sn;
    a.ports = {makePort(id, 0), makePort(id, 1)};
    return a;
}

void addDrives(Adapter& a, int count, int configured)
{
    for (int i = 0; i < count; ++i)
        a.drives.push_back(makeDrive(a.id.value, i, 400ull * 1000 * 1000 * 1000, i < configured));
}

std::vector<Adapter> adapters(long long now)
{
    Adapter dev0 = makeAdapter(kDev0, "", 0, "zek-prod-a", 1001);
    dev0.capabilities.push_back("NVDIMM_DATA_LUN");
    dev0.nvdimm.present = true;
    dev0.nvdimm.serialNumber = "NV0000A1C3";
    dev0.health.temperatureNvdimm = 35;
    dev0.ports[1].fcipLink = true;
    addDrives(dev0, 4, 3);
    dev0.cachePoolBytes = 800 * GiB;
    dev0.log = makeLog(now, 36);

    Adapter dev1 = makeAdapter(kDev1, "", 1, "zek-prod-b", 1002);
    // This model lacks the local data LUN feature.
    dev1.capabilities = {"WRITE_BACK_CACHE", "WRITE_THROUGH_CACHE"};
    addDrives(dev1, 4, 2);
    dev1.cachePoolBytes = 600 * GiB;
    dev1.log = makeLog(now - 3600, 24);

    Adapter sanOnly = makeAdapter(kSanOnly, "", -1, "zek-dr-site", 1003);
    sanOnly.viaDevice = 0;
    addDrives(sanOnly, 2, 2);
    sanOnly.cachePoolBytes = 700 * GiB;
    sanOnly.log = makeLog(now - 7200, 12);

    Adapter offline = makeAdapter(kSanOffline, "", -1, "zek-spare", 1004);
    offline.viaDevice = 0;
    offline.state = AdapterOffline;

    Adapter remote = makeAdapter(kRemote, kAgent, 0, "zek-remote", 2001);
    addDrives(remote, 2, 1);
    remote.cachePoolBytes = 300 * GiB;
    remote.log = makeLog(now - 600, 12);

    std::vector<Adapter> all = {dev0, dev1, sanOnly, offline, remote};
    for (Adapter& a : all) {
        a.bootTime = now - 3 * 86400 - 4321;
        a.statsClearedAt = a.bootTime;
    }
    return all;
}

Target fcTarget(const std::string& name, u64 wwpn, u64 wwnn, u32 portId, std::vector<int> ports)
{
    Target t;
    t.name = name;
    t.wwpn = hex16(wwpn);
    t.wwnn = hex16(wwnn);
    t.portId = portId;
    t.ports = std::move(ports);
    return t;
}

std::vector<Target> targets()
{
    Target iscsi;
    iscsi.name = "iscsi-vault";
    iscsi.protocol = 2;
    iscsi.iscsiName = "iqn.2004-04.com.simstor:vault.tgt01";
    iscsi.chap = true;
    iscsi.ports = {1};
    iscsi.portalMode = 3;

    Target internal = fcTarget("internal-dev0", 0x2100001B32A10C00ull, 0x2000001B32A10C00ull, 0x010500, {1, 2});
    internal.internal = true;
    internal.seenBy = {{kDev0}};

    return {
        fcTarget("array-a-spa", 0x5006016039A01122ull, 0x5006016089A01122ull, 0x010200, {1}),
        fcTarget("array-a-spb", 0x5006016839A01122ull, 0x5006016089A01122ull, 0x020200, {2}),
        fcTarget("array-b", 0x21000024FF3C5A10ull, 0x20000024FF3C5A10ull, 0x010300, {1, 2}),
        iscsi,
        internal,
    };
}

LunPath path(const std::string& target, u32 lun, int status = 3)
{
    LunPath p;
    p.target = target;
    p.lun = lun;
    p.status = status;
    return p;
}

Lun sanLun(const std::string& wwuln, u64 size, const std::string& serial, const std::string& page80,
           std::vector<LunPath> paths)
{
    Lun l;
    l.wwuln = wwuln;
    l.sizeBytes = size;
    l.serial = serial;
    l.page80 = page80;
    l.paths = std::move(paths);
    return l;
}

Lun cachedMirroredLun()
{
    Lun l = sanLun("60060160A1B2C3D4E5F6000000000001", 200 * GiB, "0000A1B2C3D40001", "APM00123400001",
                   {path("array-a-spa", 0, 3), path("array-a-spb", 0, 6)});
    l.cached = true;
    CacheSettings& c = l.cache;
    c.adapter.value = kDev0;
    c.mode = CacheReadWriteBack;
    c.profile = 2;
    c.maxCacheBytes = 64 * GiB;
    c.lockedRanges = {{0, 2048}, {1048576, 8192}};
    c.mirrored = true;
    c.mirrorAdapter.value = kDev1;
    c.mirrorState = kMirrorConfigured | kMirrorInSynchrony;
    c.mirrorFlag = MirrorPeerDone;
    c.dirtyBytes = 512ull * 1024 * 1024;
    l.reservation = {3, "0123456789ABCDEF"};
    return l;
}

Lun controllerLun()
{
    Lun l = sanLun("60060160A1B2C3D4E5F60000000000FF", 0, "0000A1B2C3D400FF", "", {path("array-a-spa", 31)});
    l.type = kSanControllerLun;
    l.product = "LUNZ";
    l.extraState = kLunStorageControllerLun;
    return l;
}

Lun peerCachedLun()
{
    Lun l =
        sanLun("600A0B80002A1C3D0000000052B2A001", 500 * GiB, "002A1C3D0000A001", "SV0B2A001", {path("array-b", 1)});
    l.vendor = "SIMSTORB";
    l.cached = true;
    l.cache.adapter.value = kDev1;
    l.cache.mode = CacheReadWriteThrough;
    l.cache.profile = 4;
    return l;
}

Lun dataLun()
{
    Lun l = sanLun("2000001B32A10C000000000000000001", 50 * GiB, "0000000000000001", "", {path("internal-dev0", 0)});
    l.vendor = "ZEK";
    l.product = "LOCAL-SSD-LUN";
    l.local = true;
    l.localInfo.owner.value = kDev0;
    l.localInfo.name = "scratch";
    return l;
}

std::vector<Lun> luns()
{
    Lun uncached = sanLun("60060160A1B2C3D4E5F6000000000002", 100 * GiB, "0000A1B2C3D40002", "APM00123400002",
                          {path("array-a-spa", 1), path("array-a-spb", 1, 6)});
    Lun big =
        sanLun("600A0B80002A1C3D0000000052B2A002", 2048 * GiB, "002A1C3D0000A002", "SV0B2A002", {path("array-b", 2)});
    big.vendor = "SIMSTORB";
    Lun offline = sanLun("600A0B80002A1C3D0000000052B2A003", 10 * GiB, "002A1C3D0000A003", "", {path("array-b", 3, 1)});
    offline.vendor = "SIMSTORB";
    offline.online = false;
    Lun textName =
        sanLun("vault.example:lun-archive-07", 750 * GiB, "0000000000000707", "VLT07", {path("iscsi-vault", 0)});
    textName.codeSet = 2;
    textName.vendor = "VAULTSIM";
    textName.product = "ISCSI-VOL";
    Lun tape = sanLun("600A0B80002A1C3D0000000052B2A0F0", 0, "002A1C3D0000A0F0", "", {path("array-b", 8)});
    tape.type = kSequentialAccessLun;
    tape.product = "VIRTUAL-TAPE";
    return {cachedMirroredLun(), uncached, controllerLun(), peerCachedLun(), big, offline, textName, tape, dataLun()};
}

std::vector<Initiator> initiators()
{
    Initiator host;
    host.wwpn = "10000090FA1B2C3D";
    host.wwnn = "20000090FA1B2C3D";
    host.portId = 0x010100;
    Initiator peer;
    peer.wwpn = "2100001B32A10D00";
    peer.wwnn = "2000001B32A10D00";
    peer.portId = 0x010600;
    peer.target = true;
    peer.dm = true;
    Initiator iscsi;
    iscsi.protocol = 2;
    iscsi.iscsiName = "iqn.1994-05.com.example:sanhost01";
    iscsi.loggedIn = false;
    return {host, peer, iscsi};
}

} // namespace

std::string hex16(u64 value)
{
    char buf[24];
    std::snprintf(buf, sizeof buf, "%016llX", static_cast<unsigned long long>(value));
    return buf;
}

Port makePort(u64 adapterId, int index)
{
    Port p;
    u64 base = adapterId & 0x0000FFFFFFFFFFFFull;
    p.wwnn = hex16(0x2000000000000000ull | base);
    p.wwpn = hex16((0x2100000000000000ull + (static_cast<u64>(index) << 48)) | base);
    p.portId = 0x010000u + static_cast<u32>((adapterId >> 8) & 0xFF) * 16 + static_cast<u32>(index);
    p.sfp.serialNumber = "SF" + hex16(base).substr(8) + std::to_string(index);
    return p;
}

Drive makeDrive(u64 adapterId, int index, u64 sizeBytes, bool configured)
{
    Drive d;
    // A world-wide name, as SSDs carry: vendor prefix, adapter, slot.
    d.id = hex16(0x5000C50000000000ull | ((adapterId & 0xFFFFFFFFull) << 8) | static_cast<u64>(index & 0xFF));
    d.serial = "S" + hex16(adapterId * 16 + static_cast<u64>(index)).substr(4);
    d.sizeBytes = sizeBytes;
    d.configured = configured;
    d.smart = smartAttributes(index * 3 + 2);
    return d;
}

std::vector<LogRecord> makeLog(long long now, int count)
{
    static const struct {
        int severity;
        const char* source;
        const char* message;
    } kinds[] = {
        {5, "cachemgr", "Cache pool online, %d SSDs in pool"},  {4, "fcdrv", "Port FC%d link up at 8 Gb/s"},
        {3, "fcdrv", "Port FC%d link down, waiting for light"}, {5, "cluster", "Peer heartbeat restored after %d ms"},
        {2, "cachemgr", "Write-back flush retried on LUN %d"},  {6, "scsimid", "Inquiry data refreshed for %d LUNs"},
        {7, "system", "Configuration saved, generation %d"},    {1, "adapter", "Watchdog reset of core %d"},
        {0, "unknown", "Unclassified event code %d"},           {3, "ssd", "Drive %d wear level above 80 percent"},
    };
    std::vector<LogRecord> log;
    for (int i = 0; i < count; ++i) {
        const auto& k = kinds[(i * 7) % 10];
        char text[256];
        std::snprintf(text, sizeof text, k.message, 1 + i % 4);
        log.push_back({now - static_cast<long long>(count - i) * 1800, k.severity, k.source, text});
    }
    return log;
}

San defaultSan()
{
    long long now = simNow();
    San san;
    san.hosts = {localHost(), agentHost()};
    san.adapters = adapters(now);
    Cluster c;
    c.id = "prodcluster";
    c.primary.value = kDev0;
    c.secondary.value = kDev1;
    c.members = {c.primary, c.secondary};
    san.clusters = {c};
    san.targets = targets();
    san.initiators = initiators();
    san.luns = luns();
    for (Lun& l : san.luns)
        l.cache.since = now - 86400;
    san.nextLocalLun = 2;
    return san;
}

} // namespace sim
