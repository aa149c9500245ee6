#include "records/KDriveInfo.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

KDriveInfo onlineDrive()
{
    KDriveInfo drive;
    drive.driveStatus = KDriveInfo::DRIVE_STATUS_CONFIGURED;
    drive.ownerId = 0x2000001b32a0c0deULL;
    drive.isOnline = true;
    drive.sizeBytes = 200ULL << 30;
    strcpy(drive.vendorId, "ZEKSSD");
    strcpy(drive.productId, "FastCache 200");
    strcpy(drive.revision, "A1");
    strcpy(drive.serialNumber, "SN0042");
    return drive;
}

const char* const kOnlineText = "        Configured"
                                "\n        Owner ID =       2000001B32A0C0DE"
                                "\n        State =          Online"
                                "\n        Size =           200GB"
                                "\n        Vendor ID =      ZEKSSD"
                                "\n        Product ID =     FastCache 200"
                                "\n        Revision =       A1"
                                "\n        Serial Number =  SN0042"
                                "\n";

} // namespace

TEST(KDriveInfo, StateTable)
{
    EXPECT_EQ(KDriveInfo::driveStateToText(KDriveInfo::DRIVE_STATUS_UNKNOWN), "Unknown");
    EXPECT_EQ(KDriveInfo::driveStateToText(KDriveInfo::DRIVE_STATUS_UNCONFIGURED), "Unconfigured");
    EXPECT_EQ(KDriveInfo::driveStateToText(KDriveInfo::DRIVE_STATUS_CONFIGURED), "Configured");
    EXPECT_EQ(KDriveInfo::driveStateToText(static_cast<KDriveInfo::DRIVE_STATUS_TYPE>(3)), "UNKNOWN");
}

TEST(KDriveInfo, OfflineDriveShowsOnlyStateOwnerAndOffline)
{
    KDriveInfo drive = onlineDrive();
    drive.isOnline = false;
    drive.isExternal = true;
    EXPECT_EQ(drive.displayText(),
              "        Configured"
              "\n        Owner ID =       2000001B32A0C0DE"
              "\n        State =          Offline");
}

TEST(KDriveInfo, DriveWithoutFlagsEndsAfterTheSerialNumberLine)
{
    EXPECT_EQ(onlineDrive().displayText(), kOnlineText);
}

TEST(KDriveInfo, ExternalDriveIsMarked)
{
    KDriveInfo drive = onlineDrive();
    drive.isExternal = true;
    EXPECT_EQ(drive.displayText(), std::string(kOnlineText) + "        ( External Drive )");
}

TEST(KDriveInfo, InternalDriveIsNamedOnlyBesideAnotherFlag)
{
    KDriveInfo drive = onlineDrive();
    drive.isPcieSsd = true;
    EXPECT_EQ(drive.displayText(), std::string(kOnlineText) + "        ( Internal Drive  PCIE SSD )");
}

TEST(KDriveInfo, AllFlagsInTheirOrder)
{
    KDriveInfo drive = onlineDrive();
    drive.isExternal = true;
    drive.isPcieSsd = true;
    drive.isSecurityLocked = true;
    drive.isIdentityConflict = true;
    EXPECT_EQ(drive.displayText(),
              std::string(kOnlineText) +
                  "        ( External Drive  PCIE SSD  Security Locked  PSST and Drive Identity Conflict )");
}

TEST(KDriveInfo, BlankDrive)
{
    KDriveInfo drive;
    EXPECT_EQ(drive.displayText(),
              "        Unknown"
              "\n        Owner ID =       0"
              "\n        State =          Offline");
    EXPECT_EQ(drive.smartInfo.smartStatus, KSmartDriveInfo::SMART_STATUS_UNKNOWN);
    EXPECT_EQ(drive.getSerialOffset(), 20u);
}

TEST(KDriveInfo, UnterminatedIdentityTextsStopAtTheirField)
{
    KDriveInfo drive = onlineDrive();
    memset(drive.vendorId, 'V', sizeof drive.vendorId);
    memset(drive.serialNumber, 'S', sizeof drive.serialNumber);
    std::string text = drive.displayText();
    EXPECT_NE(text.find("\n        Vendor ID =      VVVVVVVVV\n"), std::string::npos);
    EXPECT_NE(text.find("\n        Serial Number =  " + std::string(33, 'S') + "\n"), std::string::npos);
}

TEST(KDriveInfo, SmartTextsNeedValidSmartData)
{
    KDriveInfo drive = onlineDrive();
    EXPECT_EQ(drive.displaySmartDriveInfoText(), "");
    EXPECT_EQ(drive.displaySmartDriveInfoVerboseText(), "");

    drive.smartInfo.isSmartDataValid = 1;
    drive.smartInfo.attributeCount = 1;
    drive.smartInfo.attributes[0].attributeId = 194;
    drive.smartInfo.attributes[0].displayType = KSmartDriveAttribute::SMART_DISPLAY_VERBOSE;
    EXPECT_EQ(drive.displaySmartDriveInfoText(),
              drive.smartInfo.displayText(KSmartDriveAttribute::SMART_DISPLAY_ALWAYS));
    EXPECT_EQ(drive.displaySmartDriveInfoVerboseText(),
              drive.smartInfo.displayText(KSmartDriveAttribute::SMART_DISPLAY_VERBOSE));
    EXPECT_NE(drive.displaySmartDriveInfoText(), drive.displaySmartDriveInfoVerboseText());
}

TEST(KDriveInfo, CopyTakesFieldsAndSmartData)
{
    KDriveInfo drive = onlineDrive();
    drive.isSecurityLocked = true;
    drive.smartInfo.isSmartDataValid = 1;
    drive.smartInfo.attributeCount = 3;
    KDriveInfo copy(drive);
    EXPECT_EQ(copy.displayText(), drive.displayText());
    EXPECT_EQ(copy.smartInfo.attributeCount, 3u);
    EXPECT_EQ(copy.sizeBytes, drive.sizeBytes);
}

TEST(KDriveInfo, SavesHundredBytesThenSmartDataAndReadsThemBack)
{
    KDriveInfo drive = onlineDrive();
    drive.isExternal = true;
    drive.smartInfo.isSmartDataValid = 1;
    drive.smartInfo.smartStatus = KSmartDriveInfo::SMART_STATUS_FAIL;
    FILE* file = tmpfile();
    ASSERT_NE(file, nullptr);
    std::string error;
    ASSERT_TRUE(drive.serialize(true, file, error));
    EXPECT_EQ(ftell(file), 100 + 12 + 32 * 156);

    // The saved block starts with the vendor text.
    rewind(file);
    char vendor[9] = {};
    ASSERT_EQ(fread(vendor, 1, sizeof vendor, file), sizeof vendor);
    EXPECT_STREQ(vendor, "ZEKSSD");

    rewind(file);
    KDriveInfo back;
    ASSERT_TRUE(back.serialize(false, file, error));
    EXPECT_EQ(back.displayText(), drive.displayText());
    EXPECT_EQ(back.smartInfo.smartStatus, KSmartDriveInfo::SMART_STATUS_FAIL);
    fclose(file);
}
