#include "model/Rules.h"

#include "model/AdapterStorage.h"
#include "model/Codes.h"
#include "model/DefaultSan.h"

#include "support/DefaultSanTest.h"

#include <gtest/gtest.h>

using namespace sim;

namespace {

constexpr u64 kDev0 = 0x2000001B32A10C00ull;
constexpr u64 kDev1 = 0x2000001B32A10D00ull;
constexpr u64 kSanOnly = 0x2000001B32A10E00ull;
constexpr u64 kOffline = 0x2000001B32A10F00ull;
constexpr long long kNow = 1700000000;

class RulesTest : public DefaultSanTest {
protected:
    PathRef mirrored{"array-a-spa", 0, 1}; // cached write-back on device 0
    PathRef uncached{"array-a-spa", 1, 1};
    PathRef peerCached{"array-b", 1, 1}; // cached on device 1
    PathRef offline{"array-b", 3, 1};
    PathRef controller{"array-a-spa", 31, 1};
};

rules::CacheRequest mode(int m)
{
    rules::CacheRequest r;
    r.mode = m;
    return r;
}

} // namespace

TEST_F(RulesTest, CacheStateDependsOnTheViewingAdapter)
{
    const Lun* lun = findLun(san, mirrored);
    ASSERT_NE(lun, nullptr);
    EXPECT_EQ(cacheStateFor(*lun, kDev0), 2);
    EXPECT_EQ(cacheStateFor(*lun, kDev1), 3);
    EXPECT_EQ(cacheStateFor(*findLun(san, uncached), kDev0), 1);
    EXPECT_EQ(mirrorStateFor(*lun, kDev0), 2);
    EXPECT_EQ(mirrorStateFor(*lun, kDev1), 3);
    EXPECT_EQ(mirrorStateFor(*lun, kSanOnly), 1);
}

TEST_F(RulesTest, EnableCacheOnUncachedLunSucceedsAndSetsDefaults)
{
    EXPECT_EQ(rules::enableCache(san, kDev0, uncached, mode(1), kNow), code::Ok);
    const Lun* lun = findLun(san, uncached);
    EXPECT_TRUE(lun->cached);
    EXPECT_EQ(lun->cache.adapter.value, kDev0);
    EXPECT_EQ(lun->cache.maxRead, rules::kDefaultMaxRead);
    EXPECT_EQ(lun->cache.minWrite, rules::kDefaultMinWrite);
}

TEST_F(RulesTest, EnableTwiceGives1020AndFromPeerGives185)
{
    EXPECT_EQ(rules::enableCache(san, kDev0, mirrored, mode(2), kNow), code::AlreadyCached);
    EXPECT_EQ(rules::enableCache(san, kDev0, peerCached, mode(1), kNow), code::CachedElsewhere);
}

TEST_F(RulesTest, ModifyOfUncachedGives1021)
{
    EXPECT_EQ(rules::modifyCache(san, kDev0, uncached, mode(1), false, kNow), code::NotCached);
}

TEST_F(RulesTest, MissingCapabilityGives1003)
{
    findAdapter(san, kDev1)->capabilities = {"WRITE_THROUGH_CACHE"};
    EXPECT_EQ(rules::enableCache(san, kDev1, uncached, mode(2), kNow), code::NotSupported);
    EXPECT_EQ(rules::enableCache(san, kDev1, uncached, mode(1), kNow), code::Ok);
}

TEST_F(RulesTest, DisableThroughModeZero)
{
    EXPECT_EQ(rules::enableCache(san, kDev1, mirrored, mode(0), kNow), code::CachedElsewhere);
    EXPECT_EQ(rules::enableCache(san, kDev0, mirrored, mode(0), kNow), code::Ok);
    EXPECT_FALSE(findLun(san, mirrored)->cached);
    EXPECT_EQ(rules::enableCache(san, kDev0, mirrored, mode(0), kNow), code::NotCached);
}

TEST_F(RulesTest, DisableOfGoneLunGives116ButByWwulnWorks)
{
    Lun* lun = findLun(san, offline);
    lun->cached = true;
    lun->cache.adapter.value = kDev0;
    EXPECT_EQ(rules::enableCache(san, kDev0, offline, mode(0), kNow), code::LunGone);
    EXPECT_EQ(rules::disableCacheByWwuln(san, kDev0, lun->wwuln, false, kNow), code::Ok);
    EXPECT_FALSE(findLun(san, offline)->cached);
}

TEST_F(RulesTest, ClusterPrimaryMayDisableItsSecondarysCache)
{
    const std::string wwuln = findLun(san, peerCached)->wwuln;
    EXPECT_EQ(rules::disableCacheByWwuln(san, kDev0, wwuln, false, kNow), code::CachedElsewhere);
    EXPECT_EQ(rules::disableCacheByWwuln(san, kDev1, wwuln, true, kNow), code::NotClusterPrimary);
    EXPECT_EQ(rules::disableCacheByWwuln(san, kDev0, wwuln, true, kNow), code::Ok);
}

TEST_F(RulesTest, OnlyDirectAccessSanLunsAreCached)
{
    EXPECT_EQ(rules::enableCache(san, kDev0, controller, mode(1), kNow), code::NotSanDataLun);
}

TEST_F(RulesTest, OfflineAdapterDoesNotAnswer)
{
    EXPECT_EQ(rules::enableCache(san, kOffline, uncached, mode(1), kNow), code::AdapterNotResponding);
}

TEST_F(RulesTest, LockedRangesAreLimitedToSixteen)
{
    Lun* lun = findLun(san, mirrored);
    lun->cache.lockedRanges.clear();
    for (u64 i = 0; i < 16; ++i)
        ASSERT_EQ(rules::lockRange(san, kDev0, mirrored, i * 100, 10, kNow), code::Ok);
    EXPECT_EQ(rules::lockRange(san, kDev0, mirrored, 5000, 10, kNow), code::TooManyLockedRanges);
    EXPECT_EQ(rules::unlockRange(san, kDev0, mirrored, 100, 10, kNow), code::Ok);
    EXPECT_EQ(rules::unlockRange(san, kDev0, mirrored, 100, 10, kNow), code::ObjectNotFound);
    EXPECT_EQ(rules::lockRange(san, kDev0, mirrored, 5000, 0, kNow), code::InvalidArgument);
}

TEST_F(RulesTest, FlushEndsAfterBoundedPollsUnderAPinnedClock)
{
    ASSERT_EQ(rules::startFlush(san, kDev0, mirrored, kNow), code::Ok);
    bool inProgress = true;
    int polls = 0;
    while (inProgress && polls < 10) {
        ASSERT_EQ(rules::flushProgress(san, kDev0, mirrored, inProgress, kNow), code::Ok);
        ++polls;
    }
    EXPECT_FALSE(inProgress);
    EXPECT_EQ(polls, 2);
    EXPECT_EQ(findLun(san, mirrored)->cache.dirtyBytes, 0u);
}

TEST_F(RulesTest, RestartEndsAfterBoundedPolls)
{
    ASSERT_EQ(rules::restart(san, kDev0, kNow), code::Ok);
    EXPECT_EQ(rules::pollWhileRestarting(san, kDev0, kNow), code::AdapterNotResponding);
    EXPECT_EQ(rules::pollWhileRestarting(san, kDev0, kNow), code::Ok);
    ASSERT_EQ(rules::restart(san, kDev0, kNow), code::Ok);
    rules::settle(san, kNow + 12); // or the clock runs out the restart
    EXPECT_EQ(rules::pollWhileRestarting(san, kDev0, kNow + 12), code::Ok);
}

TEST_F(RulesTest, PoolSizeOutOfRangeGives156)
{
    EXPECT_EQ(rules::setPoolSize(san, kDev0, 100u * 1024 * 1024, kNow), code::PoolSizeOutOfRange);
    EXPECT_EQ(rules::setPoolSize(san, kDev0, 4095, kNow), code::PoolSizeOutOfRange);
    EXPECT_EQ(rules::setPoolSize(san, kDev0, 100 * 1024, kNow), code::Ok);
}

TEST_F(RulesTest, CreateLunNeedsCapabilityAndStorage)
{
    std::string wwuln;
    EXPECT_EQ(rules::createLun(san, kDev1, 1ull << 30, "x", 1, 0, wwuln, kNow), code::NotSupported);
    EXPECT_EQ(rules::createLun(san, kDev0, 1ull << 50, "x", 1, 0, wwuln, kNow), code::NotEnoughStorage);
    ASSERT_EQ(rules::createLun(san, kDev0, 1ull << 30, "new", 1, 0, wwuln, kNow), code::Ok);
    Lun* lun = findLunByWwuln(san, wwuln);
    ASSERT_NE(lun, nullptr);
    EXPECT_TRUE(lun->local);
    std::string text;
    EXPECT_EQ(rules::removeLun(san, kDev0, PathRef{lun->paths[0].target, lun->paths[0].lun, 1}, text, kNow), code::Ok);
    EXPECT_EQ(findLunByWwuln(san, wwuln), nullptr);
}

TEST_F(RulesTest, OnlineSanLunCannotBeRemoved)
{
    std::string text;
    EXPECT_EQ(rules::removeLun(san, kDev0, uncached, text, kNow), code::InvalidArgument);
    EXPECT_FALSE(text.empty());
}

TEST_F(RulesTest, PortWithFcipLinkCannotBeDisabled)
{
    EXPECT_EQ(rules::setPortEnabled(san, kDev0, 1, false, kNow), code::PortHasFcipLink);
    EXPECT_EQ(rules::setPortEnabled(san, kDev0, 0, false, kNow), code::Ok);
    EXPECT_EQ(rules::setPortEnabled(san, kDev0, 7, false, kNow), code::InvalidArgument);
}

TEST_F(RulesTest, DisabledPortHidesTargetsFoundOnlyThere)
{
    const Adapter* a = findAdapter(san, kDev1);
    const Target* spb = findTarget(san, "array-a-spb");
    EXPECT_TRUE(adapterSeesTarget(san, *a, *spb));
    ASSERT_EQ(rules::setPortEnabled(san, kDev1, 1, false, kNow), code::Ok);
    EXPECT_FALSE(adapterSeesTarget(san, *a, *spb));
}

TEST_F(RulesTest, LinkRateMustFitTheSfpAndARefusalChangesNothing)
{
    Port& port = findAdapter(san, kDev0)->ports[0];
    ASSERT_EQ(port.sfpState, 3);                                                               // 8Gb
    EXPECT_EQ(rules::setPortSettings(san, kDev0, 0, 5, 0, 32, kNow), code::LinkRateBeyondSfp); // 16gb
    EXPECT_EQ(rules::setPortSettings(san, kDev0, 0, 4, 0, 32, kNow), code::LinkRateBeyondSfp); // 10gb
    EXPECT_EQ(port.programmedLinkRate, 0);
    EXPECT_EQ(port.connectionOption, 2);
    EXPECT_EQ(port.executionThrottle, 64u);
    EXPECT_EQ(rules::setPortSettings(san, kDev0, 0, 3, 0, 32, kNow), code::Ok); // 8gb
    EXPECT_EQ(port.programmedLinkRate, 3);
    EXPECT_EQ(port.linkRate, 3);
    EXPECT_EQ(port.connectionMode, 0);
    EXPECT_EQ(port.executionThrottle, 32u);

    port.sfpState = 6; // 10Gb
    EXPECT_EQ(rules::setPortSettings(san, kDev0, 0, 4, 2, 32, kNow), code::Ok);
    EXPECT_EQ(rules::setPortSettings(san, kDev0, 0, 5, 2, 32, kNow), code::LinkRateBeyondSfp);
    port.sfpState = 1; // no SFP: only auto
    EXPECT_EQ(rules::setPortSettings(san, kDev0, 0, 1, 2, 32, kNow), code::LinkRateBeyondSfp);
    EXPECT_EQ(rules::setPortSettings(san, kDev0, 0, 0, 2, 32, kNow), code::Ok);
    port.sfpState = 0; // not reported: no limit known
    EXPECT_EQ(rules::setPortSettings(san, kDev0, 0, 5, 2, 32, kNow), code::Ok);
}

TEST_F(RulesTest, PortSettingsOutsideTheirTablesAreInvalid)
{
    EXPECT_EQ(rules::setPortSettings(san, kDev0, 2, 0, 2, 32, kNow), code::InvalidArgument);
    EXPECT_EQ(rules::setPortSettings(san, kDev0, 0, 6, 2, 32, kNow), code::InvalidArgument);
    EXPECT_EQ(rules::setPortSettings(san, kDev0, 0, -1, 2, 32, kNow), code::InvalidArgument);
    EXPECT_EQ(rules::setPortSettings(san, kDev0, 0, 0, 3, 32, kNow), code::InvalidArgument);
    EXPECT_EQ(rules::setPortSettings(san, kDev0, 0, 0, 2, 0, kNow), code::InvalidArgument);
    EXPECT_EQ(rules::setPortSettings(san, kDev0, 0, 0, 2, 65536, kNow), code::InvalidArgument);
    EXPECT_EQ(rules::setPortSettings(san, kOffline, 0, 0, 2, 32, kNow), code::AdapterNotResponding);
}

TEST_F(RulesTest, ClusterMembershipRules)
{
    EXPECT_EQ(rules::createCluster(san, kSanOnly, kSanOnly, kDev0, "c2", 1, kNow), code::AlreadyClusterMember);
    EXPECT_EQ(rules::addClusterMember(san, kDev1, kSanOnly, "prodcluster", kNow), code::NotClusterPrimary);
    EXPECT_EQ(rules::addClusterMember(san, kDev0, kSanOnly, "nosuch", kNow), code::ObjectNotFound);
    EXPECT_EQ(rules::addClusterMember(san, kDev0, kSanOnly, "prodcluster", kNow), code::Ok);
    EXPECT_EQ(rules::removeClusterMember(san, kDev0, kDev1, "prodcluster", kNow), code::InvalidArgument);
    EXPECT_EQ(rules::removeClusterMember(san, kDev0, kSanOnly, "prodcluster", kNow), code::Ok);
    EXPECT_EQ(rules::destroyCluster(san, kDev0, "prodcluster", kNow), code::Ok);
    EXPECT_TRUE(san.clusters.empty());
}

TEST_F(RulesTest, OnceFaultIsConsumedAlwaysFaultStays)
{
    san.faults.push_back({{kDev0}, "enableCache", 1000, true, 0});
    san.faults.push_back({{kDev1}, "*", 1206, false, 0});
    int inner = 0;
    EXPECT_EQ(rules::takeFault(san, kDev0, "enableCache", inner), 1000);
    EXPECT_EQ(rules::takeFault(san, kDev0, "enableCache", inner), 0);
    EXPECT_EQ(rules::takeFault(san, kDev1, "getLuns", inner), 1206);
    EXPECT_EQ(rules::takeFault(san, kDev1, "getLuns", inner), 1206);
}

TEST_F(RulesTest, PasswordMustMatch)
{
    EXPECT_EQ(rules::setPassword(san, kDev0, "wrong", "new", kNow), code::PasswordWrong);
    EXPECT_EQ(rules::setPassword(san, kDev0, "zek", "new", kNow), code::Ok);
    EXPECT_EQ(findAdapter(san, kDev0)->password, "new");
}

TEST_F(RulesTest, TextFilesStayReadable)
{
    const std::string text = "version=4.3\ncaf\xc3\xa9\n";
    ASSERT_EQ(rules::storeFile(san, kDev0, "notes.txt", text, false, kNow), code::Ok);
    const Adapter& a = *findAdapter(san, kDev0);
    EXPECT_EQ(a.files.at("notes.txt"), text);
    EXPECT_TRUE(a.binaryFiles.empty());
    std::string back;
    ASSERT_EQ(rules::fetchFile(san, kDev0, "notes.txt", false, back, kNow), code::Ok);
    EXPECT_EQ(back, text);
}

TEST_F(RulesTest, BinaryFilesKeepEveryByte)
{
    std::string image;
    for (int b = 255; b >= 0; --b)
        image += static_cast<char>(b);
    ASSERT_EQ(rules::storeFile(san, kDev0, "fw.bin", image, false, kNow), code::Ok);
    const Adapter& a = *findAdapter(san, kDev0);
    EXPECT_FALSE(a.files.count("fw.bin"));
    ASSERT_TRUE(a.binaryFiles.count("fw.bin"));
    EXPECT_EQ(a.binaryFiles.at("fw.bin").substr(0, 8), "//79/Pv6");
    std::string back;
    ASSERT_EQ(rules::fetchFile(san, kDev0, "fw.bin", false, back, kNow), code::Ok);
    EXPECT_EQ(back, image);
    // A lone byte that cannot start UTF-8 is enough to make a file binary.
    ASSERT_EQ(rules::storeFile(san, kDev0, "one", "abc\x80", false, kNow), code::Ok);
    ASSERT_EQ(rules::fetchFile(san, kDev0, "one", false, back, kNow), code::Ok);
    EXPECT_EQ(back, "abc\x80");
    EXPECT_EQ(a.binaryFiles.at("one"), "YWJjgA==");
}

TEST_F(RulesTest, ReplacingAFileMovesItBetweenTextAndBinary)
{
    const Adapter& a = *findAdapter(san, kDev0);
    ASSERT_EQ(rules::storeFile(san, kDev0, "f", "plain", false, kNow), code::Ok);
    ASSERT_EQ(rules::storeFile(san, kDev0, "f", "\xff\xfe", false, kNow), code::Ok);
    EXPECT_FALSE(a.files.count("f"));
    EXPECT_EQ(a.binaryFiles.at("f"), "//4=");
    std::string back;
    ASSERT_EQ(rules::fetchFile(san, kDev0, "f", false, back, kNow), code::Ok);
    EXPECT_EQ(back, "\xff\xfe");
    ASSERT_EQ(rules::storeFile(san, kDev0, "f", "plain again", false, kNow), code::Ok);
    EXPECT_FALSE(a.binaryFiles.count("f"));
    EXPECT_EQ(a.files.at("f"), "plain again");
    ASSERT_EQ(rules::fetchFile(san, kDev0, "f", false, back, kNow), code::Ok);
    EXPECT_EQ(back, "plain again");
}

TEST_F(RulesTest, ClearingEmptiesBothKindsOfFiles)
{
    const Adapter& a = *findAdapter(san, kDev0);
    ASSERT_EQ(rules::storeFile(san, kDev0, "t", "text", false, kNow), code::Ok);
    ASSERT_EQ(rules::storeFile(san, kDev0, "b", "\x01\xc0", false, kNow), code::Ok);
    ASSERT_EQ(rules::storeFile(san, kDev0, "new", "\xc0", true, kNow), code::Ok);
    EXPECT_TRUE(a.files.empty());
    EXPECT_EQ(a.binaryFiles.size(), 1u);
    std::string back;
    EXPECT_EQ(rules::fetchFile(san, kDev0, "t", false, back, kNow), code::ObjectNotFound);
    EXPECT_EQ(rules::fetchFile(san, kDev0, "b", false, back, kNow), code::ObjectNotFound);
    ASSERT_EQ(rules::storeFile(san, kDev0, "t", "text", true, kNow), code::Ok);
    EXPECT_TRUE(a.binaryFiles.empty());
    EXPECT_EQ(a.files.size(), 1u);
}

TEST_F(RulesTest, FetchingWithClearRemovesTheFileWhereverItIs)
{
    const Adapter& a = *findAdapter(san, kDev0);
    ASSERT_EQ(rules::storeFile(san, kDev0, "t", "text", false, kNow), code::Ok);
    ASSERT_EQ(rules::storeFile(san, kDev0, "b", "\xfa", false, kNow), code::Ok);
    std::string back;
    ASSERT_EQ(rules::fetchFile(san, kDev0, "b", true, back, kNow), code::Ok);
    EXPECT_EQ(back, "\xfa");
    EXPECT_TRUE(a.binaryFiles.empty());
    ASSERT_EQ(rules::fetchFile(san, kDev0, "t", true, back, kNow), code::Ok);
    EXPECT_EQ(back, "text");
    EXPECT_TRUE(a.files.empty());
    EXPECT_EQ(rules::fetchFile(san, kDev0, "b", false, back, kNow), code::ObjectNotFound);
}

TEST_F(RulesTest, FileNamesMustBeTextAndContentBounded)
{
    EXPECT_EQ(rules::storeFile(san, kDev0, "", "x", false, kNow), code::InvalidArgument);
    EXPECT_EQ(rules::storeFile(san, kDev0, "a/b", "x", false, kNow), code::InvalidArgument);
    EXPECT_EQ(rules::storeFile(san, kDev0, "\xff.bin", "x", false, kNow), code::InvalidArgument);
    EXPECT_EQ(rules::storeFile(san, kDev0, "big", std::string(4 * 1024 * 1024 + 1, '\xff'), false, kNow),
              code::InvalidArgument);
    const Adapter& a = *findAdapter(san, kDev0);
    EXPECT_TRUE(a.files.empty());
    EXPECT_TRUE(a.binaryFiles.empty());
    EXPECT_EQ(rules::storeFile(san, kDev0, "caf\xc3\xa9", "x", false, kNow), code::Ok);
}

TEST_F(RulesTest, DamagedBinaryFileIsAFailureNotACrash)
{
    findAdapter(san, kDev0)->binaryFiles["bad"] = "no base64!";
    std::string back;
    EXPECT_EQ(rules::fetchFile(san, kDev0, "bad", true, back, kNow), code::Failure);
    EXPECT_TRUE(findAdapter(san, kDev0)->binaryFiles.count("bad"));
}

TEST(CodesTest, TextsAndFailureRule)
{
    EXPECT_EQ(code::text(185), "The LUN is cached on another adapter");
    EXPECT_EQ(code::text(4242), "Unknown return code 4242");
    EXPECT_FALSE(code::isFailure(0));
    EXPECT_FALSE(code::isFailure(1));
    EXPECT_FALSE(code::isFailure(2));
    EXPECT_TRUE(code::isFailure(3));
    EXPECT_TRUE(code::isFailure(1000));
}

TEST_F(RulesTest, DrivesJoinThePoolOnlyWhenFreeUsableAndTheAdaptersOwn)
{
    Adapter& a = *findAdapter(san, kDev0);
    const std::string freeDrive = a.drives[3].id;
    ASSERT_FALSE(a.drives[3].configured);
    EXPECT_EQ(rules::addDriveToPool(san, kDev0, "no-such-drive", kNow), code::ObjectNotFound);
    EXPECT_EQ(rules::addDriveToPool(san, kDev0, a.drives[0].id, kNow), code::DriveAlreadyInPool);

    a.drives[3].owner.value = 0x2000001B32A1DEADull;
    EXPECT_EQ(rules::addDriveToPool(san, kDev0, freeDrive, kNow), code::DriveOfAnotherAdapter);
    a.drives[3].owner.value = 0;
    a.drives[3].online = false;
    EXPECT_EQ(rules::addDriveToPool(san, kDev0, freeDrive, kNow), code::DriveNotUsable);
    a.drives[3].online = true;
    a.drives[3].securityLocked = true;
    EXPECT_EQ(rules::addDriveToPool(san, kDev0, freeDrive, kNow), code::DriveNotUsable);
    a.drives[3].securityLocked = false;
    EXPECT_FALSE(a.drives[3].configured) << "refusals change nothing";

    EXPECT_EQ(rules::addDriveToPool(san, kDev0, freeDrive, kNow), code::Ok);
    EXPECT_TRUE(a.drives[3].configured);
    EXPECT_EQ(rules::addDriveToPool(san, kOffline, freeDrive, kNow), code::AdapterNotResponding);
}

TEST_F(RulesTest, ADriveLeavesThePoolOnlyWhileThePoolAndDataLunsStillFit)
{
    Adapter& a = *findAdapter(san, kDev0);
    EXPECT_EQ(rules::removeDriveFromPool(san, kDev0, a.drives[3].id, kNow), code::DriveNotInPool);
    // 800 GiB of pool and 50 GiB of data LUNs on three drives of 400 GB.
    EXPECT_EQ(rules::removeDriveFromPool(san, kDev0, a.drives[0].id, kNow), code::PoolSizeOutOfRange);
    EXPECT_TRUE(a.drives[0].configured);
    ASSERT_EQ(rules::setPoolSize(san, kDev0, 100 * 1024, kNow), code::Ok);
    EXPECT_EQ(rules::removeDriveFromPool(san, kDev0, a.drives[0].id, kNow), code::Ok);
    EXPECT_FALSE(a.drives[0].configured);
}

TEST_F(RulesTest, RestoringADriveConfigurationAdoptsTheOwnersDrives)
{
    Adapter& a = *findAdapter(san, kDev1);
    constexpr u64 kOld = 0x2000001B32A1DEADull;
    a.drives[0].owner.value = kOld;
    a.drives[3].owner.value = kOld;
    a.drives[2].owner.value = 0x1234;
    u64 configured = configuredBytes(a);
    size_t logSize = a.log.size();

    EXPECT_EQ(rules::restoreDriveConfig(san, kDev1, 0x9999, kNow), code::ObjectNotFound);
    EXPECT_EQ(rules::restoreDriveConfig(san, kDev1, kDev1, kNow), code::ObjectNotFound) << "its own are no one else's";
    EXPECT_EQ(rules::restoreDriveConfig(san, kDev1, kOld, kNow), code::Ok);
    EXPECT_TRUE(ownsDrive(a, a.drives[0]));
    EXPECT_EQ(a.drives[0].owner.value, 0u);
    EXPECT_EQ(a.drives[3].owner.value, 0u);
    EXPECT_EQ(a.drives[2].owner.value, 0x1234u) << "another owner's drive stays";
    EXPECT_EQ(configuredBytes(a), configured + a.drives[0].sizeBytes) << "the configured one joins the pool";
    ASSERT_EQ(a.log.size(), logSize + 1);
    EXPECT_EQ(a.log.back().message, "Drive configuration of 2 drives restored from owner 2000001B32A1DEAD");
    EXPECT_EQ(rules::restoreDriveConfig(san, kDev1, kOld, kNow), code::ObjectNotFound) << "nothing left to adopt";
    EXPECT_EQ(rules::restoreDriveConfig(san, kOffline, kOld, kNow), code::AdapterNotResponding);
}

TEST_F(RulesTest, ClearingLunStatisticsRestartsThemButNotForALunThatIsGone)
{
    const std::string name = "600A0B80002A1C3D0000000052B2A002";
    EXPECT_EQ(rules::clearLunStatistics(san, kDev0, name, kNow + 5), code::Ok);
    EXPECT_EQ(findLunByWwuln(san, name)->statsClearedAt, kNow + 5);
    EXPECT_EQ(rules::clearLunStatistics(san, kDev0, "600A0B80002A1C3D0000000052B2A003", kNow + 6), code::LunGone);
    EXPECT_EQ(rules::clearLunStatistics(san, kDev0, "00", kNow + 6), code::ObjectNotFound);
}
