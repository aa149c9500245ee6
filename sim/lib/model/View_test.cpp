#include "model/View.h"

#include "model/DefaultSan.h"
#include "model/Generate.h"

#include <gtest/gtest.h>

using namespace sim;

namespace {

// The paths of one target as its own walk over every LUN finds them.
std::vector<VisiblePath> walkOfEachTarget(const San& san, const Adapter& a)
{
    std::vector<VisiblePath> found;
    for (const Target& t : san.targets) {
        std::vector<VisiblePath> some = visiblePaths(san, a, t);
        found.insert(found.end(), some.begin(), some.end());
    }
    return found;
}

void expectSamePaths(const std::vector<VisiblePath>& expected, const std::vector<VisiblePath>& actual)
{
    ASSERT_EQ(expected.size(), actual.size());
    for (size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(expected[i].target, actual[i].target) << "path " << i;
        EXPECT_EQ(expected[i].path, actual[i].path) << "path " << i;
        EXPECT_EQ(expected[i].lun, actual[i].lun) << "path " << i;
    }
}

Lun lunWithPaths(const std::string& wwuln, std::vector<LunPath> paths)
{
    Lun l;
    l.wwuln = wwuln;
    l.paths = std::move(paths);
    return l;
}

} // namespace

TEST(PathIndexTest, EveryAdapterOfTheDefaultSanSeesWhatItsTargetsShow)
{
    San san = defaultSan();
    PathIndex index(san);
    for (const Adapter& a : san.adapters)
        expectSamePaths(walkOfEachTarget(san, a), visiblePaths(san, index, a));
}

TEST(PathIndexTest, AGeneratedSanKeepsItsOrderThroughTheIndex)
{
    setenv("HBASIM_TIME", "1795000000", 1);
    San san = generateSan(3, 200, 5);
    for (const Adapter& a : san.adapters) {
        std::vector<VisiblePath> paths = visiblePaths(san, a);
        EXPECT_EQ(paths.size(), 200u);
        expectSamePaths(walkOfEachTarget(san, a), paths);
    }
}

TEST(PathIndexTest, PathsAreSortedByNumberThenGroupAndUnknownTargetsLeftOut)
{
    San san;
    Adapter a;
    a.id.value = 1;
    a.ports.resize(1);
    san.adapters.push_back(a);
    Target t;
    t.name = "t";
    san.targets.push_back(t);
    san.luns.push_back(lunWithPaths("A1", {{"t", 5, 2, 3}, {"elsewhere", 0, 1, 3}}));
    san.luns.push_back(lunWithPaths("B2", {{"t", 5, 1, 3}, {"t", 2, 1, 3}}));

    PathIndex index(san);
    const std::vector<VisiblePath>& paths = index.pathsOf(0);
    ASSERT_EQ(paths.size(), 3u);
    EXPECT_EQ(paths[0].path, &san.luns[1].paths[1]); // number 2
    EXPECT_EQ(paths[1].path, &san.luns[1].paths[0]); // number 5, group 1
    EXPECT_EQ(paths[2].path, &san.luns[0].paths[0]); // number 5, group 2
    expectSamePaths(walkOfEachTarget(san, san.adapters[0]), visiblePaths(san, index, san.adapters[0]));
}

TEST(PathIndexTest, TargetsTheAdapterDoesNotSeeGiveNoPaths)
{
    San san = defaultSan();
    PathIndex index(san);
    for (Adapter& a : san.adapters)
        for (Port& p : a.ports)
            p.online = false;
    for (const Adapter& a : san.adapters)
        EXPECT_TRUE(visiblePaths(san, index, a).empty());
}
