// Questions about the SAN as one adapter sees it: which targets and LUN
// paths it reaches, and how each LUN's cache looks from there.
#pragma once

#include "model/San.h"
#include "model/States.h"

#include <string>
#include <vector>

namespace sim {

Adapter* findAdapter(San& san, u64 id);
const Adapter* findAdapter(const San& san, u64 id);
const Host* findHost(const San& san, const std::string& agent);
const Target* findTarget(const San& san, const std::string& name);
const Cluster* clusterOf(const San& san, u64 adapter);
Cluster* clusterOf(San& san, u64 adapter);
Cluster* findCluster(San& san, const std::string& id);

// The adapter answers requests: online and not in the middle of a restart.
bool adapterAnswers(const Adapter& a, long long now);

// FC ports (1-based) on which the adapter discovers the target; empty when it
// does not see the target at all.
std::vector<int> discoveryPorts(const San& san, const Adapter& a, const Target& t);
bool adapterSeesTarget(const San& san, const Adapter& a, const Target& t);

struct PathRef {
    std::string target;
    u32 lun = 0;
    u32 vpGroup = 1;
};

Lun* findLun(San& san, const PathRef& path);
const Lun* findLun(const San& san, const PathRef& path);
// By the WWULN as a scenario writes it, or for a binary one also as the tool
// prints it (groups of four digits joined by dashes), in either case.
Lun* findLunByWwuln(San& san, const std::string& wwuln);
const Lun* findLunByWwuln(const San& san, const std::string& wwuln);
bool adapterSeesPath(const San& san, const Adapter& a, const PathRef& path);

struct VisiblePath {
    const Target* target;
    const LunPath* path;
    const Lun* lun;
};

// Every LUN path of the SAN, sorted out once by target: walking the LUNs once
// per target costs targets times LUNs, too much for walks over many adapters.
class PathIndex {
public:
    explicit PathIndex(const San& san);
    // The paths through the target at this index of the SAN's list, by LUN
    // number and then volume path group.
    const std::vector<VisiblePath>& pathsOf(size_t targetIndex) const { return byTarget_[targetIndex]; }

private:
    std::vector<std::vector<VisiblePath>> byTarget_;
};

// Every LUN path the adapter reaches, in target order and then by LUN number.
std::vector<VisiblePath> visiblePaths(const San& san, const Adapter& a);
std::vector<VisiblePath> visiblePaths(const San& san, const PathIndex& index, const Adapter& a);
std::vector<VisiblePath> visiblePaths(const San& san, const Adapter& a, const Target& t);

CacheState cacheStateFor(const Lun& lun, u64 adapter);
MirrorRole mirrorStateFor(const Lun& lun, u64 adapter);
bool isCacheableLun(const Lun& lun);
u32 lunStateBits(const San& san, const Lun& lun, const Adapter& viewer);

// Storage arithmetic of one adapter's drives.
u64 configuredBytes(const Adapter& a);
u64 totalDriveBytes(const Adapter& a);
u64 dataLunBytes(const San& san, u64 adapter);

} // namespace sim
