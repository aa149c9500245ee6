// Initiators that an adapter sees, filled by getTargetsAndInitiators.
// Slot order matters; see HTargetCollection.h.
#pragma once

#include <vector>

#include "api/ApiForward.h"

class HInitiatorCollection {
public:
    virtual ~HInitiatorCollection() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual void reserved_5() {}
    virtual void reserved_6() {}
    virtual void reserved_7() {}
    virtual void reserved_8() {}
    virtual HInitiator* find(const PInitiatorID& id) = 0;

    std::vector<HInitiator*> items;
};

class HInitiator {
public:
    virtual ~HInitiator() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual KInitiatorInfo* getInitiatorInfo() = 0;
};
