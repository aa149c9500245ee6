#include <gtest/gtest.h>

#include "core/ZekcliStats.h"
#include "support/FakeHbaMgmtApi.h"

TEST(ZekcliStats, KeepsOrderOfFirstAppearance)
{
    ZekcliStats stats;
    stats.add("1", "show lun", 0, 1);
    stats.add("", "list adapter", 54, 2);
    stats.add("1", "show lun", 0, 3);
    stats.add("1", "list lun", 1004, 4);
    ASSERT_EQ(2u, stats.adapters.size());
    EXPECT_EQ("1", stats.adapters[0].adapterText);
    ASSERT_EQ(2u, stats.adapters[0].commands.size());
    EXPECT_EQ("show lun", stats.adapters[0].commands[0].commandName);
    EXPECT_EQ((std::vector<unsigned int>{1, 3}), stats.adapters[0].commands[0].returnValues[0].iterations);
    EXPECT_EQ("list lun", stats.adapters[0].commands[1].commandName);
}

TEST(ZekcliStats, ReportOfSuccessesOnly)
{
    ScopedFakeApi fake;
    ZekcliStats stats;
    stats.add("", "show lun", 0, 1);
    stats.add("", "show lun", 0, 2);
    EXPECT_EQ("\r             \n    IP = \n    2 commands attempted, 2 successful\n\n\n", stats.displayText());
}

TEST(ZekcliStats, ReportNamesFailuresAndTheirLines)
{
    ScopedFakeApi fake;
    ZekcliStats stats;
    stats.add("0", "show lun", 0, 1);
    stats.add("0", "show lun", 54, 2);
    stats.add("0", "show lun", 54, 5);
    stats.add("0", "list drive", 1004, 3);
    stats.add("0", "list drive", 53, 4);
    stats.add("0", "wait time", 59, 6);
    EXPECT_EQ("\r             \n"
              "    IP = 0\n"
              "    6 commands attempted, 1 successful, 5 failed\n"
              "        \"show lun\"\n"
              "            ZEKCLI_CMD_FAIL at lines 2, 5\n"
              "\n"
              "        \"list drive\"\n"
              "            API text of 1004 at line 3\n"
              "            ZEKCLI_CONFIRM_FAIL at line 4\n"
              "\n"
              "        \"wait time\"\n"
              "            API text of 59 at line 6\n"
              "\n"
              "\n"
              "\n",
              stats.displayText());
}

TEST(ZekcliStats, OwnNamesOfTheCommandLine)
{
    ScopedFakeApi fake;
    ZekcliStats stats;
    for (int rc : {51, 52, 55, 58})
        stats.add("", "x", rc, static_cast<unsigned int>(rc));
    std::string const text = stats.displayText();
    EXPECT_NE(std::string::npos, text.find("            ZEKCLI_INIT_FAIL at line 51\n"));
    EXPECT_NE(std::string::npos, text.find("            ZEKCLI_PARSE_FAIL at line 52\n"));
    EXPECT_NE(std::string::npos, text.find("            API text of 55 at line 55\n"));
    EXPECT_NE(std::string::npos, text.find("            ZEKCLI_EXIT at line 58\n"));
}

TEST(ZekcliStats, LongListsWrapAfterEveryEighthNumber)
{
    ScopedFakeApi fake;
    ZekcliStats stats;
    for (unsigned int line = 1; line <= 17; ++line)
        stats.add("", "show lun", 54, line);
    std::string const wrap = "\n" + std::string(20, ' ');
    EXPECT_NE(std::string::npos,
              stats.displayText().find("            ZEKCLI_CMD_FAIL at lines 1, 2, 3, 4, 5, 6, 7, 8, " + wrap +
                                       "9, 10, 11, 12, 13, 14, 15, 16, " + wrap + "17\n"));
}

TEST(ZekcliStats, EmptyReport)
{
    ZekcliStats stats;
    EXPECT_EQ("\r             \n\n", stats.displayText());
}
