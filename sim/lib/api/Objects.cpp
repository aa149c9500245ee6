#include "api/Objects.h"

namespace sim {

void retire(std::shared_ptr<void> object)
{
    static std::vector<std::shared_ptr<void>>* kept = new std::vector<std::shared_ptr<void>>;
    kept->push_back(std::move(object));
}

void SimLunIdList::addUnique(const PLunID& id)
{
    for (const PLunID& known : ids)
        if (known == id)
            return;
    ids.push_back(id);
}

HTarget* SimTargetCollection::find(const PTargetID& id)
{
    for (const auto& t : owned())
        if (t->id == id)
            return t.get();
    return nullptr;
}

SimTarget* SimTargetCollection::byName(const std::string& name)
{
    for (const auto& t : owned())
        if (t->name == name)
            return t.get();
    return nullptr;
}

HInitiator* SimInitiatorCollection::find(const PInitiatorID& id)
{
    for (const auto& i : owned())
        if (i->id == id)
            return i.get();
    return nullptr;
}

HDevice* SimDeviceCollection::find(const KDeviceID& id)
{
    for (const auto& d : owned())
        if (d->id == id)
            return d.get();
    return nullptr;
}

HDrive* SimDriveCollection::find(const KDriveID& id)
{
    for (const auto& d : owned())
        if (d->id == id)
            return d.get();
    return nullptr;
}

bool SimDriveIdList::first(KDriveID& out)
{
    cursor_ = 0;
    return next(out);
}

bool SimDriveIdList::next(KDriveID& out)
{
    if (cursor_ >= ids.size())
        return false;
    out = ids[cursor_++];
    return true;
}

HLun* SimLunCollection::find(const PLunID& id)
{
    for (const auto& l : owned())
        if (l->id == id)
            return l.get();
    return nullptr;
}

HLunPathEntry* SimLunPathTable::find(const PLunID& id)
{
    for (const auto& e : owned())
        if (e->id == id)
            return e.get();
    return nullptr;
}

} // namespace sim
