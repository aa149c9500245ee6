#include "model/PinnedStatistics.h"

#include "model/Scenario.h"
#include "model/View.h"
#include "model/Workload.h"

#include <gtest/gtest.h>

using namespace sim;

namespace {

constexpr long long kCleared = 1795000000;

// A scenario of one adapter and one LUN; `adapter` and `lun` are the JSON of
// their pinned statistics fields (empty: none).
std::string scenario(const std::string& adapter, const std::string& lun = "")
{
    std::string text = R"({"format": "hbasim-scenario", "version": 1, "hosts": [{"agent": ""}],
        "targets": [{"name": "t"}],
        "adapters": [{"id": "A0", "device": 0, "statsClearedAt": 1795000000)";
    if (!adapter.empty())
        text += ", \"fixedStatistics\": " + adapter;
    text += R"(}], "luns": [{"wwuln": "0A", "paths": [{"target": "t"}], "statsClearedAt": 1795000000)";
    if (!lun.empty())
        text += ", \"fixedIoStatistics\": " + lun;
    return text + "}]}";
}

San read(const std::string& text)
{
    San san;
    std::string error;
    EXPECT_TRUE(scenarioFromText(text, "f", san, error)) << error;
    return san;
}

std::string refusal(const std::string& text)
{
    San san;
    std::string error;
    EXPECT_FALSE(scenarioFromText(text, "f", san, error));
    return error;
}

} // namespace

TEST(PinnedStatisticsTest, AFigureGrowsFromItsValueByItsPace)
{
    PinnedFigure figure{100, 3};
    EXPECT_EQ(figure.at(0), 100);
    EXPECT_EQ(figure.at(10), 130);
    EXPECT_EQ((PinnedFigure{-1, 0}.at(99)), -1);
    // Past 64 bits the counter wraps as the adapter's does.
    EXPECT_EQ((PinnedFigure{0x7FFFFFFFFFFFFFFFll, 1}.at(1)), static_cast<long long>(0x8000000000000000ull));
}

TEST(PinnedStatisticsTest, CountersComeBackInTheirOrderWithDuplicates)
{
    San san = read(scenario(R"({"counters": [["UpTime", 60, 1], ["Host Reads IOs", 5], ["UpTime", 7]]})"));
    auto counters = cacheCounters(san, san.adapters[0], kCleared + 10);
    ASSERT_EQ(counters.size(), 3u);
    EXPECT_EQ(counters[0], (std::pair<std::string, long long>("UpTime", 70)));
    EXPECT_EQ(counters[1], (std::pair<std::string, long long>("Host Reads IOs", 5)));
    EXPECT_EQ(counters[2], (std::pair<std::string, long long>("UpTime", 7)));
}

TEST(PinnedStatisticsTest, GrowthStartsAgainWhenTheCountersAreCleared)
{
    San san = read(scenario(R"({"counters": [["UpTime", 60, 2]]})"));
    san.adapters[0].statsClearedAt = kCleared + 100;
    EXPECT_EQ(cacheCounters(san, san.adapters[0], kCleared + 100)[0].second, 60);
    // A clock behind the clearing counts as no time at all.
    EXPECT_EQ(cacheCounters(san, san.adapters[0], kCleared)[0].second, 60);
}

TEST(PinnedStatisticsTest, PartsLeftOutReadAsZero)
{
    San san = read(scenario("{}"));
    EXPECT_TRUE(cacheCounters(san, san.adapters[0], kCleared).empty());
    auto host = hostPcieFigures(san, san.adapters[0], kCleared);
    for (u32 field : host)
        EXPECT_EQ(field, 0u);
    EXPECT_EQ(adapterCacheFigures(san, san.adapters[0], kCleared).totalCapacity, 0u);
}

TEST(PinnedStatisticsTest, HostIoAndCacheSummaryAreAnsweredAsPinned)
{
    std::string host = "[0,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,24,4294967295]";
    San san = read(scenario(R"({"hostPcie": )" + host +
                            R"(, "adapter": {"totalCapacity": 1000, "readData": {"value": 5, "perSecond": 2},
                               "usedPercentFirst": 1000, "usedPercentSecond": 1005}})"));
    auto fields = hostPcieFigures(san, san.adapters[0], kCleared);
    EXPECT_EQ(fields[9], 9u);
    EXPECT_EQ(fields[25], 4294967295u);
    AdapterCacheFigures f = adapterCacheFigures(san, san.adapters[0], kCleared + 3);
    EXPECT_EQ(f.totalCapacity, 1000u);
    EXPECT_EQ(f.readData, 11u);
    EXPECT_EQ(f.usedPercentA + f.usedPercentB, 2005u);
}

TEST(PinnedStatisticsTest, ALunAnswersItsPinnedCountersToEveryAdapter)
{
    San san = read(scenario("", R"({"readCount": {"perSecond": 10, "value": 100}, "readHitPercent": 9996,
                                     "totalRead": 4096, "cleanBytes": 1048576, "lockedBytes": 7})"));
    // Not cached by anyone, yet pinned figures are what the adapter says.
    LunLoad load = lunLoad(san, san.luns[0], san.adapters[0], kCleared + 5);
    EXPECT_EQ(load.readCount, 150u);
    EXPECT_EQ(load.readHitPercent, 9996u);
    EXPECT_EQ(load.readBytes, 4096u);
    EXPECT_EQ(load.cleanBytes, 1048576u);
    EXPECT_EQ(load.lockedBytes, 7u);
    EXPECT_EQ(load.writeCount, 0u);
    // Clearing the LUN alone restarts its growth.
    san.luns[0].statsClearedAt = kCleared + 5;
    EXPECT_EQ(lunLoad(san, san.luns[0], san.adapters[0], kCleared + 5).readCount, 100u);
}

TEST(PinnedStatisticsTest, ExportKeepsTheShortForms)
{
    San san =
        read(scenario(R"({"counters": [["A", 1], ["B", 2, 3]], "adapter": {"readData": {"value": 4, "perSecond": 0}}})",
                      R"({"dirtyBytes": {"value": 0, "perSecond": 5}})"));
    std::string text = scenarioToText(san);
    EXPECT_NE(
        text.find(
            "\"counters\": [\n     [\n      \"A\",\n      1\n     ],\n     [\n      \"B\",\n      2,\n      3\n     ]"),
        std::string::npos)
        << text;
    // A figure that does not grow is written as a number.
    EXPECT_NE(text.find("\"readData\": 4\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\"dirtyBytes\": {\n     \"perSecond\": 5,\n     \"value\": 0\n    }"), std::string::npos)
        << text;
    EXPECT_EQ(scenarioToText(read(text)), text);
    EXPECT_EQ(generalScenarioToText(san), text);
}

TEST(PinnedStatisticsTest, NoPinnedFieldsMeansTheWorkloadModel)
{
    San san = read(scenario(""));
    EXPECT_FALSE(san.adapters[0].fixedStatistics);
    EXPECT_FALSE(san.luns[0].fixedIoStatistics);
    EXPECT_EQ(scenarioToText(san).find("fixed"), std::string::npos);
    // An empty pinned object stays, and pins everything to zero.
    San pinned = read(scenario("{}", "{}"));
    EXPECT_TRUE(pinned.adapters[0].fixedStatistics);
    EXPECT_NE(scenarioToText(pinned).find("\"fixedStatistics\": {}"), std::string::npos);
    EXPECT_NE(scenarioToText(pinned).find("\"fixedIoStatistics\": {}"), std::string::npos);
    EXPECT_TRUE(read(R"({"format": "hbasim-scenario", "version": 1, "hosts": [{"agent": ""}],
                         "adapters": [{"id": "1", "fixedStatistics": null}]})")
                    .adapters[0]
                    .fixedStatistics == std::nullopt);
}

TEST(PinnedStatisticsTest, CounterNamesFitThirtyTwoCharacters)
{
    std::string name32(32, 'n');
    San san = read(scenario(R"({"counters": [[")" + name32 + R"(", 1]]})"));
    EXPECT_EQ(san.adapters[0].fixedStatistics->counters[0].name, name32);
    EXPECT_EQ(refusal(scenario(R"({"counters": [[")" + name32 + R"(x", 1]]})")),
              "f: adapter A0 fixedStatistics: counter name \"" + name32 + "x\" is longer than 32 characters");
}

TEST(PinnedStatisticsTest, MoreThan256CountersAreAcceptedAndCut)
{
    std::string counters;
    for (int i = 0; i < 300; ++i)
        counters += std::string(i ? "," : "") + "[\"c" + std::to_string(i) + "\", " + std::to_string(i) + "]";
    San san = read(scenario(R"({"counters": [)" + counters + "]}"));
    EXPECT_EQ(san.adapters[0].fixedStatistics->counters.size(), 300u);
}

TEST(PinnedStatisticsTest, MalformedPinnedFiguresAreRefused)
{
    EXPECT_EQ(refusal(scenario(R"({"hostPcie": [1, 2]})")),
              "f: adapter A0 fixedStatistics: hostPcie has 2 numbers, not 26");
    std::string negative = "[-1" + std::string(25 * 2, ' ') + "]";
    for (int i = 0; i < 25; ++i)
        negative.replace(negative.find(' '), 2, ",0");
    EXPECT_NE(refusal(scenario(R"({"hostPcie": )" + negative + "}")).find("not an unsigned 32-bit number"),
              std::string::npos);
    EXPECT_NE(refusal(scenario(R"({"counters": [["A"]]})")).find("a counter is [name, value]"), std::string::npos);
    EXPECT_NE(refusal(scenario(R"({"counters": [["A", 1, 2, 3]]})")).find("a counter is"), std::string::npos);
    EXPECT_NE(refusal(scenario(R"({"counters": [[1, 1]]})")).find("a counter is"), std::string::npos);
    EXPECT_NE(refusal(scenario(R"({"counters": [["A", 1.5]]})")).find("must be a whole number"), std::string::npos);
    EXPECT_NE(refusal(scenario("", R"({"readCount": {"value": 1, "pace": 2}})")).find("not \"pace\""),
              std::string::npos);
    EXPECT_NE(refusal(scenario("", R"({"readCount": "many"})")).find("must be a whole number"), std::string::npos);
    EXPECT_NE(refusal(scenario("", R"({"readCounts": 1})")).find("unknown field"), std::string::npos);
    EXPECT_NE(refusal(scenario(R"({"adapter": {"readData": 18446744073709551615}})")).find("too large"),
              std::string::npos);
}
