// Targets that an adapter sees, filled by getTargetsAndInitiators, and one
// target with its LUN identifiers.
//
// Slot order matters; see HbaMgmtApi.h. Every collection keeps the head of
// eight reserved places that the adapter collection has, and its `find`
// stands where the adapter collection's does; element objects keep the head
// of five places that an adapter and a cluster have.
#pragma once

#include <vector>

#include "api/ApiForward.h"

class HTargetCollection {
public:
    virtual ~HTargetCollection() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual void reserved_5() {}
    virtual void reserved_6() {}
    virtual void reserved_7() {}
    virtual void reserved_8() {}
    // Null when the adapter does not see the target.
    virtual HTarget* find(const PTargetID& id) = 0;

    std::vector<HTarget*> items;
};

class HTarget {
public:
    virtual ~HTarget() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual PTargetID* getTargetId() = 0;
    virtual KTargetInfo* getTargetInfo() = 0;
    // Filled by getLunsForSpecificTarget.
    virtual HLunIdList* getLunIds() = 0;
};
