#include "statistics/KCacheInfo.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

KCacheInfo counter(const char* name, long long value, int32_t kind = 3)
{
    KCacheInfo c;
    strcpy(c.name, name);
    c.kind = kind;
    c.value = value;
    return c;
}

std::string withUnit(long long value)
{
    return counter("x", value).displayTextWithUnit();
}

} // namespace

TEST(KCacheInfo, BlankRecord)
{
    KCacheInfo c;
    EXPECT_EQ(c.displayTitle(), "");
    EXPECT_EQ(c.kind, 9);
    EXPECT_EQ(c.value, 0);
    EXPECT_EQ(c.displayText(), "0");
    for (char byte : c.name)
        EXPECT_EQ(byte, '\0');
}

TEST(KCacheInfo, AssignmentCopiesNameKindAndValue)
{
    KCacheInfo a = counter("Host Reads IOs", 42, 1);
    KCacheInfo b;
    b = a;
    EXPECT_EQ(b.displayTitle(), "Host Reads IOs");
    EXPECT_EQ(b.kind, 1);
    EXPECT_EQ(b.value, 42);
}

TEST(KCacheInfo, AssigningARecordToItselfClearsIt)
{
    KCacheInfo a = counter("UpTime", 42, 1);
    KCacheInfo& same = a;
    a = same;
    EXPECT_EQ(a.displayTitle(), "");
    EXPECT_EQ(a.kind, 9);
    EXPECT_EQ(a.value, 0);
}

TEST(KCacheInfo, TextsShowNameAndSignedValue)
{
    KCacheInfo c = counter("Cache Pool Used MB", -17);
    EXPECT_EQ(c.displayTitle(), "Cache Pool Used MB");
    EXPECT_EQ(c.displayText(), "-17");
}

TEST(KCacheInfo, NameOfFullWidthWithoutNulStopsAtTheField)
{
    KCacheInfo c;
    memset(c.name, 'n', sizeof c.name);
    EXPECT_EQ(c.displayTitle(), std::string(33, 'n'));
}

TEST(KCacheInfo, OperatorsKeepTheLeftName)
{
    KCacheInfo a = counter("Host Data Read MB", 10, 4);
    KCacheInfo b = counter("Other", 3, 5);
    KCacheInfo sum = a + b;
    EXPECT_EQ(sum.displayTitle(), "Host Data Read MB");
    EXPECT_EQ(sum.kind, 4);
    EXPECT_EQ(sum.value, 13);
    EXPECT_EQ((a - b).value, 7);
    EXPECT_EQ((a * b).value, 30);
    EXPECT_EQ((a / b).value, 3);
    EXPECT_EQ((a + 5LL).value, 15);
    EXPECT_EQ((a - 15LL).value, -5);
    EXPECT_EQ((a * -2LL).value, -20);
    EXPECT_EQ((a / 4LL).value, 2);
    EXPECT_EQ((b / a).displayTitle(), "Other");
    EXPECT_EQ(a.value, 10); // operands stay as they are
}

TEST(KCacheInfo, DivisionTruncatesTowardZero)
{
    EXPECT_EQ((counter("a", -7) / 2LL).value, -3);
    EXPECT_EQ((counter("a", 7) / -2LL).value, -3);
}

TEST(KCacheInfo, ArithmeticWrapsAt64Bits)
{
    EXPECT_EQ((counter("a", LLONG_MAX) + 1LL).value, LLONG_MIN);
    EXPECT_EQ((counter("a", LLONG_MIN) - 1LL).value, LLONG_MAX);
    EXPECT_EQ((counter("a", 1LL << 62) * 4LL).value, 0);
    EXPECT_EQ((counter("a", LLONG_MIN) / -1LL).value, LLONG_MIN);
}

TEST(KCacheInfo, CompoundOperatorsChangeTheValueInPlace)
{
    KCacheInfo a = counter("a", 10);
    KCacheInfo b = counter("b", 4);
    a += b;
    EXPECT_EQ(a.value, 14);
    a -= b;
    EXPECT_EQ(a.value, 10);
    a *= b;
    EXPECT_EQ(a.value, 40);
    a /= b;
    EXPECT_EQ(a.value, 10);
    EXPECT_EQ(a.displayTitle(), "a");
}

TEST(KCacheInfo, DivideAssignByZeroKeepsTheValueButDivideGivesZero)
{
    KCacheInfo a = counter("a", 10);
    KCacheInfo zero = counter("z", 0);
    a /= zero;
    EXPECT_EQ(a.value, 10);
    EXPECT_EQ((a / zero).value, 0);
    EXPECT_EQ((a / 0LL).value, 0);
    EXPECT_EQ((a / 0LL).displayTitle(), "a");
}

TEST(KCacheInfo, UnitTextOfGigabytes)
{
    EXPECT_EQ(withUnit(2147483648LL), "2GB");
    EXPECT_EQ(withUnit(2255486976LL), "2.10GB"); // 2 GiB and 103 MiB
    EXPECT_EQ(withUnit(2254438400LL), "2GB");    // 2 GiB and 102 MiB
}

TEST(KCacheInfo, UnitTextOfSmallAndMegabyteValues)
{
    EXPECT_EQ(withUnit(1048576), "1MB");
    EXPECT_EQ(withUnit(1023), "1023");
    EXPECT_EQ(withUnit(0), "0");
    EXPECT_EQ(withUnit(1024), "1KB");
    EXPECT_EQ(withUnit(1127), "1.10KB");
    EXPECT_EQ(withUnit(3LL << 40), "3TB");
}

TEST(KCacheInfo, UnitTextRoundsToTheKilobyteAboveOneMegabyte)
{
    // 1 MiB and 102.5 KiB becomes 1 MiB and 103 KiB once rounded.
    EXPECT_EQ(withUnit(1048576 + 102 * 1024 + 512), "1.10MB");
    // Below the threshold nothing is added.
    EXPECT_EQ(withUnit(1024 + 102), "1KB");
}

TEST(KCacheInfo, UnitTextOfANegativeValueIsItsSignedRemainder)
{
    EXPECT_EQ(withUnit(-5), "-5");
    EXPECT_EQ(withUnit(-1025), "-1");
    EXPECT_EQ(withUnit(-(3LL << 20)), "0");
    EXPECT_EQ(withUnit(LLONG_MIN), "0");
}
