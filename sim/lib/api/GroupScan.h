// Gathering the LUNs that several adapters see into one record per LUN.
#pragma once

#include "model/View.h"

#include "records/KAdapterGroupExtendedLunInfo.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace sim {

// One walk over the adapters in scope. A large SAN has thousands of LUNs
// and paths seen by every adapter, so what does not depend on the adapter
// (where the LUN's record is, the paths' identifiers, which paths a target
// has) is worked out once, not again for each adapter.
class AdapterGroupScan {
public:
    // Records already in `groups` are merged into, not repeated.
    AdapterGroupScan(const San& san, std::vector<KAdapterGroupExtendedLunInfo>& groups);

    // Merges the adapter's view of every LUN it reaches, each LUN once
    // however many paths lead to it.
    void addAdapter(const Adapter& a, KAdapterGroupExtendedLunInfo::PREFERRED_ADAPTER_TYPE rank);

private:
    size_t recordOf(const Lun& lun);
    // The identifiers of the target's paths, in the order of its paths.
    const std::vector<PLunID>& pathIdsOf(size_t target);

    static constexpr size_t kNoRecord = static_cast<size_t>(-1);

    const San& san_;
    std::vector<KAdapterGroupExtendedLunInfo>& groups_;
    PathIndex paths_;
    std::vector<std::vector<PLunID>> pathIds_; // by target index, made when first needed
    std::vector<size_t> recordOfLun_;          // by LUN index
    std::unordered_map<std::string, size_t> recordOfWwuln_;
    std::vector<unsigned> lunSeenInWalk_; // by LUN index: the walk that last took it
    unsigned walk_ = 0;
    KLunInfo standing_; // reused: the merge reads only the standing
};

} // namespace sim
