#include "api/Fill.h"

#include "api/Ids.h"
#include "model/AdapterStorage.h"
#include "model/Rules.h"
#include "model/States.h"
#include "model/View.h"
#include "model/Workload.h"

#include "records/KAdapterHealthInfo.h"
#include "records/KCacheStatistics.h"
#include "records/KDriveInfo.h"
#include "records/KFcInfo.h"
#include "records/KHostPcieInfo.h"
#include "records/KInitiatorInfo.h"
#include "records/KIsaAdapterInfo.h"
#include "records/KLogEntry.h"
#include "records/KLunInfo.h"
#include "records/KLunIoStatistics.h"
#include "records/KLunPathInfo.h"
#include "records/KLunReservationInfo.h"
#include "records/KMemoryInfo.h"
#include "records/KNvdimmInfo.h"
#include "records/KPoolInfo.h"
#include "records/KSfpInfo.h"
#include "records/KTargetInfo.h"
#include "statistics/KCacheInfoList.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace sim {

// The model's states go into the records as they are.
constexpr bool sameNumber(long long model, long long record)
{
    return model == record;
}
static_assert(sameNumber(AdapterOnline, KIsaAdapterInfo::ADAPTER_STATE_ONLINE));
static_assert(sameNumber(AdapterOffline, KIsaAdapterInfo::ADAPTER_STATE_OFFLINE));
static_assert(sameNumber(LunNotCached, KLunInfo::CACHE_STATE_NOT_CACHED));
static_assert(sameNumber(LunCachedHere, KLunInfo::CACHE_STATE_CACHED_LOCAL));
static_assert(sameNumber(LunCachedOnPeer, KLunInfo::CACHE_STATE_CACHED_PEER));
static_assert(sameNumber(NotMirrored, KLunInfo::MIRROR_STATE_NOT_MIRRORED));
static_assert(sameNumber(MirrorPrimary, KLunInfo::MIRROR_STATE_PRIMARY));
static_assert(sameNumber(MirrorSecondary, KLunInfo::MIRROR_STATE_SECONDARY));
static_assert(sameNumber(CacheReadWriteThrough, KLunCacheInfo::CACHE_MODE_READ_WRITE_THROUGH));
static_assert(sameNumber(CacheReadWriteBack, KLunCacheInfo::CACHE_MODE_READ_WRITE_BACK));
static_assert(sameNumber(CacheReadOnly, KLunCacheInfo::CACHE_MODE_READ_ONLY));
static_assert(sameNumber(CacheWriteThroughOnly, KLunCacheInfo::CACHE_MODE_WRITE_THROUGH_ONLY));
static_assert(sameNumber(CacheWriteBackOnly, KLunCacheInfo::CACHE_MODE_WRITE_BACK_ONLY));
static_assert(sameNumber(CachePurge, KLunCacheInfo::CACHE_MODE_PURGE_IN_PROGRESS));
static_assert(sameNumber(MirrorPeerDone, KLunCacheInfo::MIRROR_CACHE_PEER_DONE));
static_assert(sameNumber(kMirrorConfigured, 1u << KLunCacheInfo::MIRROR_STATE_CONFIGURED));
static_assert(sameNumber(kMirrorInSynchrony, 1u << KLunCacheInfo::MIRROR_STATE_IN_SYNCHRONY));
static_assert(sameNumber(kMirrorInTransition, 1u << KLunCacheInfo::MIRROR_STATE_IN_TRANSITION));
static_assert(sameNumber(LocalMirrorNone, KSsdLunInfo::SSD_MIRROR_NONE));
static_assert(sameNumber(LocalMirrorSsdSsd, KSsdLunInfo::SSD_MIRROR_SSD_SSD));
static_assert(sameNumber(kDirectAccessLun, KLunInfo::LUN_TYPE_DIRECT_ACCESS));
static_assert(sameNumber(kSequentialAccessLun, KLunInfo::LUN_TYPE_SEQUENTIAL_ACCESS));
static_assert(sameNumber(kSanControllerLun, KLunInfo::LUN_TYPE_SAN_CONTROLLER));
static_assert(sameNumber(kLunOnline, 1u << KLunInfo::LUN_STATE_ONLINE));
static_assert(sameNumber(kLunStorageControllerLun, 1u << KLunInfo::LUN_STATE_STORAGE_CONTROLLER_LUN));
static_assert(sameNumber(kLunMapped, 1u << KLunInfo::LUN_STATE_MAPPED));
static_assert(sameNumber(kLunLocal, 1u << KLunInfo::LUN_STATE_LOCAL));
static_assert(sameNumber(kLunRemote, 1u << KLunInfo::LUN_STATE_REMOTE));
static_assert(sameNumber(kLunOnSsd, 1u << KLunInfo::LUN_STATE_STORAGE_MEDIA_SSD));
static_assert(sameNumber(kLunCacheReady, 1u << KLunInfo::LUN_STATE_CACHE_READY));
static_assert(sameNumber(kLunMirror, 1u << KLunInfo::LUN_STATE_MIRROR));

void copyText(char* field, size_t size, const std::string& text)
{
    std::memset(field, 0, size);
    std::memcpy(field, text.data(), std::min(size - 1, text.size()));
}

namespace {

void copyWwn(unsigned char* out, const std::string& hex)
{
    std::vector<unsigned char> bytes;
    hexToBytes(hex, bytes);
    bytes.resize(8);
    std::memcpy(out, bytes.data(), 8);
}

// A port identifier is three bytes, domain first; a wider field keeps them
// at its start.
void copyPortId(unsigned char* out, u32 id, int length)
{
    for (int i = 0; i < length; ++i)
        out[i] = i < 3 ? static_cast<unsigned char>(id >> (8 * (2 - i))) : 0;
}

int capabilityIndex(const std::string& name)
{
    static const char* names[] = {"", "WRITE_BACK_CACHE", "WRITE_THROUGH_CACHE", "LOCAL_SSD_DATA_LUN",
                                  "NVDIMM_DATA_LUN"};
    for (int i = 1; i < 5; ++i)
        if (name == names[i])
            return i;
    return -1;
}

void fillHostInfo(const Host* h, KHostInfo& out)
{
    if (!h)
        return;
    out.hostType = static_cast<KHostInfo::ISA_ADAPTER_HOST_TYPE>(h->hostType);
    if (h->hostType == 4) {
        copyText(out.windowsHostInfo.systemInfo, sizeof out.windowsHostInfo.systemInfo, h->systemName);
        copyText(out.windowsHostInfo.hostName, sizeof out.windowsHostInfo.hostName, h->nodeName);
        copyText(out.windowsHostInfo.driverVersion, sizeof out.windowsHostInfo.driverVersion, h->driverVersion);
        return;
    }
    KLinuxHostInfo& l = out.linuxHostInfo;
    copyText(l.systemName, sizeof l.systemName, h->systemName);
    copyText(l.nodeName, sizeof l.nodeName, h->nodeName);
    copyText(l.osVersion, sizeof l.osVersion, h->osVersion);
    copyText(l.osBuildDate, sizeof l.osBuildDate, h->osBuildDate);
    copyText(l.machineName, sizeof l.machineName, h->machineName);
    copyText(l.domainName, sizeof l.domainName, h->domainName);
    copyText(l.driverVersion, sizeof l.driverVersion, h->driverVersion);
}

// SFF-8472 diagnostics: two bytes per figure, in the units the display reads.
void putFigure(unsigned char* data, int index, double value, double scale)
{
    long raw = std::lround(value / scale);
    raw = std::clamp(raw, 0L, 65535L);
    data[index] = static_cast<unsigned char>(raw >> 8);
    data[index + 1] = static_cast<unsigned char>(raw & 0xFF);
}

// The display reads both bytes as signed: the high byte plus the low byte in
// 256ths, and for a negative high byte the complement of the low byte.
void putTemperature(unsigned char* data, int index, double celsius)
{
    int whole = static_cast<int>(celsius >= 0 ? std::lround(celsius) : std::ceil(celsius));
    long fraction = std::clamp(std::lround((celsius - whole) * 256), -128L, 127L);
    data[index] = static_cast<unsigned char>(static_cast<signed char>(whole));
    signed char low = static_cast<signed char>(fraction);
    data[index + 1] = static_cast<unsigned char>(whole >= 0 ? low : static_cast<signed char>(~low));
}

} // namespace

void fillAdapterInfo(const San& san, const Adapter& a, KIsaAdapterInfo& out)
{
    out.init();
    const Cluster* c = clusterOf(san, a.id.value);
    out.bClusterMember = c != nullptr;
    out.bClusterPrimary = c && c->primary == a.id;
    out.bClusterSecondary = c && c->secondary == a.id;
    out.bAutoClusterEnabled = a.autoCluster;
    copyText(out.productName, sizeof out.productName, a.productName);
    copyText(out.symbolicName, sizeof out.symbolicName, a.symbolicName);
    copyText(out.serialNumber, sizeof out.serialNumber, a.serialNumber);
    copyText(out.hwVersion, sizeof out.hwVersion, a.hwVersion);
    copyText(out.swVersion, sizeof out.swVersion, a.swVersion);
    copyText(out.ubootBiosVersion, sizeof out.ubootBiosVersion, a.ubootVersion);
    copyText(out.biosVersion, sizeof out.biosVersion, a.biosVersion);
    copyText(out.efiVersion, sizeof out.efiVersion, a.efiVersion);
    out.fcPortCount = static_cast<uint32_t>(a.ports.size());
    for (const std::string& name : a.capabilities) {
        int index = capabilityIndex(name);
        if (index > 0)
            out.capabilities[index] = 1;
    }
    out.adapterState = a.state;
    fillHostInfo(findHost(san, a.host), out.hostInfo);
}

void fillLunStanding(const San& san, const Lun& lun, const Adapter& viewer, KLunInfo& out)
{
    out.bValid = true;
    out.m_eCacheState = static_cast<KLunInfo::KISA_CACHE_STATE>(cacheStateFor(lun, viewer.id.value));
    out.m_ui64ClusterCacheAdapterPrimary = lun.cached ? lun.cache.adapter.value : 0;
    out.m_eMirrorState = static_cast<KLunInfo::KISA_MIRROR_STATE>(mirrorStateFor(lun, viewer.id.value));
    out.ui32LunState = lunStateBits(san, lun, viewer);
}

void fillLunInfo(const San& san, const Lun& lun, const Adapter& viewer, KLunInfo& out)
{
    out.init();
    fillLunStanding(san, lun, viewer, out);
    out.ui64LunSizeBytes = lun.sizeBytes;
    out.m_eLunType = static_cast<KLunInfo::KISA_LUN_TYPE>(lun.type);
    out.bCacheSynchronizing = lun.cached && lun.cache.mirrored && (lun.cache.mirrorState & kMirrorInTransition);
    copyText(out.szVendorId, sizeof out.szVendorId, lun.vendor);
    copyText(out.szProductId, sizeof out.szProductId, lun.product);
    copyText(out.szRevisionLevel, sizeof out.szRevisionLevel, lun.revision);
    std::vector<unsigned char> serial;
    hexToBytes(lun.serial, serial);
    serial.resize(8);
    std::memcpy(out.ui8SerialNumber, serial.data(), 8);
    copyText(out.szPage80Serial, sizeof out.szPage80Serial, lun.page80);
    out.ui32Page80SerialLength = static_cast<uint32_t>(std::min<size_t>(lun.page80.size(), 255));
    std::vector<unsigned char> wwuln = wwulnBytes(lun);
    std::memcpy(out.ui8Wwuln, wwuln.data(), wwuln.size());
    out.eWwulnCodeSet = static_cast<PBase::WWULN_CODE_SET_TYPE>(lun.codeSet);
    out.ui32WwulnLength = static_cast<uint32_t>(wwuln.size());
    if (lun.local) {
        KSsdLunInfo& s = out.ssdLunInfo;
        s.bValid = true;
        s.ui64SizeBytes = lun.sizeBytes;
        s.bReadOnly = lun.localInfo.readOnly;
        s.eSsdMirrorType = static_cast<KSsdLunInfo::SSD_MIRROR_TYPE>(lun.localInfo.mirrorType);
        s.ui64MirrorPeerAdapter = lun.localInfo.mirrorPeer.value;
        copyText(s.szSymbolicName, sizeof s.szSymbolicName, lun.localInfo.name);
    }
    KLunCacheInfo& ci = out.cacheInfo;
    if (lun.cached) {
        const CacheSettings& c = lun.cache;
        ci.bValid = true;
        bool holder = out.m_eCacheState == KLunInfo::CACHE_STATE_CACHED_LOCAL;
        bool mirror = c.mirrored && c.mirrorAdapter == viewer.id;
        if (holder) {
            ci.eProfileType = static_cast<KLunCacheInfo::CACHE_PROFILE_TYPE>(c.profile);
            ci.eCacheMode = static_cast<KLunCacheInfo::CACHE_MODE>(c.mode);
            ci.ui64MaxCacheBytes = c.maxCacheBytes;
            ci.ui32MaxRead = c.maxRead;
            ci.ui32MinRead = c.minRead;
            ci.ui32MaxWrite = c.maxWrite;
            ci.ui32MinWrite = c.minWrite;
            size_t n = std::min<size_t>(c.lockedRanges.size(), KLunCacheInfo::MAX_LOCKED_RANGES);
            ci.ui32LockedRangeCount = static_cast<uint32_t>(n);
            for (size_t i = 0; i < n; ++i) {
                ci.lockedRanges[i].ui64StartLba = c.lockedRanges[i].start;
                ci.lockedRanges[i].ui32Size = c.lockedRanges[i].size;
            }
            ci.bMirrored = c.mirrored;
            ci.ui64MirrorAdapter = c.mirrorAdapter.value;
        }
        if (holder || mirror) {
            ci.eMirrorFlag = static_cast<KLunCacheInfo::MIRROR_CACHE_FLAG>(c.mirrorFlag);
            ci.ui16MirrorState = static_cast<uint16_t>(c.mirrorState);
            ci.ui64MirrorDirtyCacheBytes = c.mirrored ? c.dirtyBytes : 0;
        }
    }
    out.ui32DefaultMaxRead = rules::kDefaultMaxRead;
    out.ui32DefaultMinRead = rules::kDefaultMinRead;
    out.ui32DefaultMaxWrite = rules::kDefaultMaxWrite;
    out.ui32DefaultMinWrite = rules::kDefaultMinWrite;
}

void fillTargetInfo(const San& san, const Target& t, const Adapter& viewer, KTargetInfo& out)
{
    out.init();
    std::vector<int> ports = discoveryPorts(san, viewer, t);
    out.protocol = t.protocol == 2 ? PBase::PROTOCOL_ISCSI : PBase::PROTOCOL_FIBRE_CHANNEL;
    out.online = t.online && !ports.empty();
    out.mapped = t.mapped;
    out.discoveredOnPort1 = std::count(ports.begin(), ports.end(), 1) > 0;
    out.discoveredOnPort2 = std::count(ports.begin(), ports.end(), 2) > 0;
    out.internal = t.internal;
    out.maxOutstandingIo = t.maxOutstandingIo;
    out.portalMode = static_cast<KTargetInfo::KISA_PORTAL_MODE_TYPE>(t.portalMode);
    if (t.protocol == 2) {
        copyText(out.iscsi.iscsiName, sizeof out.iscsi.iscsiName, t.iscsiName);
        out.iscsi.chapEnabled = t.chap;
    } else {
        copyWwn(out.fc.wwpn, t.wwpn);
        copyWwn(out.fc.wwnn, t.wwnn);
        copyPortId(out.fc.portId, t.portId, 3);
    }
}

void fillInitiatorInfo(const Initiator& i, KInitiatorInfo& out)
{
    out.init();
    out.protocol = i.protocol == 2 ? PBase::PROTOCOL_ISCSI : PBase::PROTOCOL_FIBRE_CHANNEL;
    out.loggedIn = i.loggedIn;
    out.targetInitiator = i.target;
    out.dmInitiator = i.dm;
    if (i.protocol == 2) {
        copyText(out.iscsi.iscsiName, sizeof out.iscsi.iscsiName, i.iscsiName);
    } else {
        out.fc.fcMode = KFcInfo::FC_MODE_FCP;
        copyWwn(out.fc.wwpn, i.wwpn);
        copyWwn(out.fc.wwnn, i.wwnn);
        copyPortId(out.fc.portId, i.portId, 3);
    }
}

void fillFcInfo(const Port& p, unsigned index, KFcInfo& out)
{
    out.init();
    out.portIndex = index;
    out.portStatus = p.enabled ? PBase::PORT_ENABLED : PBase::PORT_DISABLED;
    out.linkStatus = p.enabled && p.online ? PBase::LINK_UP : PBase::LINK_DOWN;
    out.fcMode = static_cast<KFcInfo::FC_MODE>(p.fcMode);
    out.currentLinkRate = static_cast<PBase::FC_LINK_RATE>(p.enabled && p.online ? p.linkRate : 0);
    out.programmedLinkRate = static_cast<PBase::FC_LINK_RATE>(p.programmedLinkRate);
    out.frameSize = static_cast<KFcInfo::FRAME_SIZE_TYPE>(p.frameSize);
    out.sfpState = static_cast<KFcInfo::SFP_STATE>(p.sfpState);
    out.executionThrottle = p.executionThrottle;
    out.connectionMode = static_cast<KFcInfo::CONNECTION_MODE>(p.connectionMode);
    out.programmedConnectionOption = static_cast<KFcInfo::PROGRAMMED_CONNECTION_OPTION>(p.connectionOption);
    copyWwn(out.wwnn[0], p.wwnn);
    copyWwn(out.wwpn[0], p.wwpn);
    copyPortId(out.portId[0], p.portId, 3);
    copyText(out.firmwareRevision, sizeof out.firmwareRevision, p.firmwareRevision);
}

void fillSfpInfo(const Port& p, unsigned index, KSfpInfo& out)
{
    out.init();
    out.portIndex = index;
    copyText(out.vendorName, sizeof out.vendorName, p.sfp.vendorName);
    copyText(out.serialNumber, sizeof out.serialNumber, p.sfp.serialNumber);
    out.driverStatus = static_cast<uint32_t>(p.sfp.driverStatus);
    unsigned char* d = out.sfpData;
    // Thresholds: alarm and warning limits around each figure.
    const Sfp& s = p.sfp;
    putTemperature(d, 256, 85);
    putTemperature(d, 258, -5);
    putTemperature(d, 260, 75);
    putTemperature(d, 262, 0);
    putTemperature(d, 352, s.temperatureC);
    const double scale = 100.0 * 0.000001; // the display's one scale for all four figures
    struct Figure {
        int value, highAlarm;
        double v, hi, lo;
    } figures[] = {
        {354, 264, s.voltage, 3.6, 3.0},
        {356, 272, s.txBiasMa, 6.0, 2.0},
        {358, 280, s.txPowerMw, 1.0, 0.2},
        {360, 288, s.rxPowerMw, 1.0, 0.05},
    };
    for (const Figure& f : figures) {
        putFigure(d, f.highAlarm, f.hi * 1.05, scale);
        putFigure(d, f.highAlarm + 2, f.lo * 0.9, scale);
        putFigure(d, f.highAlarm + 4, f.hi, scale);
        putFigure(d, f.highAlarm + 6, f.lo, scale);
        putFigure(d, f.value, f.v, scale);
    }
}

void fillDriveInfo(const Adapter& a, const Drive& d, bool withSmart, KDriveInfo& out)
{
    out.init();
    copyText(out.vendorId, sizeof out.vendorId, d.vendor);
    copyText(out.productId, sizeof out.productId, d.product);
    copyText(out.revision, sizeof out.revision, d.revision);
    copyText(out.serialNumber, sizeof out.serialNumber, d.serial);
    out.sizeBytes = d.sizeBytes;
    out.ownerId = driveOwner(a, d);
    out.driveStatus = d.configured ? KDriveInfo::DRIVE_STATUS_CONFIGURED : KDriveInfo::DRIVE_STATUS_UNCONFIGURED;
    out.isOnline = d.online;
    out.isPcieSsd = d.pcieSsd;
    out.isSecurityLocked = d.securityLocked;
    out.isIdentityConflict = d.identityConflict;
    out.isExternal = d.external;
    if (!withSmart)
        return;
    KSmartDriveInfo& s = out.smartInfo;
    s.isSmartDataValid = 1;
    s.smartStatus = static_cast<KSmartDriveInfo::SMART_STATUS_TYPE>(d.smartStatus);
    size_t n = std::min<size_t>(d.smart.size(), KSmartDriveInfo::MAX_ATTRIBUTES);
    s.attributeCount = static_cast<uint32_t>(n);
    for (size_t i = 0; i < n; ++i) {
        KSmartDriveAttribute& at = s.attributes[i];
        const SmartAttribute& m = d.smart[i];
        at.attributeId = m.id;
        at.value = m.value;
        at.worst = m.worst;
        at.threshold = m.threshold;
        copyText(at.name, sizeof at.name, m.name);
        copyText(at.rawValue, sizeof at.rawValue, m.raw);
        at.displayType = static_cast<KSmartDriveAttribute::SMART_DISPLAY_TYPE>(m.displayType);
    }
}

void fillPoolInfo(const San& san, const Adapter& a, KPoolInfo& out)
{
    out.init();
    u64 dataLuns = dataLunBytes(san, a.id.value);
    u64 used = 0;
    for (const Lun& l : san.luns)
        if (l.cached && l.cache.adapter == a.id)
            used += std::min<u64>(l.sizeBytes / 16, l.cache.maxCacheBytes ? l.cache.maxCacheBytes : ~0ull);
    out.totalSsdStorage = totalDriveBytes(a);
    out.configuredForCachePool = a.cachePoolBytes;
    out.usedForCachePool = std::min(used, a.cachePoolBytes);
    u64 taken = a.cachePoolBytes + dataLuns;
    out.freeSsdStorage = out.totalSsdStorage > taken ? out.totalSsdStorage - taken : 0;
    out.usedForDataLuns = dataLuns;
}

void fillMemoryInfo(const Adapter& a, long long now, KMemoryInfo& out)
{
    out.init();
    int32_t wobble = static_cast<int32_t>(now % 97);
    int32_t scale = static_cast<int32_t>(std::max<u32>(1, a.memoryScale));
    out.physicalTotal = 4194304 * scale;
    out.physicalFree = 1310720 * scale + wobble * 16;
    out.bufferPoolTotal = 65536 * scale;
    out.bufferPoolFree = 40960 * scale - wobble;
    out.processBlocksTotal = 512;
    out.processBlocksFree = 431;
    out.requestBlocksTotal = 8192;
    out.requestBlocksFree = 8000 - wobble;
    out.eventBlocksTotal = 2048;
    out.eventBlocksFree = 2011;
    out.controlBlocksTotal = 1024;
    out.controlBlocksFree = 977;
}

void fillHealthInfo(const Adapter& a, long long now, KAdapterHealthInfo& out)
{
    out.init();
    static const int32_t devices[4] = {0x2831, 0x2533, 0x11AB, 0x9445};
    for (int i = 0; i < 4; ++i) {
        KAdapterHealthPciExpressInfo& p = out.pciExpressInfo[i];
        p.portNumber = i;
        p.vendorId = i == 2 ? 0x11AB : 0x1077;
        p.deviceId = devices[i];
        p.linkStatus = KAdapterHealthPciExpressInfo::PEX_LINK_STATUS(i == 2 ? 2 : 1);
        p.linkSpeed = KAdapterHealthPciExpressInfo::PEX_LINK_SPEED(2);
        p.linkWidth = KAdapterHealthPciExpressInfo::PEX_LINK_WIDTH(4);
    }
    const Health& h = a.health;
    int wobble = static_cast<int>(now % 3);
    out.temperatureFront = h.temperatureFront + wobble;
    out.temperatureRear = h.temperatureRear + wobble;
    out.temperatureCpu = h.temperatureCpu + wobble;
    for (size_t i = 0; i < a.ports.size() && i < 32; ++i)
        if (a.ports[i].beacon)
            out.beaconPortMask |= 1u << i;
    out.dramEccSingleBitErrorCount = static_cast<int32_t>(h.dramEccSingleBitErrors);
    out.driversLoadedMask = h.driversLoadedMask;
    out.errorMask = h.errorMask;
    out.failedPostTest = h.failedPostTest;
    out.temperatureNvdimm = h.temperatureNvdimm;
    out.temperatureFcChip = h.temperatureFcChip;
    out.systemUptimeSeconds = static_cast<uint32_t>(now > a.bootTime ? now - a.bootTime : 0);
}

void fillNvdimmInfo(const Adapter& a, KNvdimmInfo& out)
{
    out.init();
    const Nvdimm& n = a.nvdimm;
    copyText(out.firmwareVersion, sizeof out.firmwareVersion, n.firmwareVersion);
    copyText(out.packagedVersion, sizeof out.packagedVersion, n.firmwareVersion);
    out.temperature = n.temperature;
    copyText(out.serialNumber, sizeof out.serialNumber, n.serialNumber);
    copyText(out.partNumber, sizeof out.partNumber, n.partNumber);
    out.nvdimmStatus = n.status;
    out.superCapDetected = n.superCap;
    if (n.superCap) {
        copyText(out.superCapPartNumber, sizeof out.superCapPartNumber, "SC-25F-SIM");
        copyText(out.superCapSerialNumber, sizeof out.superCapSerialNumber, "SC" + n.serialNumber);
        out.superCapFirmwareRevision = 3;
        out.superCapPackagedRevision = 3;
        out.superCapPowerState = 1;
        out.superCapHealth = KNvdimmInfo::KISA_SUPERCAP_HEALTH(3);
        out.superCapStatus = 4 | 128;
        out.superCapChargedPercent = static_cast<uint8_t>(n.superCapCharged);
    }
}

void fillReservation(const Lun& lun, KLunReservationInfo& out)
{
    out.init();
    out.eReservationType = static_cast<KLunReservationInfo::KISA_RESERVATION_TYPE>(lun.reservation.type);
    std::vector<unsigned char> key;
    hexToBytes(lun.reservation.key, key);
    key.resize(8);
    std::memcpy(out.ui8ReservationKey, key.data(), 8);
}

void fillLunIoStatistics(const San& san, const Lun& lun, const Adapter& viewer, bool withCache, long long now,
                         KLunIoStatistics& out)
{
    out.init();
    LunLoad load = lunLoad(san, lun, viewer, now);
    out.ui64ReadCount = load.readCount;
    out.ui64WriteCount = load.writeCount;
    out.ui64ReadBlocks = load.readBlocks;
    out.ui64WriteBlocks = load.writeBlocks;
    if (!withCache)
        return;
    KLunCacheStatistics& c = out.cacheStatistics;
    c.bValid = true;
    c.ui32ReadHitPercent = load.readHitPercent;
    c.ui32WriteHitPercent = load.writeHitPercent;
    c.ui64TotalRead = load.readBytes;
    c.ui64TotalWritten = load.writtenBytes;
    c.ui64WriteHitBytes = load.writeHitBytes;
    c.ui64ReadHitBytes = load.readHitBytes;
    c.ui64CleanBytes = load.cleanBytes;
    c.ui64DirtyBytes = load.dirtyBytes;
    c.ui64LockedBytes = load.lockedBytes;
}

void fillCacheStatistics(const San& san, const Adapter& a, long long now, KCacheStatistics& out)
{
    out.init();
    AdapterCacheFigures f = adapterCacheFigures(san, a, now);
    out.totalCapacity = f.totalCapacity;
    out.usedCapacity = f.usedCapacity;
    out.readData = f.readData;
    out.writeLoadHits = f.writeLoadHits;
    out.readLoadHits = f.readLoadHits;
    out.usedPercentFirst = f.usedPercentA;
    out.usedPercentSecond = f.usedPercentB;
    out.readLoadPercent = f.readLoadPercent;
    out.writeLoadPercent = f.writeLoadPercent;
}

void fillHostPcieInfo(const San& san, const Adapter& a, long long now, KHostPcieInfo& out)
{
    out.init();
    std::array<u32, 26> v = hostPcieFigures(san, a, now);
    uint32_t* fields[26] = {
        &out.readDiffTime,      &out.writeDiffTime,      &out.readIoCount,      &out.readBytesCount,
        &out.writeIoCount,      &out.writeBytesCount,    &out.avgReadIosPerSec, &out.minReadIoSize,
        &out.maxReadIoSize,     &out.avgReadIoSize,      &out.avgReadBandwidth, &out.readIoDelay,
        &out.minReadLatency,    &out.maxReadLatency,     &out.avgReadLatency,   &out.readIoOutstanding,
        &out.avgWriteIosPerSec, &out.minWriteIoSize,     &out.maxWriteIoSize,   &out.avgWriteIoSize,
        &out.avgWriteBandwidth, &out.writeIoDelay,       &out.minWriteLatency,  &out.maxWriteLatency,
        &out.avgWriteLatency,   &out.writeIoOutstanding,
    };
    for (size_t i = 0; i < 26; ++i)
        *fields[i] = v[i];
}

void fillCacheInfoList(const San& san, const Adapter& a, long long now, KCacheInfoList& out)
{
    out.init();
    auto counters = cacheCounters(san, a, now);
    size_t n = std::min<size_t>(counters.size(), KCacheInfoList::MAX_ITEMS);
    for (size_t i = 0; i < n; ++i) {
        copyText(out.items[i].name, sizeof out.items[i].name, counters[i].first);
        out.items[i].kind = 1;
        out.items[i].value = counters[i].second;
    }
    out.count = static_cast<uint32_t>(n);
}

void fillLogEntry(const LogRecord& r, int number, KLogEntry& out)
{
    out.init();
    out.entryNumber = number;
    copyText(out.source, sizeof out.source, r.source);
    out.severity = static_cast<KLogEntry::RAW_LOG_ENTRY_SEVERITY_TYPE>(r.severity);
    copyText(out.message, sizeof out.message, r.message);
    out.time.initFromPosixTime(static_cast<long>(r.time));
}

void fillLunPathInfo(const Target& t, int pathStatus, KLunPathInfo& out)
{
    out.init();
    out.ePathStatus = static_cast<KLunPathInfo::LUNPATH_STATUS_TYPE>(t.online ? pathStatus : 1);
    if (t.protocol == 2) {
        out.eTargetType = KLunPathInfo::TARGET_TYPE_ISCSI;
        copyText(out.iscsiPath.szTargetName, sizeof out.iscsiPath.szTargetName, t.iscsiName);
        out.iscsiPath.ui32TcpPort = 3260;
        std::string ignored;
        parseAgentAddress("192.0.2." + std::to_string(10 + t.portId % 200), out.iscsiPath.ipAddress, ignored);
    } else {
        out.eTargetType = KLunPathInfo::TARGET_TYPE_FC;
        copyWwn(out.fcPath.ui8Wwpn, t.wwpn);
        copyWwn(out.fcPath.ui8Wwnn, t.wwnn);
        copyPortId(out.fcPath.ui8PortId, t.portId, 4);
    }
}

std::string LunPathTexts::tableText(const Lun& lun)
{
    std::string text = "    LUN Path Info:\n";
    for (const LunPath& way : lun.paths)
        if (const Target* t = reachedTarget(way.target))
            text += wayText(*t, way.status);
    return text;
}

const Target* LunPathTexts::reachedTarget(const std::string& name)
{
    auto [at, fresh] = reached_.emplace(name, nullptr);
    if (fresh) {
        const Target* t = findTarget(san_, name);
        at->second = t && adapterSeesTarget(san_, viewer_, *t) ? t : nullptr;
    }
    return at->second;
}

const std::string& LunPathTexts::wayText(const Target& t, int pathStatus)
{
    auto [at, fresh] = ways_.emplace(std::make_pair(&t, pathStatus), std::string());
    if (fresh) {
        KLunPathInfo info;
        fillLunPathInfo(t, pathStatus, info);
        at->second = info.displayText();
    }
    return at->second;
}

} // namespace sim
