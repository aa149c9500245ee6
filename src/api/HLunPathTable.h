// The paths of an adapter's LUNs, with the text the library forms for each
// from the records of its paths. Slot order matters; see HTargetCollection.h.
#pragma once

#include <string>
#include <vector>

#include "api/ApiForward.h"

class HLunPathTable {
public:
    virtual ~HLunPathTable() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual void reserved_5() {}
    virtual void reserved_6() {}
    virtual void reserved_7() {}
    virtual void reserved_8() {}
    // Null when the table holds nothing for this LUN.
    virtual HLunPathEntry* find(const PLunID& id) = 0;

    std::vector<HLunPathEntry*> items;
};

class HLunPathEntry {
public:
    virtual ~HLunPathEntry() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual PLunID* getLunId() = 0;
    // Ready to show, heading included.
    virtual std::string displayText() = 0;
};
