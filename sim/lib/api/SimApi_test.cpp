#include "api/SimApi.h"

#include "api/HbaMgmtInterfaces.h"
#include "api/Ids.h"
#include "support/TempDirectory.h"

#include "records/KAdapterGroupExtendedLunInfo.h"
#include "records/KDriveInfo.h"
#include "records/KHostPcieInfo.h"
#include "records/KIsaAdapterInfo.h"
#include "records/KLibraryVersionInfo.h"
#include "records/KLogEntry.h"
#include "records/KLunInfo.h"
#include "records/KLunReservationInfo.h"
#include "records/KPoolInfo.h"
#include "records/KTargetInfo.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sys/stat.h>

using namespace sim;

namespace {

constexpr u64 kDev0 = 0x2000001B32A10C00ull;
constexpr u64 kDev1 = 0x2000001B32A10D00ull;
constexpr u64 kSanOnly = 0x2000001B32A10E00ull;
constexpr u64 kOffline = 0x2000001B32A10F00ull;

class SimApiTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(scratch.made());
        setenv("HBASIM_TIME", "1795000000", 1);
        api = std::make_unique<SimApi>();
    }
    void TearDown() override { api.reset(); }

    KIsaAdapterPath devicePath(int instance)
    {
        KIsaAdapterPath path;
        path.init(0, instance, true, PIpAddress(), KIsaAdapterPath::ADAPTER_TYPE_1);
        return path;
    }
    KIsaAdapterPath sanPath(u64 id)
    {
        KIsaAdapterPath path;
        path.init(id, -1, false, PIpAddress(), KIsaAdapterPath::ADAPTER_TYPE_1);
        return path;
    }
    HIsaAdapter* adapter(int instance)
    {
        KIsaAdapterPath path = devicePath(instance);
        if (api->checkAdapterPath(path) != MHBA_S_OK)
            return nullptr;
        return api->getAdapters()->find(path);
    }
    HTarget* target(HIsaAdapter* a, const std::string& wwpn)
    {
        a->clearTargets();
        MHbaReturnBuffer first;
        if (a->getTargetsAndInitiators(&first) != MHBA_S_OK)
            return nullptr;
        PTargetID id;
        id.initFcTargetIDFromString(wwpn);
        return a->getTargets()->find(id);
    }
    KLunInfo* lun(HIsaAdapter* a, const std::string& wwpn, int number)
    {
        HTarget* t = target(a, wwpn);
        MHbaReturnBuffer first;
        if (!t || a->getLunsForSpecificTarget(t, &first) != MHBA_S_OK)
            return nullptr;
        PLunID id;
        id.initLunID(*t->getTargetId(), number, PBase::VPGROUP_1);
        HLun* l = a->getLuns()->find(id);
        return l ? l->getLunInfo() : nullptr;
    }
    PLunID lunIdOn(const std::string& wwpn, int number)
    {
        PLunID id;
        id.initLunIdOnFcTargetFromString(wwpn, number, PBase::VPGROUP_1);
        return id;
    }

    TempDirectory scratch{"hbasim-api"};
    std::string dir = scratch.path;
    std::string state = scratch.file("san.json");
    ScopedEnvironmentVariable stateVariable{"HBASIM_STATE", state};
    std::unique_ptr<SimApi> api;
};

const std::string kSpa = "50:06:01:60:39:A0:11:22";
const std::string kArrayB = "21:00:00:24:FF:3C:5A:10";

} // namespace

TEST_F(SimApiTest, ReportsItsVersionWithoutReadingTheState)
{
    KLibraryVersionInfo v;
    api->getLibraryVersionInfo(v);
    EXPECT_EQ(v.displayText(), "2.103.6.4");
    api->beginClientSession();
    api->endClientSession();
    struct stat st;
    EXPECT_NE(stat(state.c_str(), &st), 0) << "no device was touched, so no state may be made";
}

TEST_F(SimApiTest, LocalAdaptersArePresentWithoutAScan)
{
    HIsaAdapterCollection* all = api->getAdapters();
    ASSERT_EQ(all->items.size(), 2u);
    EXPECT_EQ(all->items[0]->getAdapterPath()->isaHbaId(), kDev0);
    EXPECT_EQ(all->items[1]->getAdapterPath()->deviceInstanceForAccess(), 1);
    EXPECT_NE(all->findBySymbolicName("zek-prod-b"), nullptr);
    EXPECT_EQ(all->findBySymbolicName("nosuch"), nullptr);
}

TEST_F(SimApiTest, CheckAdapterPathCompletesOpenFields)
{
    KIsaAdapterPath byDevice = devicePath(1);
    ASSERT_EQ(api->checkAdapterPath(byDevice), MHBA_S_OK);
    EXPECT_EQ(byDevice.isaHbaId(), kDev1);
    KIsaAdapterPath byId = sanPath(kSanOnly);
    ASSERT_EQ(api->checkAdapterPath(byId), MHBA_S_OK);
    EXPECT_EQ(byId.deviceInstanceForAccess(), 0);
    EXPECT_FALSE(byId.isLocalDevice());
    EXPECT_NE(api->getAdapters()->find(byId), nullptr);
    KIsaAdapterPath missing = devicePath(7);
    EXPECT_EQ(api->checkAdapterPath(missing), MHBA_E_OBJECT_NOT_FOUND);
    // An offline adapter cannot be reached; a scan still knows it, its
    // description says it is offline, and it answers nothing else.
    KIsaAdapterPath offline = sanPath(kOffline);
    EXPECT_EQ(api->checkAdapterPath(offline), 1006);
    PIpAddress local;
    uint32_t count;
    ASSERT_EQ(api->scanAdapters(local, &count), MHBA_S_OK);
    HIsaAdapter* down = api->getAdapters()->find(offline);
    ASSERT_NE(down, nullptr);
    KIsaAdapterInfo info;
    ASSERT_EQ(down->getAdapterInfo(info), MHBA_S_OK);
    EXPECT_EQ(info.adapterState, 2);
    KPoolInfo pool;
    EXPECT_EQ(down->getPoolInfo(pool), 1006);
}

TEST_F(SimApiTest, ASessionThroughAnAgentPresentsThatHostsAdapters)
{
    PIpAddress agent;
    std::string error;
    ASSERT_TRUE(api->textToIpAddress("127.0.10.1", agent, error));
    ASSERT_EQ(api->testAgentConnection(agent, error), MHBA_S_OK);
    HIsaAdapterCollection* all = api->getAdapters();
    ASSERT_EQ(all->items.size(), 1u);
    EXPECT_EQ(all->items[0]->getAdapterPath()->isaHbaId(), 0x2000001B32B20100ull);
}

TEST_F(SimApiTest, LocalScanGivesClustersAndThePseudoCluster)
{
    uint32_t count = 0;
    PIpAddress local;
    api->clearAdapters();
    api->clearClusters();
    ASSERT_EQ(api->scanAdapters(local, &count), MHBA_S_OK);
    EXPECT_EQ(count, 4u);
    HClusterCollection* clusters = api->getClusters();
    ASSERT_EQ(clusters->items.size(), 2u);
    EXPECT_TRUE(clusters->items[0]->getClusterId()->isClusterKeyValid());
    EXPECT_EQ(clusters->items[0]->getClusterId()->displayText(), "prodcluster");
    EXPECT_TRUE(clusters->items[0]->isPrimaryValid());
    EXPECT_EQ(clusters->items[0]->getMemberPaths()->size(), 2u);
    EXPECT_FALSE(clusters->items[1]->getClusterId()->isClusterKeyValid());
    EXPECT_EQ(clusters->items[1]->getMemberPaths()->size(), 2u);
    HIsaAdapter* offline = api->getAdapters()->find(sanPath(kOffline));
    ASSERT_NE(offline, nullptr);
    EXPECT_EQ(offline->getCachedAdapterInfo()->adapterState, 2);
}

TEST_F(SimApiTest, AgentsAnswerOnlyWhereDefined)
{
    PIpAddress agent;
    std::string error;
    ASSERT_TRUE(api->textToIpAddress("127.0.10.1", agent, error)) << error;
    uint32_t count = 0;
    ASSERT_EQ(api->scanAdapters(agent, &count), MHBA_S_OK);
    EXPECT_EQ(count, 1u);
    KIsaAdapterPath remote = *api->getAdapters()->items.back()->getAdapterPath();
    EXPECT_EQ(remote.selectAdapterPath(), KIsaAdapterPath::SELECT_ADAPTER_PATH_REMOTE_AGENT);
    EXPECT_EQ(api->testAgentConnection(agent, error), MHBA_S_OK);

    bool found = false;
    KLibraryVersionInfo v;
    EXPECT_EQ(api->getRemoteAgentVersion(agent, &found, v), MHBA_S_OK);
    EXPECT_TRUE(found);

    PIpAddress nobody;
    ASSERT_TRUE(api->textToIpAddress("127.0.10.99", nobody, error));
    EXPECT_EQ(api->scanAdapters(nobody, &count), MHBA_E_AGENT_NOT_RESPONDING);
    EXPECT_EQ(api->testAgentConnection(nobody, error), MHBA_E_AGENT_NOT_RESPONDING);
    EXPECT_EQ(error, "No remote agent answers at 127.0.10.99");
    EXPECT_EQ(api->getRemoteAgentVersion(nobody, &found, v), MHBA_E_AGENT_NOT_RESPONDING);
    EXPECT_FALSE(found);
}

TEST_F(SimApiTest, AddressesAreNumericOnly)
{
    PIpAddress address;
    std::string error;
    EXPECT_TRUE(api->textToIpAddress("localhost", address, error));
    EXPECT_EQ(address.displayText(), "127.0.0.1");
    EXPECT_TRUE(api->textToIpAddress("::1", address, error));
    EXPECT_EQ(address.displayText(), "::1");
    EXPECT_FALSE(api->textToIpAddress("storage.example.com", address, error));
    EXPECT_EQ(error, "\"storage.example.com\" is not a numeric IPv4 or IPv6 address (host names are not looked up)");
    EXPECT_FALSE(api->textToIpAddress("300.1.1.1", address, error));
}

TEST_F(SimApiTest, TargetsFollowPortsOfDiscovery)
{
    HIsaAdapter* dev0 = adapter(0);
    ASSERT_NE(dev0, nullptr);
    MHbaReturnBuffer first;
    ASSERT_EQ(dev0->getTargetsAndInitiators(&first), MHBA_S_OK);
    EXPECT_EQ(dev0->getTargets()->items.size(), 5u); // the internal one included
    HTarget* b = target(dev0, kArrayB);
    ASSERT_NE(b, nullptr);
    EXPECT_TRUE(b->getTargetInfo()->discoveredOnPort1);
    EXPECT_TRUE(b->getTargetInfo()->discoveredOnPort2);
    HIsaAdapter* dev1 = adapter(1);
    ASSERT_EQ(dev1->getTargetsAndInitiators(&first), MHBA_S_OK);
    EXPECT_EQ(dev1->getTargets()->items.size(), 5u); // its own internal one too, as it has drives
    EXPECT_FALSE(dev1->getDevices()->items.empty());
    EXPECT_FALSE(dev1->getInitiators()->items.empty());
}

TEST_F(SimApiTest, CacheStateDependsOnTheAskingAdapter)
{
    KLunInfo* onDev0 = lun(adapter(0), kSpa, 0);
    ASSERT_NE(onDev0, nullptr);
    EXPECT_EQ(onDev0->eCacheState(), KLunInfo::CACHE_STATE_CACHED_LOCAL);
    EXPECT_EQ(onDev0->cacheInfo.ui32LockedRangeCount, 2u);
    EXPECT_TRUE(onDev0->cacheInfo.bMirrored);
    KLunInfo* onDev1 = lun(adapter(1), kSpa, 0);
    ASSERT_NE(onDev1, nullptr);
    EXPECT_EQ(onDev1->eCacheState(), 3);
    EXPECT_EQ(onDev1->ui64ClusterCacheAdapterPrimary(), kDev0);
    EXPECT_EQ(onDev1->eMirrorState(), 3);
    EXPECT_NE(onDev1->cacheInfo.ui16MirrorState, 0);
}

TEST_F(SimApiTest, EnableAndModifyKeepTheirRulesAndPersist)
{
    HIsaAdapter* dev0 = adapter(0);
    PLunID uncached = lunIdOn(kSpa, 1);
    EXPECT_EQ(dev0->modifyCache(uncached, 1, 1, 0, 0, 0, 0, 0, 0, false), MHBA_E_LUN_NOT_CACHED);
    ASSERT_EQ(dev0->enableCache(uncached, 1, 1, 0, 0, 0, 0, 0, 0), MHBA_S_OK);
    EXPECT_EQ(dev0->enableCache(uncached, 1, 1, 0, 0, 0, 0, 0, 0), MHBA_E_LUN_ALREADY_CACHED);
    EXPECT_EQ(dev0->enableCache(lunIdOn(kArrayB, 1), 1, 1, 0, 0, 0, 0, 0, 0), MHBA_E_CACHED_BY_OTHER_ADAPTER);

    // Another process sees the change.
    SimApi other;
    KIsaAdapterPath path = devicePath(0);
    ASSERT_EQ(other.checkAdapterPath(path), MHBA_S_OK);
    HIsaAdapter* again = other.getAdapters()->find(path);
    MHbaReturnBuffer first;
    again->getTargetsAndInitiators(&first);
    PTargetID spa;
    spa.initFcTargetIDFromString(kSpa);
    HTarget* t = again->getTargets()->find(spa);
    ASSERT_EQ(again->getLunsForSpecificTarget(t, &first), MHBA_S_OK);
    EXPECT_EQ(again->getLuns()->find(uncached)->getLunInfo()->eCacheState(), KLunInfo::CACHE_STATE_CACHED_LOCAL);
}

// A record handed out before a change this process made says it is out of
// date, so that a script's later line refreshes it rather than showing the
// LUN as it was.
TEST_F(SimApiTest, RecordsFilledBeforeAChangeAskToBeRefreshed)
{
    HIsaAdapter* dev0 = adapter(0);
    PLunID uncached = lunIdOn(kSpa, 1);
    ASSERT_NE(lun(dev0, kSpa, 1), nullptr);
    HLun* held = dev0->getLuns()->find(uncached);
    ASSERT_NE(held, nullptr);
    EXPECT_TRUE(held->getLunInfo()->isLunInfoValid());
    EXPECT_EQ(held->getLunInfo()->eCacheState(), KLunInfo::CACHE_STATE_NOT_CACHED);

    ASSERT_EQ(dev0->enableCache(uncached, 1, 1, 0, 0, 0, 0, 0, 0), MHBA_S_OK);
    EXPECT_FALSE(held->getLunInfo()->isLunInfoValid());
    ASSERT_EQ(held->refreshLunInfo(), MHBA_S_OK);
    EXPECT_TRUE(held->getLunInfo()->isLunInfoValid());
    EXPECT_EQ(held->getLunInfo()->eCacheState(), KLunInfo::CACHE_STATE_CACHED_LOCAL);

    // A refused change leaves the records as they are.
    EXPECT_EQ(dev0->enableCache(uncached, 1, 1, 0, 0, 0, 0, 0, 0), MHBA_E_LUN_ALREADY_CACHED);
    EXPECT_TRUE(held->getLunInfo()->isLunInfoValid());
}

TEST_F(SimApiTest, DisableRefusesForeignCacheAndRetriesByName)
{
    HIsaAdapter* dev0 = adapter(0);
    EXPECT_EQ(dev0->enableCache(lunIdOn(kArrayB, 1), 0, 0, 0, 0, 0, 0, 0, 0), MHBA_E_CACHED_BY_OTHER_ADAPTER);
    KLunInfo* info = lun(adapter(1), kArrayB, 1);
    ASSERT_NE(info, nullptr);
    KWwulnLunID name;
    name.initWwulnLunID(info->eWwulnCodeSet, static_cast<int>(info->ui32WwulnLength), info->ui8Wwuln);
    EXPECT_EQ(dev0->disableCache(name), MHBA_E_CACHED_BY_OTHER_ADAPTER);
    EXPECT_EQ(dev0->disableCacheByWwuln(name), MHBA_S_OK); // dev0 is the cluster's primary
    EXPECT_EQ(lun(adapter(1), kArrayB, 1)->eCacheState(), KLunInfo::CACHE_STATE_NOT_CACHED);
}

TEST_F(SimApiTest, NameIndexFindsBinaryTextAndSerialNames)
{
    HIsaAdapter* dev0 = adapter(0);
    MHbaReturnBuffer first;
    dev0->getTargetsAndInitiators(&first);
    HLunNameIndex* index = dev0->getLunNameIndex();
    PTargetID spa;
    spa.initFcTargetIDFromString(kSpa);
    EXPECT_FALSE(index->lookup(PBase::LUN_NAME_WWULN, spa));
    ASSERT_EQ(index->scanAll(PBase::LUN_NAME_WWULN), MHBA_S_OK);
    EXPECT_TRUE(index->lookup(PBase::LUN_NAME_WWULN, spa));

    std::vector<unsigned char> bytes;
    hexToBytes("60060160A1B2C3D4E5F6000000000001", bytes);
    PLunsForOneNameID binary;
    binary.initLunsForOneNameIDFromBinaryData(PBase::LUN_NAME_WWULN, bytes.data(), static_cast<int>(bytes.size()));
    HLunIdList* paths = index->findLuns(binary);
    ASSERT_NE(paths, nullptr);
    EXPECT_EQ(paths->count(), 2u); // the multi-path LUN
    PLunsForOneNameID text;
    text.initLunsForOneNameID(PBase::LUN_NAME_WWULN, "vault.example:lun-archive-07");
    ASSERT_NE(index->findLuns(text), nullptr);

    ASSERT_EQ(index->scanAll(PBase::LUN_NAME_SERIAL_NUMBER), MHBA_S_OK);
    PLunsForOneNameID serial;
    serial.initLunsForOneNameID(PBase::LUN_NAME_SERIAL_NUMBER, "SV0B2A002");
    ASSERT_NE(index->findLuns(serial), nullptr);
    EXPECT_EQ(index->scanAll(PBase::LUN_NAME_NAA_DESIGNATOR), MHBA_E_NOT_SUPPORTED);
}

TEST_F(SimApiTest, InjectedFaultsAnswerOnceOrPartly)
{
    HIsaAdapter* dev0 = adapter(0);
    ASSERT_EQ(Backend().change([](San& san, long long) {
        san.faults.push_back({{kDev0}, "enableCache", 1000, true, 0});
        san.faults.push_back({{kDev0}, "getTargetsAndInitiators", 2, true, 1206});
        return 0;
    }),
              0);
    PLunID uncached = lunIdOn(kSpa, 1);
    EXPECT_EQ(dev0->enableCache(uncached, 1, 1, 0, 0, 0, 0, 0, 0), MHBA_E_FAILURE);
    EXPECT_EQ(dev0->enableCache(uncached, 1, 1, 0, 0, 0, 0, 0, 0), MHBA_S_OK);
    MHbaReturnBuffer first;
    EXPECT_EQ(dev0->getTargetsAndInitiators(&first), MHBA_S_PARTIAL_SUCCESS);
    EXPECT_EQ(first.returnCode, MHBA_E_OBJECT_NOT_FOUND);
    EXPECT_FALSE(dev0->getTargets()->items.empty());
    MHbaReturnBuffer again;
    EXPECT_EQ(dev0->getTargetsAndInitiators(&again), MHBA_S_OK);
}

TEST_F(SimApiTest, BrokenStateFailsWithoutCrashingAndStaysAsItWas)
{
    std::ofstream(state) << "{\"format\": \"hbasim-scenario\", \"version\": 99}";
    EXPECT_TRUE(api->getAdapters()->items.empty());
    KIsaAdapterPath path = devicePath(0);
    EXPECT_EQ(api->checkAdapterPath(path), 1011);
    std::ifstream in(state);
    std::string text((std::istreambuf_iterator<char>(in)), {});
    EXPECT_EQ(text, "{\"format\": \"hbasim-scenario\", \"version\": 99}");
}

TEST_F(SimApiTest, RestartAndFlushEndUnderAPinnedClock)
{
    HIsaAdapter* dev0 = adapter(0);
    ASSERT_EQ(dev0->restart(1), MHBA_S_OK);
    KIsaAdapterInfo info;
    int polls = 1;
    while (dev0->getAdapterInfo(info) != MHBA_S_OK && polls < 20)
        ++polls;
    EXPECT_EQ(polls, 2);
    EXPECT_STREQ(info.symbolicName, "zek-prod-a");

    PLunID cached = lunIdOn(kSpa, 0);
    ASSERT_EQ(dev0->startCacheFlush(cached), MHBA_S_OK);
    uint32_t running = 1;
    polls = 0;
    while (running && polls < 20) {
        ASSERT_EQ(dev0->getCacheFlushProgress(cached, &running), MHBA_S_OK);
        ++polls;
    }
    EXPECT_EQ(polls, 2);
}

TEST_F(SimApiTest, CountersMoveWithTheClockAndClear)
{
    HIsaAdapter* dev0 = adapter(0);
    KHostPcieInfo early, late, cleared;
    ASSERT_EQ(dev0->getStatistics(early), MHBA_S_OK);
    setenv("HBASIM_TIME", "1795000600", 1);
    ASSERT_EQ(dev0->getStatistics(late), MHBA_S_OK);
    EXPECT_GT(late.readIoCount, early.readIoCount);
    ASSERT_EQ(dev0->clearAdapterStatistics(), MHBA_S_OK);
    ASSERT_EQ(dev0->getStatistics(cleared), MHBA_S_OK);
    EXPECT_EQ(cleared.readIoCount, 0u);
}

TEST_F(SimApiTest, LogViewWalksAndSurvivesAFile)
{
    HIsaAdapter* dev0 = adapter(0);
    ASSERT_EQ(dev0->loadLog(0), MHBA_S_OK);
    HLogView* view = dev0->getLogView();
    ASSERT_NE(view, nullptr);
    ASSERT_EQ(view->getCount(), 36u);
    KLogEntry last, previous, back;
    ASSERT_TRUE(view->getLastEntry(last));
    ASSERT_TRUE(view->getPreviousEntry(last, previous));
    ASSERT_TRUE(view->getNextEntry(previous, back));
    EXPECT_TRUE(back == last);
    KLogEntry worst;
    ASSERT_TRUE(view->findBySeverity(KLogEntry::RAW_SEVERITY_FATAL, 1, last, worst));
    EXPECT_LE(worst.severity, KLogEntry::RAW_SEVERITY_FATAL);

    std::string file = dir + "/saved.log";
    ASSERT_TRUE(dev0->saveLogFile(file));
    HLogView* fromFile = dev0->getLogViewFromFile(file);
    ASSERT_NE(fromFile, nullptr);
    EXPECT_EQ(fromFile->getCount(), 36u);
    EXPECT_EQ(dev0->getLogViewFromFile(dir + "/missing.log"), nullptr);
    EXPECT_EQ(fromFile->getCount(), 36u) << "a file that cannot be read leaves the view before it alone";
}

TEST_F(SimApiTest, OnlyTheNewestFileViewKeepsItsFileOpen)
{
    HIsaAdapter* dev0 = adapter(0);
    std::string file = dir + "/saved.log";
    ASSERT_TRUE(dev0->saveLogFile(file));
    HLogView* first = dev0->getLogViewFromFile(file);
    ASSERT_NE(first, nullptr);
    HLogView* second = dev0->getLogViewFromFile(file);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(first->getCount(), 0u) << "still a valid object, emptied";
    EXPECT_EQ(second->getCount(), 36u);
}

TEST_F(SimApiTest, DemonstrationRunsAreNeverWrittenBack)
{
    std::string demo = dir + "/demo.json";
    std::string error;
    adapter(0);
    ASSERT_EQ(api->saveDemonstrationFile(demo, error), MHBA_S_OK) << error;
    struct stat before;
    ASSERT_EQ(stat(state.c_str(), &before), 0);

    SimApi shown;
    ASSERT_EQ(shown.loadDemonstrationFile(demo, error), MHBA_S_OK) << error;
    KIsaAdapterPath path = devicePath(0);
    ASSERT_EQ(shown.checkAdapterPath(path), MHBA_S_OK);
    HIsaAdapter* dev0 = shown.getAdapters()->find(path);
    MHbaReturnBuffer first;
    ASSERT_EQ(dev0->getTargetsAndInitiators(&first), MHBA_S_OK);
    PTargetID spa;
    spa.initFcTargetIDFromString(kSpa);
    ASSERT_EQ(dev0->getLunsForSpecificTarget(dev0->getTargets()->find(spa), &first), MHBA_S_OK);
    EXPECT_EQ(dev0->getLuns()->find(lunIdOn(kSpa, 1))->getLunInfo()->ui32DefaultMaxRead, 0u)
        << "a saved image has no firmware defaults";
    ASSERT_EQ(dev0->enableCache(lunIdOn(kSpa, 1), 1, 1, 0, 0, 0, 0, 0, 0), MHBA_S_OK);
    EXPECT_EQ(dev0->enableCache(lunIdOn(kSpa, 1), 1, 1, 0, 0, 0, 0, 0, 0), MHBA_E_LUN_ALREADY_CACHED);
    struct stat after;
    ASSERT_EQ(stat(state.c_str(), &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino);
    EXPECT_EQ(before.st_mtim.tv_nsec, after.st_mtim.tv_nsec);

    EXPECT_EQ(shown.loadDemonstrationFile(dir + "/none.json", error), 1010);
    EXPECT_NE(error.find("none.json"), std::string::npos);
}

TEST_F(SimApiTest, GroupLunsTellWhoCachesEachLun)
{
    std::vector<KIsaAdapterPath> scope = {devicePath(0), devicePath(1)};
    for (KIsaAdapterPath& p : scope)
        ASSERT_EQ(api->checkAdapterPath(p), MHBA_S_OK);
    std::string error;
    ASSERT_EQ(api->scanAdapterGroupLuns(scope, error), MHBA_S_OK);
    const auto& groups = api->getAdapterGroupLuns()->items;
    ASSERT_FALSE(groups.empty());
    bool sawMirrored = false;
    for (const KAdapterGroupExtendedLunInfo& g : groups)
        if (g.bCached && g.ui64CachingAdapter == kDev0) {
            sawMirrored = true;
            EXPECT_EQ(g.ui64PreferredAdapter, kDev0);
        }
    EXPECT_TRUE(sawMirrored);
}

TEST_F(SimApiTest, CodesHaveTexts)
{
    EXPECT_EQ(api->returnCodeToText(1015), "The FC port cannot be disabled because an FCIP link is configured on it");
    EXPECT_EQ(api->returnCodeToText(77777), "Unknown return code 77777");
    EXPECT_FALSE(api->isFailure(2));
    EXPECT_TRUE(api->isFailure(1020));
}

TEST_F(SimApiTest, DrivesJoinAndLeaveThePool)
{
    HIsaAdapter* dev0 = adapter(0);
    MHbaReturnBuffer first;
    ASSERT_EQ(dev0->getDrivesWithErrorDetails(&first), MHBA_S_OK);
    ASSERT_EQ(dev0->getDrives()->items.size(), 4u);
    ASSERT_EQ(dev0->getDrivePools()->items.size(), 2u);
    EXPECT_EQ(dev0->getDrivePools()->items[0]->getDrivePoolId()->displayText(), "Configured");
    EXPECT_EQ(dev0->getDrivePools()->items[0]->getDriveIds()->count(), 3u);
    EXPECT_EQ(dev0->getDrivePools()->items[1]->getDrivePoolId()->displayText(), "Unconfigured");
    EXPECT_EQ(dev0->getDrivePools()->items[1]->getDriveIds()->count(), 1u);

    // The free drive, named as a user types a world-wide name.
    KDriveID free = *dev0->getDrives()->items[3]->getDriveId();
    EXPECT_EQ(dev0->getDrives()->items[3]->getDriveInfo()->driveStatus, KDriveInfo::DRIVE_STATUS_UNCONFIGURED);
    KDriveID typed;
    unsigned char wwn[8];
    unsigned count = 0;
    ASSERT_TRUE(PBase::textToWwname(count, wwn, sizeof wwn, free.displayText()));
    typed.initDriveID(PBase::WWULN_CODE_SET_BINARY, static_cast<int>(count), wwn);
    EXPECT_TRUE(dev0->getDrives()->contains(typed));
    ASSERT_EQ(dev0->addDriveToPool(typed), MHBA_S_OK);
    EXPECT_EQ(dev0->addDriveToPool(typed), 1051) << "already in the pool";
    EXPECT_EQ(dev0->getSmartDriveInfo(typed), MHBA_S_OK);
    EXPECT_EQ(dev0->getDrives()->find(typed)->getDriveInfo()->smartInfo.attributeCount, 7u);

    // The same drive by its SSD identifier, always text, as the drive is shown.
    std::string text = free.displayText();
    KWwulnLunID ssd;
    ssd.initWwulnLunID(PBase::WWULN_CODE_SET_TEXT, static_cast<int>(text.size()),
                       reinterpret_cast<unsigned char*>(text.data()));
    EXPECT_EQ(dev0->removeDriveFromPoolBySsdId(ssd), MHBA_S_OK);
}

TEST_F(SimApiTest, CreatedLunsHaveAWwulnOfTheirAdapter)
{
    HIsaAdapter* dev0 = adapter(0);
    KWwulnLunID made;
    ASSERT_EQ(dev0->createLun(10ull << 30, "fresh", 1, kDev0, made), MHBA_S_OK);
    PBase::WWULN_CODE_SET_TYPE codeSet;
    unsigned short length = 0;
    unsigned char bytes[KWwulnLunID::WWULN_COPY_SIZE];
    ASSERT_TRUE(made.copyWwulnInfo(codeSet, length, bytes, sizeof bytes));
    EXPECT_EQ(codeSet, PBase::WWULN_CODE_SET_BINARY);
    ASSERT_EQ(length, 16);
    EXPECT_EQ(bytesToHex(bytes, length), "2000001B32A10C000000000000000002");
    KWwulnLunID again;
    EXPECT_EQ(adapter(1)->createLun(10ull << 30, "", 1, kDev0, again), MHBA_E_NOT_SUPPORTED);
}

TEST_F(SimApiTest, WhatTheAdapterSeesIsThereWhenFirstAskedFor)
{
    HIsaAdapter* dev1 = adapter(1);
    PTargetID b;
    b.initFcTargetIDFromString(kArrayB);
    EXPECT_NE(dev1->getTargets()->find(b), nullptr);
    EXPECT_FALSE(dev1->getDevices()->items.empty());
    EXPECT_NE(dev1->getLuns()->find(lunIdOn(kArrayB, 2)), nullptr);
    dev1->clearTargets();
    EXPECT_TRUE(dev1->getTargets()->items.empty()) << "after a clear only a gathering fills it again";
}

TEST_F(SimApiTest, DrivesAreLunsOfTheInternalTargetThatNoLunOperationTouches)
{
    HIsaAdapter* dev1 = adapter(1);
    ASSERT_NE(dev1, nullptr);
    const std::string internal = "2100-001B-32A1-0D00"; // made for its drives: it holds no data LUN
    KLunInfo* drive = lun(dev1, internal, 257);
    ASSERT_NE(drive, nullptr);
    EXPECT_TRUE(drive->isLunState(28));
    EXPECT_EQ(bytesToHex(drive->ui8Wwuln, drive->ui32WwulnLength), "5000C532A10D0001");
    EXPECT_EQ(lun(dev1, internal, 261), nullptr) << "four drives, four LUNs";

    PLunID path = lunIdOn(internal, 257);
    HLun* held = dev1->getLuns()->find(path);
    ASSERT_NE(held, nullptr);
    held->getLunInfo()->bValid = false;
    EXPECT_EQ(held->refreshLunInfo(), MHBA_S_OK);
    EXPECT_TRUE(held->getLunInfo()->isLunInfoValid());

    EXPECT_EQ(dev1->enableCache(path, 1, 1, 0, 0, 0, 0, 0, 0), MHBA_E_LUN_NOT_APPLICABLE);
    EXPECT_EQ(dev1->lockCache(path, 0, 8), MHBA_E_LUN_NOT_APPLICABLE);
    std::string text;
    EXPECT_EQ(dev1->removeLun(path, text), MHBA_E_LUN_NOT_APPLICABLE);
    KLunReservationInfo reservation;
    EXPECT_EQ(dev1->getReservations(path, reservation), MHBA_E_LUN_NOT_APPLICABLE);
    KWwulnLunID wwuln;
    unsigned char bytes[] = {0x50, 0x00, 0xC5, 0x32, 0xA1, 0x0D, 0x00, 0x01};
    wwuln.initWwulnLunID(PBase::WWULN_CODE_SET_BINARY, 8, bytes);
    EXPECT_EQ(dev1->disableCache(wwuln), MHBA_E_LUN_NOT_APPLICABLE);
    EXPECT_EQ(adapter(0)->disableCache(wwuln), MHBA_E_OBJECT_NOT_FOUND) << "not a drive of this adapter";
}

TEST_F(SimApiTest, DrivesAreFoundByNameLikeLuns)
{
    HIsaAdapter* dev0 = adapter(0);
    ASSERT_NE(dev0, nullptr);
    HLunNameIndex* index = dev0->getLunNameIndex();
    ASSERT_EQ(index->scanAll(PBase::LUN_NAME_WWULN), MHBA_S_OK);
    ASSERT_EQ(index->scanAll(PBase::LUN_NAME_SERIAL_NUMBER), MHBA_S_OK);
    unsigned char bytes[] = {0x50, 0x00, 0xC5, 0x32, 0xA1, 0x0C, 0x00, 0x03};
    PLunsForOneNameID byName, bySerial;
    ASSERT_TRUE(byName.initLunsForOneNameIDFromBinaryData(PBase::LUN_NAME_WWULN, bytes, sizeof bytes));
    ASSERT_TRUE(bySerial.initLunsForOneNameID(PBase::LUN_NAME_SERIAL_NUMBER, "S01B32A10C003"));
    HLunIdList* found = index->findLuns(byName);
    ASSERT_NE(found, nullptr);
    ASSERT_EQ(found->count(), 1u);
    EXPECT_EQ(found->at(0)->lunNumber(), 259);
    found = index->findLuns(bySerial);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->at(0)->lunNumber(), 259);
}

TEST_F(SimApiTest, RestoringTheConfigurationOfAnOwnerThatNoDriveNamesFindsNothing)
{
    HIsaAdapter* dev0 = adapter(0);
    ASSERT_NE(dev0, nullptr);
    EXPECT_EQ(dev0->restoreDriveConfig(0x2000001B32A1DEADull), MHBA_E_OBJECT_NOT_FOUND);
    EXPECT_EQ(dev0->restoreDriveConfig(kDev0), MHBA_E_OBJECT_NOT_FOUND);
    MHbaReturnBuffer first;
    ASSERT_EQ(dev0->getDrivesWithErrorDetails(&first), MHBA_S_OK);
    EXPECT_EQ(dev0->getDrives()->items[0]->getDriveInfo()->ownerId, kDev0);
}

// Text the state file could not hold is refused like any other bad value,
// and nothing is thrown back to the caller.
TEST_F(SimApiTest, TextThatIsNotUtf8IsAnInvalidArgument)
{
    HIsaAdapter* dev0 = adapter(0);
    ASSERT_NE(dev0, nullptr);
    std::string const hostile[] = {"\xff"
                                   "ab",
                                   "ok\xc3", "\xed\xa0\x80", "a\xfe"};
    for (std::string const& text : hostile) {
        SCOPED_TRACE(text);
        EXPECT_EQ(dev0->setSymbolicName(text.data(), text.size()), MHBA_E_INVALID_ARG);
        KWwulnLunID made;
        EXPECT_EQ(dev0->createLun(10ull << 30, text, 1, kDev0, made), MHBA_E_INVALID_ARG);
    }
    std::string const fine = "caf\xc3\xa9";
    EXPECT_EQ(dev0->setSymbolicName(fine.data(), fine.size()), MHBA_S_OK);
    KWwulnLunID made;
    EXPECT_EQ(dev0->createLun(10ull << 30, fine, 1, kDev0, made), MHBA_S_OK);
}
