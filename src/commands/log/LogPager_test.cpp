// The paging of "view log" over a log of five records: what each page shows,
// where it leaves the position, and that the walk goes by neighbours only.
#include "commands/log/LogPager.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "support/VectorLogView.h"

namespace {

// A pager over five records that writes what it shows into `shown`, the
// records by their index and the marks as they are.
struct Paging {
    VectorLogView view{{5, 3, 0, 1, 5}};
    std::vector<std::string> shown;
    int writesBeforeFailure = -1; // -1: the output never fails
    LogPager pager{view, 5, [this](std::string const& text) { return write(text); }};

    bool write(std::string const& text)
    {
        if (writesBeforeFailure == 0)
            return false;
        if (writesBeforeFailure > 0)
            --writesBeforeFailure;
        std::string const lead = "\n\n";
        std::string body = text.compare(0, lead.size(), lead) == 0 ? text.substr(lead.size()) : text;
        size_t const at = body.find("record ");
        shown.push_back(at == std::string::npos ? body : body.substr(at + 7, body.find('\n') - at - 7));
        return true;
    }
};

using Shown = std::vector<std::string>;

// What one page from `start` shows, and where it leaves the position.
struct Paged {
    Shown shown;
    long long position;
};

Paged page(long long start, bool backward, long long length)
{
    Paging p;
    EXPECT_TRUE(p.pager.startAt(start));
    EXPECT_TRUE(backward ? p.pager.backward(length) : p.pager.forward(length));
    return {p.shown, p.pager.position()};
}

Paged back(long long start, long long previous)
{
    return page(start, true, previous);
}

Paged ahead(long long start, long long next)
{
    return page(start, false, next);
}

} // namespace

TEST(LogPager, BackwardShowsTheRecordsBeforeThePositionOldestFirst)
{
    Paged const paged = back(4, 2);
    EXPECT_EQ(paged.shown, (Shown{"2", "3"}));
    EXPECT_EQ(paged.position, 2);
}

TEST(LogPager, BackwardStopsAtTheOldestRecord)
{
    Paged const paged = back(4, 19);
    EXPECT_EQ(paged.shown, (Shown{"0", "1", "2", "3"}));
    EXPECT_EQ(paged.position, 0);
}

TEST(LogPager, OneLookUpByIndexAndEveryOtherMoveByNeighbour)
{
    Paging p;
    ASSERT_TRUE(p.pager.startAt(4));
    EXPECT_TRUE(p.pager.backward(19));
    EXPECT_EQ(p.view.lookups, 1);
}

TEST(LogPager, BackwardByNothingOrFromTheOldestShowsNothingAndKeepsThePosition)
{
    for (long long previous : {0LL, -1LL}) {
        Paged const paged = back(3, previous);
        EXPECT_TRUE(paged.shown.empty());
        EXPECT_EQ(paged.position, 3);
    }
    Paged const fromOldest = back(0, 5);
    EXPECT_TRUE(fromOldest.shown.empty());
    EXPECT_EQ(fromOldest.position, 0);
}

TEST(LogPager, ForwardShowsFromThePositionAndEndsOnePastTheLastShown)
{
    Paged const paged = ahead(1, 2);
    EXPECT_EQ(paged.shown, (Shown{"1", "2"}));
    EXPECT_EQ(paged.position, 3);
}

TEST(LogPager, ForwardToTheNewestSaysEndOfLogAndStaysThere)
{
    Paged const paged = ahead(3, INT_MAX);
    EXPECT_EQ(paged.shown, (Shown{"3", "4", "End_of_Log\n\n"}));
    EXPECT_EQ(paged.position, 4);
}

TEST(LogPager, ForwardByNothingShowsNothing)
{
    Paged const paged = ahead(2, 0);
    EXPECT_TRUE(paged.shown.empty());
    EXPECT_EQ(paged.position, 2);
}

TEST(LogPager, ARecordMovedBackByASearchPagesFromThereAndSaysStartOfLog)
{
    Paging p;
    ASSERT_TRUE(p.pager.startAt(4));
    ASSERT_TRUE(p.view.getEntryAt(1, p.pager.current)); // as a search that found record 1
    EXPECT_TRUE(p.pager.backward(3));
    EXPECT_EQ(p.shown, (Shown{"Start_of_Log\n\n", "0", "1", "2"}));
    EXPECT_EQ(p.pager.position(), 3) << "only the step that was taken counts";
}

TEST(LogPager, ThereIsNoRecordAtAPositionOutsideTheLog)
{
    for (long long position : {-1LL, 5LL, static_cast<long long>(INT_MAX) + 1}) {
        Paging p;
        EXPECT_FALSE(p.pager.startAt(position)) << position;
    }
}

TEST(LogPager, AFailedWriteStopsTheWalk)
{
    Paging p;
    p.writesBeforeFailure = 1;
    ASSERT_TRUE(p.pager.startAt(4));
    EXPECT_FALSE(p.pager.backward(4));
    EXPECT_EQ(p.shown, (Shown{"0"}));
    EXPECT_EQ(p.view.moves, 4 + 1) << "four steps back, one forward, and none after the write that fails";

    Paging q;
    q.writesBeforeFailure = 0;
    ASSERT_TRUE(q.pager.startAt(0));
    EXPECT_FALSE(q.pager.forward(5));
    EXPECT_EQ(q.view.moves, 0);
}

TEST(LogPagerLengths, APlainRunPagesBackTheRememberedLengthLessOne)
{
    EXPECT_EQ(rememberedPageLength("20"), 19);
    EXPECT_EQ(rememberedPageLength("5"), 4);
    EXPECT_EQ(rememberedPageLength("1"), 20) << "0 is read as the usual length";
    EXPECT_EQ(rememberedPageLength(""), 20);
    EXPECT_EQ(rememberedPageLength("0"), -1);
    EXPECT_EQ(rememberedPageLength("garbage"), -1);
}

TEST(LogPagerLengths, LeadingNumberReadsAsAtoiDoesWithoutOverflow)
{
    EXPECT_EQ(leadingNumber("42"), 42);
    EXPECT_EQ(leadingNumber("  17abc"), 17);
    EXPECT_EQ(leadingNumber("-3"), -3);
    EXPECT_EQ(leadingNumber("+8"), 8);
    EXPECT_EQ(leadingNumber("abc"), 0);
    EXPECT_EQ(leadingNumber(""), 0);
    EXPECT_EQ(leadingNumber("2147483647"), INT_MAX);
    EXPECT_EQ(leadingNumber("2147483648"), INT_MAX);
    EXPECT_EQ(leadingNumber("99999999999999999999999999"), INT_MAX);
    EXPECT_EQ(leadingNumber("-2147483648"), INT_MIN);
    EXPECT_EQ(leadingNumber("-99999999999999999999999999"), INT_MIN);
}
