// Every operation that changes the SAN keeps to one rule about its answer:
// below 1000 the change is kept and the code is the answer; from 1000 on the
// SAN stays as it was. A fault injected with each kind of code shows it, on
// the state file and on a demonstration image alike.
#include "api/SimAdapter.h"

#include "api/Ids.h"
#include "api/SimApi.h"
#include "model/Codes.h"
#include "model/DefaultSan.h"
#include "model/Scenario.h"
#include "state/StateStore.h"
#include "support/TempDirectory.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <memory>
#include <ostream>

using namespace sim;

namespace {

constexpr u64 kDev0 = 0x2000001B32A10C00ull;
constexpr u64 kDev1 = 0x2000001B32A10D00ull;
constexpr u64 kSanOnly = 0x2000001B32A10E00ull;
const std::string kSpa = "50:06:01:60:39:A0:11:22";
const std::string kCachedLun = "60060160A1B2C3D4E5F6000000000001";

// What an operation works on: adapter device 0 of the default SAN, which
// caches a LUN with dirty data, locked ranges and a reservation, owns a data
// LUN and a spare drive, and is the primary of a cluster.
struct Bench {
    SimApi& api;
    HIsaAdapter& dev0;
    const San& san;
    const TempDirectory& scratch;

    PLunID sanLun(int number) const
    {
        PLunID id;
        id.initLunIdOnFcTargetFromString(kSpa, number, PBase::VPGROUP_1);
        return id;
    }
    PLunID dataLun() const
    {
        const Lun* scratchLun = nullptr;
        for (const Lun& l : san.luns)
            if (l.local)
                scratchLun = &l;
        return lunId(*findTarget(san, scratchLun->paths[0].target), scratchLun->paths[0]);
    }
    const Lun& cachedLun() const { return *findLunByWwuln(san, kCachedLun); }
    const Drive& drive(bool configured) const
    {
        for (const Drive& d : findAdapter(san, kDev0)->drives)
            if (d.configured == configured)
                return d;
        return findAdapter(san, kDev0)->drives.front();
    }
    KIsaAdapterPath pathOf(u64 adapter) const { return adapterPath(*findAdapter(san, adapter)); }
    std::string localFile(const std::string& name, const std::string& text) const
    {
        std::ofstream(scratch.file(name)) << text;
        return scratch.file(name);
    }
};

using Step = std::function<int(Bench&)>;

int nothingToPrepare(Bench&)
{
    return code::Ok;
}

// What the start SAN needs that no operation can set up, such as a drive
// whose configuration another adapter wrote.
using Arrangement = std::function<void(San&)>;

void nothingToArrange(San&) {}

struct ChangingOperation {
    ChangingOperation(const char* operation, Step change, Step before = nothingToPrepare,
                      Arrangement arrange = nothingToArrange)
        : name(operation), run(std::move(change)), prepare(std::move(before)), arrange(std::move(arrange))
    {}
    const char* name; // as faults name it
    Step run;
    Step prepare; // brings the SAN to where the operation can change it
    Arrangement arrange;
};

std::vector<ChangingOperation> changingOperations()
{
    const KClusterID cluster = clusterId("prodcluster");
    return {
        {"enableCache", [](Bench& b) { return b.dev0.enableCache(b.sanLun(1), 1, 1, 0, 0, 0, 0, 0, 0); }},
        {"modifyCache", [](Bench& b) { return b.dev0.modifyCache(b.sanLun(0), 0, 4, 0, 0, 0, 0, 0, kDev1, false); }},
        {"disableCache", [](Bench& b) { return b.dev0.disableCache(wwulnId(b.cachedLun())); }},
        {"disableCacheByWwuln", [](Bench& b) { return b.dev0.disableCacheByWwuln(wwulnId(b.cachedLun())); }},
        {"startCacheFlush", [](Bench& b) { return b.dev0.startCacheFlush(b.sanLun(0)); }},
        {"getCacheFlushProgress",
         [](Bench& b) {
             uint32_t running = 0;
             return b.dev0.getCacheFlushProgress(b.sanLun(0), &running);
         },
         [](Bench& b) { return b.dev0.startCacheFlush(b.sanLun(0)); }},
        {"lockCache", [](Bench& b) { return b.dev0.lockCache(b.sanLun(0), 1000, 8); }},
        {"unlockCache", [](Bench& b) { return b.dev0.unlockCache(b.sanLun(0), 1000, 8); },
         [](Bench& b) { return b.dev0.lockCache(b.sanLun(0), 1000, 8); }},
        {"invalidateCache", [](Bench& b) { return b.dev0.invalidateCache(b.sanLun(0), 0, 0); }},
        {"clearReservation", [](Bench& b) { return b.dev0.clearReservation(b.sanLun(0)); }},
        {"clearLunStatistics",
         [](Bench& b) {
             std::vector<unsigned char> name = wwulnBytes(b.cachedLun());
             return b.dev0.clearLunStatistics(name.data(), static_cast<uint32_t>(name.size()), false);
         }},
        {"createLun",
         [](Bench& b) {
             KWwulnLunID made;
             return b.dev0.createLun(1ull << 30, "made", 1, 0, made);
         }},
        {"modifyLun", [](Bench& b) { return b.dev0.modifyLun(b.dataLun(), 64ull << 30, "grown"); }},
        {"setLunMirror", [](Bench& b) { return b.dev0.setLunMirror(b.dataLun(), 2, kSanOnly); }},
        {"removeLun",
         [](Bench& b) {
             std::string text;
             return b.dev0.removeLun(b.dataLun(), text);
         }},
        {"setPoolSize", [](Bench& b) { return b.dev0.setPoolSize(4096); }},
        {"removePool", [](Bench& b) { return b.dev0.removePool(); },
         [](Bench& b) { return b.dev0.disableCache(wwulnId(b.cachedLun())); }},
        {"addDriveToPool", [](Bench& b) { return b.dev0.addDriveToPool(driveId(b.drive(false))); }},
        {"addDriveToPoolBySsdId", [](Bench& b) { return b.dev0.addDriveToPoolBySsdId(driveSsdId(b.drive(false))); }},
        {"removeDriveFromPool", [](Bench& b) { return b.dev0.removeDriveFromPool(driveId(b.drive(true))); },
         [](Bench& b) { return b.dev0.setPoolSize(4096); }},
        {"removeDriveFromPoolBySsdId",
         [](Bench& b) { return b.dev0.removeDriveFromPoolBySsdId(driveSsdId(b.drive(true))); },
         [](Bench& b) { return b.dev0.setPoolSize(4096); }},
        {"factoryReset", [](Bench& b) { return b.dev0.factoryReset(0); }},
        {"setPassword", [](Bench& b) { return b.dev0.setPassword("admin", "zek", "changed"); }},
        {"restart", [](Bench& b) { return b.dev0.restart(1); }},
        {"restoreDriveConfig", [](Bench& b) { return b.dev0.restoreDriveConfig(kDev1); }, nothingToPrepare,
         [](San& san) { findAdapter(san, kDev0)->drives.back().owner.value = kDev1; }},
        {"installFirmware",
         [](Bench& b) { return b.dev0.updateFirmware(b.localFile("image.bin", "version=9.9.9\n").c_str()); }},
        {"putFile", [](Bench& b) { return b.dev0.putFile(b.localFile("notes.txt", "hello").c_str(), "notes", false); }},
        {"getFile", [](Bench& b) { return b.dev0.getFile(b.scratch.file("back.txt").c_str(), "notes", true); },
         [](Bench& b) { return b.dev0.putFile(b.localFile("notes.txt", "hello").c_str(), "notes", false); }},
        {"setSymbolicName", [](Bench& b) { return b.dev0.setSymbolicName("renamed", 7); }},
        {"clearAdapterStatistics", [](Bench& b) { return b.dev0.clearAdapterStatistics(); }},
        {"setFcPortEnabled", [](Bench& b) { return b.dev0.setFcPortEnabled(0, false); }},
        {"setFcInfo", [](Bench& b) { return b.dev0.setFcInfo(0, 2, 1, 32); }},
        {"setBeacon", [](Bench& b) { return b.dev0.setBeacon(0, true); }},
        {"executeNvdimmCommand", [](Bench& b) { return b.dev0.executeNvdimmCommand(0); }},
        {"setTargetMaxOutstandingIo",
         [](Bench& b) { return b.dev0.setTargetMaxOutstandingIo(targetId(*findTarget(b.san, "array-a-spa")), 32); }},
        {"createCluster",
         [](Bench& b) { return b.dev0.createCluster(b.pathOf(kDev0), b.pathOf(kDev1), clusterId("newcluster"), 1); },
         [cluster](Bench& b) { return b.dev0.destroyCluster(cluster); }},
        {"destroyCluster", [cluster](Bench& b) { return b.dev0.destroyCluster(cluster); }},
        {"addClusterMember", [cluster](Bench& b) { return b.dev0.addClusterMember(b.pathOf(kSanOnly), cluster); }},
        {"removeClusterMember", [cluster](Bench& b) { return b.dev0.removeClusterMember(b.pathOf(kSanOnly), cluster); },
         [cluster](Bench& b) { return b.dev0.addClusterMember(b.pathOf(kSanOnly), cluster); }},
        {"clearLog", [](Bench& b) { return b.dev0.clearLog(); }},
    };
}

// Where the SAN lives for one run: the shared state file, or a
// demonstration image the process holds.
enum class Home { StateFile, Demonstration };

void PrintTo(Home home, std::ostream* out)
{
    *out << (home == Home::StateFile ? "state file" : "demonstration image");
}

struct Outcome {
    int code = -1;
    std::string before; // the SAN once prepared, without faults
    std::string after;  // and after the operation
};

class ChangeRuleTest : public ::testing::TestWithParam<std::tuple<size_t, Home>> {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(scratch.made());
        setenv("HBASIM_TIME", "1795000000", 1);
    }

    const ChangingOperation& operation() const
    {
        static const std::vector<ChangingOperation> all = changingOperations();
        return all[std::get<0>(GetParam())];
    }

    // Runs the operation on a fresh default SAN with a fault of `injected`
    // (0: none) waiting for it.
    Outcome runWith(int injected)
    {
        San start = defaultSan();
        operation().arrange(start);
        if (injected != 0)
            start.faults.push_back({{kDev0}, operation().name, injected, true, 0});
        auto api = std::make_unique<SimApi>();
        if (!open(*api, start))
            return {};
        KIsaAdapterPath path;
        path.init(0, 0, true, PIpAddress(), KIsaAdapterPath::ADAPTER_TYPE_1);
        EXPECT_EQ(api->checkAdapterPath(path), MHBA_S_OK);
        HIsaAdapter* dev0 = api->getAdapters()->find(path);
        EXPECT_NE(dev0, nullptr);
        if (!dev0)
            return {};
        San model = defaultSan();
        operation().arrange(model);
        Bench bench{*api, *dev0, model, scratch};
        EXPECT_EQ(operation().prepare(bench), code::Ok) << "preparing " << operation().name;
        Outcome outcome;
        outcome.before = sanText(*api);
        outcome.code = operation().run(bench);
        outcome.after = sanText(*api);
        return outcome;
    }

    bool open(SimApi& api, const San& start)
    {
        std::string error;
        if (std::get<1>(GetParam()) == Home::StateFile) {
            EXPECT_TRUE(StateStore(state).replace(start, error)) << error;
            return error.empty();
        }
        std::ofstream(demo) << scenarioToText(start);
        EXPECT_EQ(api.loadDemonstrationFile(demo, error), MHBA_S_OK) << error;
        return error.empty();
    }

    // The SAN without its faults, which taking a fault uses up.
    std::string sanText(SimApi& api)
    {
        std::string error;
        if (std::get<1>(GetParam()) == Home::Demonstration) {
            EXPECT_EQ(api.saveDemonstrationFile(scratch.file("shown.json"), error), MHBA_S_OK) << error;
            std::string text;
            EXPECT_TRUE(readTextFile(scratch.file("shown.json"), text, error)) << error;
            return text;
        }
        San san;
        EXPECT_TRUE(StateStore(state).read(san, error)) << error;
        san.faults.clear();
        return scenarioToText(san);
    }

    TempDirectory scratch{"hbasim-rule"};
    std::string state = scratch.file("san.json");
    std::string demo = scratch.file("demo.json");
    ScopedEnvironmentVariable stateVariable{"HBASIM_STATE", state};
};

} // namespace

TEST_P(ChangeRuleTest, CodesBelow1000KeepTheChangeAndFrom1000NothingChanges)
{
    Outcome plain = runWith(0);
    ASSERT_TRUE(code::keepsChange(plain.code)) << operation().name << " answers " << plain.code;
    ASSERT_NE(plain.after, plain.before) << operation().name << " changes nothing in this test";
    for (int injected : {1, 2, 999}) {
        Outcome kept = runWith(injected);
        EXPECT_EQ(kept.code, plain.code == code::Ok ? injected : plain.code) << "injected " << injected;
        EXPECT_EQ(kept.after, plain.after) << "injected " << injected << ": the change must be kept";
    }
    for (int injected : {1000, 1206}) {
        Outcome refused = runWith(injected);
        EXPECT_EQ(refused.code, injected);
        EXPECT_EQ(refused.after, refused.before) << "injected " << injected << ": nothing may change";
    }
}

INSTANTIATE_TEST_SUITE_P(EveryChangingOperation, ChangeRuleTest,
                         ::testing::Combine(::testing::Range<size_t>(0, changingOperations().size()),
                                            ::testing::Values(Home::StateFile, Home::Demonstration)),
                         [](const ::testing::TestParamInfo<ChangeRuleTest::ParamType>& info) {
                             static const std::vector<ChangingOperation> all = changingOperations();
                             return std::string(all[std::get<0>(info.param)].name) +
                                 (std::get<1>(info.param) == Home::StateFile ? "_OnTheStateFile"
                                                                             : "_OnADemonstrationImage");
                         });
