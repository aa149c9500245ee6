#include "api/Objects.h"

#include <algorithm>

namespace sim {

void retire(std::shared_ptr<void> object)
{
    static std::vector<std::shared_ptr<void>>* kept = new std::vector<std::shared_ptr<void>>;
    kept->push_back(std::move(object));
}

std::string idKey(const PUniqueID& id)
{
    int32_t type = id.getIdType();
    std::string key(reinterpret_cast<const char*>(&type), sizeof type);
    int length = std::clamp<int>(id.getDataLength(), 0, PUniqueID::DATA_SIZE);
    key.append(reinterpret_cast<const char*>(id.getData()), static_cast<size_t>(length));
    return key;
}

void SimLunIdList::addUnique(const PLunID& id)
{
    if (keys_.insert(idKey(id)).second)
        ids.push_back(id);
}

HTarget* SimTargetCollection::find(const PTargetID& id)
{
    return lookup(id);
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
    return lookup(id);
}

HDevice* SimDeviceCollection::find(const KDeviceID& id)
{
    return lookup(id);
}

HDrive* SimDriveCollection::find(const KDriveID& id)
{
    return lookup(id);
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
    return lookup(id);
}

HLunPathEntry* SimLunPathTable::find(const PLunID& id)
{
    return lookup(id);
}

} // namespace sim
