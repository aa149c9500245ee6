#include "model/AdapterLog.h"

#include <gtest/gtest.h>

using namespace sim;

TEST(AdapterLog, AppendsKeepTheNewestTwoThousand)
{
    Adapter a;
    appendLogRecords(a, 100, 3, "first", "oldest", 1);
    appendLogRecords(a, 200, 5, "bulk", "filler", 1999);
    ASSERT_EQ(a.log.size(), 2000u);
    EXPECT_EQ(a.log.front().message, "oldest");
    appendLogRecords(a, 300, 1, "last", "newest");
    ASSERT_EQ(a.log.size(), 2000u);
    EXPECT_EQ(a.log.front().message, "filler");
    EXPECT_EQ(a.log.back().message, "newest");
    EXPECT_EQ(a.log.back().time, 300);
    EXPECT_EQ(a.log.back().severity, 1);
    appendLogRecords(a, 400, 2, "many", "more than kept", 1000000);
    ASSERT_EQ(a.log.size(), 2000u);
    EXPECT_EQ(a.log.front().message, "more than kept");
}

TEST(AdapterLog, ALogFromAScenarioIsNotCutUntilTheNextAppend)
{
    Adapter a;
    a.log.resize(5000);
    keepNewestLogRecords(a);
    EXPECT_EQ(a.log.size(), 2000u);
}

TEST(AdapterLog, SeveritiesByWordOrNumber)
{
    int severity = -1;
    EXPECT_TRUE(severityFromText("unknown", severity));
    EXPECT_EQ(severity, 0);
    EXPECT_TRUE(severityFromText("system", severity));
    EXPECT_EQ(severity, 7);
    EXPECT_TRUE(severityFromText("99", severity));
    EXPECT_EQ(severity, 99);
    EXPECT_TRUE(severityFromText("-2147483648", severity));
    EXPECT_EQ(severity, -2147483648LL);
    for (const char* bad : {"", "Fatal", "err", "2147483648", "3x"})
        EXPECT_FALSE(severityFromText(bad, severity)) << bad;
}

TEST(AdapterLog, GeneratedLogsReplaceEveryAdapters)
{
    San san;
    san.adapters.resize(2);
    replaceLogs(san, 1000000, 5000);
    EXPECT_EQ(san.adapters[0].log.size(), 5000u);
    EXPECT_EQ(san.adapters[1].log.back().time, 1000000 - 1800);
}
