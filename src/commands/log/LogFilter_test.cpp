// Which records "list log" prints, and how many of the newest.
#include "commands/log/LogFilter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "records/KLogEntry.h"
#include "support/VectorLogView.h"

namespace {

using Printed = std::vector<std::string>;

// Severities of records 0 to 5; record 2 is of unknown severity.
std::vector<int> const kSeverities = {5, 3, 0, 1, 5, 2};

Printed print(LogFilter const& filter, long long limit)
{
    VectorLogView view(kSeverities);
    Printed printed;
    KLogEntry newest;
    EXPECT_TRUE(view.getLastEntry(newest));
    EXPECT_TRUE(filter.printNewest(view, newest, limit, [&](std::string const& text) {
        size_t const at = text.find("record ");
        printed.push_back(text.substr(at + 7, text.find('\n') - at - 7));
        return true;
    }));
    return printed;
}

} // namespace

TEST(LogFilter, WithoutALimitEveryRecordIsPrintedOldestFirst)
{
    EXPECT_EQ(print(LogFilter(), 6), (Printed{"0", "1", "2", "3", "4", "5"}));
}

TEST(LogFilter, ALimitKeepsThatManyAndOneMoreOfTheNewest)
{
    EXPECT_EQ(print(LogFilter(), 0), (Printed{"5"}));
    EXPECT_EQ(print(LogFilter(), 1), (Printed{"4", "5"}));
    EXPECT_EQ(print(LogFilter(), -1), (Printed{"5"})) << "-previous=0 prints one as well";
    EXPECT_EQ(print(LogFilter(), 5), (Printed{"0", "1", "2", "3", "4", "5"}));
    EXPECT_EQ(print(LogFilter(), 100), (Printed{"0", "1", "2", "3", "4", "5"}));
}

TEST(LogFilter, SeverityTakesThatOneAndWorseWithUnknownWorstOfAll)
{
    LogFilter fatal;
    fatal.matchSeverity(KLogEntry::RAW_SEVERITY_FATAL);
    EXPECT_EQ(print(fatal, 6), (Printed{"2", "3"}));
    LogFilter error;
    error.matchSeverity(KLogEntry::RAW_SEVERITY_ERROR);
    EXPECT_EQ(print(error, 6), (Printed{"2", "3", "5"}));
    EXPECT_EQ(print(error, 1), (Printed{"3", "5"}));
    EXPECT_EQ(print(error, 0), (Printed{"5"}));
}

TEST(LogFilter, TextWinsOverSeverity)
{
    LogFilter both;
    both.matchSeverity(KLogEntry::RAW_SEVERITY_FATAL);
    both.matchText("record 4");
    EXPECT_EQ(print(both, 6), (Printed{"4"}));
    LogFilter textFirst;
    textFirst.matchText("record 1");
    textFirst.matchSeverity(KLogEntry::RAW_SEVERITY_UNKNOWN);
    EXPECT_EQ(print(textFirst, 6), (Printed{"1"}));
}

TEST(LogFilter, TextIsCaseSensitive)
{
    LogFilter upper;
    upper.matchText("Record");
    EXPECT_TRUE(print(upper, 6).empty());
}

TEST(LogFilter, NoMatchPrintsNothing)
{
    LogFilter none;
    none.matchText("absent");
    EXPECT_TRUE(print(none, 0).empty());
}

TEST(LogFilter, AFailedWriteStopsTheWalkForwards)
{
    VectorLogView view(kSeverities);
    KLogEntry newest;
    ASSERT_TRUE(view.getLastEntry(newest));
    int writes = 0;
    EXPECT_FALSE(LogFilter().printNewest(view, newest, 6, [&](std::string const&) { return ++writes < 2; }));
    EXPECT_EQ(writes, 2);
    EXPECT_EQ(view.moves, 6 + 1) << "six steps back, the last of which finds the oldest record, and one forward "
                                    "before the write that fails";
}
