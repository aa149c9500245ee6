// The clusters that the library knows so far. A scan also reports a pseudo
// cluster with an invalid key that holds the adapters outside clusters.
// Slot order matters; see HbaMgmtApi.h. The lookups stand in the same places
// as in the adapter collection.
#pragma once

#include <vector>

#include "api/ApiForward.h"

class HClusterCollection {
public:
    virtual ~HClusterCollection() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual void reserved_5() {}
    virtual void reserved_6() {}
    virtual void reserved_7() {}
    virtual bool contains(const KClusterID& id) = 0;
    virtual HCluster* find(const KClusterID& id) = 0;

    std::vector<HCluster*> items;
};
