#include "model/AdapterStorage.h"

#include "support/DefaultSanTest.h"

#include <gtest/gtest.h>

using namespace sim;

namespace {

constexpr u64 kOldAdapter = 0x2000001B32A1DEADull;

using AdapterStorageTest = DefaultSanTest;

} // namespace

TEST_F(AdapterStorageTest, ADriveWithoutOwnerIsTheHoldersAndSoIsOneNamingIt)
{
    Drive& d = dev0->drives[0];
    EXPECT_EQ(driveOwner(*dev0, d), kDev0);
    EXPECT_TRUE(ownsDrive(*dev0, d));
    d.owner.value = kDev0;
    EXPECT_TRUE(ownsDrive(*dev0, d));
    EXPECT_TRUE(inCachePool(*dev0, d));
}

TEST_F(AdapterStorageTest, ADriveOfAnotherAdapterIsNoPoolMemberAndAddsNoStorage)
{
    u64 before = configuredBytes(*dev0);
    Drive& d = dev0->drives[0];
    ASSERT_TRUE(d.configured);
    d.owner.value = kOldAdapter;
    EXPECT_EQ(driveOwner(*dev0, d), kOldAdapter);
    EXPECT_FALSE(inCachePool(*dev0, d));
    EXPECT_EQ(configuredBytes(*dev0), before - d.sizeBytes);
    EXPECT_EQ(totalDriveBytes(*dev0), 4 * d.sizeBytes) << "it is still there";
}

TEST_F(AdapterStorageTest, DrivesAreFoundByTheirExactName)
{
    EXPECT_EQ(findDrive(*dev0, dev0->drives[2].id), &dev0->drives[2]);
    EXPECT_EQ(findDrive(*dev0, "5000-C532-A10C-0002"), nullptr);
    EXPECT_EQ(findDrive(*dev0, ""), nullptr);
}

TEST_F(AdapterStorageTest, TheInternalTargetIsTheHeldOneOrTheOneAnAdapterWithDrivesWouldGet)
{
    Target made;
    const Target* own = presentingTarget(san, *dev0, made);
    ASSERT_NE(own, nullptr);
    EXPECT_EQ(own->name, "internal-dev0");
    EXPECT_EQ(findInternalTarget(san, *dev0), own);

    EXPECT_EQ(findInternalTarget(san, *dev1), nullptr);
    own = presentingTarget(san, *dev1, made);
    ASSERT_EQ(own, &made);
    EXPECT_EQ(made.name, "internal-2000001B32A10D00");
    EXPECT_TRUE(isInternalTargetOf(made, *dev1));
    EXPECT_FALSE(isInternalTargetOf(made, *dev0));
    EXPECT_EQ(made.wwpn, dev1->ports[0].wwpn);
    EXPECT_TRUE(adapterSeesTarget(san, *dev1, made));
    EXPECT_FALSE(adapterSeesTarget(san, *dev0, made));

    dev1->drives.clear();
    EXPECT_EQ(presentingTarget(san, *dev1, made), nullptr) << "no drives, nothing to present";
}

TEST_F(AdapterStorageTest, AnAdapterWithoutPortsNamesItsInternalTargetByItsIdentifier)
{
    dev1->ports.clear();
    Target t = makeInternalTarget(*dev1);
    EXPECT_EQ(t.wwpn, "2000001B32A10D00");
    EXPECT_EQ(t.wwnn, "2000001B32A10D00");
}
