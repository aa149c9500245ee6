#include "model/AdapterStorage.h"

#include "model/Scenario.h"

namespace sim {

u64 driveOwner(const Adapter& a, const Drive& d)
{
    return d.owner.value == 0 ? a.id.value : d.owner.value;
}

bool ownsDrive(const Adapter& a, const Drive& d)
{
    return driveOwner(a, d) == a.id.value;
}

bool inCachePool(const Adapter& a, const Drive& d)
{
    return d.configured && ownsDrive(a, d);
}

Drive* findDrive(Adapter& a, const std::string& id)
{
    for (Drive& d : a.drives)
        if (d.id == id)
            return &d;
    return nullptr;
}

bool isInternalTargetOf(const Target& t, const Adapter& a)
{
    return t.internal && t.seenBy.size() == 1 && t.seenBy[0] == a.id;
}

const Target* findInternalTarget(const San& san, const Adapter& a)
{
    for (const Target& t : san.targets)
        if (isInternalTargetOf(t, a))
            return &t;
    return nullptr;
}

Target makeInternalTarget(const Adapter& a)
{
    Target t;
    t.name = "internal-" + adapterIdText(a.id.value);
    t.internal = true;
    t.seenBy = {a.id};
    t.wwpn = a.ports.empty() ? adapterIdText(a.id.value) : a.ports[0].wwpn;
    t.wwnn = a.ports.empty() ? adapterIdText(a.id.value) : a.ports[0].wwnn;
    t.ports = {1, 2};
    return t;
}

const Target* presentingTarget(const San& san, const Adapter& a, Target& made)
{
    if (const Target* held = findInternalTarget(san, a))
        return held;
    if (a.drives.empty())
        return nullptr;
    made = makeInternalTarget(a);
    return &made;
}

} // namespace sim
