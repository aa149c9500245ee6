// Drives of an adapter, filled by getDrivesWithErrorDetails.
// Slot order matters; see HTargetCollection.h.
#pragma once

#include <vector>

#include "api/ApiForward.h"

class HDriveCollection {
public:
    virtual ~HDriveCollection() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual void reserved_5() {}
    virtual void reserved_6() {}
    virtual void reserved_7() {}
    virtual bool contains(const KDriveID& id) = 0;
    virtual HDrive* find(const KDriveID& id) = 0;

    std::vector<HDrive*> items;
};

class HDrive {
public:
    virtual ~HDrive() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual KDriveInfo* getDriveInfo() = 0;
    virtual KDriveID* getDriveId() = 0;
};
