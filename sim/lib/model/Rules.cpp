#include "model/Rules.h"

#include "model/AdapterLog.h"
#include "model/AdapterStorage.h"
#include "model/Base64.h"
#include "model/Codes.h"
#include "model/Scenario.h"
#include "model/ScenarioCodec.h"
#include "model/States.h"

#include <algorithm>
#include <cstdio>

namespace sim::rules {

namespace {

// Text the user gives that the state keeps: it must fit its field and be
// UTF-8, or the state file could not hold it.
bool isStorableText(const std::string& text, size_t longest)
{
    return text.size() <= longest && codec::isUtf8(text);
}

constexpr u64 MiB = 1024ull * 1024;
constexpr u32 kPollsToFinish = 2; // a pinned clock still ends a flush or a restart
constexpr long long kRestartSeconds = 12;
constexpr long long kPurgeSeconds = 30;

bool hasCapability(const Adapter& a, const std::string& name)
{
    return std::find(a.capabilities.begin(), a.capabilities.end(), name) != a.capabilities.end();
}

// The adapter that receives a request must exist and answer.
int reachable(San& san, u64 adapter, long long now, Adapter*& out)
{
    out = findAdapter(san, adapter);
    if (!out)
        return code::AdapterNotFound;
    return adapterAnswers(*out, now) ? code::Ok : code::AdapterNotResponding;
}

// Runs `change` on the adapter when it answers; otherwise its refusal.
template <class Change>
int onAdapter(San& san, u64 adapter, long long now, Change&& change)
{
    Adapter* a;
    int rc = reachable(san, adapter, now, a);
    return rc == code::Ok ? change(*a) : rc;
}

// A LUN request must name a path that the adapter sees.
int visibleLun(San& san, u64 adapter, const PathRef& path, long long now, Adapter*& a, Lun*& lun)
{
    int rc = reachable(san, adapter, now, a);
    if (rc != code::Ok)
        return rc;
    lun = findLun(san, path);
    if (!lun || !adapterSeesPath(san, *a, path))
        return code::ObjectNotFound;
    return code::Ok;
}

// The LUN must be cached on this very adapter.
int ownCachedLun(San& san, u64 adapter, const PathRef& path, long long now, Lun*& lun)
{
    Adapter* a;
    int rc = visibleLun(san, adapter, path, now, a, lun);
    if (rc != code::Ok)
        return rc;
    switch (cacheStateFor(*lun, adapter)) {
    case LunNotCached:
        return code::NotCached;
    case LunCachedOnPeer:
        return code::CachedElsewhere;
    default:
        return code::Ok;
    }
}

// Runs `change` on a LUN that this adapter caches; otherwise its refusal.
template <class Change>
int onOwnCachedLun(San& san, u64 adapter, const PathRef& path, long long now, Change&& change)
{
    Lun* lun;
    int rc = ownCachedLun(san, adapter, path, now, lun);
    return rc == code::Ok ? change(*lun) : rc;
}

int checkWindows(const CacheRequest& req)
{
    if (req.minRead > req.maxRead || req.minWrite > req.maxWrite)
        return code::InvalidArgument;
    return code::Ok;
}

int checkMirror(San& san, u64 adapter, u64 mirror, long long now)
{
    if (mirror == 0)
        return code::Ok;
    if (mirror == adapter)
        return code::InvalidArgument;
    Adapter* m = findAdapter(san, mirror);
    if (!m)
        return code::ObjectNotFound;
    return adapterAnswers(*m, now) ? code::Ok : code::AdapterNotResponding;
}

void applyMirror(CacheSettings& c, u64 mirror)
{
    c.mirrored = mirror != 0;
    c.mirrorAdapter.value = mirror;
    c.mirrorState = mirror ? kMirrorConfigured | kMirrorInSynchrony : 0;
    c.mirrorFlag = mirror ? MirrorPeerDone : MirrorFlagNone;
}

u32 orDefault(u32 value, u32 fallback)
{
    return value ? value : fallback;
}

void applyWindows(CacheSettings& c, const CacheRequest& req)
{
    c.maxCacheBytes = static_cast<u64>(req.maxCacheMb) * MiB;
    c.minRead = orDefault(req.minRead, kDefaultMinRead);
    c.maxRead = orDefault(req.maxRead, kDefaultMaxRead);
    c.minWrite = orDefault(req.minWrite, kDefaultMinWrite);
    c.maxWrite = orDefault(req.maxWrite, kDefaultMaxWrite);
}

void stopCaching(Lun& lun)
{
    lun.cached = false;
    lun.cache = CacheSettings{};
}

int startCaching(San& san, Adapter& a, Lun& lun, const CacheRequest& req, long long now)
{
    if (!isCacheableLun(lun))
        return code::NotSanDataLun;
    if (!isCachingMode(req.mode) || req.profile < 0 || req.profile > 6)
        return code::InvalidArgument;
    if (cachesWritesBack(req.mode) && !hasCapability(a, "WRITE_BACK_CACHE"))
        return code::NotSupported;
    if (cachesWritesThrough(req.mode) && !hasCapability(a, "WRITE_THROUGH_CACHE"))
        return code::NotSupported;
    if (a.cachePoolBytes == 0)
        return code::NotEnoughStorage;
    int rc = checkWindows(req);
    if (rc == code::Ok)
        rc = checkMirror(san, a.id.value, req.mirrorAdapter, now);
    if (rc != code::Ok)
        return rc;
    lun.cached = true;
    lun.cache = CacheSettings{};
    lun.cache.adapter = a.id;
    lun.cache.mode = req.mode;
    lun.cache.profile = req.profile;
    lun.cache.since = now;
    applyWindows(lun.cache, req);
    applyMirror(lun.cache, req.mirrorAdapter);
    return code::Ok;
}

int stopOrPurge(San& san, u64 adapter, Lun& lun, int mode, long long now)
{
    (void)san;
    if (!isCacheableLun(lun))
        return code::NotSanDataLun;
    switch (cacheStateFor(lun, adapter)) {
    case LunNotCached:
        return code::NotCached;
    case LunCachedOnPeer:
        return code::CachedElsewhere;
    default:
        break;
    }
    if (mode == CachePurge) {
        lun.cache.mode = CachePurge;
        lun.cache.dirtyBytes = 0;
        lun.cache.lockedRanges.clear();
        lun.cache.since = now;
        return code::Ok;
    }
    if (!lun.online)
        return code::LunGone; // its dirty data has nowhere to go
    stopCaching(lun);         // dirty data is written back on the way out
    return code::Ok;
}

u64 flushSeconds(const CacheSettings& c)
{
    return std::max<u64>(1, c.dirtyBytes / (256 * MiB));
}

void finishFlush(CacheSettings& c)
{
    c.flushStarted = 0;
    c.flushPolls = 0;
    c.dirtyBytes = 0;
}

bool isOwner(const Lun& lun, u64 adapter)
{
    return lun.local && lun.localInfo.owner.value == adapter;
}

// Data LUNs of an adapter are presented through its own internal target.
std::string ensureInternalTarget(San& san, const Adapter& a)
{
    if (const Target* held = findInternalTarget(san, a))
        return held->name;
    san.targets.push_back(makeInternalTarget(a));
    return san.targets.back().name;
}

u32 nextFreeLunNumber(const San& san, const std::string& target)
{
    u32 n = 0;
    for (const Lun& l : san.luns)
        for (const LunPath& p : l.paths)
            if (p.target == target && p.lun >= n)
                n = p.lun + 1;
    return n;
}

u64 freeStorage(const San& san, const Adapter& a)
{
    u64 used = a.cachePoolBytes + dataLunBytes(san, a.id.value);
    u64 configured = configuredBytes(a);
    return configured > used ? configured - used : 0;
}

int checkLocalMirror(San& san, u64 adapter, int mirrorType, u64 mirrorAdapter, long long now)
{
    if (mirrorType != LocalMirrorNone && mirrorType != LocalMirrorSsdSsd)
        return code::InvalidArgument;
    if (mirrorType == LocalMirrorNone)
        return code::Ok;
    int rc = checkMirror(san, adapter, mirrorAdapter, now);
    if (rc != code::Ok || mirrorAdapter == 0)
        return rc == code::Ok ? code::InvalidArgument : rc;
    return hasCapability(*findAdapter(san, mirrorAdapter), "LOCAL_SSD_DATA_LUN") ? code::Ok : code::NotSupported;
}

// Runs `change` on the cluster when the adapter answers and is its primary.
template <class Change>
int onPrimaryCluster(San& san, u64 adapter, const std::string& id, long long now, Change&& change)
{
    return onAdapter(san, adapter, now, [&](Adapter&) {
        Cluster* c = findCluster(san, id);
        if (!c)
            return code::ObjectNotFound;
        if (c->primary.value != adapter)
            return code::NotClusterPrimary;
        return change(*c);
    });
}

} // namespace

void settle(San& san, long long now)
{
    for (Adapter& a : san.adapters) {
        if (a.restartUntil && now >= a.restartUntil) {
            a.restartUntil = 0;
            a.restartPolls = 0;
        }
    }
    for (Lun& l : san.luns) {
        if (!l.cached)
            continue;
        CacheSettings& c = l.cache;
        if (c.flushStarted && now >= c.flushStarted + static_cast<long long>(flushSeconds(c)))
            finishFlush(c);
        if (c.mode == CachePurge && now >= c.since + kPurgeSeconds)
            stopCaching(l);
    }
}

int enableCache(San& san, u64 adapter, const PathRef& path, const CacheRequest& req, long long now)
{
    Adapter* a;
    Lun* lun;
    int rc = visibleLun(san, adapter, path, now, a, lun);
    if (rc != code::Ok)
        return rc;
    if (req.mode == CacheStop || req.mode == CachePurge)
        return stopOrPurge(san, adapter, *lun, req.mode, now);
    if (!lun->online)
        return code::LunGone;
    switch (cacheStateFor(*lun, adapter)) {
    case LunCachedHere:
        return code::AlreadyCached;
    case LunCachedOnPeer:
        return code::CachedElsewhere;
    default:
        break;
    }
    return startCaching(san, *a, *lun, req, now);
}

int modifyCache(San& san, u64 adapter, const PathRef& path, const CacheRequest& req, bool useDefaults, long long now)
{
    return onOwnCachedLun(san, adapter, path, now, [&](Lun& lun) {
        Adapter* a = findAdapter(san, adapter);
        CacheSettings& c = lun.cache;
        int mode = req.mode == CacheStop ? c.mode : req.mode; // no mode keeps the present one
        if ((!isCachingMode(mode) && mode != CachePurge) || req.profile < 0 || req.profile > 6)
            return code::InvalidArgument;
        if (mode != c.mode && cachesWritesBack(mode) && !hasCapability(*a, "WRITE_BACK_CACHE"))
            return code::NotSupported;
        if (useDefaults) {
            c.minRead = kDefaultMinRead;
            c.maxRead = kDefaultMaxRead;
            c.minWrite = kDefaultMinWrite;
            c.maxWrite = kDefaultMaxWrite;
            c.maxCacheBytes = 0;
            return code::Ok;
        }
        int rc = checkWindows(req);
        if (rc == code::Ok)
            rc = checkMirror(san, adapter, req.mirrorAdapter, now);
        if (rc != code::Ok)
            return rc;
        c.mode = mode;
        c.profile = req.profile;
        applyWindows(c, req);
        if (req.mirrorAdapter != c.mirrorAdapter.value || !c.mirrored)
            applyMirror(c, req.mirrorAdapter);
        if (isCachingMode(mode) && !cachesWritesBack(mode))
            c.dirtyBytes = 0; // leaving write-back writes the dirty data out
        return code::Ok;
    });
}

int disableCacheByWwuln(San& san, u64 adapter, const std::string& wwuln, bool viaClusterPrimary, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter&) {
        Lun* lun = findLunByWwuln(san, wwuln);
        if (!lun)
            return code::ObjectNotFound;
        if (!lun->cached)
            return code::NotCached;
        if (viaClusterPrimary) {
            // The primary may release a LUN cached anywhere in its cluster.
            const Cluster* c = clusterOf(san, adapter);
            const Cluster* holder = clusterOf(san, lun->cache.adapter.value);
            if (!c || c != holder || c->primary.value != adapter)
                return c && c == holder ? code::NotClusterPrimary : code::CachedElsewhere;
        } else if (lun->cache.adapter.value != adapter) {
            return code::CachedElsewhere;
        }
        stopCaching(*lun);
        return code::Ok;
    });
}

int startFlush(San& san, u64 adapter, const PathRef& path, long long now)
{
    return onOwnCachedLun(san, adapter, path, now, [&](Lun& lun) {
        if (!lun.online)
            return code::LunGone;
        if (!lun.cache.flushStarted) {
            lun.cache.flushStarted = now;
            lun.cache.flushPolls = 0;
        }
        return code::Ok;
    });
}

int flushProgress(San& san, u64 adapter, const PathRef& path, bool& inProgress, long long now)
{
    inProgress = false;
    Lun* lun;
    int rc = ownCachedLun(san, adapter, path, now, lun);
    if (rc != code::Ok)
        return rc;
    CacheSettings& c = lun->cache;
    if (!c.flushStarted)
        return code::Ok;
    ++c.flushPolls;
    if (c.flushPolls >= kPollsToFinish || now >= c.flushStarted + static_cast<long long>(flushSeconds(c)))
        finishFlush(c);
    inProgress = c.flushStarted != 0;
    return code::Ok;
}

int lockRange(San& san, u64 adapter, const PathRef& path, u64 start, u64 size, long long now)
{
    return onOwnCachedLun(san, adapter, path, now, [&](Lun& lun) {
        u64 blocks = lun.sizeBytes / 512;
        if (size == 0 || size > 0xFFFFFFFFull || start >= blocks || size > blocks - start)
            return code::InvalidArgument;
        auto& ranges = lun.cache.lockedRanges;
        LockedRange r{start, static_cast<u32>(size)};
        if (std::find(ranges.begin(), ranges.end(), r) != ranges.end())
            return code::Ok;
        if (ranges.size() >= 16)
            return code::TooManyLockedRanges;
        ranges.push_back(r);
        return code::Ok;
    });
}

int unlockRange(San& san, u64 adapter, const PathRef& path, u64 start, u64 size, long long now)
{
    return onOwnCachedLun(san, adapter, path, now, [&](Lun& lun) {
        auto& ranges = lun.cache.lockedRanges;
        auto it = std::find(ranges.begin(), ranges.end(), LockedRange{start, static_cast<u32>(size)});
        if (size > 0xFFFFFFFFull || it == ranges.end())
            return code::ObjectNotFound;
        ranges.erase(it);
        return code::Ok;
    });
}

int invalidateRange(San& san, u64 adapter, const PathRef& path, u64 start, u64 end, long long now)
{
    return onOwnCachedLun(san, adapter, path, now, [&](Lun& lun) {
        if (end < start)
            return code::InvalidArgument;
        if (start == 0 && end == 0)
            lun.cache.dirtyBytes = 0; // the whole LUN
        return code::Ok;
    });
}

int clearReservation(San& san, u64 adapter, const PathRef& path, long long now)
{
    Adapter* a;
    Lun* lun;
    int rc = visibleLun(san, adapter, path, now, a, lun);
    if (rc != code::Ok)
        return rc;
    if (!lun->online)
        return code::LunGone;
    lun->reservation = Reservation{};
    return code::Ok;
}

int createLun(San& san, u64 adapter, u64 sizeBytes, const std::string& name, int mirrorType, u64 mirrorAdapter,
              std::string& newWwuln, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        if (!hasCapability(a, "LOCAL_SSD_DATA_LUN"))
            return code::NotSupported;
        if (sizeBytes == 0 || !isStorableText(name, 128))
            return code::InvalidArgument;
        int rc = checkLocalMirror(san, adapter, mirrorType, mirrorAdapter, now);
        if (rc != code::Ok)
            return rc;
        if (sizeBytes > freeStorage(san, a))
            return code::NotEnoughStorage;
        Lun lun;
        char wwuln[40];
        std::snprintf(wwuln, sizeof wwuln, "%016llX%016llX", static_cast<unsigned long long>(adapter),
                      static_cast<unsigned long long>(san.nextLocalLun));
        lun.wwuln = wwuln;
        lun.serial = std::string(wwuln).substr(16);
        lun.vendor = "ZEK";
        lun.product = "LOCAL-SSD-LUN";
        lun.sizeBytes = sizeBytes;
        lun.local = true;
        lun.localInfo.owner.value = adapter;
        lun.localInfo.name = name;
        lun.localInfo.mirrorType = mirrorType;
        lun.localInfo.mirrorPeer.value = mirrorType == LocalMirrorSsdSsd ? mirrorAdapter : 0;
        std::string target = ensureInternalTarget(san, a);
        lun.paths = {LunPath{target, nextFreeLunNumber(san, target), 1, 3}};
        ++san.nextLocalLun;
        san.luns.push_back(lun);
        newWwuln = lun.wwuln;
        return code::Ok;
    });
}

int modifyLun(San& san, u64 adapter, const PathRef& path, u64 sizeBytes, const std::string& name, long long now)
{
    Adapter* a;
    Lun* lun;
    int rc = visibleLun(san, adapter, path, now, a, lun);
    if (rc != code::Ok)
        return rc;
    if (!isOwner(*lun, adapter))
        return code::InvalidArgument;
    if (sizeBytes != 0 && sizeBytes < lun->sizeBytes)
        return code::InvalidArgument; // LUNs only grow
    if (sizeBytes > lun->sizeBytes && sizeBytes - lun->sizeBytes > freeStorage(san, *a))
        return code::NotEnoughStorage;
    if (!isStorableText(name, 128))
        return code::InvalidArgument;
    if (sizeBytes)
        lun->sizeBytes = sizeBytes;
    if (!name.empty())
        lun->localInfo.name = name;
    return code::Ok;
}

int setLunMirror(San& san, u64 adapter, const PathRef& path, int mirrorType, u64 mirrorAdapter, long long now)
{
    Adapter* a;
    Lun* lun;
    int rc = visibleLun(san, adapter, path, now, a, lun);
    if (rc != code::Ok)
        return rc;
    if (!isOwner(*lun, adapter))
        return code::InvalidArgument;
    if ((rc = checkLocalMirror(san, adapter, mirrorType, mirrorAdapter, now)) != code::Ok)
        return rc;
    lun->localInfo.mirrorType = mirrorType;
    lun->localInfo.mirrorPeer.value = mirrorType == LocalMirrorSsdSsd ? mirrorAdapter : 0;
    return code::Ok;
}

int removeLun(San& san, u64 adapter, const PathRef& path, std::string& text, long long now)
{
    Adapter* a;
    Lun* lun;
    int rc = visibleLun(san, adapter, path, now, a, lun);
    if (rc != code::Ok)
        return rc;
    if (lun->local && !isOwner(*lun, adapter)) {
        text = "The LUN belongs to adapter " + adapterIdText(lun->localInfo.owner.value);
        return code::InvalidArgument;
    }
    if (!lun->local && lun->online) {
        text = "Only adapter-local LUNs and SAN LUNs that are offline can be removed";
        return code::InvalidArgument;
    }
    if (lun->cached && lun->cache.dirtyBytes) {
        text = "The LUN still holds dirty cache data; purge the cache first";
        return code::Failure;
    }
    san.luns.erase(san.luns.begin() + (lun - san.luns.data()));
    return code::Ok;
}

int setPoolSize(San& san, u64 adapter, u32 megabytes, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        u64 wanted = static_cast<u64>(megabytes) * MiB;
        u64 room = configuredBytes(a);
        u64 data = dataLunBytes(san, adapter);
        if (megabytes < 4096 || data > room || wanted > room - data)
            return code::PoolSizeOutOfRange;
        a.cachePoolBytes = wanted;
        return code::Ok;
    });
}

int removePool(San& san, u64 adapter, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        for (const Lun& l : san.luns)
            if (l.cached && l.cache.adapter.value == adapter)
                return code::PoolInUse;
        a.cachePoolBytes = 0;
        return code::Ok;
    });
}

int addDriveToPool(San& san, u64 adapter, const std::string& drive, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        Drive* d = findDrive(a, drive);
        if (!d)
            return code::ObjectNotFound;
        if (!ownsDrive(a, *d))
            return code::DriveOfAnotherAdapter;
        if (d->configured)
            return code::DriveAlreadyInPool;
        if (!d->online || d->securityLocked)
            return code::DriveNotUsable;
        d->configured = true;
        return code::Ok;
    });
}

int removeDriveFromPool(San& san, u64 adapter, const std::string& drive, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        Drive* d = findDrive(a, drive);
        if (!d)
            return code::ObjectNotFound;
        if (!ownsDrive(a, *d))
            return code::DriveOfAnotherAdapter;
        if (!d->configured)
            return code::DriveNotInPool;
        // The pool and the data LUNs must still fit on the drives that stay.
        u64 needed = a.cachePoolBytes + dataLunBytes(san, adapter);
        if (configuredBytes(a) - (d->online ? d->sizeBytes : 0) < needed)
            return code::PoolSizeOutOfRange;
        d->configured = false;
        return code::Ok;
    });
}

int createCluster(San& san, u64 adapter, u64 primary, u64 secondary, const std::string& id, int type, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter&) {
        if (id.empty() || !isStorableText(id, 16) || primary == secondary || primary != adapter)
            return code::InvalidArgument;
        Adapter* s = findAdapter(san, secondary);
        if (!s)
            return code::ObjectNotFound;
        if (!adapterAnswers(*s, now))
            return code::AdapterNotResponding;
        if (findCluster(san, id))
            return code::InvalidArgument;
        if (clusterOf(san, primary) || clusterOf(san, secondary))
            return code::AlreadyClusterMember;
        Cluster c;
        c.id = id;
        c.hostClusterType = type;
        c.primary.value = primary;
        c.secondary.value = secondary;
        c.members = {c.primary, c.secondary};
        san.clusters.push_back(c);
        return code::Ok;
    });
}

int destroyCluster(San& san, u64 adapter, const std::string& id, long long now)
{
    return onPrimaryCluster(san, adapter, id, now, [&](Cluster& c) {
        san.clusters.erase(san.clusters.begin() + (&c - san.clusters.data()));
        return code::Ok;
    });
}

int addClusterMember(San& san, u64 adapter, u64 member, const std::string& id, long long now)
{
    return onPrimaryCluster(san, adapter, id, now, [&](Cluster& c) {
        Adapter* m = findAdapter(san, member);
        if (!m)
            return code::AdapterNotFound;
        if (!adapterAnswers(*m, now))
            return code::AdapterNotResponding;
        if (clusterOf(san, member))
            return code::AlreadyClusterMember;
        c.members.push_back(m->id);
        return code::Ok;
    });
}

int removeClusterMember(San& san, u64 adapter, u64 member, const std::string& id, long long now)
{
    return onPrimaryCluster(san, adapter, id, now, [&](Cluster& c) {
        auto it = std::find(c.members.begin(), c.members.end(), AdapterId{member});
        if (it == c.members.end())
            return code::ObjectNotFound;
        if (member == c.primary.value || member == c.secondary.value)
            return code::InvalidArgument; // the roles leave with the cluster
        c.members.erase(it);
        return code::Ok;
    });
}

int setSymbolicName(San& san, u64 adapter, const std::string& name, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        if (!isStorableText(name, 63))
            return code::InvalidArgument;
        a.symbolicName = name;
        return code::Ok;
    });
}

int setPassword(San& san, u64 adapter, const std::string& oldPassword, const std::string& newPassword, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        if (oldPassword != a.password)
            return code::PasswordWrong;
        if (newPassword.empty() || !isStorableText(newPassword, 32))
            return code::InvalidArgument;
        a.password = newPassword;
        return code::Ok;
    });
}

int factoryReset(San& san, u64 adapter, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        a.symbolicName.clear();
        a.password = "zek";
        a.autoCluster = false;
        for (Port& p : a.ports) {
            p.programmedLinkRate = 0;
            p.connectionOption = 2;
            p.frameSize = 2048;
            p.executionThrottle = 64;
        }
        a.needsRestart = true;
        appendLog(a, now, 3, "adapter", "Persistent settings reset to factory defaults");
        return code::OkRestartRequired;
    });
}

int restart(San& san, u64 adapter, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        a.restartUntil = now + kRestartSeconds;
        a.restartPolls = 0;
        a.bootTime = now;
        a.needsRestart = false;
        appendLog(a, now, 5, "adapter", "Adapter restart requested");
        return code::Ok;
    });
}

int pollWhileRestarting(San& san, u64 adapter, long long now)
{
    Adapter* a = findAdapter(san, adapter);
    if (!a)
        return code::AdapterNotFound;
    if (a->restartUntil && now < a->restartUntil && ++a->restartPolls >= kPollsToFinish) {
        a->restartUntil = 0;
        a->restartPolls = 0;
    }
    return adapterAnswers(*a, now) ? code::Ok : code::AdapterNotResponding;
}

int setPortEnabled(San& san, u64 adapter, u32 port, bool enable, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        if (port >= a.ports.size())
            return code::InvalidArgument;
        if (!enable && a.ports[port].fcipLink)
            return code::PortHasFcipLink;
        a.ports[port].enabled = enable;
        return code::Ok;
    });
}

int setBeacon(San& san, u64 adapter, u32 port, bool enable, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        if (port >= a.ports.size())
            return code::InvalidArgument;
        a.ports[port].beacon = enable;
        return code::Ok;
    });
}

int setTargetMaxOutstandingIo(San& san, u64 adapter, const std::string& target, u32 count, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        for (Target& t : san.targets)
            if (t.name == target && adapterSeesTarget(san, a, t)) {
                t.maxOutstandingIo = count;
                return code::Ok;
            }
        return code::ObjectNotFound;
    });
}

namespace {

// Gb/s of a PBase::FC_LINK_RATE value from 2gb (1) to 16gb (5).
int linkRateGbps(int linkRate)
{
    static const int gbps[] = {0, 2, 4, 8, 10, 16};
    return gbps[linkRate];
}

// Gb/s that the fitted SFP carries at most: 0 with none fitted, and no
// limit (-1) when the port does not report its SFP.
int sfpGbps(int sfpState)
{
    switch (sfpState) {
    case 1: // not present
        return 0;
    case 2: // 4Gb, and 4Gb mismatched to the port
    case 4:
        return 4;
    case 3: // 8Gb, and 8Gb mismatched
    case 5:
        return 8;
    case 6: // 10Gb
        return 10;
    default:
        return -1;
    }
}

// Auto negotiates whatever the SFP carries; a fixed rate must fit it.
bool sfpCarries(int sfpState, int linkRate)
{
    int const limit = sfpGbps(sfpState);
    return linkRate == 0 || limit < 0 || linkRateGbps(linkRate) <= limit;
}

} // namespace

int setPortSettings(San& san, u64 adapter, u32 port, int linkRate, int option, u32 throttle, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        if (port >= a.ports.size() || linkRate < 0 || linkRate > 5 || option < 0 || option > 2 || throttle < 1 ||
            throttle > 65535)
            return code::InvalidArgument;
        Port& p = a.ports[port];
        if (!sfpCarries(p.sfpState, linkRate))
            return code::LinkRateBeyondSfp;
        p.programmedLinkRate = linkRate;
        p.connectionOption = option;
        p.executionThrottle = throttle;
        if (linkRate != 0)
            p.linkRate = linkRate;
        if (option != 2)
            p.connectionMode = option;
        return code::Ok;
    });
}

int installFirmware(San& san, u64 adapter, const std::string& version, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        if (version.empty() || !isStorableText(version, 31))
            return code::InvalidArgument;
        a.swVersion = version;
        a.needsRestart = true;
        appendLog(a, now, 5, "fwupdate", "Firmware " + version + " written to flash");
        return code::OkRestartRequired;
    });
}

int storeFile(San& san, u64 adapter, const std::string& name, const std::string& content, bool clearFirst,
              long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        // The name is a key of the JSON state, so it must be text; the
        // content may be any bytes.
        if (name.empty() || name.find('/') != std::string::npos || !codec::isUtf8(name) ||
            content.size() > 4 * 1024 * 1024)
            return code::InvalidArgument;
        if (clearFirst) {
            a.files.clear();
            a.binaryFiles.clear();
        }
        if (codec::isUtf8(content)) {
            a.files[name] = content;
            a.binaryFiles.erase(name);
        } else {
            a.binaryFiles[name] = base64::encode(content);
            a.files.erase(name);
        }
        return code::Ok;
    });
}

int fetchFile(San& san, u64 adapter, const std::string& name, bool clearAfter, std::string& content, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        if (auto text = a.files.find(name); text != a.files.end()) {
            content = text->second;
            if (clearAfter)
                a.files.erase(text);
            return code::Ok;
        }
        auto binary = a.binaryFiles.find(name);
        if (binary == a.binaryFiles.end())
            return code::ObjectNotFound;
        // A checked state holds only valid base64; one built by hand may not.
        if (!base64::decode(binary->second, content))
            return code::Failure;
        if (clearAfter)
            a.binaryFiles.erase(binary);
        return code::Ok;
    });
}

int runNvdimmCommand(San& san, u64 adapter, int command, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        if (!a.nvdimm.present)
            return code::NotSupported;
        switch (command) {
        case 0:
            a.nvdimm.status = 1;
            break; // disarmed
        case 1:
        case 6:
        case 7:
            break; // erase, self test, scrub
        case 2:
        case 5:
            a.nvdimm.status = 2;
            break; // updated and armed again
        default:
            return code::InvalidArgument;
        }
        appendLog(a, now, 5, "nvdimm", "NVDIMM command " + std::to_string(command) + " completed");
        return code::Ok;
    });
}

int restoreDriveConfig(San& san, u64 adapter, u64 owner, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        int adopted = 0;
        for (Drive& d : a.drives)
            if (!ownsDrive(a, d) && d.owner.value == owner) {
                d.owner = AdapterId{};
                ++adopted;
            }
        if (adopted == 0)
            return code::ObjectNotFound;
        appendLog(a, now, 5, "ssd",
                  "Drive configuration of " + std::to_string(adopted) + " drives restored from owner " +
                      adapterIdText(owner));
        return code::Ok;
    });
}

int clearLunStatistics(San& san, u64 adapter, const std::string& wwuln, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter&) {
        Lun* lun = findLunByWwuln(san, wwuln);
        if (!lun)
            return code::ObjectNotFound;
        // A LUN that is gone has no counters to clear.
        if (!lun->online)
            return code::LunGone;
        lun->statsClearedAt = now;
        return code::Ok;
    });
}

int clearStatistics(San& san, u64 adapter, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        a.statsClearedAt = now;
        return code::Ok;
    });
}

int clearLog(San& san, u64 adapter, long long now)
{
    return onAdapter(san, adapter, now, [&](Adapter& a) {
        a.log.clear();
        return code::Ok;
    });
}

void appendLog(Adapter& a, long long now, int severity, const std::string& source, const std::string& message)
{
    appendLogRecords(a, now, severity, source, message);
}

bool hasFault(const San& san, u64 adapter, const std::string& operation)
{
    for (const Fault& f : san.faults)
        if (f.adapter.value == adapter && (f.operation == operation || f.operation == "*"))
            return true;
    return false;
}

int takeFault(San& san, u64 adapter, const std::string& operation, int& firstError)
{
    firstError = 0;
    for (auto it = san.faults.begin(); it != san.faults.end(); ++it) {
        if (it->adapter.value != adapter || (it->operation != operation && it->operation != "*"))
            continue;
        int rc = it->code;
        firstError = it->firstError;
        if (it->once)
            san.faults.erase(it);
        return rc;
    }
    return code::Ok;
}

} // namespace sim::rules
