// LUNs of an adapter, filled by getLunsForSpecificTarget, and one LUN path
// with its description. Slot order matters; see HTargetCollection.h.
#pragma once

#include <vector>

#include "api/ApiForward.h"
#include "api/MhbaReturn.h"

class HLunCollection {
public:
    virtual ~HLunCollection() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual void reserved_5() {}
    virtual void reserved_6() {}
    virtual void reserved_7() {}
    virtual void reserved_8() {}
    virtual HLun* find(const PLunID& id) = 0;

    std::vector<HLun*> items;
};

class HLun {
public:
    virtual ~HLun() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual PLunID* getLunId() = 0;
    // May not be filled yet: its valid flag tells, and refreshLunInfo fills it.
    virtual KLunInfo* getLunInfo() = 0;
    virtual e_MHBA_RETURN refreshLunInfo() = 0;
};
