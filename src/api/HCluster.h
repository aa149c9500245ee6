// One cluster: a primary adapter, a secondary that takes over when the
// primary fails, and members. Slot order matters; see HbaMgmtApi.h.
#pragma once

#include <vector>

#include "api/ApiForward.h"

class HCluster {
public:
    virtual ~HCluster() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual KClusterID* getClusterId() = 0;
    virtual KClusterInfo* getClusterInfo() = 0;
    // Read directly, in member order.
    virtual std::vector<KIsaAdapterPath>* getMemberPaths() = 0;
    virtual void reserved_8() {}
    virtual void reserved_9() {}
    virtual bool getPrimaryPath(KIsaAdapterPath& out) = 0;
    virtual bool isPrimaryValid() = 0;
    virtual bool isSecondaryValid() = 0;
};
