#include "records/KAdapterGroupExtendedLunInfo.h"

#include "records/KIsaAdapterPath.h"
#include "records/KLunInfo.h"

KAdapterGroupExtendedLunInfo::KAdapterGroupExtendedLunInfo() : PBase()
{
    init();
}

KAdapterGroupExtendedLunInfo::KAdapterGroupExtendedLunInfo(const KAdapterGroupExtendedLunInfo& other) : PBase()
{
    init();
    *this = other;
}

KAdapterGroupExtendedLunInfo& KAdapterGroupExtendedLunInfo::operator=(const KAdapterGroupExtendedLunInfo& other)
{
    if (this != &other) {
        init();
        wwulnLunId = other.wwulnLunId;
        lunId = other.lunId;
        fastMemcpy(&ui32NonCachedAdapterCount, scalarBlockSize(), &other.ui32NonCachedAdapterCount, scalarBlockSize());
    }
    return *this;
}

KAdapterGroupExtendedLunInfo::~KAdapterGroupExtendedLunInfo()
{
    init();
}

unsigned int KAdapterGroupExtendedLunInfo::scalarBlockSize() const
{
    return static_cast<unsigned int>(reinterpret_cast<const char*>(&ePreferredAdapterRank + 1) -
                                     reinterpret_cast<const char*>(&ui32NonCachedAdapterCount));
}

void KAdapterGroupExtendedLunInfo::init()
{
    wwulnLunId.init();
    lunId.init();
    fastMemsetZero(&ui32NonCachedAdapterCount, scalarBlockSize());
    initSerialization(&wwulnLunId, sizeof(KAdapterGroupExtendedLunInfo));
}

// The identifiers carry their own table pointers, which must never be
// written to or read from a file; they go through their own save form.
bool KAdapterGroupExtendedLunInfo::serialize(bool write, FILE* file, std::string& error)
{
    if (!wwulnLunId.serialize(write, file, error) || !lunId.serialize(write, file, error))
        return false;
    if (!write)
        lunId.afterRestoreFromSaveString();
    return base_serialize(write, file, reinterpret_cast<char*>(&ui32NonCachedAdapterCount), scalarBlockSize(), error);
}

// A count beyond the table can only come from a damaged record.
unsigned int KAdapterGroupExtendedLunInfo::nonCachedCount() const
{
    return ui32NonCachedAdapterCount < MAX_ADAPTERS ? ui32NonCachedAdapterCount : MAX_ADAPTERS;
}

void KAdapterGroupExtendedLunInfo::addNonCachedAdapter(unsigned long long adapterId)
{
    const unsigned int count = nonCachedCount();
    for (unsigned int i = 0; i < count; ++i) {
        if (ui64NonCachedAdapters[i] == adapterId)
            return;
    }
    // The caller presents at most one entry per slot; a further one is
    // dropped rather than written past the table.
    if (count < MAX_ADAPTERS)
        ui64NonCachedAdapters[ui32NonCachedAdapterCount++] = adapterId;
}

void KAdapterGroupExtendedLunInfo::prefer(unsigned long long adapterId, PREFERRED_ADAPTER_TYPE rank)
{
    if (ePreferredAdapterRank < rank) {
        ui64PreferredAdapter = adapterId;
        ePreferredAdapterRank = rank;
    }
}

void KAdapterGroupExtendedLunInfo::addInfoForOneLun(unsigned long long adapterId, const PLunID& lunIdOfView,
                                                    const KLunInfo& info, PREFERRED_ADAPTER_TYPE rank)
{
    switch (info.eCacheState()) {
    case KLunInfo::CACHE_STATE_UNKNOWN:
        break;
    case KLunInfo::CACHE_STATE_NOT_CACHED:
        addNonCachedAdapter(adapterId);
        break;
    case KLunInfo::CACHE_STATE_CACHED_PEER:
        // This adapter reaches the LUN without caching it, though the group
        // as a whole has it cached on the peer.
        bCached = true;
        ui64CachingAdapter = info.ui64ClusterCacheAdapterPrimary();
        prefer(adapterId, PREFERRED_ADAPTER_SEES_PEER_CACHE);
        addNonCachedAdapter(adapterId);
        break;
    default:
        bCached = true;
        ui64CachingAdapter = adapterId;
        prefer(adapterId, PREFERRED_ADAPTER_CACHES);
        lunId = lunIdOfView;
        break;
    }
    // Until a caching adapter is known, the latest online view names the LUN.
    if (info.isLunInfoValid() && info.isOnline() && !bCached)
        lunId = lunIdOfView;
    prefer(adapterId, rank);
}

std::string KAdapterGroupExtendedLunInfo::displayHeaderText(const PIpAddress& agent) const
{
    // Every line starts alike; it is made once, as a LUN seen by many
    // adapters has many lines and a SAN many LUNs.
    const std::string lineStart = agent.getType() == 0 ? "    -zek=" : "    -agent=" + agent.displayText() + " -zek=";
    std::string text = "Adapters with access to this LUN:\n";
    if (bCached) {
        text += lineStart;
        text += KIsaAdapterPath::ui64numberToHexText(ui64CachingAdapter);
        text += "  [Caching Adapter]\n";
    }
    const unsigned int count = nonCachedCount();
    for (unsigned int i = 0; i < count; ++i) {
        text += lineStart;
        text += KIsaAdapterPath::ui64numberToHexText(ui64NonCachedAdapters[i]);
        text += '\n';
    }
    return text;
}

std::string KAdapterGroupExtendedLunInfo::displayText() const
{
    std::string text = "    WWULN: " + wwulnLunId.displayText() + "\n    " + lunId.displayText();
    if (bCached)
        text += "\n    Cached on -zek=" + KIsaAdapterPath::ui64numberToHexText(ui64CachingAdapter);
    text += "\n    Non-cached access from:";
    const unsigned int count = nonCachedCount();
    for (unsigned int i = 0; i < count; ++i)
        text += "\n        -zek=" + KIsaAdapterPath::ui64numberToHexText(ui64NonCachedAdapters[i]);
    return text + "\n";
}
