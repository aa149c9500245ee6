#include "model/View.h"

#include "model/AdapterStorage.h"

#include <algorithm>
#include <string_view>
#include <strings.h>
#include <unordered_map>

namespace sim {

Adapter* findAdapter(San& san, u64 id)
{
    for (Adapter& a : san.adapters)
        if (a.id.value == id)
            return &a;
    return nullptr;
}

const Adapter* findAdapter(const San& san, u64 id)
{
    return findAdapter(const_cast<San&>(san), id);
}

const Host* findHost(const San& san, const std::string& agent)
{
    for (const Host& h : san.hosts)
        if (h.agent == agent)
            return &h;
    return nullptr;
}

const Target* findTarget(const San& san, const std::string& name)
{
    for (const Target& t : san.targets)
        if (t.name == name)
            return &t;
    return nullptr;
}

Cluster* clusterOf(San& san, u64 adapter)
{
    for (Cluster& c : san.clusters)
        for (const AdapterId& m : c.members)
            if (m.value == adapter)
                return &c;
    return nullptr;
}

const Cluster* clusterOf(const San& san, u64 adapter)
{
    return clusterOf(const_cast<San&>(san), adapter);
}

Cluster* findCluster(San& san, const std::string& id)
{
    for (Cluster& c : san.clusters)
        if (c.id == id)
            return &c;
    return nullptr;
}

bool adapterAnswers(const Adapter& a, long long now)
{
    return a.state == AdapterOnline && now >= a.restartUntil;
}

std::vector<int> discoveryPorts(const San& san, const Adapter& a, const Target& t)
{
    (void)san;
    std::vector<int> ports;
    bool seen = t.seenBy.empty()
        ? !t.internal
        : std::any_of(t.seenBy.begin(), t.seenBy.end(), [&](const AdapterId& id) { return id == a.id; });
    if (!seen)
        return ports;
    for (int p : t.ports) {
        size_t index = static_cast<size_t>(p - 1);
        if (p >= 1 && index < a.ports.size() && a.ports[index].enabled && a.ports[index].online)
            ports.push_back(p);
    }
    return ports;
}

bool adapterSeesTarget(const San& san, const Adapter& a, const Target& t)
{
    return !discoveryPorts(san, a, t).empty();
}

Lun* findLun(San& san, const PathRef& path)
{
    for (Lun& l : san.luns)
        for (const LunPath& p : l.paths)
            if (p.target == path.target && p.lun == path.lun && p.vpGroup == path.vpGroup)
                return &l;
    return nullptr;
}

const Lun* findLun(const San& san, const PathRef& path)
{
    return findLun(const_cast<San&>(san), path);
}

namespace {

// A binary WWULN as the tool prints it, "6006-0160-A1B2-...", is its digits
// without the dashes; any other text stays as it is.
std::string undashed(const std::string& text)
{
    bool dashedDigits = !text.empty() && text.front() != '-' && text.back() != '-' &&
        text.find("--") == std::string::npos && text.find_first_not_of("0123456789abcdefABCDEF-") == std::string::npos;
    if (!dashedDigits)
        return text;
    std::string digits;
    for (char c : text)
        if (c != '-')
            digits += c;
    return digits;
}

} // namespace

Lun* findLunByWwuln(San& san, const std::string& wwuln)
{
    for (Lun& l : san.luns)
        if (l.wwuln == wwuln)
            return &l;
    std::string digits = undashed(wwuln);
    for (Lun& l : san.luns)
        if (l.codeSet == 1 && strcasecmp(l.wwuln.c_str(), digits.c_str()) == 0)
            return &l;
    return nullptr;
}

const Lun* findLunByWwuln(const San& san, const std::string& wwuln)
{
    return findLunByWwuln(const_cast<San&>(san), wwuln);
}

bool adapterSeesPath(const San& san, const Adapter& a, const PathRef& path)
{
    const Target* t = findTarget(san, path.target);
    return t && findLun(san, path) && adapterSeesTarget(san, a, *t);
}

namespace {

// Paths in the order a target reports them.
void sortByLunNumber(std::vector<VisiblePath>& paths)
{
    std::stable_sort(paths.begin(), paths.end(), [](const VisiblePath& x, const VisiblePath& y) {
        return x.path->lun != y.path->lun ? x.path->lun < y.path->lun : x.path->vpGroup < y.path->vpGroup;
    });
}

} // namespace

std::vector<VisiblePath> visiblePaths(const San& san, const Adapter& a, const Target& t)
{
    std::vector<VisiblePath> found;
    if (!adapterSeesTarget(san, a, t))
        return found;
    for (const Lun& l : san.luns)
        for (const LunPath& p : l.paths)
            if (p.target == t.name)
                found.push_back({&t, &p, &l});
    sortByLunNumber(found);
    return found;
}

PathIndex::PathIndex(const San& san) : byTarget_(san.targets.size())
{
    // Target names are unique in a SAN that loaded.
    std::unordered_map<std::string_view, size_t> indexOf;
    for (size_t i = 0; i < san.targets.size(); ++i)
        indexOf.emplace(san.targets[i].name, i);
    for (const Lun& l : san.luns)
        for (const LunPath& p : l.paths) {
            auto at = indexOf.find(p.target);
            if (at != indexOf.end())
                byTarget_[at->second].push_back({&san.targets[at->second], &p, &l});
        }
    for (std::vector<VisiblePath>& paths : byTarget_)
        sortByLunNumber(paths);
}

std::vector<VisiblePath> visiblePaths(const San& san, const PathIndex& index, const Adapter& a)
{
    std::vector<VisiblePath> found;
    for (size_t i = 0; i < san.targets.size(); ++i)
        if (adapterSeesTarget(san, a, san.targets[i]))
            found.insert(found.end(), index.pathsOf(i).begin(), index.pathsOf(i).end());
    return found;
}

std::vector<VisiblePath> visiblePaths(const San& san, const Adapter& a)
{
    return visiblePaths(san, PathIndex(san), a);
}

CacheState cacheStateFor(const Lun& lun, u64 adapter)
{
    if (!lun.cached)
        return LunNotCached;
    return lun.cache.adapter.value == adapter ? LunCachedHere : LunCachedOnPeer;
}

MirrorRole mirrorStateFor(const Lun& lun, u64 adapter)
{
    if (lun.local && lun.localInfo.mirrorType == LocalMirrorSsdSsd)
        return lun.localInfo.owner.value == adapter ? MirrorPrimary : MirrorSecondary;
    if (lun.cached && lun.cache.mirrored) {
        if (lun.cache.adapter.value == adapter)
            return MirrorPrimary;
        if (lun.cache.mirrorAdapter.value == adapter)
            return MirrorSecondary;
    }
    return NotMirrored;
}

bool isCacheableLun(const Lun& lun)
{
    return lun.type == kDirectAccessLun && !lun.local;
}

u32 lunStateBits(const San& san, const Lun& lun, const Adapter& viewer)
{
    (void)san;
    u32 bits = lun.extraState;
    if (lun.online)
        bits |= kLunOnline;
    bits |= kLunMapped;
    if (lun.local) {
        bits |= kLunOnSsd;
        bits |= lun.localInfo.owner == viewer.id ? kLunLocal : kLunRemote;
        if (lun.localInfo.mirrorType == LocalMirrorSsdSsd)
            bits |= kLunMirror;
    }
    if (lun.cached && lun.cache.mode != CachePurge)
        bits |= kLunCacheReady;
    return bits;
}

u64 configuredBytes(const Adapter& a)
{
    u64 sum = 0;
    for (const Drive& d : a.drives)
        if (inCachePool(a, d) && d.online)
            sum += d.sizeBytes;
    return sum;
}

u64 totalDriveBytes(const Adapter& a)
{
    u64 sum = 0;
    for (const Drive& d : a.drives)
        if (d.online)
            sum += d.sizeBytes;
    return sum;
}

u64 dataLunBytes(const San& san, u64 adapter)
{
    u64 sum = 0;
    for (const Lun& l : san.luns)
        if (l.local && l.localInfo.owner.value == adapter)
            sum += l.sizeBytes;
    return sum;
}

} // namespace sim
