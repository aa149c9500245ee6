// Keyword values read as numbers, sizes, times, switches and identifiers:
// what each accepts, what it refuses and with which words.
#include <gtest/gtest.h>

#include <climits>
#include <ctime>

#include "records/PIpAddress.h"
#include "records/PTime.h"
#include "records/PUniqueID.h"
#include "support/AddressingFixture.h"
#include "support/FakeHbaMgmtApi.h"

using addressing_test::TestCommand;

namespace {

struct NumberResult {
    bool ok;
    int value;
    bool found;
    std::string err;
};

NumberResult readNumber(std::string const& text, int min, int max)
{
    TestCommand command;
    command.give(ModifierId::MODIFIER_MAX_READ, text);
    NumberResult result{false, -7, false, ""};
    result.ok = command.getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_MAX_READ, min, max, result.value,
                                                                result.found, result.err);
    return result;
}

} // namespace

TEST(NumberKeyword, HexadecimalAfterX)
{
    NumberResult const hex = readNumber("0x10", 0, 100);
    EXPECT_TRUE(hex.ok);
    EXPECT_TRUE(hex.found);
    EXPECT_EQ(16, hex.value);
    NumberResult const bare = readNumber("x", 0, 100);
    EXPECT_TRUE(bare.ok);
    EXPECT_EQ(0, bare.value);
}

TEST(NumberKeyword, GroupingSignsAreSkipped)
{
    NumberResult const grouped = readNumber("1,000", 0, 10000);
    EXPECT_TRUE(grouped.ok);
    EXPECT_EQ(1000, grouped.value);
}

TEST(NumberKeyword, DecimalPointIsRefusedAndTheValueCleared)
{
    TestCommand command;
    command.give(ModifierId::MODIFIER_MAX_READ, "1.5");
    int value = 0;
    bool found = false;
    std::string err;
    EXPECT_FALSE(
        command.getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_MAX_READ, 0, 10, value, found, err));
    EXPECT_EQ("-max_read modifier does not allow decimal point.", err);
    EXPECT_EQ("", command.keyword(ModifierId::MODIFIER_MAX_READ).value);
    EXPECT_FALSE(command.keyword(ModifierId::MODIFIER_MAX_READ).isDefault);
}

TEST(NumberKeyword, DecimalReadingStopsAtTheFirstLetter)
{
    EXPECT_EQ(0, readNumber("FF", 0, 100).value);
    EXPECT_EQ(12, readNumber("12AB", 0, 100).value);
}

TEST(NumberKeyword, OnlyTheDigitsPastTheFirst32Count)
{
    NumberResult const longOne = readNumber("123456789012345678901234567890123", 0, 100);
    EXPECT_TRUE(longOne.ok);
    EXPECT_EQ(3, longOne.value);
}

TEST(NumberKeyword, RangeMessages)
{
    NumberResult const open = readNumber("0", 1, INT_MAX);
    EXPECT_FALSE(open.ok);
    EXPECT_EQ("-max_read modifier requires a numeric value 1 or greater", open.err);
    NumberResult const closed = readNumber("300", 1, 255);
    EXPECT_FALSE(closed.ok);
    EXPECT_EQ("-max_read modifier requires a number in the range 1 to 255", closed.err);
    EXPECT_EQ(300, closed.value);
}

TEST(NumberKeyword, HugeValuesFailTheRangeInsteadOfWrapping)
{
    EXPECT_FALSE(readNumber("4294967297", 0, INT_MAX).ok);
    EXPECT_FALSE(readNumber("0x100000001", 0, INT_MAX).ok);
    NumberResult const allOnes = readNumber("0xFFFFFFFF", INT_MIN, INT_MAX);
    EXPECT_TRUE(allOnes.ok);
    EXPECT_EQ(-1, allOnes.value);
}

TEST(NumberKeyword, AbsentKeywordLeavesTheValue)
{
    TestCommand command;
    int value = 42;
    bool found = true;
    std::string err;
    EXPECT_TRUE(
        command.getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_MAX_READ, 0, 10, value, found, err));
    EXPECT_FALSE(found);
    EXPECT_EQ(42, value);
}

TEST(NumberKeyword, KeywordTheCommandLacksIsAFailure)
{
    TestCommand command;
    int value = 0;
    bool found = false;
    std::string err;
    EXPECT_FALSE(
        command.getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_SEVERITY, 0, 10, value, found, err));
    EXPECT_EQ("\"severity\" is not a valid modifier", err);
}

TEST(I64NumberKeyword, WideValuesAndTheRangeMessage)
{
    TestCommand command;
    command.give(ModifierId::MODIFIER_MAX_READ, "123456789012");
    long long value = 0;
    bool found = false;
    std::string err;
    EXPECT_TRUE(command.getI64NumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_MAX_READ, 0, LLONG_MAX, value,
                                                                   found, err));
    EXPECT_EQ(123456789012LL, value);
    EXPECT_FALSE(
        command.getI64NumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_MAX_READ, 0, 1000, value, found, err));
    EXPECT_EQ("-max_read modifier requires a number in the range 0 to 1000", err);
    EXPECT_EQ("", command.keyword(ModifierId::MODIFIER_MAX_READ).value);
}

namespace {

struct SizeResult {
    bool ok;
    unsigned long long bytes;
    std::string err;
};

SizeResult readSize(std::string const& text)
{
    TestCommand command;
    command.give(ModifierId::MODIFIER_SIZE, text);
    SizeResult result{false, 7, ""};
    bool found = false;
    result.ok =
        command.getByteSizeFromCommandLineModifierIfFound(ModifierId::MODIFIER_SIZE, result.bytes, found, result.err);
    return result;
}

} // namespace

TEST(ByteSizeKeyword, BareNumberCountsInGigabytes)
{
    SizeResult const bare = readSize("4");
    EXPECT_TRUE(bare.ok);
    EXPECT_EQ(4ULL << 30, bare.bytes);
}

TEST(ByteSizeKeyword, Units)
{
    EXPECT_EQ(4ULL << 20, readSize("4mb").bytes);
    EXPECT_EQ(4ULL << 10, readSize("4KB").bytes);
    EXPECT_EQ(4ULL << 30, readSize("4GB").bytes);
    EXPECT_EQ(4ULL << 40, readSize("4tb").bytes);
    EXPECT_EQ(4ULL << 50, readSize("4PB").bytes);
    EXPECT_EQ(4ULL << 30, readSize("4 GB").bytes);
}

TEST(ByteSizeKeyword, HexadecimalMarkWithoutDigitsFailsTheRange)
{
    SizeResult const marked = readSize("4x");
    EXPECT_FALSE(marked.ok);
    EXPECT_EQ("-size modifier requires a numeric value 1 or greater", marked.err);
}

TEST(ByteSizeKeyword, ASizeBeyond64BitsIsRefused)
{
    SizeResult const huge = readSize("100000PB");
    EXPECT_FALSE(huge.ok);
    EXPECT_EQ("-size modifier value is too large", huge.err);
}

TEST(ByteSizeKeyword, AbsentKeywordGivesZero)
{
    TestCommand command;
    unsigned long long bytes = 9;
    bool found = true;
    std::string err;
    EXPECT_TRUE(command.getByteSizeFromCommandLineModifierIfFound(ModifierId::MODIFIER_SIZE, bytes, found, err));
    EXPECT_FALSE(found);
    EXPECT_EQ(0ULL, bytes);
}

namespace {

std::string const kTimeMessage = "Enter time in a quoted string \"MM/DD/YYYY HH:MM:SS\", with hour specified 0 to 23";

bool readTime(std::string const& text, PTime& time, std::string& err)
{
    TestCommand command;
    command.give(ModifierId::MODIFIER_TIME, text);
    bool found = false;
    return command.getTimeFromCommandLineModifierIfFound(time, found, err);
}

} // namespace

TEST(TimeKeyword, DayBeyondTheMonthIsNormalised)
{
    PTime time;
    std::string err;
    ASSERT_TRUE(readTime("02/30/2015 12:00:00", time, err)) << err;
    tm local{};
    ASSERT_TRUE(time.getLocalTimeInfo(local));
    EXPECT_EQ(2, local.tm_mon); // March
    EXPECT_EQ(2, local.tm_mday);
    EXPECT_EQ(115, local.tm_year);
    EXPECT_EQ(12, local.tm_hour);
}

TEST(TimeKeyword, FieldsOutOfRange)
{
    for (char const* bad :
         {"13/01/2015 00:00:00", "01/32/2015 00:00:00", "01/01/1969 00:00:00", "01/01/2041 00:00:00",
          "01/01/2015 24:00:00", "01/01/2015 10:60:00", "01/01/2015 10:00:60", "01/01/2015", "tomorrow"}) {
        PTime time;
        std::string err;
        EXPECT_FALSE(readTime(bad, time, err)) << bad;
        EXPECT_EQ(kTimeMessage, err) << bad;
    }
}

TEST(TimeKeyword, OnlyTheTextPast32CharactersIsRead)
{
    PTime time;
    std::string err;
    EXPECT_TRUE(readTime(std::string(32, '#') + "07/04/2020 01:02:03", time, err)) << err;
    EXPECT_FALSE(readTime("07/04/2020 01:02:03" + std::string(20, ' '), time, err));
}

TEST(TimeKeyword, AbsentKeywordMeansNow)
{
    TestCommand command;
    PTime time;
    bool found = true;
    std::string err;
    time_t const before = std::time(nullptr);
    EXPECT_TRUE(command.getTimeFromCommandLineModifierIfFound(time, found, err));
    time_t const after = std::time(nullptr);
    EXPECT_FALSE(found);
    EXPECT_LE(before, time.getPosixTime());
    EXPECT_GE(after, time.getPosixTime());
}

namespace {

bool readEnable(std::string const& text, bool& enable, std::string& err)
{
    TestCommand command;
    command.give(ModifierId::MODIFIER_CACHE, text);
    bool found = false;
    bool const ok = command.getEnableFromCommandLineModifierIfFound(ModifierId::MODIFIER_CACHE, enable, found, err);
    if (!ok) {
        EXPECT_EQ("", command.keyword(ModifierId::MODIFIER_CACHE).value);
    }
    return ok;
}

} // namespace

TEST(EnableKeyword, SixWordsByAbbreviation)
{
    std::string err;
    for (char const* yes : {"yes", "y", "ON", "true", "t"}) {
        bool enable = false;
        EXPECT_TRUE(readEnable(yes, enable, err)) << yes;
        EXPECT_TRUE(enable) << yes;
    }
    for (char const* no : {"no", "n", "off", "of", "False", "f"}) {
        bool enable = true;
        EXPECT_TRUE(readEnable(no, enable, err)) << no;
        EXPECT_FALSE(enable) << no;
    }
}

TEST(EnableKeyword, AmbiguousOrUnknownWordsAreRefused)
{
    bool enable = false;
    std::string err;
    EXPECT_FALSE(readEnable("o", enable, err));
    EXPECT_EQ("Ambiguous selection, please choose \"off\" or \"on\"", err);
    EXPECT_FALSE(readEnable("maybe", enable, err));
    EXPECT_EQ("\"maybe\" is not recognized\n", err);
}

TEST(IpAddressKeyword, TheLibraryReadsTheAddress)
{
    ScopedFakeApi fake;
    TestCommand command;
    command.give(ModifierId::MODIFIER_AGENT, "not-an-address");
    PIpAddress address;
    bool found = false;
    std::string err;
    EXPECT_FALSE(command.getIpAddressFromCommandLineModifierIfFound(ModifierId::MODIFIER_AGENT, address, found, err));
    EXPECT_EQ("\"not-an-address\" is not an address", err);
    EXPECT_EQ("", command.keyword(ModifierId::MODIFIER_AGENT).value);
    command.give(ModifierId::MODIFIER_AGENT, "127.0.10.1");
    EXPECT_TRUE(command.getIpAddressFromCommandLineModifierIfFound(ModifierId::MODIFIER_AGENT, address, found, err));
    EXPECT_TRUE(found);
}

TEST(ClusterIdKeyword, LengthAndEmptiness)
{
    TestCommand command;
    KClusterID id;
    bool found = false;
    std::string err;
    EXPECT_TRUE(command.getClusterIdFromCommandLineModifiers(id, found, err));
    EXPECT_FALSE(found);
    command.give(ModifierId::MODIFIER_CLUSTERID, std::string(17, 'c'));
    EXPECT_FALSE(command.getClusterIdFromCommandLineModifiers(id, found, err));
    EXPECT_EQ("Maximum cluster ID size is 16 bytes", err);
    command.give(ModifierId::MODIFIER_CLUSTERID, "");
    EXPECT_FALSE(command.getClusterIdFromCommandLineModifiers(id, found, err));
    EXPECT_EQ("Please supply text input for -cluster", err);
    command.give(ModifierId::MODIFIER_CLUSTERID, std::string(16, 'c'));
    EXPECT_TRUE(command.getClusterIdFromCommandLineModifiers(id, found, err));
    EXPECT_TRUE(found);
    EXPECT_EQ(std::string(16, 'c'), id.displayText());
}

TEST(DriveKeyword, HexadecimalIsBinaryAndAnythingElseText)
{
    TestCommand command;
    KDriveID id;
    bool found = false;
    std::string err;
    command.give(ModifierId::MODIFIER_DRIVE, "00:11:22");
    EXPECT_TRUE(command.getDriveIdFromCommandLineModifiers(id, found, err));
    EXPECT_TRUE(found);
    KDriveID binary;
    unsigned char bytes[] = {0x00, 0x11, 0x22};
    binary.initDriveID(PBase::WWULN_CODE_SET_BINARY, 3, bytes);
    EXPECT_TRUE(binary == id);

    command.give(ModifierId::MODIFIER_DRIVE, "SSD-7");
    EXPECT_TRUE(command.getDriveIdFromCommandLineModifiers(id, found, err));
    KDriveID text;
    unsigned char name[] = {'S', 'S', 'D', '-', '7'};
    text.initDriveID(PBase::WWULN_CODE_SET_TEXT, 5, name);
    EXPECT_TRUE(text == id);
}

TEST(AsciiIdentifiers, AlwaysTextAndTheResultTellsPresence)
{
    TestCommand command;
    KWwulnLunID wwuln;
    bool found = true;
    std::string err;
    EXPECT_FALSE(command.getAsciiWwulnFromCommandLine(wwuln, found, err));
    EXPECT_FALSE(found);
    command.give(ModifierId::MODIFIER_LUN_WWULN, "0011");
    EXPECT_TRUE(command.getAsciiWwulnFromCommandLine(wwuln, found, err));
    EXPECT_TRUE(found);
    KWwulnLunID expected;
    unsigned char name[] = {'0', '0', '1', '1'};
    expected.initWwulnLunID(PBase::WWULN_CODE_SET_TEXT, 4, name);
    EXPECT_TRUE(expected == wwuln);

    command.give(ModifierId::MODIFIER_DRIVE, "0011");
    KDriveID drive;
    EXPECT_TRUE(command.getAsciiDriveIDFromCommandLine(drive, found, err));
    KWwulnLunID ssd;
    EXPECT_TRUE(command.getAsciiSSDLunIDFromCommandLine(ssd, found, err));
    EXPECT_TRUE(expected == ssd);
}

TEST(TargetKeywords, UnreadableFibreChannelText)
{
    TestCommand command;
    command.give(ModifierId::MODIFIER_FC_TARGET, "xyz");
    PTargetID id;
    bool found = false;
    std::string err;
    EXPECT_FALSE(command.getTargetIdFromCommandLineModifiers(false, id, found, err));
    EXPECT_EQ("xyz\" is not valid text for an FC target", err);
}

TEST(TargetKeywords, OnlyOneOfThePair)
{
    TestCommand command;
    command.give(ModifierId::MODIFIER_FC_TARGET, "50:00:00:00:00:00:00:01");
    command.give(ModifierId::MODIFIER_IS_TARGET, "iqn.2020-01.com.sim:disk");
    PTargetID id;
    bool found = false;
    std::string err;
    EXPECT_FALSE(command.getTargetIdFromCommandLineModifiers(false, id, found, err));
    EXPECT_EQ("Only one of -is_target or -fc_target can be used", err);
    command.give(ModifierId::MODIFIER_DMDEST_FC_TARGET, "50:00:00:00:00:00:00:01");
    command.give(ModifierId::MODIFIER_DMDEST_IS_TARGET, "");
    EXPECT_FALSE(command.getTargetIdFromCommandLineModifiers(true, id, found, err));
    EXPECT_EQ("Only one of -dmdest_is_target or -dmdest_fc_target can be used", err);
}

TEST(TargetKeywords, GivenFibreChannelTargetIsAlwaysEightBytes)
{
    TestCommand command;
    command.give(ModifierId::MODIFIER_FC_TARGET, "50:00:00:00:00:00:00:01");
    PTargetID id;
    bool found = false;
    std::string err;
    EXPECT_TRUE(command.getTargetIdFromCommandLineModifiers(false, id, found, err));
    EXPECT_TRUE(found);
    PTargetID expected;
    unsigned char wwpn[] = {0x50, 0, 0, 0, 0, 0, 0, 1};
    expected.initFcTargetID(wwpn, 8);
    EXPECT_TRUE(expected == id);
}

TEST(TargetKeywords, AnEmptyIscsiNameIsNoTarget)
{
    TestCommand command;
    command.give(ModifierId::MODIFIER_DMDEST_IS_TARGET, "");
    PTargetID id;
    bool found = false;
    std::string err;
    EXPECT_FALSE(command.getTargetIdFromCommandLineModifiers(true, id, found, err));
    EXPECT_EQ("Please specify -dmdest_is_target or -dmdest_fc_target", err);
}

TEST(TargetKeywords, NeitherGivenChoosesTheRememberedIscsiName)
{
    TestCommand command;
    command.remember(ModifierId::MODIFIER_IS_TARGET, "iqn.2020-01.com.sim:disk");
    PTargetID id;
    bool found = true;
    std::string err;
    EXPECT_TRUE(command.getTargetIdFromCommandLineModifiers(false, id, found, err));
    EXPECT_FALSE(found);
    EXPECT_TRUE(id.isIscsiTargetId());
    EXPECT_EQ("iqn.2020-01.com.sim:disk", id.displayText());
}

TEST(DeviceKeywords, UnreadableFibreChannelTextLeavesNoDevice)
{
    TestCommand command;
    command.give(ModifierId::MODIFIER_FC_DEVICE, "xyz");
    KDeviceID id;
    bool found = false;
    std::string err;
    EXPECT_FALSE(command.getDeviceIdFromCommandLineModifiers(id, found, err));
    EXPECT_EQ("Please specify -is_device or -fc_device", err);
    command.give(ModifierId::MODIFIER_IS_DEVICE, "iqn.x");
    EXPECT_FALSE(command.getDeviceIdFromCommandLineModifiers(id, found, err));
    EXPECT_EQ("Only one of -is_device or -fc_device can be used", err);
}

TEST(DeviceKeywords, NeitherGivenChoosesTheRememberedFibreChannelName)
{
    TestCommand command;
    command.remember(ModifierId::MODIFIER_FC_DEVICE, "21:00:00:00:00:00:00:09");
    KDeviceID id;
    bool found = true;
    std::string err;
    EXPECT_TRUE(command.getDeviceIdFromCommandLineModifiers(id, found, err));
    EXPECT_FALSE(found);
    EXPECT_TRUE(id.isFcDeviceId());
}

TEST(InitiatorKeywords, IscsiNameAndMessages)
{
    TestCommand command;
    command.give(ModifierId::MODIFIER_IS_INITIATOR, "iqn.2020-01.com.sim:host");
    PInitiatorID id;
    bool found = false;
    std::string err;
    EXPECT_TRUE(command.getInitiatorIdFromCommandLineModifiers(id, found, err));
    EXPECT_TRUE(found);
    EXPECT_TRUE(id.isIscsiInitiatorId());
    command.give(ModifierId::MODIFIER_FC_INITIATOR, "21:00:00:00:00:00:00:09");
    EXPECT_FALSE(command.getInitiatorIdFromCommandLineModifiers(id, found, err));
    EXPECT_EQ("Only one of -is_initiator or -fc_initiator can be used", err);
    command.give(ModifierId::MODIFIER_IS_INITIATOR, "");
    command.keyword(ModifierId::MODIFIER_IS_INITIATOR).isDefault = true;
    command.give(ModifierId::MODIFIER_FC_INITIATOR, "bad");
    EXPECT_FALSE(command.getInitiatorIdFromCommandLineModifiers(id, found, err));
    EXPECT_EQ("Please specify -is_initiator or -fc_initiator", err);
}
