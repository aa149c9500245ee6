// The library's objects below the adapter: collections and their elements.
// Every object handed out stays valid for the life of the process, also
// after a clear or a new scan: the command line may still hold a pointer from
// before, and a dangling one would be far worse than a few kept bytes.
#pragma once

#include "api/HDeviceCollection.h"
#include "api/HDriveCollection.h"
#include "api/HDriveIdList.h"
#include "api/HDrivePoolCollection.h"
#include "api/HInitiatorCollection.h"
#include "api/HLunCollection.h"
#include "api/HLunIdList.h"
#include "api/HLunPathTable.h"
#include "api/HTargetCollection.h"

#include "records/KDeviceInfo.h"
#include "records/KDriveInfo.h"
#include "records/KInitiatorInfo.h"
#include "records/KLunInfo.h"
#include "records/KTargetInfo.h"
#include "records/PUniqueID.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace sim {

// Keeps retired objects alive until the process ends.
void retire(std::shared_ptr<void> object);

template <class Base, class Element>
class OwningCollection : public Base {
public:
    Element* add(std::unique_ptr<Element> element)
    {
        Element* raw = element.get();
        this->items.push_back(raw);
        owned_.push_back(std::move(element));
        return raw;
    }
    void clear()
    {
        this->items.clear();
        for (auto& e : owned_)
            retire(std::shared_ptr<Element>(std::move(e)));
        owned_.clear();
    }
    // Ends a gathering: the collection lists `kept` (elements it holds), in
    // that order, and retires the others.
    void keepOnly(const std::vector<Element*>& kept)
    {
        std::unordered_set<const Element*> keep(kept.begin(), kept.end());
        std::vector<std::unique_ptr<Element>> staying;
        for (auto& e : owned_) {
            if (keep.count(e.get()))
                staying.push_back(std::move(e));
            else
                retire(std::shared_ptr<Element>(std::move(e)));
        }
        owned_ = std::move(staying);
        this->items.assign(kept.begin(), kept.end());
    }
    const std::vector<std::unique_ptr<Element>>& owned() const { return owned_; }

private:
    std::vector<std::unique_ptr<Element>> owned_;
};

// The identity of an identifier as its equality sees it: tag, length, bytes.
std::string idKey(const PUniqueID& id);

// A collection whose elements are found by their identifier `id` through a
// hash index, since a SAN may hold thousands of LUN paths.
template <class Base, class Element>
class IndexedCollection : public OwningCollection<Base, Element> {
public:
    Element* add(std::unique_ptr<Element> element)
    {
        Element* raw = OwningCollection<Base, Element>::add(std::move(element));
        index_.emplace(idKey(raw->id), raw);
        return raw;
    }
    void clear()
    {
        index_.clear();
        OwningCollection<Base, Element>::clear();
    }
    void keepOnly(const std::vector<Element*>& kept)
    {
        OwningCollection<Base, Element>::keepOnly(kept);
        index_.clear();
        for (Element* e : kept)
            index_.emplace(idKey(e->id), e);
    }
    Element* lookup(const PUniqueID& id) const
    {
        auto it = index_.find(idKey(id));
        return it == index_.end() ? nullptr : it->second;
    }

private:
    std::unordered_map<std::string, Element*> index_;
};

class SimLunIdList : public HLunIdList {
public:
    uint32_t count() override { return static_cast<uint32_t>(ids.size()); }
    PLunID* at(uint32_t index) override { return index < ids.size() ? &ids[index] : nullptr; }
    void addUnique(const PLunID& id);
    std::vector<PLunID> ids;

private:
    std::unordered_set<std::string> keys_;
};

class SimTarget : public HTarget {
public:
    PTargetID* getTargetId() override { return &id; }
    KTargetInfo* getTargetInfo() override { return &info; }
    HLunIdList* getLunIds() override { return &luns; }
    std::string name;
    PTargetID id;
    KTargetInfo info;
    SimLunIdList luns;
};

class SimTargetCollection : public IndexedCollection<HTargetCollection, SimTarget> {
public:
    HTarget* find(const PTargetID& id) override;
    SimTarget* byName(const std::string& name);
};

class SimInitiator : public HInitiator {
public:
    KInitiatorInfo* getInitiatorInfo() override { return &info; }
    PInitiatorID id;
    KInitiatorInfo info;
};

class SimInitiatorCollection : public IndexedCollection<HInitiatorCollection, SimInitiator> {
public:
    HInitiator* find(const PInitiatorID& id) override;
};

class SimDevice : public HDevice {
public:
    KDeviceInfo* getDeviceInfo() override { return &info; }
    KDeviceID id;
    KDeviceInfo info;
};

class SimDeviceCollection : public IndexedCollection<HDeviceCollection, SimDevice> {
public:
    HDevice* find(const KDeviceID& id) override;
};

class SimDrive : public HDrive {
public:
    KDriveInfo* getDriveInfo() override { return &info; }
    KDriveID* getDriveId() override { return &id; }
    KDriveID id;
    KDriveInfo info;
};

class SimDriveCollection : public IndexedCollection<HDriveCollection, SimDrive> {
public:
    bool contains(const KDriveID& id) override { return find(id) != nullptr; }
    HDrive* find(const KDriveID& id) override;
};

class SimDriveIdList : public HDriveIdList {
public:
    uint32_t count() override { return static_cast<uint32_t>(ids.size()); }
    bool first(KDriveID& out) override;
    bool next(KDriveID& out) override;
    std::vector<KDriveID> ids;

private:
    size_t cursor_ = 0;
};

class SimDrivePool : public HDrivePool {
public:
    KDrivePoolID* getDrivePoolId() override { return &id; }
    HDriveIdList* getDriveIds() override { return &drives; }
    KDrivePoolID id;
    SimDriveIdList drives;
};

class SimDrivePoolCollection : public OwningCollection<HDrivePoolCollection, SimDrivePool> {};

class SimLun : public HLun {
public:
    using Refresher = std::function<e_MHBA_RETURN(SimLun&)>;
    PLunID* getLunId() override { return &id; }
    // A change made through this process since the record was filled may
    // have touched the LUN: the record then says it is not valid, so that a
    // caller refreshes it instead of showing the state from before.
    KLunInfo* getLunInfo() override
    {
        if (changes && *changes != filledAt)
            info.bValid = false;
        return &info;
    }
    e_MHBA_RETURN refreshLunInfo() override { return refresh ? refresh(*this) : MHBA_E_FAILURE; }
    PLunID id;
    KLunInfo info;
    Refresher refresh;
    const std::uint64_t* changes = nullptr; // the process's count of changes made
    std::uint64_t filledAt = 0;             // that count when `info` was filled
};

class SimLunCollection : public IndexedCollection<HLunCollection, SimLun> {
public:
    HLun* find(const PLunID& id) override;
};

class SimLunPathEntry : public HLunPathEntry {
public:
    PLunID* getLunId() override { return &id; }
    std::string displayText() override { return text; }
    PLunID id;
    std::string text;
};

class SimLunPathTable : public IndexedCollection<HLunPathTable, SimLunPathEntry> {
public:
    HLunPathEntry* find(const PLunID& id) override;
};

} // namespace sim
