#include <gtest/gtest.h>
#include <regex>

#include "support/CoreTestTree.h"

class History : public CoreTreeTest {
protected:
    std::string historyPath() const { return dir.file("zekcli.log"); }
    void createHistory() { std::ofstream(historyPath()) << ""; }
    void runAndRecord(std::string const& line, int rc)
    {
        parser.commandLine = line;
        ASSERT_EQ(0, parser.parseCommandLine(err));
        parser.updateCommandHistory(rc, "");
    }
};

TEST_F(History, NeverCreatedByTheTool)
{
    runAndRecord("set append -append=x -quiet ", 0);
    EXPECT_FALSE(std::filesystem::exists(historyPath()));
}

TEST_F(History, ChangingCommandsAreAppendedWithTheirTime)
{
    createHistory();
    runAndRecord("set append -append=x -quiet ", 0);
    runAndRecord("clear display ", 1);
    runAndRecord("create lun -size=1 ", 2);
    std::string const text = readWholeFile(historyPath());
    std::regex const lines("(\\w{3} \\w{3} [ 0-9]\\d \\d\\d:\\d\\d:\\d\\d \\d{4} [^\\n]*\\n){3}");
    EXPECT_TRUE(std::regex_match(text, lines)) << text;
    EXPECT_NE(std::string::npos, text.find(" set append -append=x -quiet \n"));
    EXPECT_NE(std::string::npos, text.find(" clear display \n"));
    EXPECT_NE(std::string::npos, text.find(" create lun -size=1 \n"));
}

TEST_F(History, FailuresAndReadingCommandsAreLeftOut)
{
    createHistory();
    runAndRecord("set append -append=x -quiet", 3);
    runAndRecord("set append -append=x -quiet", 52);
    runAndRecord("set append -append=x -quiet", -1);
    runAndRecord("show lun", 0);
    runAndRecord("version cli", 0);
    runAndRecord("wait time", 0);
    EXPECT_EQ("", readWholeFile(historyPath()));
}

TEST_F(History, PathIsUnderTheHomeDirectory)
{
    createHistory();
    runAndRecord("clear display", 0);
    EXPECT_EQ(historyPath(), parser.historyPath);
    EXPECT_TRUE(parser.isCommandHistoryFileExists());
}
