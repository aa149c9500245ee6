#include "api/GroupScan.h"

#include "api/Fill.h"
#include "api/Ids.h"
#include "api/Objects.h"

namespace sim {

AdapterGroupScan::AdapterGroupScan(const San& san, std::vector<KAdapterGroupExtendedLunInfo>& groups)
    : san_(san), groups_(groups), paths_(san), pathIds_(san.targets.size()), recordOfLun_(san.luns.size(), kNoRecord),
      lunSeenInWalk_(san.luns.size(), 0)
{
    for (size_t i = 0; i < groups_.size(); ++i)
        recordOfWwuln_.emplace(idKey(groups_[i].wwulnLunId), i);
    // Records are large; growing the list one at a time would copy them over and over.
    groups_.reserve(groups_.size() + san.luns.size());
}

size_t AdapterGroupScan::recordOf(const Lun& lun)
{
    size_t& known = recordOfLun_[static_cast<size_t>(&lun - san_.luns.data())];
    if (known != kNoRecord)
        return known;
    KWwulnLunID wwuln = wwulnId(lun);
    auto [at, fresh] = recordOfWwuln_.emplace(idKey(wwuln), groups_.size());
    if (fresh) {
        groups_.emplace_back();
        groups_.back().wwulnLunId = wwuln;
    }
    known = at->second;
    return known;
}

const std::vector<PLunID>& AdapterGroupScan::pathIdsOf(size_t target)
{
    std::vector<PLunID>& ids = pathIds_[target];
    const std::vector<VisiblePath>& paths = paths_.pathsOf(target);
    if (ids.size() == paths.size())
        return ids;
    const PTargetID id = targetId(san_.targets[target]);
    ids.reserve(paths.size());
    for (const VisiblePath& p : paths)
        ids.push_back(lunId(id, *p.path));
    return ids;
}

void AdapterGroupScan::addAdapter(const Adapter& a, KAdapterGroupExtendedLunInfo::PREFERRED_ADAPTER_TYPE rank)
{
    ++walk_;
    for (size_t t = 0; t < san_.targets.size(); ++t) {
        if (!adapterSeesTarget(san_, a, san_.targets[t]))
            continue;
        const std::vector<VisiblePath>& paths = paths_.pathsOf(t);
        const std::vector<PLunID>& ids = pathIdsOf(t);
        for (size_t i = 0; i < paths.size(); ++i) {
            const VisiblePath& p = paths[i];
            unsigned& seen = lunSeenInWalk_[static_cast<size_t>(p.lun - san_.luns.data())];
            if (seen == walk_)
                continue;
            seen = walk_;
            fillLunStanding(san_, *p.lun, a, standing_);
            groups_[recordOf(*p.lun)].addInfoForOneLun(a.id.value, ids[i], standing_, rank);
        }
    }
}

} // namespace sim
