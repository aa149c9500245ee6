// Groups of drives of an adapter, one element a pool with its drives,
// filled by getDrivesWithErrorDetails. Slot order matters; see
// HTargetCollection.h.
#pragma once

#include <vector>

#include "api/ApiForward.h"

class HDrivePoolCollection {
public:
    virtual ~HDrivePoolCollection() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual void reserved_5() {}
    virtual void reserved_6() {}
    virtual void reserved_7() {}

    std::vector<HDrivePool*> items;
};

class HDrivePool {
public:
    virtual ~HDrivePool() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual KDrivePoolID* getDrivePoolId() = 0;
    virtual HDriveIdList* getDriveIds() = 0;
};
