#include "api/DriveLuns.h"

#include "api/Ids.h"
#include "support/DefaultSanTest.h"

#include "records/KLunInfo.h"

#include <gtest/gtest.h>

using namespace sim;

namespace {

template <typename Id>
Id named(PBase::WWULN_CODE_SET_TYPE codeSet, std::vector<unsigned char> bytes)
{
    Id id;
    if constexpr (std::is_same_v<Id, KDriveID>)
        id.initDriveID(codeSet, static_cast<int>(bytes.size()), bytes.data());
    else
        id.initWwulnLunID(codeSet, static_cast<int>(bytes.size()), bytes.data());
    return id;
}

std::vector<unsigned char> textBytes(const std::string& text)
{
    return std::vector<unsigned char>(text.begin(), text.end());
}

// The default SAN, with a drive named by text on the first adapter.
class DriveLunsTest : public DefaultSanTest {
protected:
    void SetUp() override
    {
        DefaultSanTest::SetUp();
        Drive text;
        text.id = "SLOT-7";
        text.serial = "SLOCK7";
        dev0->drives.push_back(text);
    }
};

} // namespace

TEST_F(DriveLunsTest, AnIdentifierNamesTheDriveWithItsNameBytesWhateverItsCodeSet)
{
    const Drive& first = dev0->drives[0];
    EXPECT_EQ(driveForId(*dev0, driveId(first)), &first);
    EXPECT_EQ(driveForId(*dev0, named<KDriveID>(PBase::WWULN_CODE_SET_TEXT, driveNameBytes(first))), &first);
    const Drive& text = dev0->drives.back();
    EXPECT_EQ(driveForId(*dev0, named<KDriveID>(PBase::WWULN_CODE_SET_BINARY, textBytes("SLOT-7"))), &text);
    EXPECT_EQ(driveForId(*dev0, named<KDriveID>(PBase::WWULN_CODE_SET_TEXT, textBytes("slot-7"))), nullptr);
    EXPECT_EQ(driveForId(*dev0, named<KDriveID>(PBase::WWULN_CODE_SET_TEXT, textBytes(first.serial))), nullptr)
        << "a serial number is no drive name";
    EXPECT_EQ(driveForId(*dev1, driveId(first)), nullptr) << "another adapter's drive";
    EXPECT_EQ(driveForId(*dev0, KDriveID()), nullptr);
}

TEST_F(DriveLunsTest, AnSsdIdentifierIsTheSerialNumberOrTheNameAsShown)
{
    const Drive& first = dev0->drives[0];
    using Ssd = KWwulnLunID;
    EXPECT_EQ(driveForSsdId(*dev0, named<Ssd>(PBase::WWULN_CODE_SET_TEXT, textBytes(first.serial))), &first);
    EXPECT_EQ(driveForSsdId(*dev0, named<Ssd>(PBase::WWULN_CODE_SET_TEXT, textBytes("5000-c532-a10c-0000"))), &first);
    EXPECT_EQ(driveForSsdId(*dev0, named<Ssd>(PBase::WWULN_CODE_SET_TEXT, textBytes("slot7"))), &dev0->drives.back());
    EXPECT_EQ(driveForSsdId(*dev0, named<Ssd>(PBase::WWULN_CODE_SET_TEXT, textBytes(""))), nullptr);
    EXPECT_EQ(driveForSsdId(*dev0, named<Ssd>(PBase::WWULN_CODE_SET_TEXT, textBytes("S-NONE"))), nullptr);
}

TEST_F(DriveLunsTest, EveryDriveIsALunOfTheInternalTargetFrom256On)
{
    std::vector<DriveLunPath> paths = driveLunPaths(san, *dev0);
    ASSERT_EQ(paths.size(), dev0->drives.size());
    PTargetID internal = targetId(*findTarget(san, "internal-dev0"));
    for (size_t i = 0; i < paths.size(); ++i) {
        EXPECT_TRUE(paths[i].id.targetID() == internal);
        EXPECT_EQ(paths[i].id.lunNumber(), 256 + static_cast<int>(i));
        EXPECT_EQ(paths[i].drive, &dev0->drives[i]);
        EXPECT_EQ(driveAtPath(san, *dev0, paths[i].id), &dev0->drives[i]);
    }
    EXPECT_EQ(driveAtPath(san, *dev1, paths[0].id), nullptr) << "only the holder sees them";
}

TEST_F(DriveLunsTest, AnAdapterWithoutAHeldInternalTargetPresentsItsDrivesAllTheSame)
{
    std::vector<DriveLunPath> paths = driveLunPaths(san, *dev1);
    ASSERT_EQ(paths.size(), 4u);
    EXPECT_EQ(paths[3].id.targetID().displayText(), "2100-001B-32A1-0D00");
    EXPECT_EQ(driveAtPath(san, *dev1, paths[3].id), &dev1->drives[3]);
    dev1->drives.clear();
    EXPECT_TRUE(driveLunPaths(san, *dev1).empty());
}

TEST_F(DriveLunsTest, PathsThatAreNoDriveLunsNameNoDrive)
{
    PTargetID internal = targetId(*findTarget(san, "internal-dev0"));
    auto pathOf = [&](u32 number, u32 group) { return lunId(internal, LunPath{"internal-dev0", number, group, 3}); };
    EXPECT_EQ(driveAtPath(san, *dev0, pathOf(0, 1)), nullptr) << "the data LUN";
    EXPECT_EQ(driveAtPath(san, *dev0, pathOf(255, 1)), nullptr);
    EXPECT_EQ(driveAtPath(san, *dev0, pathOf(256 + 5, 1)), nullptr) << "past the last drive";
    EXPECT_EQ(driveAtPath(san, *dev0, pathOf(256, 2)), nullptr) << "another path group";
    PTargetID array = targetId(*findTarget(san, "array-a-spa"));
    EXPECT_EQ(driveAtPath(san, *dev0, lunId(array, LunPath{"array-a-spa", 256, 1, 3})), nullptr);
}

TEST_F(DriveLunsTest, ADriveLunIsADirectAccessSsdThatHoldsCacheAndShowsNowhere)
{
    const Drive& first = dev0->drives[0];
    KLunInfo info;
    fillDriveLunInfo(san, *dev0, first, info);
    EXPECT_TRUE(info.isLunInfoValid());
    EXPECT_EQ(info.m_eLunType, KLunInfo::LUN_TYPE_DIRECT_ACCESS);
    EXPECT_EQ(info.ui32LunState, (1u << 0) | (1u << 18) | (1u << 19) | (1u << 28));
    EXPECT_EQ(info.eWwulnCodeSet, PBase::WWULN_CODE_SET_BINARY);
    ASSERT_EQ(info.ui32WwulnLength, 8u);
    EXPECT_EQ(bytesToHex(info.ui8Wwuln, 8), first.id);
    EXPECT_EQ(std::string(info.szPage80Serial), first.serial);
    EXPECT_EQ(info.ui64LunSizeBytes, first.sizeBytes);
    EXPECT_FALSE(info.isLunCached());

    Drive offline = first;
    offline.online = false;
    fillDriveLunInfo(san, *dev0, offline, info);
    EXPECT_FALSE(info.isOnline());

    fillDriveLunInfo(san, *dev0, dev0->drives.back(), info);
    EXPECT_EQ(info.eWwulnCodeSet, PBase::WWULN_CODE_SET_TEXT);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(info.ui8Wwuln), info.ui32WwulnLength), "SLOT-7");
}
