#include "records/KAdapterGroupExtendedLunInfo.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "records/KLunInfo.h"

namespace {

constexpr unsigned long long kAdapterA = 0x2000A;
constexpr unsigned long long kAdapterB = 0x2000B;
constexpr unsigned long long kAdapterC = 0x2000C;

using Rank = KAdapterGroupExtendedLunInfo::PREFERRED_ADAPTER_TYPE;

PLunID lunOn(const char* wwpn, int number)
{
    PLunID id;
    id.initLunIdOnFcTargetFromString(wwpn, number, PBase::VPGROUP_1);
    return id;
}

KLunInfo view(KLunInfo::KISA_CACHE_STATE state, bool online = true)
{
    KLunInfo info;
    info.bValid = true;
    info.ui32LunState = online ? 1 : 0;
    info.m_eCacheState = state;
    return info;
}

} // namespace

TEST(KAdapterGroupExtendedLunInfo, InitClearsEverything)
{
    KAdapterGroupExtendedLunInfo group;
    EXPECT_TRUE(group.wwulnLunId.isEmpty());
    EXPECT_TRUE(group.lunId.isEmpty());
    EXPECT_EQ(group.ui32NonCachedAdapterCount, 0u);
    EXPECT_FALSE(group.bCached);
    EXPECT_EQ(group.ui64PreferredAdapter, 0u);
    EXPECT_EQ(group.ePreferredAdapterRank, KAdapterGroupExtendedLunInfo::PREFERRED_ADAPTER_NONE);
}

TEST(KAdapterGroupExtendedLunInfo, NonCachedViewsListEachAdapterOnce)
{
    KAdapterGroupExtendedLunInfo group;
    const PLunID lunA = lunOn("21:00:00:24:ff:00:00:0a", 1);
    group.addInfoForOneLun(kAdapterA, lunA, view(KLunInfo::CACHE_STATE_NOT_CACHED), Rank(2));
    group.addInfoForOneLun(kAdapterA, lunA, view(KLunInfo::CACHE_STATE_NOT_CACHED), Rank(2));
    group.addInfoForOneLun(kAdapterB, lunA, view(KLunInfo::CACHE_STATE_NOT_CACHED), Rank(1));
    ASSERT_EQ(group.ui32NonCachedAdapterCount, 2u);
    EXPECT_EQ(group.ui64NonCachedAdapters[0], kAdapterA);
    EXPECT_EQ(group.ui64NonCachedAdapters[1], kAdapterB);
    EXPECT_FALSE(group.bCached);
    EXPECT_TRUE(group.lunId == lunA);
    // The rank argument decides while nobody caches the LUN.
    EXPECT_EQ(group.ui64PreferredAdapter, kAdapterA);
    EXPECT_EQ(group.ePreferredAdapterRank, Rank(2));
    group.addInfoForOneLun(kAdapterC, lunA, view(KLunInfo::CACHE_STATE_NOT_CACHED), Rank(3));
    EXPECT_EQ(group.ui64PreferredAdapter, kAdapterC);
    EXPECT_EQ(group.ePreferredAdapterRank, Rank(3));
}

TEST(KAdapterGroupExtendedLunInfo, PeerCachedViewAddsItselfToTheNonCachedList)
{
    KAdapterGroupExtendedLunInfo group;
    KLunInfo info = view(KLunInfo::CACHE_STATE_CACHED_PEER);
    info.m_ui64ClusterCacheAdapterPrimary = kAdapterC;
    const PLunID lunB = lunOn("21:00:00:24:ff:00:00:0b", 2);
    group.addInfoForOneLun(kAdapterB, lunB, info, Rank(1));
    EXPECT_TRUE(group.bCached);
    EXPECT_EQ(group.ui64CachingAdapter, kAdapterC);
    ASSERT_EQ(group.ui32NonCachedAdapterCount, 1u);
    EXPECT_EQ(group.ui64NonCachedAdapters[0], kAdapterB);
    EXPECT_EQ(group.ui64PreferredAdapter, kAdapterB);
    EXPECT_EQ(group.ePreferredAdapterRank, KAdapterGroupExtendedLunInfo::PREFERRED_ADAPTER_SEES_PEER_CACHE);
    // Only the caching adapter's own view names the LUN once caching is known.
    EXPECT_TRUE(group.lunId.isEmpty());
}

TEST(KAdapterGroupExtendedLunInfo, CachingAdapterWinsAndNamesTheLun)
{
    KAdapterGroupExtendedLunInfo group;
    const PLunID lunA = lunOn("21:00:00:24:ff:00:00:0a", 1);
    const PLunID lunC = lunOn("21:00:00:24:ff:00:00:0c", 3);
    group.addInfoForOneLun(kAdapterA, lunA, view(KLunInfo::CACHE_STATE_NOT_CACHED), Rank(3));
    EXPECT_TRUE(group.lunId == lunA);
    group.addInfoForOneLun(kAdapterC, lunC, view(KLunInfo::CACHE_STATE_CACHED_LOCAL, false), Rank(1));
    EXPECT_TRUE(group.bCached);
    EXPECT_EQ(group.ui64CachingAdapter, kAdapterC);
    EXPECT_EQ(group.ui64PreferredAdapter, kAdapterC);
    EXPECT_EQ(group.ePreferredAdapterRank, KAdapterGroupExtendedLunInfo::PREFERRED_ADAPTER_CACHES);
    EXPECT_TRUE(group.lunId == lunC);
    // A later online view of another adapter no longer renames it.
    group.addInfoForOneLun(kAdapterB, lunA, view(KLunInfo::CACHE_STATE_NOT_CACHED), Rank(1));
    EXPECT_TRUE(group.lunId == lunC);
}

TEST(KAdapterGroupExtendedLunInfo, UnlistedCacheStateCountsAsCachedHere)
{
    KAdapterGroupExtendedLunInfo group;
    const PLunID lunA = lunOn("21:00:00:24:ff:00:00:0a", 1);
    group.addInfoForOneLun(kAdapterA, lunA, view(static_cast<KLunInfo::KISA_CACHE_STATE>(9)), Rank(0));
    EXPECT_TRUE(group.bCached);
    EXPECT_EQ(group.ui64CachingAdapter, kAdapterA);
    EXPECT_EQ(group.ePreferredAdapterRank, KAdapterGroupExtendedLunInfo::PREFERRED_ADAPTER_CACHES);
}

TEST(KAdapterGroupExtendedLunInfo, StateZeroAndOfflineViewsDoNotNameTheLun)
{
    KAdapterGroupExtendedLunInfo group;
    const PLunID lunA = lunOn("21:00:00:24:ff:00:00:0a", 1);
    group.addInfoForOneLun(kAdapterA, lunA, view(KLunInfo::CACHE_STATE_NOT_CACHED, false), Rank(1));
    EXPECT_TRUE(group.lunId.isEmpty());
    EXPECT_EQ(group.ui32NonCachedAdapterCount, 1u);
    group.addInfoForOneLun(kAdapterB, lunA, view(KLunInfo::CACHE_STATE_UNKNOWN), Rank(2));
    EXPECT_EQ(group.ui32NonCachedAdapterCount, 1u);
    EXPECT_TRUE(group.lunId == lunA); // valid and online, and nobody caches
    EXPECT_EQ(group.ui64PreferredAdapter, kAdapterB);
}

TEST(KAdapterGroupExtendedLunInfo, TableNeverGrowsPastItsBound)
{
    KAdapterGroupExtendedLunInfo group;
    const PLunID lunA = lunOn("21:00:00:24:ff:00:00:0a", 1);
    for (unsigned long long id = 1; id <= 70; ++id)
        group.addInfoForOneLun(id, lunA, view(KLunInfo::CACHE_STATE_NOT_CACHED), Rank(0));
    EXPECT_EQ(group.ui32NonCachedAdapterCount, KAdapterGroupExtendedLunInfo::MAX_ADAPTERS);
    EXPECT_EQ(group.ui64NonCachedAdapters[63], 64u);
}

TEST(KAdapterGroupExtendedLunInfo, HeaderWithoutAgent)
{
    KAdapterGroupExtendedLunInfo group;
    group.bCached = true;
    group.ui64CachingAdapter = 0x2000ABCD;
    group.ui32NonCachedAdapterCount = 2;
    group.ui64NonCachedAdapters[0] = 0x2000A;
    group.ui64NonCachedAdapters[1] = 0x1F;
    EXPECT_EQ(group.displayHeaderText(PIpAddress()),
              "Adapters with access to this LUN:\n"
              "    -zek=2000ABCD  [Caching Adapter]\n"
              "    -zek=2000A\n"
              "    -zek=1F\n");
}

TEST(KAdapterGroupExtendedLunInfo, HeaderThroughAnAgent)
{
    KAdapterGroupExtendedLunInfo group;
    group.ui32NonCachedAdapterCount = 1;
    group.ui64NonCachedAdapters[0] = 0x2000A;
    PIpAddress agent;
    agent.setType(PIpAddress::IPV_SHORT_1);
    agent.setNumericText("127.0.10.1", "");
    EXPECT_EQ(group.displayHeaderText(agent),
              "Adapters with access to this LUN:\n"
              "    -agent=127.0.10.1 -zek=2000A\n");
}

TEST(KAdapterGroupExtendedLunInfo, TextNamesTheLunAndItsAdapters)
{
    KAdapterGroupExtendedLunInfo group;
    unsigned char name[3] = {0xAA, 0xBB, 0xCC};
    group.wwulnLunId.initWwulnLunID(PBase::WWULN_CODE_SET_BINARY, 3, name);
    group.lunId = lunOn("21:00:00:24:ff:00:00:0a", 1);
    group.bCached = true;
    group.ui64CachingAdapter = 0x2000C;
    group.ui32NonCachedAdapterCount = 1;
    group.ui64NonCachedAdapters[0] = 0x2000A;
    EXPECT_EQ(group.displayText(),
              "    WWULN: " + group.wwulnLunId.displayText() + "\n    " + group.lunId.displayText() +
                  "\n    Cached on -zek=2000C"
                  "\n    Non-cached access from:"
                  "\n        -zek=2000A\n");
    group.bCached = false;
    group.ui32NonCachedAdapterCount = 0;
    EXPECT_EQ(group.displayText(),
              "    WWULN: AABB-CC\n    " + group.lunId.displayText() + "\n    Non-cached access from:\n");
}

TEST(KAdapterGroupExtendedLunInfo, SavedImageKeepsTheIdentifiers)
{
    KAdapterGroupExtendedLunInfo group;
    unsigned char name[3] = {0xAA, 0xBB, 0xCC};
    group.wwulnLunId.initWwulnLunID(PBase::WWULN_CODE_SET_BINARY, 3, name);
    group.addInfoForOneLun(kAdapterA, lunOn("21:00:00:24:ff:00:00:0a", 4), view(KLunInfo::CACHE_STATE_CACHED_LOCAL),
                           Rank(1));
    FILE* f = tmpfile();
    ASSERT_NE(f, nullptr);
    std::string err;
    ASSERT_TRUE(group.serialize(true, f, err)) << err;
    rewind(f);
    KAdapterGroupExtendedLunInfo back;
    ASSERT_TRUE(back.serialize(false, f, err)) << err;
    fclose(f);
    EXPECT_TRUE(back.wwulnLunId == group.wwulnLunId);
    EXPECT_TRUE(back.lunId == group.lunId);
    EXPECT_TRUE(back.lunId.targetID() == group.lunId.targetID());
    EXPECT_EQ(back.displayText(), group.displayText());
    EXPECT_EQ(back.ePreferredAdapterRank, KAdapterGroupExtendedLunInfo::PREFERRED_ADAPTER_CACHES);
}

TEST(KAdapterGroupExtendedLunInfo, CopyTakesIdentifiersAndFigures)
{
    KAdapterGroupExtendedLunInfo group;
    group.addInfoForOneLun(kAdapterA, lunOn("21:00:00:24:ff:00:00:0a", 4), view(KLunInfo::CACHE_STATE_NOT_CACHED),
                           Rank(1));
    KAdapterGroupExtendedLunInfo copy(group);
    EXPECT_EQ(copy.displayText(), group.displayText());
    EXPECT_EQ(copy.ui64PreferredAdapter, kAdapterA);
}
