#include "api/Backend.h"

#include "model/Codes.h"
#include "model/Rules.h"
#include "model/Scenario.h"
#include "state/StateStore.h"
#include "support/TempDirectory.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <unistd.h>

using namespace sim;

namespace {

constexpr long long kStart = 1700000000;

class BackendTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.made());
        setClock(kStart);
    }

    static void setClock(long long t) { setenv("HBASIM_TIME", std::to_string(t).c_str(), 1); }

    // What a process that has seen nothing before gets at time `t`.
    std::string freshView(long long t)
    {
        San san;
        std::string error;
        EXPECT_TRUE(StateStore(path).read(san, error)) << error;
        rules::settle(san, t);
        return scenarioToText(san);
    }

    std::string fileText()
    {
        std::ifstream in(path);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }

    // An adapter that finishes restarting at kStart + 5.
    void startRestart()
    {
        std::string error;
        ASSERT_TRUE(StateStore(path).update(
            [](San& san) {
                san.adapters[0].restartUntil = kStart + 5;
                return true;
            },
            error))
            << error;
    }

    TempDirectory dir{"hbasim-backend"};
    std::string path = dir.file("san.json");
    ScopedEnvironmentVariable state{"HBASIM_STATE", path};
};

int rename(San& san, const std::string& name)
{
    san.name = name;
    return code::Ok;
}

} // namespace

TEST_F(BackendTest, ViewAfterAChangeIsWhatAFreshReadGives)
{
    Backend backend;
    ASSERT_NE(backend.view(), nullptr);
    EXPECT_EQ(backend.change([](San& san, long long) { return rename(san, "changed"); }), code::Ok);
    const San* view = backend.view();
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->name, "changed");
    EXPECT_EQ(scenarioToText(*view), freshView(kStart));
    EXPECT_EQ(scenarioToText(*view), fileText());
}

TEST_F(BackendTest, ChangesOfOtherProcessesAreSeenAndKept)
{
    Backend backend;
    ASSERT_NE(backend.view(), nullptr);
    ASSERT_EQ(backend.change([](San& san, long long) { return rename(san, "mine"); }), code::Ok);
    std::string error;
    ASSERT_TRUE(StateStore(path).update(
        [](San& san) {
            san.nextLocalLun = 99;
            return true;
        },
        error))
        << error;
    ASSERT_EQ(backend.change([](San& san, long long) {
        san.adapters[0].symbolicName = "renamed";
        return code::Ok;
    }),
              code::Ok);
    const San* view = backend.view();
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->name, "mine");
    EXPECT_EQ(view->nextLocalLun, 99u);
    EXPECT_EQ(view->adapters[0].symbolicName, "renamed");
    EXPECT_EQ(scenarioToText(*view), freshView(kStart));
}

TEST_F(BackendTest, RefusedChangeLeavesStateAndViewAsTheyWere)
{
    Backend backend;
    ASSERT_NE(backend.view(), nullptr);
    std::string before = fileText();
    EXPECT_EQ(backend.change([](San& san, long long) {
        rename(san, "refused");
        return code::Failure;
    }),
              code::Failure);
    EXPECT_EQ(fileText(), before);
    const San* view = backend.view();
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(scenarioToText(*view), before);
}

// A change made later than the view was brought up to the clock must see
// what the clock did meanwhile, just as a fresh read would.
TEST_F(BackendTest, ChangeLaterThanTheViewSeesTheClockMoveOn)
{
    startRestart();
    Backend backend;
    ASSERT_NE(backend.view(), nullptr);
    EXPECT_EQ(backend.view()->adapters[0].restartUntil, kStart + 5);
    setClock(kStart + 100);
    long long seen = -1;
    ASSERT_EQ(backend.change([&](San& san, long long) {
        seen = san.adapters[0].restartUntil;
        return rename(san, "later");
    }),
              code::Ok);
    EXPECT_EQ(seen, 0);
    EXPECT_EQ(scenarioToText(*backend.view()), freshView(kStart + 100));
}

// A clock set back must not be served a SAN already brought past it.
TEST_F(BackendTest, ChangeWithTheClockSetBackStartsFromTheFile)
{
    startRestart();
    setClock(kStart + 100);
    Backend backend;
    ASSERT_NE(backend.view(), nullptr);
    EXPECT_EQ(backend.view()->adapters[0].restartUntil, 0);
    setClock(kStart);
    long long seen = -1;
    ASSERT_EQ(backend.change([&](San& san, long long) {
        seen = san.adapters[0].restartUntil;
        return rename(san, "earlier");
    }),
              code::Ok);
    EXPECT_EQ(seen, kStart + 5);
    EXPECT_EQ(scenarioToText(*backend.view()), freshView(kStart));
}

TEST_F(BackendTest, ChangesInARowEachSeeTheLastOne)
{
    Backend backend;
    for (int i = 0; i < 20; ++i) {
        ASSERT_EQ(backend.change([&](San& san, long long) {
            san.nextLocalLun += 1;
            return code::Ok;
        }),
                  code::Ok);
    }
    const San* view = backend.view();
    ASSERT_NE(view, nullptr);
    San fresh;
    std::string error;
    ASSERT_TRUE(StateStore(path).read(fresh, error)) << error;
    EXPECT_EQ(view->nextLocalLun, fresh.nextLocalLun);
    EXPECT_EQ(scenarioToText(*view), fileText());
}

TEST_F(BackendTest, BrokenStateIsReportedNotPassedOver)
{
    Backend backend;
    ASSERT_NE(backend.view(), nullptr);
    ASSERT_EQ(backend.change([](San& san, long long) { return rename(san, "x"); }), code::Ok);
    std::ofstream(path) << "{ broken";
    EXPECT_EQ(backend.view(), nullptr);
    EXPECT_EQ(backend.change([](San& san, long long) { return rename(san, "y"); }), code::StateFileError);
    EXPECT_EQ(fileText(), "{ broken");
}
