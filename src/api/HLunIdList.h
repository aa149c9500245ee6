// A list of LUN paths, by count and position: the LUNs of a target, or the
// LUNs that one name stands for. Slot order matters; see HTargetCollection.h.
#pragma once

#include <cstdint>

#include "api/ApiForward.h"

class HLunIdList {
public:
    virtual ~HLunIdList() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual uint32_t count() = 0;
    // Callers copy the identifier at once; null past the end.
    virtual PLunID* at(uint32_t index) = 0;
};
