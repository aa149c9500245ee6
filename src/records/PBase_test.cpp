#include "records/PBase.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

// A small record that saves everything from its first field on.
struct SavedRecord : PBase {
    uint32_t first;
    uint64_t second;
    char third[5];

    SavedRecord() { init(); }
    void init() override
    {
        initSerialization(&first, sizeof(SavedRecord));
        first = 0;
        second = 0;
        memset(third, 0, sizeof third);
    }
    std::string displayText() const override { return "saved"; }
};

// A record with nothing to save.
struct UnsavedRecord : PBase {
    uint32_t value = 7;
    UnsavedRecord() { init(); }
    void init() override { initSerialization(nullptr, sizeof(UnsavedRecord)); }
    std::string displayText() const override { return "unsaved"; }
};

struct TempFile {
    FILE* file = tmpfile();
    ~TempFile()
    {
        if (file != nullptr) {
            fclose(file);
        }
    }
};

// ---- saved area ---------------------------------------------------------------

TEST(PBaseSerialization, InitSerializationCoversFirstOwnFieldToTheEnd)
{
    SavedRecord record;
    EXPECT_EQ(20u, record.getSerialOffset());
    EXPECT_EQ(sizeof(SavedRecord) - 20u, record.getSerialSize());
}

TEST(PBaseSerialization, NullFirstFieldMeansNothingIsSaved)
{
    UnsavedRecord record;
    EXPECT_EQ(0u, record.getSerialOffset());
    EXPECT_EQ(0u, record.getSerialSize());
}

TEST(PBaseSerialization, RecordWithoutSavedAreaSerializesAsSuccessWithoutWriting)
{
    TempFile temp;
    ASSERT_NE(nullptr, temp.file);
    UnsavedRecord record;
    std::string error;
    EXPECT_TRUE(record.serialize(true, temp.file, error));
    EXPECT_EQ(0L, ftell(temp.file));
    EXPECT_EQ("", error);
}

TEST(PBaseSerialization, WriteThenReadRestoresTheSavedArea)
{
    TempFile temp;
    ASSERT_NE(nullptr, temp.file);
    SavedRecord out;
    out.first = 0x01020304;
    out.second = 0x1122334455667788ULL;
    memcpy(out.third, "abcd", 5);
    std::string error;
    ASSERT_TRUE(out.serialize(true, temp.file, error));
    EXPECT_EQ(static_cast<long>(out.getSerialSize()), ftell(temp.file));

    rewind(temp.file);
    SavedRecord in;
    ASSERT_TRUE(in.serialize(false, temp.file, error));
    EXPECT_EQ(0x01020304u, in.first);
    EXPECT_EQ(0x1122334455667788ULL, in.second);
    EXPECT_STREQ("abcd", in.third);
    EXPECT_EQ("saved", in.displayText()); // the virtual table survived the read
}

TEST(PBaseSerialization, ReadingFromAnEmptyFileFailsWithItsMessage)
{
    TempFile temp;
    ASSERT_NE(nullptr, temp.file);
    char buffer[8];
    std::string error = "before: ";
    EXPECT_FALSE(PBase::base_serialize(false, temp.file, buffer, sizeof buffer, error));
    EXPECT_EQ("before: Could not read from file", error);
}

TEST(PBaseSerialization, WritingToAReadOnlyFileFailsWithItsMessage)
{
    char path[] = "/tmp/pbase_readonly_XXXXXX";
    int fd = mkstemp(path);
    ASSERT_GE(fd, 0);
    close(fd);
    FILE* file = fopen(path, "r");
    ASSERT_NE(nullptr, file);
    char buffer[8] = {};
    std::string error;
    EXPECT_FALSE(PBase::base_serialize(true, file, buffer, sizeof buffer, error));
    EXPECT_EQ("Could not write to file", error);
    fclose(file);
    remove(path);
}

TEST(PBaseSerialization, ShortReadStillCountsAsSuccess)
{
    TempFile temp;
    ASSERT_NE(nullptr, temp.file);
    fwrite("ab", 1, 2, temp.file);
    rewind(temp.file);
    char buffer[8] = {};
    std::string error;
    EXPECT_TRUE(PBase::base_serialize(false, temp.file, buffer, sizeof buffer, error));
    EXPECT_EQ("", error);
    EXPECT_EQ('a', buffer[0]);
}

TEST(PBaseSerialization, CopySavedAreaLeavesTheVirtualTableAlone)
{
    SavedRecord source;
    source.first = 9;
    source.second = 10;
    SavedRecord target;
    target.copySavedArea(&source);
    EXPECT_EQ(9u, target.first);
    EXPECT_EQ(10u, target.second);
    EXPECT_EQ("saved", target.displayText());
}

// ---- memory helpers -------------------------------------------------------------

TEST(PBaseMemory, FastMemcpyCopiesEveryCountExactly)
{
    std::vector<unsigned char> source(40);
    for (size_t i = 0; i < source.size(); ++i) {
        source[i] = static_cast<unsigned char>(i + 1);
    }
    for (unsigned long count = 0; count <= 21; ++count) {
        std::vector<unsigned char> target(40, 0xEE);
        PBase::fastMemcpy(target.data() + 1, 0, source.data() + 3, count);
        EXPECT_EQ(0xEE, target[0]);
        EXPECT_EQ(0, memcmp(target.data() + 1, source.data() + 3, count)) << count;
        EXPECT_EQ(0xEE, target[1 + count]) << count;
    }
}

TEST(PBaseMemory, FastMemsetZeroZeroesExactlyTheCountAtAnyAlignment)
{
    for (unsigned long start = 0; start < 4; ++start) {
        for (unsigned long count = 0; count <= 13; ++count) {
            std::vector<unsigned char> buffer(24, 0xFF);
            PBase::fastMemsetZero(buffer.data() + start, count);
            for (size_t i = 0; i < buffer.size(); ++i) {
                bool zeroed = i >= start && i < start + count;
                EXPECT_EQ(zeroed ? 0 : 0xFF, buffer[i]) << start << "/" << count << "/" << i;
            }
        }
    }
}

TEST(PBaseMemory, FastIsEqualMemcmpComparesCountBytesAndZeroIsEqual)
{
    const char a[] = "abcdef";
    const char b[] = "abcxef";
    EXPECT_TRUE(PBase::fastIsEqualMemcmp(a, 0, b, 3));
    EXPECT_FALSE(PBase::fastIsEqualMemcmp(a, 0, b, 4));
    EXPECT_TRUE(PBase::fastIsEqualMemcmp(a, 0, b, 0));
}

TEST(PBaseMemory, FastIsEqualStringCompareRespectsCaseFlagAndLength)
{
    EXPECT_TRUE(PBase::fastIsEqualStringCompare("Abc", "Abc", true));
    EXPECT_FALSE(PBase::fastIsEqualStringCompare("Abc", "abc", true));
    EXPECT_TRUE(PBase::fastIsEqualStringCompare("Abc", "aBC", false));
    EXPECT_FALSE(PBase::fastIsEqualStringCompare("Abc", "Abcd", false));
    EXPECT_FALSE(PBase::fastIsEqualStringCompare("Abc", "Abd", false));
    EXPECT_TRUE(PBase::fastIsEqualStringCompare("", "", true));
}

// ---- small predicates -------------------------------------------------------------

TEST(PBasePredicates, IsBitSetTestsBitsFromZero)
{
    EXPECT_TRUE(PBase::isBitSet(5, 0));
    EXPECT_FALSE(PBase::isBitSet(5, 1));
    EXPECT_TRUE(PBase::isBitSet(5, 2));
    EXPECT_TRUE(PBase::isBitSet(0x80000000u, 31));
    EXPECT_FALSE(PBase::isBitSet(0xFFFFFFFFu, 32));
}

TEST(PBasePredicates, TcpWindowSizeMustBeAPowerOfTwoInRange)
{
    for (int32_t size = 8192; size <= 16777216; size *= 2) {
        EXPECT_TRUE(PBase::isValidTcpWindowSize(static_cast<PBase::TCPWINDOWSIZE_TYPE>(size))) << size;
    }
    for (int32_t size : {0, 4096, 12288, 8193, 33554432, -8192}) {
        EXPECT_FALSE(PBase::isValidTcpWindowSize(static_cast<PBase::TCPWINDOWSIZE_TYPE>(size))) << size;
    }
}

TEST(PBasePredicates, ConvertIntToVpIndexKeepsZeroToFourAndMapsTheRestToFive)
{
    for (int i = 0; i <= 4; ++i) {
        EXPECT_EQ(i, PBase::convertIntToVpIndex(i));
    }
    EXPECT_EQ(PBase::VPGROUP_UNKNOWN, PBase::convertIntToVpIndex(5));
    EXPECT_EQ(PBase::VPGROUP_UNKNOWN, PBase::convertIntToVpIndex(6));
    EXPECT_EQ(PBase::VPGROUP_UNKNOWN, PBase::convertIntToVpIndex(-1));
}

// ---- numbers and words -------------------------------------------------------------

TEST(PBaseNumbers, NumberFormats)
{
    EXPECT_EQ("-5", PBase::numberToText(-5));
    EXPECT_EQ("ff", PBase::numberToHexText(255));
    EXPECT_EQ("-9223372036854775808", PBase::i64NumberToText(INT64_MIN));
    EXPECT_EQ("18446744073709551615", PBase::ui64NumberToText(UINT64_MAX));
    EXPECT_EQ("FFFFFFFFFFFFFFFF", PBase::ui64NumberToHexText(UINT64_MAX));
    EXPECT_EQ("2A", PBase::ui64NumberToHexText(42));
    EXPECT_EQ("0A", PBase::byteToHexText(10));
    EXPECT_EQ("1.500000", PBase::floatToText(1.5f));
    EXPECT_EQ("-0.250000", PBase::floatToText(-0.25f));
}

TEST(PBaseNumbers, BooleanWords)
{
    EXPECT_EQ("Yes", PBase::yesOrNoToText(true));
    EXPECT_EQ("No", PBase::yesOrNoToText(false));
    EXPECT_EQ("Up", PBase::upOrDownToText(true));
    EXPECT_EQ("Down", PBase::upOrDownToText(false));
    EXPECT_EQ("On", PBase::onOrOffToText(true));
    EXPECT_EQ("Off", PBase::onOrOffToText(false));
    EXPECT_EQ("Enabled", PBase::enableToText(true));
    EXPECT_EQ("Disabled", PBase::enableToText(false));
}

// ---- names ---------------------------------------------------------------------------

TEST(PBaseNames, WorldWideNameForms)
{
    const unsigned char name[8] = {0x10, 0x00, 0x00, 0x00, 0xC9, 0x12, 0x3a, 0x5B};
    EXPECT_EQ("1000-0000-C912-3A5B", PBase::wwnameToText(name));
    EXPECT_EQ("10-00-00-00-C9-12-3A-5B", PBase::wwnameToText_single_bytes(name));
}

TEST(PBaseNames, PortIdForms)
{
    unsigned char id[3] = {0x01, 0x2b, 0xFF};
    EXPECT_EQ("01-2B-FF", PBase::portIdToText(static_cast<const unsigned char*>(id)));
    EXPECT_EQ("01-2B-FF", PBase::portIdToText(id, 0));
}

TEST(PBaseNames, UCharPtrToJavaString)
{
    unsigned char text[] = "node1";
    EXPECT_EQ("node1", PBase::uCharPtrToJavaString(text));
    EXPECT_EQ("", PBase::uCharPtrToJavaString(nullptr));
}

TEST(PBaseNames, CharFieldsAreReadToTheirZeroAndNeverPastTheirEnd)
{
    char full[4] = {'a', 'b', 'c', 'd'};
    EXPECT_EQ("abcd", PBase::charFieldToText(full));
    char shortText[6] = "ab";
    EXPECT_EQ("ab", PBase::charFieldToText(shortText));
    char field[4];
    PBase::textToCharField(field, sizeof field, "wxyz");
    EXPECT_STREQ("wxy", field);
}

TEST(PBaseNames, WwulnOfThreeBytesGroupsInPairs)
{
    const unsigned char data[] = {0xAA, 0xBB, 0xCC};
    EXPECT_EQ("AABB-CC", PBase::wwulnToText(data, 3, PBase::WWULN_CODE_SET_BINARY));
}

TEST(PBaseNames, WwulnBinaryHasNoTrailingDashAndEmptyForNoLength)
{
    const unsigned char data[] = {0x01, 0x02, 0x0A, 0x0B};
    EXPECT_EQ("0102-0A0B", PBase::wwulnToText(data, 4, PBase::WWULN_CODE_SET_BINARY));
    EXPECT_EQ("", PBase::wwulnToText(data, 0, PBase::WWULN_CODE_SET_BINARY));
    EXPECT_EQ("", PBase::wwulnToText(data, -3, PBase::WWULN_CODE_SET_BINARY));
    // Unknown code sets are shown as binary.
    EXPECT_EQ("0102", PBase::wwulnToText(data, 2, static_cast<PBase::WWULN_CODE_SET_TYPE>(7)));
}

TEST(PBaseNames, WwulnTextIgnoresTheLength)
{
    const unsigned char data[] = "VOL-0042";
    EXPECT_EQ("VOL-0042", PBase::wwulnToText(data, 2, PBase::WWULN_CODE_SET_TEXT));
}

TEST(PBaseNames, TextToWwnameWithSeparatorSucceeds)
{
    unsigned char out[8];
    unsigned int count = 99;
    EXPECT_TRUE(PBase::textToWwname(count, out, sizeof out, "aa:bb"));
    EXPECT_EQ(2u, count);
    EXPECT_EQ(0xAA, out[0]);
    EXPECT_EQ(0xBB, out[1]);
    EXPECT_EQ(0, out[2]);
}

TEST(PBaseNames, TextToWwnameWithOddDigitFails)
{
    unsigned char out[8];
    unsigned int count = 0;
    EXPECT_FALSE(PBase::textToWwname(count, out, sizeof out, "aab"));
}

TEST(PBaseNames, TextToWwnameRules)
{
    unsigned char out[8];
    unsigned int count = 0;
    EXPECT_TRUE(PBase::textToWwname(count, out, sizeof out, "10-00-00-00-C9-12-34-56"));
    EXPECT_EQ(8u, count);
    EXPECT_EQ("1000-0000-C912-3456", PBase::wwnameToText(out));
    EXPECT_TRUE(PBase::textToWwname(count, out, sizeof out, "100000000000C9AB"));
    EXPECT_EQ(8u, count);
    // A name longer than the output fails.
    EXPECT_FALSE(PBase::textToWwname(count, out, sizeof out, "100000000000C9AB01"));
    // A lone digit before a separator fails.
    EXPECT_FALSE(PBase::textToWwname(count, out, sizeof out, "a:bb"));
    // A separator left at the end fails only while there is still room.
    EXPECT_FALSE(PBase::textToWwname(count, out, sizeof out, "aa:"));
    unsigned char one[1];
    EXPECT_TRUE(PBase::textToWwname(count, one, sizeof one, "aa:"));
    EXPECT_EQ(1u, count);
    // Empty text converts to nothing.
    EXPECT_TRUE(PBase::textToWwname(count, out, sizeof out, ""));
    EXPECT_EQ(0u, count);
    EXPECT_EQ(0, out[0]);
}

// ---- columns and quoting ---------------------------------------------------------------

TEST(PBaseColumns, AddQuotesGivesEmptyTextWithoutABlank)
{
    EXPECT_EQ("", PBase::addQuotesIfInternalSpace("abc"));
}

TEST(PBaseColumns, AddQuotesQuotesTextWithBlankOrTab)
{
    EXPECT_EQ("\"a b\"", PBase::addQuotesIfInternalSpace("a b"));
    EXPECT_EQ("\"a\tb\"", PBase::addQuotesIfInternalSpace("a\tb"));
    EXPECT_EQ("\" lead\"", PBase::addQuotesIfInternalSpace(" lead"));
}

TEST(PBaseColumns, TooLongColumnKeepsTheTailBehindDots)
{
    EXPECT_EQ("...gh", PBase::sizeTextToColumn(5, "abcdefgh"));
}

TEST(PBaseColumns, TooLongShortTextBecomesStars)
{
    EXPECT_EQ("**", PBase::sizeTextToColumn(2, "abc"));
}

TEST(PBaseColumns, FittingTextIsRightAligned)
{
    EXPECT_EQ("   ab", PBase::sizeTextToColumn(5, "ab"));
    EXPECT_EQ("abcde", PBase::sizeTextToColumn(5, "abcde"));
    EXPECT_EQ("..", PBase::sizeTextToColumn(2, "abcdef"));
}

TEST(PBaseColumns, LeftColumnPadsButNeverCuts)
{
    EXPECT_EQ("ab   ", PBase::sizeTextToColumn_Left(5, "ab"));
    EXPECT_EQ("abcdef", PBase::sizeTextToColumn_Left(2, "abcdef"));
}

// ---- sizes -----------------------------------------------------------------------------

TEST(PBaseSizes, ConvertToMByteTextKeepsValuesUpTo512)
{
    EXPECT_EQ("512", PBase::convertToMByteText(512));
    EXPECT_EQ("0", PBase::convertToMByteText(0));
}

TEST(PBaseSizes, ConvertToMByteTextDividesFrom513On)
{
    EXPECT_EQ("1", PBase::convertToMByteText(513));
}

TEST(PBaseSizes, ConvertToMByteTextOneAndAHalfGigabytes)
{
    EXPECT_EQ("1.000500GB", PBase::convertToMByteText(3ULL << 38));
}

TEST(PBaseSizes, ConvertToMByteTextUnitsAndFractions)
{
    auto bytes = [](unsigned long long v) { return v << 9; };
    EXPECT_EQ("1.500MB", PBase::convertToMByteText(bytes(0x180000)));
    // The leading zeros follow the fraction, and may stand before a 0.
    EXPECT_EQ("1.0000MB", PBase::convertToMByteText(bytes((1 << 20) + 1024)));
    EXPECT_EQ("2MB", PBase::convertToMByteText(bytes(2 << 20)));
    EXPECT_EQ("1.500KB", PBase::convertToMByteText(bytes(1536)));
    EXPECT_EQ("1.049KB", PBase::convertToMByteText(bytes(1024 + 51)));
    EXPECT_EQ("1.143KB", PBase::convertToMByteText(600000));
    EXPECT_EQ("3GB", PBase::convertToMByteText(bytes(3ULL << 30)));
    EXPECT_EQ("1TB", PBase::convertToMByteText(bytes(1ULL << 40)));
    // The terabyte fraction is always 0 behind its "000".
    EXPECT_EQ("1.0000TB", PBase::convertToMByteText(bytes((1ULL << 40) + (1ULL << 29))));
}

TEST(PBaseSizes, LongLongToMByteTextZeroAndBytes)
{
    EXPECT_EQ("0", PBase::longlongToMByteText(0));
    EXPECT_EQ("1023Bytes", PBase::longlongToMByteText(1023));
    EXPECT_EQ("1KB", PBase::longlongToMByteText(1024));
}

TEST(PBaseSizes, LongLongToMByteTextShowsTheFractionOnlyAbove102)
{
    EXPECT_EQ("1KB", PBase::longlongToMByteText(1126));
    EXPECT_EQ("1.10KB", PBase::longlongToMByteText(1127));
}

TEST(PBaseSizes, LongLongToMByteTextLargerUnits)
{
    EXPECT_EQ("1MB", PBase::longlongToMByteText(1048577)); // rounded to the kilobyte
    EXPECT_EQ("1.50GB", PBase::longlongToMByteText(1610612736));
    EXPECT_EQ("1TB", PBase::longlongToMByteText(1ULL << 40));
    EXPECT_EQ("2.99TB", PBase::longlongToMByteText((3ULL << 40) - (1ULL << 30) * 10));
}

// ---- elapsed time and memory --------------------------------------------------------------

TEST(PBaseElapsed, EveryForm)
{
    EXPECT_EQ(" <1 ms", PBase::displayElapsedTime(0));
    EXPECT_EQ(" <1 ms", PBase::displayElapsedTime(9));
    EXPECT_EQ("  5 ms", PBase::displayElapsedTime(50));
    EXPECT_EQ(" 50 ms", PBase::displayElapsedTime(500));
    EXPECT_EQ("500 ms", PBase::displayElapsedTime(5000));
    EXPECT_EQ("1.5  sec", PBase::displayElapsedTime(15000));
    EXPECT_EQ("15  sec", PBase::displayElapsedTime(150000));
    EXPECT_EQ("01:05", PBase::displayElapsedTime(650000));
    EXPECT_EQ("01:02:03", PBase::displayElapsedTime(37230000));
    EXPECT_EQ("1 Days,   5 ms", PBase::displayElapsedTime(864000050));
    EXPECT_EQ("2 Days, 01:00:00", PBase::displayElapsedTime(1764000000));
}

TEST(PBaseMemoryDump, EmptyForNoBytesAndSixteenBytesALine)
{
    EXPECT_EQ("", PBase::displayMemory(nullptr, 0));
    unsigned char bytes[17];
    for (int i = 0; i < 17; ++i) {
        bytes[i] = static_cast<unsigned char>(i);
    }
    std::string expected = std::to_string(reinterpret_cast<uintptr_t>(bytes)) +
        " 00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F \n" +
        std::to_string(reinterpret_cast<uintptr_t>(bytes + 16)) + " 10 \n";
    EXPECT_EQ(expected, PBase::displayMemory(bytes, 17));
}

// ---- enum tables ---------------------------------------------------------------------------

template <typename E>
E as(int value)
{
    return static_cast<E>(value);
}

TEST(PBaseTables, FcLinkRate)
{
    const char* texts[] = {"Auto", "2Gb", "4Gb", "8Gb", "10Gb", "16Gb"};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(texts[i], PBase::fcLinkRateToText(as<PBase::FC_LINK_RATE>(i)));
    }
    EXPECT_EQ("Unknown", PBase::fcLinkRateToText(as<PBase::FC_LINK_RATE>(6)));
    EXPECT_EQ("Unknown", PBase::fcLinkRateToText(as<PBase::FC_LINK_RATE>(-1)));
}

TEST(PBaseTables, IscsiLinkRate)
{
    const char* texts[] = {"Unknown", "Auto", "10Mb", "100Mb", "1Gb", "10Gb"};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(texts[i], PBase::iscsiLinkRateToText(as<PBase::ISCSI_LINK_RATE>(i)));
    }
    EXPECT_EQ("Unknown", PBase::iscsiLinkRateToText(as<PBase::ISCSI_LINK_RATE>(6)));
}

TEST(PBaseTables, LinkAndPortStatus)
{
    EXPECT_EQ("LINK_DOWN", PBase::linkStatusToText(PBase::LINK_DOWN));
    EXPECT_EQ("LINK_UP", PBase::linkStatusToText(PBase::LINK_UP));
    EXPECT_EQ("Unknown", PBase::linkStatusToText(as<PBase::LINK_STATUS>(2)));
    EXPECT_EQ("PORT_DISABLED", PBase::portStatusToText(PBase::PORT_DISABLED));
    EXPECT_EQ("PORT_ENABLED", PBase::portStatusToText(PBase::PORT_ENABLED));
    EXPECT_EQ("Unknown", PBase::portStatusToText(as<PBase::PORT_STATUS>(-1)));
}

TEST(PBaseTables, ProtocolType)
{
    EXPECT_EQ("Fibre Channel", PBase::protocolTypeToText(as<PBase::PROTOCOL_TYPE>(1)));
    EXPECT_EQ("iSCSI", PBase::protocolTypeToText(as<PBase::PROTOCOL_TYPE>(2)));
    EXPECT_EQ("Data Migration Fibre Channel", PBase::protocolTypeToText(as<PBase::PROTOCOL_TYPE>(3)));
    EXPECT_EQ("Data Migration iSCSI", PBase::protocolTypeToText(as<PBase::PROTOCOL_TYPE>(4)));
    EXPECT_EQ("Unknown protocol type (uninitialized)", PBase::protocolTypeToText(as<PBase::PROTOCOL_TYPE>(0)));
    EXPECT_EQ("Unknown protocol type (uninitialized)", PBase::protocolTypeToText(as<PBase::PROTOCOL_TYPE>(5)));
}

TEST(PBaseTables, LunAccessType)
{
    EXPECT_EQ("Read-Only", PBase::lunAccessTypeToText(as<PBase::LUN_ACCESS_TYPE>(1)));
    EXPECT_EQ("Read/Write", PBase::lunAccessTypeToText(as<PBase::LUN_ACCESS_TYPE>(2)));
    EXPECT_EQ("Exclusive Read/Write", PBase::lunAccessTypeToText(as<PBase::LUN_ACCESS_TYPE>(3)));
    EXPECT_EQ("Unknown LUN access type (uninitialized)", PBase::lunAccessTypeToText(as<PBase::LUN_ACCESS_TYPE>(0)));
    EXPECT_EQ("Unknown LUN access type (uninitialized)", PBase::lunAccessTypeToText(as<PBase::LUN_ACCESS_TYPE>(4)));
}

TEST(PBaseTables, LunNameType)
{
    const char* texts[] = {"WWULN", "serial number", "T10 designator", "EUI designator", "NAA designator"};
    for (int i = 1; i <= 5; ++i) {
        EXPECT_EQ(texts[i - 1], PBase::lunNameTypeToText(as<PBase::LUN_NAME_TYPE>(i)));
    }
    EXPECT_EQ("??? ", PBase::lunNameTypeToText(as<PBase::LUN_NAME_TYPE>(0)));
    EXPECT_EQ("??? ", PBase::lunNameTypeToText(as<PBase::LUN_NAME_TYPE>(6)));
}

TEST(PBaseTables, SeverityIsSevenWideExceptOther)
{
    const char* texts[] = {"UNKNOWN", "  ERROR", "WARNING", "   INFO", "  TRACE"};
    for (int i = 0; i <= 4; ++i) {
        EXPECT_EQ(texts[i], PBase::severityTypeToText(as<PBase::LOG_ENTRY_SEVERITY_TYPE>(i)));
        EXPECT_EQ(7u, PBase::severityTypeToText(as<PBase::LOG_ENTRY_SEVERITY_TYPE>(i)).size());
    }
    EXPECT_EQ("Unknown", PBase::severityTypeToText(as<PBase::LOG_ENTRY_SEVERITY_TYPE>(5)));
}

TEST(PBaseTables, VpGroupIndex)
{
    const char* texts[] = {"(No VP Group)", "1st VP Group", "2nd VP Group", "3rd VP Group", "4th VP Group"};
    for (int i = 0; i <= 4; ++i) {
        EXPECT_EQ(texts[i], PBase::vpGroupIndexToText(as<PBase::VPGROUP_INDEX>(i)));
    }
    EXPECT_EQ("VP Group unknown", PBase::vpGroupIndexToText(PBase::VPGROUP_UNKNOWN));
}

TEST(PBaseTables, FcZoneStatus)
{
    const char* texts[] = {
        "Zone information is valid in this MFcZoneSet",
        "Link down -- cannot retrieve zone information",
        "Cannot connect to a switch",
        "No active zoneset",
        "No matching zone",
        "Timed out attempting to retrieve zone information from switch",
        "Failed to retrieve zone information from switch",
    };
    for (int i = 1; i <= 7; ++i) {
        EXPECT_EQ(texts[i - 1], PBase::fcZoneStatusToText(as<PBase::FCZONESET_STATUS_TYPE>(i)));
    }
    EXPECT_EQ("FibreChannel zone set status unknown", PBase::fcZoneStatusToText(as<PBase::FCZONESET_STATUS_TYPE>(0)));
    EXPECT_EQ("FibreChannel zone set status unknown", PBase::fcZoneStatusToText(as<PBase::FCZONESET_STATUS_TYPE>(8)));
}

TEST(PBaseTables, OsType)
{
    const char* texts[] = {
        "Unknown OS Type",
        "Microsoft Windows Server 2003",
        "Linux",
        "Linux",
        "HPUX",
        "AIX",
        "NetWare",
        "Sun Solaris",
        "Apple Macintosh",
        "VMWARE",
        "Hewlett-Packard OpenVMS",
        "\"Other\" OS Type",
        "Microsoft Windows Server 2008",
        "Microsoft Windows Server 2012",
    };
    for (int i = 0; i <= 13; ++i) {
        EXPECT_EQ(texts[i], PBase::osTypeToText(as<PBase::OS_TYPE>(i)));
    }
    EXPECT_EQ("Unknown OS Type", PBase::osTypeToText(as<PBase::OS_TYPE>(14)));
}

TEST(PBaseTables, TcpWindowSize)
{
    EXPECT_EQ("TCPWINDOWSIZE_8192", PBase::tcpWindowSizeToText(PBase::TCPWINDOWSIZE_8192));
    EXPECT_EQ("TCPWINDOWSIZE_65536", PBase::tcpWindowSizeToText(PBase::TCPWINDOWSIZE_65536));
    EXPECT_EQ("TCPWINDOWSIZE_16777216", PBase::tcpWindowSizeToText(PBase::TCPWINDOWSIZE_16777216));
    int count = 0;
    for (int32_t size = 8192; size <= 16777216; size *= 2, ++count) {
        EXPECT_EQ("TCPWINDOWSIZE_" + std::to_string(size),
                  PBase::tcpWindowSizeToText(as<PBase::TCPWINDOWSIZE_TYPE>(size)));
    }
    EXPECT_EQ(12, count);
    EXPECT_EQ("4096, (Not a valid value -- must be a power of 2)",
              PBase::tcpWindowSizeToText(as<PBase::TCPWINDOWSIZE_TYPE>(4096)));
    EXPECT_EQ("10000, (Not a valid value -- must be a power of 2)",
              PBase::tcpWindowSizeToText(as<PBase::TCPWINDOWSIZE_TYPE>(10000)));
}

} // namespace
