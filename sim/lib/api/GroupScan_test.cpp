#include "api/GroupScan.h"

#include "api/Fill.h"
#include "api/Ids.h"
#include "model/DefaultSan.h"
#include "model/Generate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace sim;

namespace {

using Groups = std::vector<KAdapterGroupExtendedLunInfo>;
using Rank = KAdapterGroupExtendedLunInfo::PREFERRED_ADAPTER_TYPE;

Rank rankOf(const Adapter& a)
{
    return static_cast<Rank>(a.device >= 0 ? 2 : 1);
}

// The plain merge: every adapter's full record of every LUN it reaches,
// found by WWULN each time.
Groups mergedOneByOne(const San& san, const std::vector<const Adapter*>& scope)
{
    Groups groups;
    for (const Adapter* a : scope) {
        std::set<const Lun*> done;
        for (const VisiblePath& p : visiblePaths(san, *a)) {
            if (!done.insert(p.lun).second)
                continue;
            KWwulnLunID wwuln = wwulnId(*p.lun);
            size_t at = 0;
            while (at < groups.size() && !(groups[at].wwulnLunId == wwuln))
                ++at;
            if (at == groups.size()) {
                groups.emplace_back();
                groups.back().wwulnLunId = wwuln;
            }
            KLunInfo info;
            fillLunInfo(san, *p.lun, *a, info);
            groups[at].addInfoForOneLun(a->id.value, lunId(*p.target, *p.path), info, rankOf(*a));
        }
    }
    return groups;
}

Groups scanned(const San& san, const std::vector<const Adapter*>& scope, Groups groups = {})
{
    AdapterGroupScan scan(san, groups);
    for (const Adapter* a : scope)
        scan.addAdapter(*a, rankOf(*a));
    return groups;
}

void expectSameGroups(const Groups& expected, const Groups& actual)
{
    ASSERT_EQ(expected.size(), actual.size());
    for (size_t i = 0; i < expected.size(); ++i) {
        const KAdapterGroupExtendedLunInfo& e = expected[i];
        const KAdapterGroupExtendedLunInfo& a = actual[i];
        EXPECT_TRUE(e.wwulnLunId == a.wwulnLunId) << "record " << i;
        EXPECT_TRUE(e.lunId == a.lunId) << "record " << i;
        EXPECT_EQ(e.displayText(), a.displayText()) << "record " << i;
        EXPECT_EQ(e.ui32NonCachedAdapterCount, a.ui32NonCachedAdapterCount) << "record " << i;
        EXPECT_EQ(e.bCached, a.bCached) << "record " << i;
        EXPECT_EQ(e.ui64CachingAdapter, a.ui64CachingAdapter) << "record " << i;
        EXPECT_EQ(e.ui64PreferredAdapter, a.ui64PreferredAdapter) << "record " << i;
        EXPECT_EQ(e.ePreferredAdapterRank, a.ePreferredAdapterRank) << "record " << i;
    }
}

std::vector<const Adapter*> everyAdapter(const San& san)
{
    std::vector<const Adapter*> scope;
    for (const Adapter& a : san.adapters)
        scope.push_back(&a);
    return scope;
}

class AdapterGroupScanTest : public ::testing::Test {
protected:
    void SetUp() override { setenv("HBASIM_TIME", "1795000000", 1); }
};

} // namespace

TEST_F(AdapterGroupScanTest, TheDefaultSanMergesAsAdapterByAdapterRecords)
{
    San san = defaultSan();
    std::vector<const Adapter*> scope = everyAdapter(san);
    Groups groups = scanned(san, scope);
    ASSERT_FALSE(groups.empty());
    expectSameGroups(mergedOneByOne(san, scope), groups);
}

TEST_F(AdapterGroupScanTest, TheOrderOfTheAdaptersDecidesAsBefore)
{
    San san = defaultSan();
    std::vector<const Adapter*> scope = everyAdapter(san);
    std::reverse(scope.begin(), scope.end());
    expectSameGroups(mergedOneByOne(san, scope), scanned(san, scope));
}

TEST_F(AdapterGroupScanTest, AGeneratedSanHasOneRecordPerLunWhateverItsPaths)
{
    San san = generateSan(4, 300, 6);
    std::vector<const Adapter*> scope = everyAdapter(san);
    Groups groups = scanned(san, scope);
    EXPECT_EQ(groups.size(), san.luns.size());
    expectSameGroups(mergedOneByOne(san, scope), groups);
    for (const KAdapterGroupExtendedLunInfo& g : groups)
        EXPECT_EQ(g.ui32NonCachedAdapterCount, 4u);
}

TEST_F(AdapterGroupScanTest, ASecondScanMergesIntoTheRecordsOfTheFirst)
{
    San san = defaultSan();
    std::vector<const Adapter*> all = everyAdapter(san);
    std::vector<const Adapter*> first = {all.front()};
    std::vector<const Adapter*> second(all.begin() + 1, all.end());
    Groups groups = scanned(san, second, scanned(san, first));
    expectSameGroups(mergedOneByOne(san, all), groups);
}

TEST_F(AdapterGroupScanTest, AnAdapterTakenTwiceIsCountedOnce)
{
    San san = defaultSan();
    std::vector<const Adapter*> twice = {&san.adapters[0], &san.adapters[0]};
    Groups groups = scanned(san, twice);
    expectSameGroups(mergedOneByOne(san, twice), groups);
    for (const KAdapterGroupExtendedLunInfo& g : groups)
        EXPECT_LE(g.ui32NonCachedAdapterCount, 1u);
}

TEST_F(AdapterGroupScanTest, NoAdaptersGiveNoRecords)
{
    San san = defaultSan();
    EXPECT_TRUE(scanned(san, {}).empty());
    San empty;
    EXPECT_TRUE(scanned(empty, {}).empty());
}
