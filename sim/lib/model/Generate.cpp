#include "model/Generate.h"

#include "model/DefaultSan.h"
#include "model/View.h"
#include "state/Clock.h"

#include <algorithm>
#include <cstdio>

namespace sim {

namespace {

Host generatedHost()
{
    Host h;
    h.nodeName = "benchhost";
    h.osVersion = "6.1.0-sim";
    h.osBuildDate = "#1 SMP";
    h.driverVersion = "zek 4.2.1.7";
    return h;
}

// Read/write-back with the firmware's windows; a mirrored cache is in
// synchrony on the second adapter and holds some dirty data.
void cacheOnFirstAdapter(const San& san, Lun& lun, u64 index, long long now)
{
    constexpr u64 MiB = 1024ull * 1024;
    lun.cached = true;
    CacheSettings& c = lun.cache;
    c.adapter = san.adapters[0].id;
    c.mode = 2;
    c.maxCacheBytes = index % 2 ? 0 : (4 + index % 60) * 1024 * MiB;
    c.since = now;
    if (index % 4 == 0 && san.adapters.size() >= 2) {
        c.mirrored = true;
        c.mirrorAdapter = san.adapters[1].id;
        c.mirrorState = 0x0101; // configured, in synchrony
        c.mirrorFlag = 4;
        c.dirtyBytes = (16 + index % 16) * MiB;
    }
}

} // namespace

San generateSan(int adapters, int lunPaths, int targets, int drives, int cached)
{
    long long now = simNow();
    San san;
    san.name = "generated";
    san.hosts = {generatedHost()};
    for (int i = 0; i < adapters; ++i) {
        Adapter a;
        a.id.value = 0x2000001B33000000ull + static_cast<u64>(i) * 0x100;
        a.device = i;
        a.symbolicName = "bench-" + std::to_string(i);
        a.serialNumber = "ZB" + hex16(static_cast<u64>(i)).substr(10);
        a.ports = {makePort(a.id.value, 0), makePort(a.id.value, 1)};
        for (int d = 0; d < drives; ++d)
            a.drives.push_back(makeDrive(a.id.value, d, 800ull * 1000 * 1000 * 1000, d + 1 < drives || drives == 1));
        a.cachePoolBytes = std::min<u64>(1024ull * 1024 * 1024 * 1024, configuredBytes(a));
        a.bootTime = a.statsClearedAt = now - 86400;
        a.log = makeLog(now, 20);
        san.adapters.push_back(a);
    }
    if (adapters >= 2) {
        Cluster c;
        c.id = "benchcluster";
        c.primary = san.adapters[0].id;
        c.secondary = san.adapters[1].id;
        c.members = {c.primary, c.secondary};
        san.clusters.push_back(c);
    }
    targets = targets < 1 ? 1 : targets;
    for (int t = 0; t < targets; ++t) {
        Target target;
        target.name = "tgt" + std::to_string(t);
        target.wwpn = hex16(0x5000C50000000000ull + static_cast<u64>(t));
        target.wwnn = hex16(0x5000C50010000000ull + static_cast<u64>(t));
        target.portId = 0x020000u + static_cast<u32>(t);
        target.ports = {1 + t % 2};
        san.targets.push_back(target);
    }
    std::vector<u32> nextLun(static_cast<size_t>(targets), 0);
    int paths = 0;
    for (u64 n = 0; paths < lunPaths; ++n) {
        Lun lun;
        lun.wwuln = hex16(0x600A0B8000000000ull) + hex16(n);
        lun.serial = hex16(n);
        lun.page80 = "BENCH" + std::to_string(n);
        lun.sizeBytes = (1 + n % 64) * 1024ull * 1024 * 1024;
        int first = static_cast<int>(n % static_cast<u64>(targets));
        int count = (n % 4 == 3 && targets > 1 && lunPaths - paths >= 2) ? 2 : 1;
        for (int k = 0; k < count; ++k) {
            size_t t = static_cast<size_t>((first + k) % targets);
            lun.paths.push_back(LunPath{san.targets[t].name, nextLun[t]++, 1, k == 0 ? 3 : 6});
        }
        paths += count;
        if (n < static_cast<u64>(cached))
            cacheOnFirstAdapter(san, lun, n, now);
        san.luns.push_back(lun);
    }
    return san;
}

} // namespace sim
