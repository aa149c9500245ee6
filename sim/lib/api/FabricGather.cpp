#include "api/FabricGather.h"

#include "api/Fill.h"
#include "api/Ids.h"
#include "model/View.h"

#include <memory>
#include <unordered_set>
#include <vector>

namespace sim {

namespace {

// The elements of one gathering, each once, in the order first met.
template <class Element>
class Gathered {
public:
    // True the first time `e` is met in this gathering.
    bool meet(Element* e)
    {
        if (!seen_.insert(e).second)
            return false;
        order_.push_back(e);
        return true;
    }
    const std::vector<Element*>& order() const { return order_; }

private:
    std::unordered_set<Element*> seen_;
    std::vector<Element*> order_;
};

template <class Collection, class Element, class Id>
Element* heldOrAdded(Collection& collection, const Id& id)
{
    if (Element* held = collection.lookup(id))
        return held;
    auto fresh = std::make_unique<Element>();
    fresh->id = id;
    return collection.add(std::move(fresh));
}

// The device of a port name; its record starts blank the first time the
// name is met in a gathering, so that no part of an earlier one lingers.
SimDevice* deviceFor(SimDeviceCollection& devices, const KDeviceID& id, Gathered<SimDevice>& gathered)
{
    SimDevice* device = heldOrAdded<SimDeviceCollection, SimDevice>(devices, id);
    if (gathered.meet(device))
        device->info.init();
    return device;
}

const unsigned char* nameBytes(const std::string& name)
{
    return reinterpret_cast<const unsigned char*>(name.c_str());
}

// A target's device carries the target's own name.
KDeviceID targetDeviceId(const PTargetID& id)
{
    KDeviceID device;
    if (id.isIscsiTargetId()) {
        unsigned char name[PUniqueID::DATA_SIZE + 1] = {};
        id.getIscsiName(name, PUniqueID::DATA_SIZE);
        device.initIscsiDeviceID(name);
    } else {
        device.initFcDeviceID(id.getData() + 4, 8);
    }
    return device;
}

// An initiator's name in one of the identifiers that carry a protocol and a
// name: its own, and that of its device.
template <class Id>
Id initiatorName(const Initiator& i, void (Id::*initIscsi)(const unsigned char*),
                 void (Id::*initFc)(const std::string&))
{
    Id id;
    if (i.protocol == 2)
        (id.*initIscsi)(nameBytes(i.iscsiName));
    else
        (id.*initFc)(i.wwpn);
    return id;
}

KDeviceID initiatorDeviceId(const Initiator& i)
{
    return initiatorName<KDeviceID>(i, &KDeviceID::initIscsiDeviceID, &KDeviceID::initFcDeviceIDFromString);
}

PInitiatorID initiatorId(const Initiator& i)
{
    return initiatorName<PInitiatorID>(i, &PInitiatorID::initIscsiInitiatorID,
                                       &PInitiatorID::initFcInitiatorIDFromString);
}

bool initiatorSeenBy(const Initiator& i, const Adapter& a)
{
    if (i.seenBy.empty())
        return true;
    for (const AdapterId& id : i.seenBy)
        if (id == a.id)
            return true;
    return false;
}

// Holds the target as `a` sees it now, with its device.
void gatherTarget(const San& san, const Adapter& a, const Target& t, SimTargetCollection& targets,
                  Gathered<SimTarget>& gathered, Gathered<SimDevice>& devices, SimDeviceCollection& deviceCollection)
{
    if (!adapterSeesTarget(san, a, t))
        return;
    SimTarget* held = heldOrAdded<SimTargetCollection, SimTarget>(targets, targetId(t));
    held->name = t.name;
    fillTargetInfo(san, t, a, held->info);
    gathered.meet(held);
    SimDevice* device = deviceFor(deviceCollection, targetDeviceId(held->id), devices);
    device->info.isTarget = true;
    device->info.isInternal = t.internal;
    device->info.target = held->info;
}

void gatherTargets(const San& san, const Adapter& a, const Target* ownInternal, SimTargetCollection& targets,
                   Gathered<SimDevice>& devices, SimDeviceCollection& deviceCollection)
{
    Gathered<SimTarget> gathered;
    for (const Target& t : san.targets)
        gatherTarget(san, a, t, targets, gathered, devices, deviceCollection);
    if (ownInternal)
        gatherTarget(san, a, *ownInternal, targets, gathered, devices, deviceCollection);
    targets.keepOnly(gathered.order());
}

void gatherInitiators(const San& san, const Adapter& a, SimInitiatorCollection& initiators,
                      Gathered<SimDevice>& devices, SimDeviceCollection& deviceCollection)
{
    Gathered<SimInitiator> gathered;
    for (const Initiator& i : san.initiators) {
        if (!initiatorSeenBy(i, a))
            continue;
        SimInitiator* held = heldOrAdded<SimInitiatorCollection, SimInitiator>(initiators, initiatorId(i));
        if (gathered.meet(held))
            fillInitiatorInfo(i, held->info);
        // A port that is also a target is one device with both parts.
        SimDevice* device = deviceFor(deviceCollection, initiatorDeviceId(i), devices);
        if (!device->info.isInitiator) {
            device->info.isInitiator = true;
            fillInitiatorInfo(i, device->info.initiator);
        }
    }
    initiators.keepOnly(gathered.order());
}

} // namespace

void gatherFabricObjects(const San& san, const Adapter& a, const Target* ownInternal, SimTargetCollection& targets,
                         SimInitiatorCollection& initiators, SimDeviceCollection& devices)
{
    Gathered<SimDevice> gatheredDevices;
    gatherTargets(san, a, ownInternal, targets, gatheredDevices, devices);
    gatherInitiators(san, a, initiators, gatheredDevices, devices);
    devices.keepOnly(gatheredDevices.order());
}

void noteTargetLimit(const PTargetID& target, u32 count, SimTargetCollection& targets, SimDeviceCollection& devices)
{
    SimTarget* held = targets.lookup(target);
    if (!held)
        return;
    held->info.maxOutstandingIo = count;
    SimDevice* device = devices.lookup(targetDeviceId(held->id));
    if (device && device->info.isTarget)
        device->info.target.maxOutstandingIo = count;
}

} // namespace sim
