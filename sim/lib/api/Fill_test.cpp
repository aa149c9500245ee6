#include "api/Fill.h"

#include "model/DefaultSan.h"
#include "model/View.h"

#include "records/KLunInfo.h"
#include "records/KLunPathInfo.h"

#include <gtest/gtest.h>

using namespace sim;

namespace {

// The path table's text made way by way, with nothing kept between LUNs.
std::string freshTableText(const San& san, const Adapter& a, const Lun& lun)
{
    std::string text = "    LUN Path Info:\n";
    for (const LunPath& way : lun.paths) {
        const Target* t = findTarget(san, way.target);
        if (!t || !adapterSeesTarget(san, a, *t))
            continue;
        KLunPathInfo info;
        fillLunPathInfo(*t, way.status, info);
        text += info.displayText();
    }
    return text;
}

class FillTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        setenv("HBASIM_TIME", "1795000000", 1);
        san = defaultSan();
    }
    San san;
};

} // namespace

TEST_F(FillTest, PathTablesMadeOnceAWayReadAsMadeAfresh)
{
    for (const Adapter& a : san.adapters) {
        LunPathTexts texts(san, a);
        for (const Lun& l : san.luns)
            EXPECT_EQ(freshTableText(san, a, l), texts.tableText(l)) << l.wwuln;
    }
}

TEST_F(FillTest, PathTablesLeaveOutTargetsNotReachedAndShowOfflineOnesAsSuch)
{
    Lun lun;
    lun.paths = {{"no-such-target", 0, 1, 3}, {san.targets[0].name, 0, 1, 3}};
    san.targets[0].online = false;
    const Adapter& a = san.adapters[0];
    ASSERT_TRUE(adapterSeesTarget(san, a, san.targets[0]));
    LunPathTexts texts(san, a);
    std::string const table = texts.tableText(lun);
    KLunPathInfo down;
    fillLunPathInfo(san.targets[0], 1, down);
    EXPECT_EQ("    LUN Path Info:\n" + down.displayText(), table);
    EXPECT_EQ(table, texts.tableText(lun));
}

TEST_F(FillTest, AReusedRecordStandsAsAFreshOneForEveryAdapterAndLun)
{
    KLunInfo reused;
    for (const Adapter& a : san.adapters)
        for (const Lun& l : san.luns) {
            KLunInfo full;
            fillLunInfo(san, l, a, full);
            fillLunStanding(san, l, a, reused);
            EXPECT_EQ(reused.isLunInfoValid(), full.isLunInfoValid());
            EXPECT_EQ(reused.eCacheState(), full.eCacheState());
            EXPECT_EQ(reused.ui64ClusterCacheAdapterPrimary(), full.ui64ClusterCacheAdapterPrimary());
            EXPECT_EQ(reused.eMirrorState(), full.eMirrorState());
            EXPECT_EQ(reused.ui32LunState, full.ui32LunState);
        }
}
