#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

#include "core/ZekcliReturn.h"
#include "scripting/CmdScriptExecute.h"
#include "support/CoreTestTree.h"

namespace {

std::tm localTime(int year, int month, int day, int hour, int minute, int second)
{
    std::tm t{};
    t.tm_year = year - 1900;
    t.tm_mon = month - 1;
    t.tm_mday = day;
    t.tm_hour = hour;
    t.tm_min = minute;
    t.tm_sec = second;
    return t;
}

std::string const kWipe = "\r             \r";
std::string const kBanner = "??? [ local host ]\n\n";

// The summary of a run in which every line ran on no adapter.
std::string summaryOf(std::string const& counts, std::string const& failures = "")
{
    return "\r             \n    IP = \n    " + counts + "\n" + failures + "\n\n\n";
}

} // namespace

// ---- the name of the text file ---------------------------------------------

TEST(ScriptTextFileName, PathCutAtTheLastDotThenDateAndTime)
{
    EXPECT_EQ("adapter0_20261118_143059.log",
              CmdScriptExecute::textFileNameFor("adapter0.cfg", localTime(2026, 11, 18, 14, 30, 59)));
}

TEST(ScriptTextFileName, DotOfTheFolderCutsWhenTheFileHasNone)
{
    EXPECT_EQ("my_20261118_143059.log",
              CmdScriptExecute::textFileNameFor("my.cfg/run", localTime(2026, 11, 18, 14, 30, 59)));
}

TEST(ScriptTextFileName, PathWithoutDotIsKeptWhole)
{
    EXPECT_EQ("/tmp/run_20261118_143059.log",
              CmdScriptExecute::textFileNameFor("/tmp/run", localTime(2026, 11, 18, 14, 30, 59)));
}

TEST(ScriptTextFileName, SmallDateFieldsGetOneLeadingZero)
{
    EXPECT_EQ("s_20270105_101112.log", CmdScriptExecute::textFileNameFor("s.txt", localTime(2027, 1, 5, 10, 11, 12)));
}

TEST(ScriptTextFileName, SmallTimeFieldsGetOneLeadingZero)
{
    EXPECT_EQ("s_20261231_010203.log", CmdScriptExecute::textFileNameFor("s.txt", localTime(2026, 12, 31, 1, 2, 3)));
}

TEST(ScriptTextFileName, ZeroTimeFieldsAreThreeZeros)
{
    EXPECT_EQ("s_20261231_000000000.log", CmdScriptExecute::textFileNameFor("s.txt", localTime(2026, 12, 31, 0, 0, 0)));
    EXPECT_EQ("s_20261231_0000709.log", CmdScriptExecute::textFileNameFor("s.txt", localTime(2026, 12, 31, 0, 7, 9)));
    EXPECT_EQ("s_20261231_1200059.log", CmdScriptExecute::textFileNameFor("s.txt", localTime(2026, 12, 31, 12, 0, 59)));
}

// ---- which lines run --------------------------------------------------------

TEST(ScriptLines, EmptyAndCommentLinesAreSkipped)
{
    for (char const* line : {"", "#x", "!x", ";x", "/enable cache", ":x", "#"})
        EXPECT_TRUE(CmdScriptExecute::isSkippedLine(line)) << line;
}

TEST(ScriptLines, BlanksAndCommandsAreRun)
{
    for (char const* line : {" ", "\t", " # not a comment", "show lun", "-zek=0"})
        EXPECT_FALSE(CmdScriptExecute::isSkippedLine(line)) << line;
}

TEST(ScriptLines, SwitchesAreAppendedInAFixedOrder)
{
    ScriptRunSwitches switches;
    switches.quiet = switches.showOnlyError = switches.echo = switches.textFile = true;
    switches.textFileName = "a b.log";
    std::string line = "show lun";
    switches.appendTo(line);
    EXPECT_EQ("show lun -quiet -show_only_error -echo -text=\"a b.log\"", line);
}

TEST(ScriptLines, NoSwitchesLeaveTheLineAlone)
{
    std::string line = "show lun";
    ScriptRunSwitches().appendTo(line);
    EXPECT_EQ("show lun", line);
}

TEST(ScriptLines, EachSwitchAlone)
{
    ScriptRunSwitches switches;
    switches.textFile = true;
    std::string line = "x";
    switches.appendTo(line);
    EXPECT_EQ("x -text=\"\"", line);
    switches = ScriptRunSwitches();
    switches.echo = true;
    line = "x";
    switches.appendTo(line);
    EXPECT_EQ("x -echo", line);
}

// ---- whole runs --------------------------------------------------------------

class ScriptRun : public CoreTreeTest {
protected:
    void SetUp() override
    {
        CoreTreeTest::SetUp();
        parser.root.addChild(new CmdScriptExecute);
    }

    void writeScript(std::string const& name, std::string const& text)
    {
        std::ofstream(dir.file(name), std::ios::binary) << text;
    }

    ZekcliStats const& stats() const { return parser.root.stats; }

    // The commands counted so far, each once, in order of first appearance.
    std::vector<std::string> countedCommands() const
    {
        std::vector<std::string> names;
        for (ZekcliStatsPerIpAddress const& adapter : stats().adapters)
            for (ZekcliStatsPerCommand const& command : adapter.commands)
                names.push_back(command.commandName);
        return names;
    }
};

TEST_F(ScriptRun, EmptyFileCompletesWithNothingAttempted)
{
    writeScript("s.txt", "");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt"));
    EXPECT_EQ(kBanner + "Script \"s.txt\" completed OK\n\r             \n\n\n", out);
    // Only the script itself, counted by the frame once it has ended.
    EXPECT_EQ(std::vector<std::string>{"execute script"}, countedCommands());
    EXPECT_EQ(0, showLun->runs);
}

TEST_F(ScriptRun, EachLineRunsWithItsLineNumber)
{
    writeScript("s.txt", "show lun\n# comment\n\nshow lun -lun_number=3\n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt"));
    EXPECT_EQ(2, showLun->runs);
    EXPECT_EQ(kWipe + "1: LUN list\n" + kWipe + "4: LUN list\n" + kBanner + "Script \"s.txt\" completed OK\n" +
                  summaryOf("2 commands attempted, 2 successful"),
              out);
    ASSERT_EQ(1u, stats().adapters.size());
    EXPECT_EQ((std::vector<unsigned int>{1, 4}), stats().adapters[0].commands[0].returnValues[0].iterations);
}

TEST_F(ScriptRun, LastLineWithoutLineEndDoesNotRun)
{
    writeScript("s.txt", "show lun\nshow lun");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt"));
    EXPECT_EQ(1, showLun->runs);
}

TEST_F(ScriptRun, SlashLineIsAComment)
{
    writeScript("s.txt", "/enable cache\n/show lun\n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt"));
    EXPECT_EQ(0, showLun->runs);
    EXPECT_EQ(std::vector<std::string>{"execute script"}, countedCommands());
}

TEST_F(ScriptRun, BlankOnlyLineGoesToTheParser)
{
    // The parser is handed the line; it finds no command in it, so nothing
    // runs and nothing is counted.
    writeScript("s.txt", "   \n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt"));
    EXPECT_EQ("   ", parser.commandLine);
    EXPECT_EQ(std::vector<std::string>{"execute script"}, countedCommands());
}

TEST_F(ScriptRun, BlankOnlyLineKeepsItsLineNumber)
{
    writeScript("s.txt", "   \nshow lun\n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt"));
    EXPECT_EQ(1, showLun->runs);
    EXPECT_EQ((std::vector<unsigned int>{2}), stats().adapters[0].commands[0].returnValues[0].iterations);
}

TEST_F(ScriptRun, CrLfLinesWork)
{
    writeScript("s.txt", "show lun\r\nshow lun -lun_number=2\r\n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt"));
    EXPECT_EQ(2, showLun->runs);
    EXPECT_EQ((std::vector<unsigned int>{1, 2}), stats().adapters[0].commands[0].returnValues[0].iterations);
}

TEST_F(ScriptRun, BareCarriageReturnEatsTheNextByte)
{
    // "show lun\rXshow lun\n": the X is eaten, then "show lun" is line 2.
    writeScript("s.txt", "show lun\rXshow lun\n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt"));
    EXPECT_EQ((std::vector<unsigned int>{1, 2}), stats().adapters[0].commands[0].returnValues[0].iterations);
}

TEST_F(ScriptRun, BareCarriageReturnBeforeTheLineEndLeavesAnEmptyLine)
{
    // "show lun\rb\n" gives "show lun" and an empty line, so the third
    // line is number 3.
    writeScript("s.txt", "show lun\rb\nshow lun\n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt"));
    EXPECT_EQ((std::vector<unsigned int>{1, 3}), stats().adapters[0].commands[0].returnValues[0].iterations);
}

TEST_F(ScriptRun, CarriageReturnAtTheVeryEndLosesItsLine)
{
    writeScript("s.txt", "show lun\nshow lun\r");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt"));
    EXPECT_EQ(1, showLun->runs);
}

TEST_F(ScriptRun, FailingLineStopsTheRun)
{
    showLun->rc = ZEKCLI_CMD_FAIL;
    showLun->output.clear();
    showLun->failure = "why";
    writeScript("s.txt", "show lun\nshow lun\n");
    EXPECT_EQ(ZEKCLI_CMD_FAIL, run("execute script -file=s.txt"));
    EXPECT_EQ(1, showLun->runs);
    EXPECT_EQ("why", err);
    EXPECT_EQ(kWipe + "1: " + kWipe + "*** ZEKCLI_CMD_FAIL -- why\n" + kBanner +
                  "Script \"s.txt\" failed to complete\n" +
                  summaryOf("1 commands attempted, 0 successful, 1 failed",
                            "        \"show lun\"\n            ZEKCLI_CMD_FAIL at line 1\n\n") +
                  kWipe + "*** ZEKCLI_CMD_FAIL -- why\n",
              out);
}

TEST_F(ScriptRun, ContinueOnErrorRunsEveryLineAndCompletesOk)
{
    writeScript("s.txt", "retval cli -rv=54\nshow lun\nretval cli -rv=54\n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt -continue_on_error"));
    EXPECT_EQ(1, showLun->runs);
    std::string const failure = kWipe + "*** ZEKCLI_CMD_FAIL -- CLI Command execution failed\n";
    EXPECT_EQ(kWipe + "1: " + failure + kWipe + "2: LUN list\n" + kWipe + "3: " + failure + kBanner +
                  "Script \"s.txt\" completed OK\n" +
                  summaryOf("3 commands attempted, 1 successful, 2 failed",
                            "        \"retval cli\"\n            ZEKCLI_CMD_FAIL at lines 1, 3\n\n"),
              out);
}

TEST_F(ScriptRun, ParseErrorIsCountedUnderItsOwnAddress)
{
    writeScript("s.txt", "show lun\nshow lun -frob\nshow lun\n");
    EXPECT_EQ(ZEKCLI_PARSE_FAIL, run("execute script -file=s.txt"));
    EXPECT_EQ(1, showLun->runs);
    EXPECT_EQ(0u, err.find("Could not parse modifier near"));
    ASSERT_EQ(2u, stats().adapters.size());
    EXPECT_EQ("******", stats().adapters[1].adapterText);
    EXPECT_EQ("Parse Error", stats().adapters[1].commands[0].commandName);
    EXPECT_EQ(ZEKCLI_PARSE_FAIL, stats().adapters[1].commands[0].returnValues[0].returnValue);
    EXPECT_EQ((std::vector<unsigned int>{2}), stats().adapters[1].commands[0].returnValues[0].iterations);
    EXPECT_NE(std::string::npos,
              out.find("Script \"s.txt\" failed to complete\n"
                       "\r             \n"
                       "    IP = \n"
                       "    1 commands attempted, 1 successful\n\n"
                       "    IP = ******\n"
                       "    1 commands attempted, 0 successful, 1 failed\n"
                       "        \"Parse Error\"\n"
                       "            ZEKCLI_PARSE_FAIL at line 2\n\n\n\n"));
}

TEST_F(ScriptRun, ParseErrorWithContinueOnErrorGoesOn)
{
    writeScript("s.txt", "show lun -frob\nnonsense here\nshow lun\n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt -continue_on_error"));
    EXPECT_EQ(1, showLun->runs);
    ASSERT_EQ(2u, stats().adapters.size());
    EXPECT_EQ((std::vector<unsigned int>{1, 2}), stats().adapters[0].commands[0].returnValues[0].iterations);
    EXPECT_EQ("******", stats().adapters[0].adapterText);
}

TEST_F(ScriptRun, MissingFileIsAParseFailureWithTheOpenText)
{
    EXPECT_EQ(ZEKCLI_PARSE_FAIL, run("execute script -file=nosuch.txt"));
    EXPECT_EQ("Unable to open file \"nosuch.txt\", (No such file or directory)", err);
    EXPECT_EQ(kWipe + "*** ZEKCLI_PARSE_FAIL -- " + err + "\n", out);
    EXPECT_TRUE(stats().adapters.empty());
}

TEST_F(ScriptRun, DirectoryIsRefusedLikeAnUnreadableFile)
{
    std::filesystem::create_directory(dir.file("folder"));
    EXPECT_EQ(ZEKCLI_PARSE_FAIL, run("execute script -file=folder"));
    EXPECT_EQ("Unable to open file \"folder\", (Is a directory)", err);
}

TEST_F(ScriptRun, QuietIsAddedToEveryLine)
{
    writeScript("s.txt", "show lun\nshow lun\n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt -quiet"));
    EXPECT_EQ(2, showLun->runs);
    EXPECT_EQ("show lun -quiet", parser.commandLine);
    EXPECT_EQ("", out);
}

TEST_F(ScriptRun, ShowOnlyErrorShowsTheFailuresAndTheSummary)
{
    writeScript("s.txt", "show lun\nretval cli -rv=54\n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt -show_only_error -continue_on_error"));
    EXPECT_EQ("retval cli -rv=54 -show_only_error", parser.commandLine);
    // -show_only_error alone still lets the line numbers through.
    EXPECT_EQ(kWipe + "1: " + kWipe + "2: " + kWipe + "*** ZEKCLI_CMD_FAIL -- CLI Command execution failed\n" +
                  summaryOf("2 commands attempted, 1 successful, 1 failed",
                            "        \"retval cli\"\n            ZEKCLI_CMD_FAIL at line 2\n\n"),
              out);
}

TEST_F(ScriptRun, EchoShowsEachLineBeforeItRuns)
{
    writeScript("s.txt", "show lun\n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt -echo"));
    EXPECT_EQ("execute script -file=s.txt -echo\n" + kWipe + "1: show lun -echo\nLUN list\n" + kBanner +
                  "Script \"s.txt\" completed OK\n" + summaryOf("1 commands attempted, 1 successful"),
              out);
}

TEST_F(ScriptRun, TextFileWithAValueCollectsEveryLine)
{
    writeScript("s.txt", "show lun\nshow lun\n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt -textfile=run.log"));
    EXPECT_EQ("show lun -text=\"run.log\"", parser.commandLine);
    EXPECT_EQ("LUN list\nLUN list\n" + kBanner + "Script \"s.txt\" completed OK\n" +
                  summaryOf("2 commands attempted, 2 successful"),
              readWholeFile(dir.file("run.log")));
}

TEST_F(ScriptRun, TextFileWithoutAValueIsNamedAfterTheScript)
{
    std::filesystem::create_directory(dir.file("my.cfg"));
    writeScript("my.cfg/run", "show lun\n");
    std::time_t const before = std::time(nullptr);
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=my.cfg/run -textfile"));
    std::time_t const after = std::time(nullptr);
    // The run may straddle a second: the name is one of the two.
    std::string names[2];
    std::time_t const moments[2] = {before, after};
    for (int i = 0; i < 2; ++i) {
        std::tm local{};
        localtime_r(&moments[i], &local);
        names[i] = CmdScriptExecute::textFileNameFor("my.cfg/run", local);
    }
    std::string const line = parser.commandLine;
    EXPECT_TRUE(line == "show lun -text=\"" + names[0] + "\"" || line == "show lun -text=\"" + names[1] + "\"") << line;
    std::string const name =
        line.substr(std::string("show lun -text=\"").size(), line.size() - std::string("show lun -text=\"").size() - 1);
    EXPECT_EQ(0u, name.find("my_"));
    EXPECT_EQ("LUN list\n", readWholeFile(dir.file(name)).substr(0, 9));
}

TEST_F(ScriptRun, ResultRecordsTheOutcome)
{
    showLun->rc = ZEKCLI_CMD_FAIL;
    writeScript("s.txt", "show lun -result=r.dat\n");
    EXPECT_EQ(ZEKCLI_CMD_FAIL, run("execute script -file=s.txt -quiet"));
    std::string const records = readWholeFile(dir.file("r.dat"));
    // The failing line writes none; the script's own record says 1000.
    ASSERT_EQ(40u, records.size());
    EXPECT_EQ(std::string("\xe8\x03\0\0", 4), records.substr(32, 4));
}

TEST_F(ScriptRun, ResultOfAnEmptyScriptIsSuccess)
{
    writeScript("s.txt", "# nothing\n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt -result=r.dat -quiet"));
    std::string const records = readWholeFile(dir.file("r.dat"));
    ASSERT_EQ(40u, records.size());
    EXPECT_EQ(std::string("\0\0\0\0", 4), records.substr(32, 4));
}

TEST_F(ScriptRun, OutputFlagsAfterTheRunAreThoseOfTheLastLine)
{
    // Each line sets the output flags anew, and the summary follows the last
    // one: -result given only to the script is not in force any more.
    writeScript("s.txt", "show lun\n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt -result=r.dat -quiet"));
    EXPECT_FALSE(std::filesystem::exists(dir.file("r.dat")));
}

TEST_F(ScriptRun, StatisticsAccumulateOverRunsInOneProcess)
{
    writeScript("s.txt", "show lun\n");
    run("execute script -file=s.txt");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=s.txt"));
    // The first run's line and the first script itself are counted too.
    EXPECT_NE(std::string::npos, out.find("3 commands attempted, 3 successful"));
}

TEST_F(ScriptRun, ScriptCanRunAnotherScript)
{
    writeScript("inner.txt", "show lun\n");
    writeScript("outer.txt", "execute script -file=inner.txt\nshow lun\n");
    EXPECT_EQ(ZEKCLI_OK, run("execute script -file=outer.txt"));
    EXPECT_EQ(2, showLun->runs);
    EXPECT_NE(std::string::npos, out.find("Script \"inner.txt\" completed OK\n"));
    EXPECT_NE(std::string::npos, out.find("Script \"outer.txt\" completed OK\n"));
}
