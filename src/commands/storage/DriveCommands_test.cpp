// The drive commands' own steps against a simulated adapter: the listing of
// pools, the gathering of drives, the ways to each drive as a LUN, and the
// drive a LUN presents; and every drive and pool command against an adapter
// that the library does not hold.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/storage/CmdDriveAdd.h"
#include "commands/storage/CmdDriveConfigRestore.h"
#include "commands/storage/CmdDriveList.h"
#include "commands/storage/CmdDriveRemove.h"
#include "commands/storage/CmdDriveShow.h"
#include "commands/storage/CmdPoolRemove.h"
#include "commands/storage/CmdPoolSet.h"
#include "commands/storage/CmdPoolShow.h"
#include "commands/storage/DrivePathIndex.h"
#include "commands/storage/DrivePools.h"
#include "records/KDriveInfo.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"
#include "support/AddressingFixture.h"
#include "support/CommandRun.h"

namespace {

constexpr unsigned long long kAdapter = 0xA0;
std::string const kInternalTarget = "2100-0000-0000-00A0";

KDriveID binaryDrive(std::string const& hex)
{
    unsigned char bytes[64];
    unsigned int count = 0;
    EXPECT_TRUE(PBase::textToWwname(count, bytes, sizeof bytes, hex));
    KDriveID id;
    id.initDriveID(PBase::WWULN_CODE_SET_BINARY, static_cast<int>(count), bytes);
    return id;
}

KDriveID textDrive(std::string text)
{
    KDriveID id;
    id.initDriveID(PBase::WWULN_CODE_SET_TEXT, static_cast<int>(text.size()),
                   reinterpret_cast<unsigned char*>(text.data()));
    return id;
}

// The adapter A0 of the drives scenario, with its drives on the steps'
// own terms: the library's objects, not a command's run.
class DrivesSan : public CommandsOnSimulatedSan {
protected:
    DrivesSan() : CommandsOnSimulatedSan("drives", "0") {}

    HIsaAdapter* heldAdapter() const { return simulated().adapter(kAdapter); }

    // The adapter with its drives gathered.
    HIsaAdapter* withDrives() const
    {
        HIsaAdapter* const held = heldAdapter();
        std::string warning;
        if (held) {
            EXPECT_EQ(0, gatherDrives(*held, warning));
        }
        return held;
    }

    // The adapter with its targets gathered, as before a walk over them.
    HIsaAdapter* withTargets() const
    {
        HIsaAdapter* const held = heldAdapter();
        MHbaReturnBuffer firstFailure;
        if (held) {
            EXPECT_EQ(0, held->getTargetsAndInitiators(&firstFailure));
        }
        return held;
    }
};

std::string pathLine(int number)
{
    return "            -fc_target=" + kInternalTarget + "   -lun_number=" + std::to_string(number) + "\n";
}

} // namespace

TEST_F(DrivesSan, DrivePoolsListThePoolMembersFirstAndThenTheFreeDrives)
{
    HIsaAdapter* const adapter = withDrives();
    ASSERT_NE(nullptr, adapter);
    EXPECT_EQ("Configured Drives (2 of 4)\n"
              "    -drive=5000-C500-00A0-0000\n"
              "    -drive=DRIVE-TEXT\n\n\n"
              "Unconfigured Drives (2 of 4)\n"
              "    -drive=5000-C500-00A0-0001\n"
              "    -drive=5000-C500-00A0-0003\n\n\n",
              poolListingText(*adapter, nullptr));
}

TEST_F(DrivesSan, DrivePoolsPutTheDetailOfEachDriveAfterItsLine)
{
    HIsaAdapter* const adapter = withDrives();
    ASSERT_NE(nullptr, adapter);
    std::string const text =
        poolListingText(*adapter, [](KDriveID const& id) { return " <" + id.displayText() + ">"; });
    EXPECT_EQ(0u, text.find("Configured Drives (2 of 4)\n    -drive=5000-C500-00A0-0000 <5000-C500-00A0-0000>\n"));
    EXPECT_NE(std::string::npos, text.find("    -drive=DRIVE-TEXT <DRIVE-TEXT>\n\n\n"));
}

TEST_F(DrivesSan, DrivePoolsGiveTheRecordsOfEveryDriveInOrder)
{
    HIsaAdapter* const adapter = withDrives();
    ASSERT_NE(nullptr, adapter);
    std::vector<KDriveID> const ids = driveIdsOf(*adapter);
    std::vector<KDriveInfo> const records = driveRecordsOf(*adapter);
    ASSERT_EQ(4u, ids.size());
    ASSERT_EQ(4u, records.size());
    EXPECT_TRUE(ids[2] == textDrive("DRIVE-TEXT"));
    EXPECT_EQ(0xB0u, records[3].ownerId);
}

TEST_F(DrivesSan, DrivePoolsTellAPartialGatheringByItsFirstFailure)
{
    load(R"([{"adapter": "A0", "operation": "getDrivesWithErrorDetails", "code": 2, "firstError": 1006}])");
    HIsaAdapter* const adapter = heldAdapter();
    ASSERT_NE(nullptr, adapter);
    std::string warning;
    EXPECT_EQ(2, gatherDrives(*adapter, warning));
    EXPECT_EQ("getDrives returned partial success.  At least one attempt to get info returned " +
                  g_pHbaMgmtApi->returnCodeToText(1006),
              warning);
    EXPECT_EQ(4u, adapter->getDrives()->items.size());
}

TEST_F(DrivesSan, DrivePoolsAFailedGatheringLeavesNoWarning)
{
    load(R"([{"adapter": "A0", "operation": "getDrivesWithErrorDetails", "code": 1006}])");
    HIsaAdapter* const adapter = heldAdapter();
    ASSERT_NE(nullptr, adapter);
    std::string warning;
    EXPECT_EQ(1006, gatherDrives(*adapter, warning));
    EXPECT_EQ("", warning);
}

TEST(DriveIdOfLun, IsTheWwulnAsABinaryName)
{
    KLunInfo lun;
    unsigned char const name[] = {0x50, 0x00, 0xC5, 0x00};
    std::copy(name, name + 4, lun.ui8Wwuln);
    lun.ui32WwulnLength = 4;
    lun.eWwulnCodeSet = PBase::WWULN_CODE_SET_TEXT;
    EXPECT_TRUE(driveIdOfLun(lun) == binaryDrive("5000C500"));
}

TEST(DriveIdOfLun, NeverReadsPastTheNameField)
{
    KLunInfo lun;
    std::fill(lun.ui8Wwuln, lun.ui8Wwuln + sizeof lun.ui8Wwuln, 0xAB);
    lun.ui32WwulnLength = 100000;
    KDriveID const id = driveIdOfLun(lun);
    EXPECT_EQ(static_cast<int>(sizeof lun.ui8Wwuln), id.getWwulnIdLength());
}

TEST_F(DrivesSan, DrivePathIndexGivesEachDriveTheLunsThatPresentIt)
{
    HIsaAdapter* const adapter = withTargets();
    ASSERT_NE(nullptr, adapter);
    DrivePathIndex index;
    ASSERT_EQ(0, index.build(*adapter));
    EXPECT_EQ(pathLine(256), index.pathLines(binaryDrive("5000C50000A00000")));
    EXPECT_EQ(pathLine(259), index.pathLines(binaryDrive("5000C50000A00003")));
    // A text name is compared by its bytes, whatever its code set.
    EXPECT_EQ(pathLine(258), index.pathLines(textDrive("DRIVE-TEXT")));
    EXPECT_EQ("", index.pathLines(binaryDrive("5000C50000A0FFFF")));
    // The SAN LUN is no drive, but a name with its bytes would find it.
    EXPECT_EQ("            -fc_target=5000-0000-0000-0001   -lun_number=5\n",
              index.pathLines(binaryDrive("600A0B80000000000000000000000A05")));
}

TEST_F(DrivesSan, DrivePathIndexStopsAtATargetWhoseLunsCannotBeGathered)
{
    load(R"([{"adapter": "A0", "operation": "getLunsForSpecificTarget", "code": 1006}])");
    HIsaAdapter* const adapter = withTargets();
    ASSERT_NE(nullptr, adapter);
    DrivePathIndex index;
    EXPECT_EQ(1006, index.build(*adapter));
    EXPECT_EQ("", index.pathLines(binaryDrive("5000C50000A00000")));
}

TEST_F(DrivesSan, CmdDriveShowDrivePathInfoHasItsHeadingAndTheDrivesLines)
{
    HIsaAdapter* const adapter = withTargets();
    ASSERT_NE(nullptr, adapter);
    CmdDriveShow command;
    KDriveID drive = binaryDrive("5000C50000A00001");
    std::string text = "earlier text";
    std::string err;
    EXPECT_EQ(0, command.getDrivePathInfo(adapter, drive, text, err));
    EXPECT_EQ("\n        Drive Path:\n" + pathLine(257), text);
    KDriveID unknown = binaryDrive("0102");
    EXPECT_EQ(0, command.getDrivePathInfo(adapter, unknown, text, err));
    EXPECT_EQ("\n        Drive Path:\n", text);
    EXPECT_EQ(1100, command.getDrivePathInfo(nullptr, unknown, text, err));
    EXPECT_EQ("", err);
}

TEST(DriveAndPoolCommands, AnAdapterTheLibraryDoesNotHoldIsNotFound)
{
    expectAdapterNotFoundByEach({new CmdDriveList, new CmdDriveShow, new CmdDriveAdd, new CmdDriveRemove,
                                 new CmdDriveConfigRestore, new CmdPoolShow, new CmdPoolSet, new CmdPoolRemove});
}
