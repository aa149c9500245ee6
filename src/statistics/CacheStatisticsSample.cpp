#include "statistics/CacheStatisticsSample.h"

#include <algorithm>
#include <string>
#include <unordered_set>

#include "api/HIsaAdapter.h"
#include "api/HLunCollection.h"
#include "api/HTargetCollection.h"
#include "api/MHbaReturnBuffer.h"
#include "commands/LunLookup.h"

namespace {

// A LUN reached through several paths is one LUN, known by its WWULN.
class SeenWwulns {
public:
    explicit SeenWwulns(std::size_t expected) { seen.reserve(expected); }
    bool contains(KLunInfo const& info) const { return seen.count(wwulnOf(info)) != 0; }
    void add(KLunInfo const& info) { seen.insert(wwulnOf(info)); }

private:
    static std::string wwulnOf(KLunInfo const& info)
    {
        std::size_t const length = std::min<std::size_t>(info.ui32WwulnLength, sizeof info.ui8Wwuln);
        return std::string(reinterpret_cast<char const*>(info.ui8Wwuln), length);
    }

    std::unordered_set<std::string> seen;
};

int gatherLuns(HIsaAdapter& adapter)
{
    if (int const rc = gatherLunsOfEveryTarget(adapter))
        return rc;
    return adapter.getLuns()->items.empty() ? MHBA_E_OBJECT_NOT_FOUND : MHBA_S_OK;
}

bool cachedHere(KLunInfo const& info)
{
    return info.isSanLun() && info.eCacheState() != KLunInfo::CACHE_STATE_CACHED_PEER && info.isLunCached();
}

} // namespace

int CacheStatisticsSample::read(HIsaAdapter& adapter)
{
    (void)adapter.getStatistics(hostPcie);
    (void)adapter.getCacheStatistics(counters);
    (void)getLunCacheInfo(adapter);
    return adapter.getPoolInfo(pool);
}

int CacheStatisticsSample::getLunCacheInfo(HIsaAdapter& adapter)
{
    luns.clear();
    mirrorLuns.clear();
    if (int const rc = gatherLuns(adapter))
        return rc;
    std::vector<HLun*> const& objects = adapter.getLuns()->items;
    SeenWwulns cached(objects.size()), mirrored(objects.size());
    int rc = MHBA_S_OK;
    for (HLun* lun : objects) {
        KLunInfo* info = lun->getLunInfo();
        if (!info->isLunInfoValid() && (rc = lun->refreshLunInfo()) != MHBA_S_OK)
            continue;
        // A later path of a LUN already counted adds nothing; its counters
        // are not even asked for.
        if (cachedHere(*info) && !cached.contains(*info)) {
            KLunIoStatistics io;
            rc = adapter.getLunIoStatistics(info->ui8Wwuln, info->ui32WwulnLength, true, io);
            if (rc == MHBA_S_OK) {
                cached.add(*info);
                luns.push_back({*info, io});
            }
        }
        if (info->eCacheState() == KLunInfo::CACHE_STATE_CACHED_PEER) {
            rc = lun->refreshLunInfo();
            if (info->cacheInfo.ui16MirrorState != 0 && !mirrored.contains(*info)) {
                mirrored.add(*info);
                mirrorLuns.push_back(*info);
            }
        }
    }
    return rc;
}
