#include "statistics/KCacheInfoList.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using List = KCacheInfoList;

// Tables are large; keep them off the stack.
std::unique_ptr<List> table(std::initializer_list<std::pair<const char*, long long>> counters)
{
    auto list = std::make_unique<List>();
    for (const auto& [name, value] : counters) {
        KCacheInfo& item = list->items[list->count++];
        strcpy(item.name, name);
        item.kind = 1;
        item.value = value;
    }
    return list;
}

// A name as the callers pass it: the length counts the NUL.
#define NAME(text) text, sizeof(text)

KCacheInfo marked()
{
    KCacheInfo c;
    strcpy(c.name, "untouched");
    c.value = -99;
    return c;
}

} // namespace

TEST(KCacheInfoList, BlankTable)
{
    auto list = std::make_unique<List>();
    EXPECT_EQ(list->count, 0u);
    EXPECT_EQ(list->items[255].kind, 9);
}

TEST(KCacheInfoList, EmptyTableFindsNoNameAndShowsOnlyTheNewline)
{
    auto list = std::make_unique<List>();
    KCacheInfo out = marked();
    EXPECT_FALSE(list->findItem(NAME("UpTime"), out));
    EXPECT_EQ(out.displayTitle(), "untouched");
    EXPECT_EQ(out.value, -99);
    EXPECT_EQ(list->displayTitles(), "");
    EXPECT_EQ(list->displayText(), "\n");
}

TEST(KCacheInfoList, FindsTheExactName)
{
    auto list = table({{"Host Reads IOs", 5}, {"Host Reads IOPs", 6}, {"UpTime", 7}});
    KCacheInfo out;
    ASSERT_TRUE(list->findItem(NAME("Host Reads IOPs"), out));
    EXPECT_EQ(out.value, 6);
    EXPECT_EQ(out.kind, 1);
    ASSERT_TRUE(list->findItem(NAME("UpTime"), out));
    EXPECT_EQ(out.value, 7);
    EXPECT_FALSE(list->findItem(NAME("Host Reads"), out));
    EXPECT_FALSE(list->findItem(NAME("uptime"), out));
}

TEST(KCacheInfoList, LengthWithoutTheNulMatchesALongerNameToo)
{
    auto list = table({{"Host Reads IOPs", 6}, {"Host Reads IOs", 5}});
    KCacheInfo out;
    ASSERT_TRUE(list->findItem("Host Reads IO", 13, out));
    EXPECT_EQ(out.displayTitle(), "Host Reads IOPs");
    ASSERT_TRUE(list->findItem(NAME("Host Reads IOs"), out));
    EXPECT_EQ(out.value, 5);
}

TEST(KCacheInfoList, FirstOfTwoEqualNamesWins)
{
    auto list = table({{"UpTime", 1}, {"UpTime", 2}});
    KCacheInfo out;
    ASSERT_TRUE(list->findItem(NAME("UpTime"), out));
    EXPECT_EQ(out.value, 1);
}

TEST(KCacheInfoList, EntriesBeyondTheCountAreSearchedToo)
{
    auto list = table({{"UpTime", 1}});
    strcpy(list->items[200].name, "Hidden");
    list->items[200].value = 8;
    KCacheInfo out;
    ASSERT_TRUE(list->findItem(NAME("Hidden"), out));
    EXPECT_EQ(out.value, 8);
    EXPECT_EQ(list->displayTitles(), "UpTime    ");
}

TEST(KCacheInfoList, NamesThatCannotBeStoredAreNotFound)
{
    auto list = table({{"UpTime", 1}});
    KCacheInfo out = marked();
    EXPECT_FALSE(list->findItem(nullptr, 7, out));
    std::string longName(40, 'x');
    EXPECT_FALSE(list->findItem(longName.c_str(), longName.size() + 1, out));
    EXPECT_EQ(out.value, -99);
}

TEST(KCacheInfoList, TitlesAndValuesOfTheFilledEntries)
{
    auto list = table({{"UpTime", 100}, {"RL (%)", -1}});
    EXPECT_EQ(list->displayTitles(), "UpTime    RL (%)    ");
    EXPECT_EQ(list->displayText(), "100    18446744073709551615    \n");
}

TEST(KCacheInfoList, CountBeyondTheTableIsBounded)
{
    auto list = table({{"UpTime", 1}});
    list->count = 1000;
    EXPECT_EQ(list->displayText().size(), std::string("1    ").size() + 255 * std::string("0    ").size() + 1);
}

TEST(KCacheInfoList, CopyTakesEntriesAndCount)
{
    auto list = table({{"UpTime", 100}, {"RL (%)", 5}});
    auto copy = std::make_unique<List>(*list);
    EXPECT_EQ(copy->count, 2u);
    EXPECT_EQ(copy->displayTitles(), list->displayTitles());
    EXPECT_EQ(copy->displayText(), list->displayText());
    copy->init();
    EXPECT_EQ(copy->count, 0u);
    EXPECT_EQ(copy->items[0].displayTitle(), "");
}

TEST(KCacheInfoList, EveryOperationOnTwoNames)
{
    auto list = table({{"Cache Pool Used MB", 300}, {"Cache Pool Max MB", 1200}});
    KCacheInfo result;
    std::string error;
    ASSERT_TRUE(
        list->cacheEquation(NAME("Cache Pool Used MB"), List::OP_ADD, NAME("Cache Pool Max MB"), result, error));
    EXPECT_EQ(result.value, 1500);
    EXPECT_EQ(result.displayTitle(), "Cache Pool Used MB");
    ASSERT_TRUE(
        list->cacheEquation(NAME("Cache Pool Used MB"), List::OP_SUBTRACT, NAME("Cache Pool Max MB"), result, error));
    EXPECT_EQ(result.value, -900);
    ASSERT_TRUE(
        list->cacheEquation(NAME("Cache Pool Used MB"), List::OP_MULTIPLY, NAME("Cache Pool Max MB"), result, error));
    EXPECT_EQ(result.value, 360000);
    ASSERT_TRUE(
        list->cacheEquation(NAME("Cache Pool Max MB"), List::OP_DIVIDE, NAME("Cache Pool Used MB"), result, error));
    EXPECT_EQ(result.value, 4);
    EXPECT_EQ(result.displayTitle(), "Cache Pool Max MB");
    ASSERT_TRUE(
        list->cacheEquation(NAME("Cache Pool Used MB"), List::OP_PERCENT, NAME("Cache Pool Max MB"), result, error));
    EXPECT_EQ(result.value, 25);
    EXPECT_EQ(error, "");
}

TEST(KCacheInfoList, PercentAndDivideByZeroGiveZeroAndSucceed)
{
    auto list = table({{"SSD ReadBypassSize", 40}, {"ReadIos Total", 0}});
    KCacheInfo result = marked();
    std::string error;
    EXPECT_TRUE(
        list->cacheEquation(NAME("SSD ReadBypassSize"), List::OP_PERCENT, NAME("ReadIos Total"), result, error));
    EXPECT_EQ(result.value, 0);
    EXPECT_EQ(result.displayTitle(), "SSD ReadBypassSize");
    result = marked();
    EXPECT_TRUE(list->cacheEquation(NAME("SSD ReadBypassSize"), List::OP_DIVIDE, NAME("ReadIos Total"), result, error));
    EXPECT_EQ(result.value, 0);
    EXPECT_TRUE(list->cacheEquation(NAME("SSD ReadBypassSize"), List::OP_PERCENT, 0LL, result, error));
    EXPECT_EQ(result.value, 0);
    EXPECT_EQ(error, "");
}

TEST(KCacheInfoList, PercentProductWraps)
{
    auto list = table({{"a", (1LL << 62)}, {"b", 1}});
    KCacheInfo result;
    std::string error;
    ASSERT_TRUE(list->cacheEquation(NAME("a"), List::OP_PERCENT, NAME("b"), result, error));
    EXPECT_EQ(result.value, static_cast<long long>((1ULL << 62) * 100ULL));
}

TEST(KCacheInfoList, OverloadsWithRecordsAndConstants)
{
    auto list = table({{"UpTime", 100}});
    KCacheInfo given;
    strcpy(given.name, "given");
    given.value = 7;
    KCacheInfo result;
    std::string error;

    ASSERT_TRUE(list->cacheEquation(given, List::OP_MULTIPLY, 6LL, result, error));
    EXPECT_EQ(result.value, 42);
    EXPECT_EQ(result.displayTitle(), "given");
    ASSERT_TRUE(list->cacheEquation(given, List::OP_SUBTRACT, given, result, error));
    EXPECT_EQ(result.value, 0);
    ASSERT_TRUE(list->cacheEquation(given, List::OP_ADD, NAME("UpTime"), result, error));
    EXPECT_EQ(result.value, 107);
    EXPECT_EQ(result.displayTitle(), "given");
    ASSERT_TRUE(list->cacheEquation(NAME("UpTime"), List::OP_SUBTRACT, given, result, error));
    EXPECT_EQ(result.value, 93);
    EXPECT_EQ(result.displayTitle(), "UpTime");
    ASSERT_TRUE(list->cacheEquation(NAME("UpTime"), List::OP_PERCENT, 400LL, result, error));
    EXPECT_EQ(result.value, 25);
    EXPECT_EQ(error, "");
}

TEST(KCacheInfoList, MissingNamesAreReportedByPosition)
{
    auto list = table({{"UpTime", 100}});
    KCacheInfo given;
    KCacheInfo result = marked();
    std::string error;

    EXPECT_FALSE(list->cacheEquation(given, List::OP_ADD, NAME("Nope"), result, error));
    EXPECT_EQ(error, "Item 2 not found.");
    EXPECT_FALSE(list->cacheEquation(NAME("Nope"), List::OP_ADD, given, result, error));
    EXPECT_EQ(error, "Item 2 not found.Item 1 not found.");
    error.clear();
    EXPECT_FALSE(list->cacheEquation(NAME("Nope"), List::OP_ADD, 1LL, result, error));
    EXPECT_EQ(error, "Item 1 not found.");
    error.clear();
    EXPECT_FALSE(list->cacheEquation(NAME("UpTime"), List::OP_ADD, NAME("Nope"), result, error));
    EXPECT_EQ(error, "Item 2 not found.");
    error.clear();
    EXPECT_FALSE(list->cacheEquation(NAME("Nope"), List::OP_ADD, NAME("Nope either"), result, error));
    EXPECT_EQ(error, "Item 1 not found.");
    EXPECT_EQ(result.displayTitle(), "untouched");
    EXPECT_EQ(result.value, -99);
}

TEST(KCacheInfoList, UnknownOperationChangesNothingAndSucceeds)
{
    auto list = table({{"UpTime", 100}});
    KCacheInfo result = marked();
    std::string error;
    EXPECT_TRUE(list->cacheEquation(NAME("UpTime"), static_cast<List::OPERATION_TYPE>(5), 3LL, result, error));
    EXPECT_TRUE(list->cacheEquation(NAME("UpTime"), static_cast<List::OPERATION_TYPE>(-1), 3LL, result, error));
    EXPECT_EQ(result.displayTitle(), "untouched");
    EXPECT_EQ(result.value, -99);
    EXPECT_EQ(error, "");
}

TEST(KCacheInfoList, ThreeTermsWithProductFirst)
{
    auto list = table({{"WW", 100}, {"RO", 10}, {"WO", 4}});
    KCacheInfo result;
    std::string error;
    ASSERT_TRUE(
        list->cacheEquation(NAME("WW"), List::OP_SUBTRACT, NAME("RO"), List::OP_MULTIPLY, NAME("WO"), result, error));
    EXPECT_EQ(result.value, 60);
    EXPECT_EQ(result.displayTitle(), "WW");
    ASSERT_TRUE(list->cacheEquation(NAME("WW"), List::OP_ADD, NAME("RO"), List::OP_DIVIDE, NAME("WO"), result, error));
    EXPECT_EQ(result.value, 102);
}

TEST(KCacheInfoList, ThreeTermsWithOtherSecondOperationUseTheIncomingResult)
{
    auto list = table({{"WW", 100}, {"RO", 10}, {"WO", 4}});
    KCacheInfo result = marked();
    std::string error;
    ASSERT_TRUE(
        list->cacheEquation(NAME("WW"), List::OP_SUBTRACT, NAME("RO"), List::OP_PERCENT, NAME("WO"), result, error));
    EXPECT_EQ(result.value, 100 - -99);
}

TEST(KCacheInfoList, ThreeTermsLeftToRightApplyTheSecondItemTwice)
{
    auto list = table({{"WW", 100}, {"RO", 10}, {"WO", 4}});
    KCacheInfo result;
    std::string error;
    // (WW + RO) + RO: the third item is looked up but not used.
    ASSERT_TRUE(list->cacheEquation(NAME("WW"), List::OP_ADD, NAME("RO"), List::OP_ADD, NAME("WO"), result, error));
    EXPECT_EQ(result.value, 120);
    // (WW * RO) - RO
    ASSERT_TRUE(
        list->cacheEquation(NAME("WW"), List::OP_MULTIPLY, NAME("RO"), List::OP_SUBTRACT, NAME("WO"), result, error));
    EXPECT_EQ(result.value, 990);
    // (WW / RO) / RO
    ASSERT_TRUE(
        list->cacheEquation(NAME("WW"), List::OP_DIVIDE, NAME("RO"), List::OP_DIVIDE, NAME("WO"), result, error));
    EXPECT_EQ(result.value, 1);
}

TEST(KCacheInfoList, ThreeTermsLeftToRightSkipOperationsOutsideTheBasicFour)
{
    auto list = table({{"WW", 100}, {"RO", 10}, {"WO", 4}});
    KCacheInfo result = marked();
    std::string error;
    ASSERT_TRUE(list->cacheEquation(NAME("WW"), List::OP_PERCENT, NAME("RO"), List::OP_ADD, NAME("WO"), result, error));
    EXPECT_EQ(result.value, -99 + 10);
    result = marked();
    ASSERT_TRUE(
        list->cacheEquation(NAME("WW"), List::OP_MULTIPLY, NAME("RO"), List::OP_PERCENT, NAME("WO"), result, error));
    EXPECT_EQ(result.value, 1000);
}

TEST(KCacheInfoList, ThreeTermsReportTheFirstMissingName)
{
    auto list = table({{"WW", 100}, {"RO", 10}});
    KCacheInfo result = marked();
    std::string error;
    EXPECT_FALSE(list->cacheEquation(NAME("WW"), List::OP_ADD, NAME("RO"), List::OP_ADD, NAME("WO"), result, error));
    EXPECT_EQ(error, "Item 3 not found.");
    error.clear();
    EXPECT_FALSE(list->cacheEquation(NAME("WW"), List::OP_ADD, NAME("XX"), List::OP_ADD, NAME("WO"), result, error));
    EXPECT_EQ(error, "Item 2 not found.");
    error.clear();
    EXPECT_FALSE(list->cacheEquation(NAME("XX"), List::OP_ADD, NAME("YY"), List::OP_ADD, NAME("ZZ"), result, error));
    EXPECT_EQ(error, "Item 1 not found.");
    EXPECT_EQ(result.value, -99);
}
