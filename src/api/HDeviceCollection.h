// Devices that an adapter sees, filled by getTargetsAndInitiators.
// Slot order matters; see HTargetCollection.h.
#pragma once

#include <vector>

#include "api/ApiForward.h"

class HDeviceCollection {
public:
    virtual ~HDeviceCollection() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual void reserved_5() {}
    virtual void reserved_6() {}
    virtual void reserved_7() {}
    virtual void reserved_8() {}
    virtual HDevice* find(const KDeviceID& id) = 0;

    std::vector<HDevice*> items;
};

class HDevice {
public:
    virtual ~HDevice() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual KDeviceInfo* getDeviceInfo() = 0;
};
