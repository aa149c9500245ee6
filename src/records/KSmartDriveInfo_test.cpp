#include "records/KSmartDriveInfo.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

KSmartDriveAttribute attribute(int id, const char* name, KSmartDriveAttribute::SMART_DISPLAY_TYPE type)
{
    KSmartDriveAttribute a;
    a.attributeId = id;
    strcpy(a.name, name);
    strcpy(a.rawValue, "0x12");
    a.value = 100;
    a.worst = 99;
    a.threshold = 10;
    a.displayType = type;
    return a;
}

const char* const kSmartHeader = "\n   Smart Drive Information:"
                                 "\n   Smart Drive Status:   pass"
                                 "\n\n   Vendor Specific SMART Attributes with Thresholds:"
                                 "\n"
                                 "\n   ID ATTRIBUTE_NAME                    VALUE      WORST     THRESH  RAW_VALUE";

const char* const kRow5 = "\n    5 Reallocated_Sector_Ct              100         99         10   0x12";
const char* const kRow9 = "\n    9 Power_On_Hours                     100         99         10   0x12";

KSmartDriveInfo twoAttributes()
{
    KSmartDriveInfo info;
    info.isSmartDataValid = 1;
    info.smartStatus = KSmartDriveInfo::SMART_STATUS_PASS;
    info.attributeCount = 2;
    info.attributes[0] = attribute(5, "Reallocated_Sector_Ct", KSmartDriveAttribute::SMART_DISPLAY_ALWAYS);
    info.attributes[1] = attribute(9, "Power_On_Hours", KSmartDriveAttribute::SMART_DISPLAY_VERBOSE);
    return info;
}

} // namespace

TEST(KSmartDriveAttribute, RowIsAppendedToTheTextBefore)
{
    KSmartDriveAttribute a = attribute(5, "Reallocated_Sector_Ct", KSmartDriveAttribute::SMART_DISPLAY_ALWAYS);
    EXPECT_EQ(a.displayText("before"), std::string("before") + kRow5);
    EXPECT_EQ(a.displayText(), std::string("    ") + kRow5);
}

TEST(KSmartDriveAttribute, LongNameIsNotCut)
{
    KSmartDriveAttribute a =
        attribute(1, "A_Name_Longer_Than_Thirty_Characters", KSmartDriveAttribute::SMART_DISPLAY_ALWAYS);
    EXPECT_EQ(a.displayText(""), "\n    1 A_Name_Longer_Than_Thirty_Characters     100         99         10   0x12");
}

TEST(KSmartDriveAttribute, UnterminatedTextsStopAtTheirField)
{
    KSmartDriveAttribute a;
    memset(a.name, 'N', sizeof a.name);
    memset(a.rawValue, 'R', sizeof a.rawValue);
    EXPECT_EQ(a.smartAttributeNameToText(), std::string(64, 'N'));
    EXPECT_EQ(a.smartRawDataToText(), std::string(64, 'R'));
}

TEST(KSmartDriveAttribute, InitBlanksEverything)
{
    KSmartDriveAttribute a = attribute(5, "x", KSmartDriveAttribute::SMART_DISPLAY_ALWAYS);
    a.init();
    EXPECT_EQ(a.attributeId, 0);
    EXPECT_EQ(a.value, 0);
    EXPECT_EQ(a.smartAttributeNameToText(), "");
    EXPECT_EQ(a.smartRawDataToText(), "");
    EXPECT_EQ(a.displayType, KSmartDriveAttribute::SMART_DISPLAY_NONE);
    EXPECT_EQ(a.getSerialOffset(), 20u);
    EXPECT_EQ(a.getSerialSize(), 156u);
}

TEST(KSmartDriveInfo, StatusTable)
{
    EXPECT_EQ(KSmartDriveInfo::smartStatusToText(KSmartDriveInfo::SMART_STATUS_PASS), "pass");
    EXPECT_EQ(KSmartDriveInfo::smartStatusToText(KSmartDriveInfo::SMART_STATUS_FAIL), "FAIL");
    EXPECT_EQ(KSmartDriveInfo::smartStatusToText(KSmartDriveInfo::SMART_STATUS_UNKNOWN), "Unknown");
    EXPECT_EQ(KSmartDriveInfo::smartStatusToText(static_cast<KSmartDriveInfo::SMART_STATUS_TYPE>(-1)), "Unknown");
}

TEST(KSmartDriveInfo, BlankRecordIsUnknownAndShowsNothing)
{
    KSmartDriveInfo info;
    EXPECT_EQ(info.smartStatus, KSmartDriveInfo::SMART_STATUS_UNKNOWN);
    EXPECT_EQ(info.vecSize(), 0u);
    EXPECT_EQ(info.displayText(), "");
    EXPECT_EQ(info.displayText(KSmartDriveAttribute::SMART_DISPLAY_VERBOSE), "");
}

TEST(KSmartDriveInfo, NormalListingLeavesOutVerboseAttributes)
{
    KSmartDriveInfo info = twoAttributes();
    EXPECT_EQ(info.displayText(), std::string(kSmartHeader) + kRow5);
    EXPECT_EQ(info.displayText(KSmartDriveAttribute::SMART_DISPLAY_ALWAYS), std::string(kSmartHeader) + kRow5);
}

TEST(KSmartDriveInfo, VerboseListingShowsAllAttributes)
{
    KSmartDriveInfo info = twoAttributes();
    EXPECT_EQ(info.displayText(KSmartDriveAttribute::SMART_DISPLAY_VERBOSE), std::string(kSmartHeader) + kRow5 + kRow9);
}

TEST(KSmartDriveInfo, PrefixChangesNothing)
{
    KSmartDriveInfo info = twoAttributes();
    EXPECT_EQ(info.displayText(KSmartDriveAttribute::SMART_DISPLAY_VERBOSE, ">>>"),
              info.displayText(KSmartDriveAttribute::SMART_DISPLAY_VERBOSE));
}

TEST(KSmartDriveInfo, OnlyCountedAttributesAreShown)
{
    KSmartDriveInfo info = twoAttributes();
    info.attributeCount = 1;
    EXPECT_EQ(info.displayText(KSmartDriveAttribute::SMART_DISPLAY_VERBOSE), std::string(kSmartHeader) + kRow5);
}

TEST(KSmartDriveInfo, CountBeyondTheArrayIsBounded)
{
    KSmartDriveInfo info = twoAttributes();
    info.attributeCount = 1000;
    std::string text = info.displayText(KSmartDriveAttribute::SMART_DISPLAY_VERBOSE);
    // Two filled rows and 30 blank ones.
    size_t rows = 0;
    for (size_t at = text.find("\n    "); at != std::string::npos; at = text.find("\n    ", at + 1))
        ++rows;
    EXPECT_EQ(rows, 32u);
    EXPECT_EQ(info.vecSize(), 1000u);
}

TEST(KSmartDriveInfo, FailedStatusIsShown)
{
    KSmartDriveInfo info = twoAttributes();
    info.smartStatus = KSmartDriveInfo::SMART_STATUS_FAIL;
    EXPECT_NE(info.displayText().find("\n   Smart Drive Status:   FAIL\n"), std::string::npos);
}

TEST(KSmartDriveInfo, VecAtGivesAttributesAndNullBeyond)
{
    KSmartDriveInfo info = twoAttributes();
    ASSERT_NE(info.vecAt(1), nullptr);
    EXPECT_EQ(info.vecAt(1)->attributeId, 9);
    EXPECT_EQ(info.vecAt(31), &info.attributes[31]);
    EXPECT_EQ(info.vecAt(32), nullptr);
}

TEST(KSmartDriveInfo, CopyTakesEveryAttribute)
{
    KSmartDriveInfo info = twoAttributes();
    KSmartDriveInfo copy(info);
    EXPECT_EQ(copy.displayText(KSmartDriveAttribute::SMART_DISPLAY_VERBOSE),
              info.displayText(KSmartDriveAttribute::SMART_DISPLAY_VERBOSE));
    KSmartDriveInfo assigned;
    assigned = info;
    EXPECT_EQ(assigned.attributes[1].attributeId, 9);
    assigned = assigned;
    EXPECT_EQ(assigned.attributes[1].attributeId, 9);
}

TEST(KSmartDriveInfo, SavesHeaderAndAllAttributesAndReadsThemBack)
{
    KSmartDriveInfo info = twoAttributes();
    FILE* file = tmpfile();
    ASSERT_NE(file, nullptr);
    std::string error;
    ASSERT_TRUE(info.serialize(true, file, error));
    EXPECT_EQ(ftell(file), 12 + 32 * 156);
    rewind(file);
    KSmartDriveInfo back;
    ASSERT_TRUE(back.serialize(false, file, error));
    EXPECT_EQ(error, "");
    EXPECT_EQ(back.displayText(KSmartDriveAttribute::SMART_DISPLAY_VERBOSE),
              info.displayText(KSmartDriveAttribute::SMART_DISPLAY_VERBOSE));
    fclose(file);
}

TEST(KSmartDriveInfo, ReadingAnEmptyFileFails)
{
    FILE* file = tmpfile();
    ASSERT_NE(file, nullptr);
    KSmartDriveInfo info;
    std::string error;
    EXPECT_FALSE(info.serialize(false, file, error));
    EXPECT_EQ(error, "Could not read from file");
    fclose(file);
}
