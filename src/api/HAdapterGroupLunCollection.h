// The LUNs seen by a group of adapters, as built by scanAdapterGroupLuns:
// one record per LUN, telling which adapter caches it and which do not.
// Commands read `items` directly.
#pragma once

#include <vector>

#include "records/KAdapterGroupExtendedLunInfo.h"

class HAdapterGroupLunCollection {
public:
    virtual ~HAdapterGroupLunCollection() = default;

    std::vector<KAdapterGroupExtendedLunInfo> items;
};
