#include "records/PTime.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <ctime>
#include <string>

namespace {

// 2023-11-14 22:13:20 UTC, a Tuesday in November (month index 10).
constexpr long kTuesdayInNovember = 1700000000;

// Sets the time zone for one test and puts the old one back.
class TimeZone {
public:
    explicit TimeZone(const char* zone)
    {
        const char* old = getenv("TZ");
        hadOld = old != nullptr;
        if (hadOld) {
            oldZone = old;
        }
        setenv("TZ", zone, 1);
        tzset();
    }
    ~TimeZone()
    {
        if (hadOld) {
            setenv("TZ", oldZone.c_str(), 1);
        } else {
            unsetenv("TZ");
        }
        tzset();
    }

private:
    bool hadOld = false;
    std::string oldZone;
};

PTime at(long seconds)
{
    PTime time;
    time.initFromPosixTime(seconds);
    return time;
}

PTime unbreakable()
{
    PTime time;
    time.initFromPosixTime(LONG_MAX);
    return time;
}

TEST(PTime, EpochInUtcShowsTheFirstOfJanuary1970)
{
    TimeZone utc("UTC");
    EXPECT_EQ("01/01/1970 00:00:00", at(0).displayText());
    EXPECT_EQ("01/01/1970 00:00:00", at(0).displayGmt());
    EXPECT_EQ("01/01/1970", at(0).displayLocalDate());
    EXPECT_EQ("00:00:00", at(0).displayLocalTime());
    EXPECT_EQ("Thu Jan  1 00:00:00 1970", at(0).displayLocal());
}

TEST(PTime, GmtAndLocalTexts)
{
    TimeZone fixed("EST5");
    PTime time = at(kTuesdayInNovember);
    EXPECT_EQ("11/14/2023 22:13:20", time.displayGmt());
    EXPECT_EQ("11/14/2023", time.displayGmtDate());
    EXPECT_EQ("22:13:20", time.displayGmtTime());
    EXPECT_EQ("17:13:20", time.displayLocalTime());
    EXPECT_EQ("11/14/2023", time.displayLocalDate());
    EXPECT_EQ("Tue Nov 14 17:13:20 2023", time.displayLocal());
    EXPECT_EQ("    Router GMT time: 11/14/2023 22:13:20\n         Local Time: 17:13:20\n",
              time.displayTextGmtAndLocal());
}

TEST(PTime, MonthIntervalIsTrueWhenAtLeastFirstOrAtMostLast)
{
    PTime november = at(kTuesdayInNovember);
    EXPECT_TRUE(november.isInsideGmtMonthOfYearInterval(3, 5));
    EXPECT_TRUE(november.isInsideGmtMonthOfYearInterval(11, 10));
    EXPECT_FALSE(november.isInsideGmtMonthOfYearInterval(11, 5));
}

TEST(PTime, DayOfWeekInterval)
{
    PTime tuesday = at(kTuesdayInNovember);
    EXPECT_TRUE(tuesday.isInsideGmtDayOfWeekInterval(2, 1));
    EXPECT_TRUE(tuesday.isInsideGmtDayOfWeekInterval(5, 2));
    EXPECT_FALSE(tuesday.isInsideGmtDayOfWeekInterval(3, 1));
}

TEST(PTime, TimeOfDayIntervalNeedsBothBounds)
{
    PTime time = at(kTuesdayInNovember); // 22:13
    EXPECT_TRUE(time.isInsideGmtTimeOfDayInterval(22, 0, 23, 0));
    EXPECT_TRUE(time.isInsideGmtTimeOfDayInterval(8, 0, 22, 13));
    EXPECT_TRUE(time.isInsideGmtTimeOfDayInterval(22, 13, 22, 13));
    EXPECT_FALSE(time.isInsideGmtTimeOfDayInterval(22, 14, 23, 0));
    EXPECT_FALSE(time.isInsideGmtTimeOfDayInterval(8, 0, 22, 12));
}

TEST(PTime, LocalIntervalsUseTheLocalClock)
{
    TimeZone fixed("EST5");
    PTime time = at(kTuesdayInNovember); // 17:13 local
    EXPECT_TRUE(time.isInsideLocalTimeOfDayInterval(17, 0, 18, 0));
    EXPECT_FALSE(time.isInsideGmtTimeOfDayInterval(17, 0, 18, 0));
    EXPECT_TRUE(time.isInsideLocalDayOfWeekInterval(2, 2));
    EXPECT_TRUE(time.isInsideLocalMonthOfYearInterval(10, 0));
}

TEST(PTime, TimeThatCannotBeBrokenDownShowsStars)
{
    PTime time = unbreakable();
    tm info;
    EXPECT_FALSE(time.getGmtTimeInfo(info));
    EXPECT_FALSE(time.getLocalTimeInfo(info));
    EXPECT_EQ("**/**/**** **:**:**", time.displayGmt());
    EXPECT_EQ("**/**/**** **:**:**", time.displayText());
    EXPECT_EQ("**/**/**** **:**:**", time.displayLocal());
    EXPECT_EQ("**:**:**", time.displayGmtTime());
    EXPECT_EQ("**:**:**", time.displayLocalTime());
    EXPECT_EQ("**/**/****", time.displayGmtDate());
    EXPECT_EQ("**/**/****", time.displayLocalDate());
    EXPECT_FALSE(time.isInsideGmtMonthOfYearInterval(0, 11));
    EXPECT_FALSE(time.isInsideGmtDayOfWeekInterval(0, 6));
    EXPECT_FALSE(time.isInsideGmtTimeOfDayInterval(0, 0, 23, 59));
}

TEST(PTime, FromBrokenDownTimes)
{
    TimeZone fixed("EST5");
    tm info{};
    info.tm_year = 123;
    info.tm_mon = 10;
    info.tm_mday = 14;
    info.tm_hour = 22;
    info.tm_min = 13;
    info.tm_sec = 20;
    PTime gmt;
    gmt.initFromGmtTimeStruct(&info);
    EXPECT_EQ(kTuesdayInNovember, gmt.getPosixTime());
    tm local = info;
    local.tm_hour = 17;
    local.tm_isdst = 0;
    PTime fromLocal;
    fromLocal.initFromLocalTimeStruct(&local);
    EXPECT_EQ(kTuesdayInNovember, fromLocal.getPosixTime());
}

TEST(PTime, ComparesAsSignedSeconds)
{
    PTime before = at(-5);
    PTime after = at(5);
    EXPECT_TRUE(before < after);
    EXPECT_TRUE(after > before);
    EXPECT_TRUE(before <= at(-5));
    EXPECT_TRUE(after >= at(5));
    EXPECT_TRUE(before == at(-5));
    EXPECT_TRUE(before != after);
    EXPECT_FALSE(after < before);
}

TEST(PTime, NothingIsSavedAndCopiesKeepTheTime)
{
    PTime time = at(42);
    EXPECT_EQ(0u, time.getSerialOffset());
    PTime copy(time);
    EXPECT_EQ(42, copy.getPosixTime());
    PTime now;
    now.initFromLocalTime();
    EXPECT_GT(now.getPosixTime(), kTuesdayInNovember);
    copy.init();
    EXPECT_EQ(0, copy.getPosixTime());
}

} // namespace
