// The adapters that the library knows so far, in the order it found them,
// which is also the display order of every list. Commands walk `items`
// directly. Slot order matters; see HbaMgmtApi.h.
#pragma once

#include <string>
#include <vector>

#include "api/ApiForward.h"

class HIsaAdapterCollection {
public:
    virtual ~HIsaAdapterCollection() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual void reserved_5() {}
    virtual void reserved_6() {}
    virtual void reserved_7() {}
    virtual bool contains(const KIsaAdapterPath& path) = 0;
    // Null when the path is unknown.
    virtual HIsaAdapter* find(const KIsaAdapterPath& path) = 0;
    virtual void reserved_10() {}
    virtual void reserved_11() {}
    // Null when no adapter bears that name.
    virtual HIsaAdapter* findBySymbolicName(const std::string& name) = 0;

    std::vector<HIsaAdapter*> items;
};
