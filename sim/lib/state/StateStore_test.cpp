#include "state/StateStore.h"

#include "model/Codes.h"
#include "model/Generate.h"
#include "model/Rules.h"
#include "model/Scenario.h"
#include "support/ChildProcess.h"
#include "support/TempDirectory.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace sim;

namespace {

class StateStoreTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(scratch.made());
        setenv("HBASIM_TIME", "1700000000", 1);
    }
    TempDirectory scratch{"hbasim-store"};
    std::string dir = scratch.path;
    std::string path = dir + "/state/san.json";
};

std::string fileText(const std::string& path)
{
    std::ifstream in(path);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

} // namespace

TEST_F(StateStoreTest, FirstReadCreatesTheDefaultSan)
{
    StateStore store(path);
    San san;
    std::string error;
    ASSERT_TRUE(store.read(san, error)) << error;
    EXPECT_EQ(san.adapters.size(), 5u);
    struct stat st;
    EXPECT_EQ(stat(path.c_str(), &st), 0);
}

TEST_F(StateStoreTest, DefaultPathFollowsTheEnvironment)
{
    setenv("HBASIM_STATE", "/x/y.json", 1);
    EXPECT_EQ(StateStore::defaultPath(), "/x/y.json");
    unsetenv("HBASIM_STATE");
    setenv("HOME", "/home/someone", 1);
    EXPECT_EQ(StateStore::defaultPath(), "/home/someone/.hbasim/san.json");
}

TEST_F(StateStoreTest, BrokenStateIsReportedAndLeftAlone)
{
    StateStore store(path);
    std::string error;
    San san;
    ASSERT_TRUE(store.read(san, error));
    std::ofstream(path) << "{ broken";
    EXPECT_FALSE(store.read(san, error));
    EXPECT_NE(error.find(path), std::string::npos) << error;
    EXPECT_FALSE(store.update([](San&) { return true; }, error));
    EXPECT_EQ(fileText(path), "{ broken");
}

TEST_F(StateStoreTest, RefusedChangeLeavesTheFileUntouched)
{
    StateStore store(path);
    std::string error;
    San san;
    ASSERT_TRUE(store.read(san, error));
    std::string before = store.stamp();
    ASSERT_TRUE(store.update(
        [](San& s) {
            s.name = "changed";
            return false;
        },
        error));
    EXPECT_EQ(store.stamp(), before);
    ASSERT_TRUE(store.update(
        [](San& s) {
            s.name = "changed";
            return true;
        },
        error));
    ASSERT_TRUE(store.read(san, error));
    EXPECT_EQ(san.name, "changed");
}

TEST_F(StateStoreTest, SnapshotReadHasTheTextAndStampOfTheFile)
{
    StateStore store(path);
    Snapshot snapshot;
    std::string error;
    ASSERT_TRUE(store.read(snapshot, error)) << error;
    EXPECT_EQ(snapshot.text, fileText(path));
    EXPECT_EQ(snapshot.stamp, store.stamp());
    EXPECT_EQ(scenarioToText(snapshot.san), snapshot.text);
}

TEST_F(StateStoreTest, ChangeStartsFromTheSnapshotWhileTheFileHoldsItsText)
{
    StateStore store(path);
    Snapshot base;
    std::string error;
    ASSERT_TRUE(store.read(base, error)) << error;
    // Only a change that starts from the snapshot sees this name.
    base.san.name = "from the snapshot";
    const u64 before = base.san.nextLocalLun;
    std::string seen;
    Snapshot written;
    ASSERT_TRUE(store.update(
        [&](San& san) {
            seen = san.name;
            san.nextLocalLun = 77;
            return true;
        },
        error, &base, &written))
        << error;
    EXPECT_EQ(seen, "from the snapshot");
    EXPECT_EQ(base.san.nextLocalLun, before); // the caller's snapshot is left as it was
    EXPECT_EQ(written.text, fileText(path));
    EXPECT_EQ(written.stamp, store.stamp());
    EXPECT_EQ(written.san.nextLocalLun, 77u);
    EXPECT_EQ(scenarioToText(written.san), written.text);
}

TEST_F(StateStoreTest, ChangeReadsTheFileWhenItNoLongerHoldsTheSnapshotText)
{
    StateStore store(path);
    Snapshot base;
    std::string error;
    ASSERT_TRUE(store.read(base, error)) << error;
    base.san.name = "from the snapshot";
    ASSERT_TRUE(StateStore(path).update(
        [](San& san) {
            san.name = "by another process";
            return true;
        },
        error));
    std::string seen;
    Snapshot written;
    ASSERT_TRUE(store.update(
        [&](San& san) {
            seen = san.name;
            return true;
        },
        error, &base, &written))
        << error;
    EXPECT_EQ(seen, "by another process");
    EXPECT_EQ(written.san.name, "by another process");

    // Same length, other text: still read.
    ASSERT_TRUE(store.read(base, error)) << error;
    base.san.name = "from the snapshot";
    std::string text = fileText(path);
    text.replace(text.find("by another process"), 18, "by another PROCESS");
    ASSERT_TRUE(writeTextFileAtomically(path, text, error)) << error;
    ASSERT_TRUE(store.update(
        [&](San& san) {
            seen = san.name;
            return false;
        },
        error, &base, nullptr))
        << error;
    EXPECT_EQ(seen, "by another PROCESS");
}

TEST_F(StateStoreTest, NothingIsHandedBackWhenNothingWasWrittenOrItBreaksARule)
{
    StateStore store(path);
    Snapshot base;
    std::string error;
    ASSERT_TRUE(store.read(base, error)) << error;
    Snapshot written;
    ASSERT_TRUE(store.update(
        [](San& san) {
            san.name = "refused";
            return false;
        },
        error, &base, &written));
    EXPECT_TRUE(written.stamp.empty());
    EXPECT_TRUE(written.text.empty());

    ASSERT_TRUE(store.update(
        [](San& san) {
            san.adapters[1].id = san.adapters[0].id;
            return true;
        },
        error, &base, &written))
        << error;
    EXPECT_TRUE(written.stamp.empty());
    EXPECT_FALSE(store.read(base, error)); // as a fresh read says
    EXPECT_NE(error.find("defined twice"), std::string::npos) << error;
}

TEST_F(StateStoreTest, BrokenFileIsNotPassedOverByASnapshot)
{
    StateStore store(path);
    Snapshot base;
    std::string error;
    ASSERT_TRUE(store.read(base, error)) << error;
    std::ofstream(path) << "{ broken";
    EXPECT_FALSE(store.update([](San&) { return true; }, error, &base, nullptr));
    EXPECT_NE(error.find(path), std::string::npos) << error;
    EXPECT_EQ(fileText(path), "{ broken");
}

namespace {

// Eight processes toggle caching of their own LUN on one adapter, and log
// each toggle there; every toggle must survive. With `snapshots`, each
// process starts every change from what it wrote last, as a script does.
void runConcurrentToggles(const std::string& path, bool snapshots)
{
    constexpr int kProcesses = 8;
    constexpr int kToggles = 11;
    San start = generateSan(2, 12, 8);
    ASSERT_GE(start.luns.size(), static_cast<size_t>(kProcesses));
    start.adapters[0].log.clear();
    std::string error;
    ASSERT_TRUE(StateStore(path).replace(start, error)) << error;
    const u64 adapter = start.adapters[0].id.value;

    std::vector<pid_t> children;
    for (int p = 0; p < kProcesses; ++p) {
        pid_t pid = fork();
        ASSERT_GE(pid, 0);
        if (pid == 0) {
            try {
                StateStore store(path);
                PathRef lun{start.luns[static_cast<size_t>(p)].paths[0].target,
                            start.luns[static_cast<size_t>(p)].paths[0].lun, 1};
                Snapshot known;
                std::string err;
                if (snapshots && !store.read(known, err)) {
                    fprintf(stderr, "child %d: %s\n", p, err.c_str());
                    _exit(1);
                }
                for (int i = 0; i < kToggles; ++i) {
                    Snapshot written;
                    bool ok = store.update(
                        [&](San& san) {
                            rules::CacheRequest req;
                            req.mode = (i % 2 == 0) ? 1 : 0;
                            if (rules::enableCache(san, adapter, lun, req, 1700000000) != code::Ok)
                                return false;
                            rules::appendLog(*findAdapter(san, adapter), 1700000000, 5, "test", "toggle");
                            return true;
                        },
                        err, snapshots ? &known : nullptr, &written);
                    if (!ok) {
                        fprintf(stderr, "child %d: %s\n", p, err.c_str());
                        _exit(1);
                    }
                    if (!written.stamp.empty())
                        known = std::move(written);
                }
            } catch (const std::exception& e) {
                fprintf(stderr, "child %d: %s\n", p, e.what());
                _exit(3);
            }
            _exit(0);
        }
        children.push_back(pid);
    }
    // Meanwhile every snapshot must parse.
    StateStore reader(path);
    int reads = 0;
    for (;;) {
        San snapshot;
        EXPECT_TRUE(reader.read(snapshot, error)) << error;
        ++reads;
        int status;
        pid_t done = waitpid(-1, &status, WNOHANG);
        if (done > 0) {
            EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "status " << status;
            children.erase(std::find(children.begin(), children.end(), done));
            if (children.empty())
                break;
        }
    }
    San end;
    ASSERT_TRUE(reader.read(end, error)) << error;
    EXPECT_EQ(end.adapters[0].log.size(), static_cast<size_t>(kProcesses * kToggles));
    for (int p = 0; p < kProcesses; ++p)
        EXPECT_EQ(end.luns[static_cast<size_t>(p)].cached, kToggles % 2 == 1) << "LUN " << p;
    EXPECT_GT(reads, 0);
}

} // namespace

TEST_F(StateStoreTest, ConcurrentTogglesAreNeverLost)
{
    runConcurrentToggles(path, false);
}

TEST_F(StateStoreTest, ConcurrentTogglesFromSnapshotsAreNeverLost)
{
    runConcurrentToggles(path, true);
}

// A writer killed at any moment leaves a state that reads.
TEST_F(StateStoreTest, KilledWritersNeverLeaveAnUnreadableState)
{
    San big = generateSan(4, 300, 8);
    std::string error;
    ASSERT_TRUE(StateStore(path).replace(big, error)) << error;
    srand(4242);
    for (int round = 0; round < 8; ++round) {
        pid_t pid = fork();
        ASSERT_GE(pid, 0);
        if (pid == 0) {
            StateStore store(path);
            for (int i = 0;; ++i) {
                std::string err;
                store.update(
                    [&](San& san) {
                        san.name = "round" + std::to_string(i);
                        return true;
                    },
                    err);
            }
        }
        usleep(static_cast<useconds_t>(2000 + rand() % 40000));
        kill(pid, SIGKILL);
        int status;
        waitpid(pid, &status, 0);
        San san;
        ASSERT_TRUE(StateStore(path).read(san, error)) << "round " << round << ": " << error;
        EXPECT_EQ(san.luns.size(), big.luns.size());
    }
}

namespace {

// Reads the state in a child that an alarm stops, so that a read which would
// block for ever fails the test instead of hanging it. The child writes the
// error of a refused read and exits 0; a read that succeeds exits 1.
ChildOutcome readStateInChild(const std::string& path)
{
    return runInChild([&] {
        alarm(20);
        San san;
        std::string error;
        bool read = StateStore(path).read(san, error);
        std::fputs(error.c_str(), stdout);
        std::fflush(stdout);
        _exit(read ? 1 : 0);
    });
}

std::string stateName(const std::string& path)
{
    return "simulator state file \"" + path + "\"";
}

} // namespace

TEST_F(StateStoreTest, AFifoIsNotReadButRefusedAtOnce)
{
    ASSERT_EQ(mkdir((dir + "/state").c_str(), 0755), 0);
    ASSERT_EQ(mkfifo(path.c_str(), 0644), 0);
    ChildOutcome outcome = readStateInChild(path);
    ASSERT_TRUE(outcome.exited) << "the read blocked";
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, stateName(path) + " is not a regular file");
    std::string error;
    EXPECT_FALSE(StateStore(path).update([](San&) { return true; }, error));
    EXPECT_EQ(error, stateName(path) + " is not a regular file");
}

TEST_F(StateStoreTest, DevicesAndFoldersAreNotStates)
{
    ASSERT_EQ(mkdir((dir + "/state").c_str(), 0755), 0);
    std::filesystem::create_symlink("/dev/null", path);
    ChildOutcome outcome = readStateInChild(path);
    ASSERT_TRUE(outcome.exited);
    EXPECT_EQ(outcome.out, stateName(path) + " is not a regular file");
    std::filesystem::remove(path);
    ASSERT_EQ(mkdir(path.c_str(), 0755), 0);
    San san;
    std::string error;
    EXPECT_FALSE(StateStore(path).read(san, error));
    EXPECT_EQ(error, stateName(path) + " is not a regular file");
}

TEST_F(StateStoreTest, AStateOfMoreThan256MiBIsRefusedUnread)
{
    ASSERT_EQ(mkdir((dir + "/state").c_str(), 0755), 0);
    const off_t limit = off_t{256} << 20;
    {
        std::ofstream{path};
    }
    ASSERT_EQ(truncate(path.c_str(), limit + 1), 0); // sparse: costs no disk
    San san;
    std::string error;
    EXPECT_FALSE(StateStore(path).read(san, error));
    EXPECT_EQ(error, stateName(path) + " is larger than 256 MiB");
    std::string text;
    EXPECT_FALSE(readTextFile(path, text, error));
    EXPECT_EQ(error, "\"" + path + "\" is larger than 256 MiB");
    // At the limit the file is read, and found not to be a scenario.
    ASSERT_EQ(truncate(path.c_str(), limit), 0);
    EXPECT_FALSE(StateStore(path).read(san, error));
    EXPECT_EQ(error.find("larger"), std::string::npos) << error;
}

TEST_F(StateStoreTest, TheNextWriterRemovesTemporaryFilesOfDeadWriters)
{
    StateStore store(path);
    San san;
    std::string error;
    ASSERT_TRUE(store.read(san, error)) << error;
    pid_t dead = fork();
    ASSERT_GE(dead, 0);
    if (dead == 0)
        _exit(0);
    ASSERT_EQ(waitpid(dead, nullptr, 0), dead);
    const std::string stale = path + ".tmp." + std::to_string(dead);
    const std::string alive = path + ".tmp.1"; // init never ends
    const std::string other = path + ".tmp.notapid";
    for (const std::string& f : {stale, alive, other})
        std::ofstream(f) << "{ half written";

    // A reader leaves them; the next writer clears what is stale.
    ASSERT_TRUE(store.read(san, error)) << error;
    EXPECT_TRUE(std::filesystem::exists(stale));
    ASSERT_TRUE(store.update(
        [](San& s) {
            s.name = "after";
            return true;
        },
        error))
        << error;
    EXPECT_FALSE(std::filesystem::exists(stale));
    EXPECT_TRUE(std::filesystem::exists(alive));
    EXPECT_TRUE(std::filesystem::exists(other));
    ASSERT_TRUE(store.read(san, error)) << error;
    EXPECT_EQ(san.name, "after");
}

namespace {

bool isSymlink(const std::string& path)
{
    struct stat st;
    return ::lstat(path.c_str(), &st) == 0 && S_ISLNK(st.st_mode);
}

} // namespace

TEST_F(StateStoreTest, AStateBehindASymlinkIsChangedInItsTargetAndTheLinkStays)
{
    std::string const target = dir + "/real.json";
    std::string const link = dir + "/link.json";
    ASSERT_EQ(::symlink("real.json", link.c_str()), 0);
    StateStore store(link);
    std::string error;
    San san;
    ASSERT_TRUE(store.read(san, error)) << error;
    ASSERT_TRUE(store.update(
        [](San& s) {
            s.name = "through the link";
            return true;
        },
        error))
        << error;
    EXPECT_TRUE(isSymlink(link));
    ASSERT_TRUE(StateStore(target).read(san, error)) << error;
    EXPECT_EQ(san.name, "through the link");
}

TEST_F(StateStoreTest, AWholeFileWriteNeverReplacesWhatIsNotARegularFile)
{
    std::string error;
    std::string const toNull = dir + "/null";
    ASSERT_EQ(::symlink("/dev/null", toNull.c_str()), 0);
    EXPECT_TRUE(writeTextFileAtomically(toNull, "gone\n", error)) << error;
    EXPECT_TRUE(isSymlink(toNull));

    std::string const pipe = dir + "/pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(writeTextFileAtomically(pipe, "nobody reads\n", error));
    EXPECT_EQ(error, "cannot write \"" + pipe + "\": No process reads the pipe");
    int const reader = ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    EXPECT_TRUE(writeTextFileAtomically(pipe, "read\n", error)) << error;
    char got[8] = {};
    EXPECT_EQ(::read(reader, got, sizeof got), 5);
    ::close(reader);
    struct stat st;
    ASSERT_EQ(::stat(pipe.c_str(), &st), 0);
    EXPECT_TRUE(S_ISFIFO(st.st_mode));

    EXPECT_FALSE(writeTextFileAtomically(dir, "a folder\n", error));
    EXPECT_EQ(error, "cannot write \"" + dir + "\": Is a directory");
}

TEST_F(StateStoreTest, NumbersOutOfTheirFieldsRangeAreRefusedByName)
{
    StateStore store(path);
    std::string error;
    San san;
    ASSERT_TRUE(store.read(san, error));
    std::string const good = fileText(path);
    auto const at = good.find("\"cachePoolBytes\": ");
    ASSERT_NE(at, std::string::npos);
    auto const end = good.find_first_of(",\n}", at);
    std::string const field = good.substr(at, end - at);
    for (std::string const bad : {"-5", "1.5", "18446744073709551616"}) {
        std::string text = good;
        text.replace(at, field.size(), "\"cachePoolBytes\": " + bad);
        std::ofstream(path) << text;
        EXPECT_FALSE(store.read(san, error)) << bad;
        EXPECT_NE(error.find("/cachePoolBytes\" is out of range: "), std::string::npos) << error;
        EXPECT_NE(error.find(path), std::string::npos) << error;
    }
}
