// The drives of one pool. Slot order matters; see HTargetCollection.h.
#pragma once

#include <cstdint>

#include "api/ApiForward.h"

// Walked with first and next.
class HDriveIdList {
public:
    virtual ~HDriveIdList() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual uint32_t count() = 0;
    // False past the end.
    virtual bool first(KDriveID& out) = 0;
    virtual bool next(KDriveID& out) = 0;
};
