#include "Summary.h"

#include "model/AdapterStorage.h"
#include "model/Scenario.h"
#include "model/View.h"

#include <cstdio>

namespace sim {

namespace {

std::string sizeText(u64 bytes)
{
    char buf[32];
    if (bytes >= (1ull << 40) && bytes % (1ull << 30) == 0 && bytes % (1ull << 40) == 0)
        std::snprintf(buf, sizeof buf, "%llu TiB", static_cast<unsigned long long>(bytes >> 40));
    else if (bytes >= (1ull << 30))
        std::snprintf(buf, sizeof buf, "%llu GiB", static_cast<unsigned long long>(bytes >> 30));
    else
        std::snprintf(buf, sizeof buf, "%llu MiB", static_cast<unsigned long long>(bytes >> 20));
    return buf;
}

std::string hostName(const std::string& agent)
{
    return agent.empty() ? "local host" : "agent " + agent;
}

const char* modeName(int mode)
{
    static const char* names[] = {"none",      "read/write-through", "read/write-back",
                                  "read-only", "write-through-only", "write-back-only",
                                  "purging"};
    return mode >= CacheStop && mode <= CachePurge ? names[mode] : "unknown";
}

const char* lunTypeName(int type)
{
    switch (type) {
    case kDirectAccessLun:
        return "direct access";
    case kSequentialAccessLun:
        return "sequential access";
    case kSanControllerLun:
        return "controller";
    default:
        return "other";
    }
}

std::string hosts(const San& san)
{
    std::string text = "Hosts:\n";
    for (const Host& h : san.hosts)
        text += "  " + hostName(h.agent) + ": " + h.nodeName + (h.online ? "" : "  [agent down]") + "\n";
    return text;
}

std::string adapterRole(const San& san, const Adapter& a)
{
    const Cluster* c = clusterOf(san, a.id.value);
    if (!c)
        return "no cluster";
    std::string role = c->primary == a.id ? "primary" : c->secondary == a.id ? "secondary" : "member";
    return "cluster " + c->id + " (" + role + ")";
}

std::string adapters(const San& san, long long now)
{
    std::string text = "Adapters:\n";
    for (const Adapter& a : san.adapters) {
        std::string reach = a.device >= 0 ? "device " + std::to_string(a.device) + " on " + hostName(a.host)
                                          : "SAN via device " + std::to_string(a.viaDevice) + " on " + hostName(a.host);
        std::string state = a.state != AdapterOnline ? "OFFLINE" : adapterAnswers(a, now) ? "online" : "restarting";
        text += "  " + adapterIdText(a.id.value) + "  " + reach + ", " + state + ", \"" + a.symbolicName + "\", " +
            adapterRole(san, a) + "\n";
        std::string ports;
        for (size_t i = 0; i < a.ports.size(); ++i)
            ports += (i ? ", " : "") + std::string("FC") + std::to_string(i + 1) +
                (a.ports[i].enabled ? (a.ports[i].online ? " up" : " down") : " disabled");
        int configured = 0, foreign = 0;
        for (const Drive& d : a.drives) {
            configured += inCachePool(a, d);
            foreign += !ownsDrive(a, d);
        }
        std::string foreignText = foreign ? ", " + std::to_string(foreign) + " of another adapter" : "";
        text += "      ports: " + ports + "; drives: " + std::to_string(a.drives.size()) + " (" +
            std::to_string(configured) + " in pool" + foreignText + "); cache pool " + sizeText(a.cachePoolBytes) +
            "; log " + std::to_string(a.log.size()) + " records" + (a.fixedStatistics ? "; statistics pinned" : "") +
            "\n";
    }
    return text;
}

std::string clusters(const San& san)
{
    std::string text = "Clusters:\n";
    if (san.clusters.empty())
        text += "  none\n";
    for (const Cluster& c : san.clusters) {
        text += "  " + c.id + ": primary " + adapterIdText(c.primary.value) + ", secondary " +
            adapterIdText(c.secondary.value) + ", " + std::to_string(c.members.size()) + " members\n";
    }
    return text;
}

std::string targets(const San& san)
{
    std::string text = "Targets:\n";
    for (const Target& t : san.targets) {
        std::string ports;
        for (int p : t.ports)
            ports += (ports.empty() ? "" : "+") + std::to_string(p);
        text += "  " + t.name + "  " + (t.protocol == 2 ? "iSCSI " + t.iscsiName : "FC " + t.wwpn) + ", port " + ports +
            (t.online ? "" : ", OFFLINE") + (t.internal ? ", internal" : "") + "\n";
    }
    return text;
}

std::string cacheText(const Lun& l)
{
    if (!l.cached)
        return "";
    const CacheSettings& c = l.cache;
    std::string text = "\n      cached " + std::string(modeName(c.mode)) + " on " + adapterIdText(c.adapter.value);
    if (c.mirrored)
        text += ", mirrored on " + adapterIdText(c.mirrorAdapter.value);
    if (!c.lockedRanges.empty())
        text += ", " + std::to_string(c.lockedRanges.size()) + " locked ranges";
    if (c.dirtyBytes)
        text += ", " + sizeText(c.dirtyBytes) + " dirty";
    if (c.flushStarted)
        text += ", flushing";
    return text;
}

std::string luns(const San& san)
{
    std::string text = "LUNs:\n";
    for (const Lun& l : san.luns) {
        std::string paths;
        for (const LunPath& p : l.paths)
            paths += (paths.empty() ? "" : ", ") + p.target + ":" + std::to_string(p.lun);
        text += "  " + (l.codeSet == 2 ? "\"" + l.wwuln + "\"" : l.wwuln) + "  " + lunTypeName(l.type) + ", " +
            sizeText(l.sizeBytes) + (l.online ? "" : ", OFFLINE") + ", paths " + paths;
        if (l.local)
            text += ", data LUN \"" + l.localInfo.name + "\" of " + adapterIdText(l.localInfo.owner.value);
        if (l.reservation.type > 1)
            text += ", reserved";
        if (l.fixedIoStatistics)
            text += ", statistics pinned";
        text += cacheText(l) + "\n";
    }
    return text;
}

std::string faults(const San& san)
{
    std::string text = "Faults:\n";
    if (san.faults.empty())
        text += "  none\n";
    for (const Fault& f : san.faults) {
        text += "  " + adapterIdText(f.adapter.value) + " " + f.operation + " -> " + std::to_string(f.code);
        if (f.firstError)
            text += " (first error " + std::to_string(f.firstError) + ")";
        text += f.once ? ", once\n" : ", always\n";
    }
    return text;
}

} // namespace

std::string sanSummary(const San& san, long long now)
{
    return "SAN \"" + san.name + "\"\n" + hosts(san) + adapters(san, now) + clusters(san) + targets(san) + luns(san) +
        faults(san);
}

} // namespace sim
