#include <cstring>
#include <gtest/gtest.h>
#include <sys/types.h>
#include <unistd.h>

#include "core/AdapterBanner.h"
#include "records/KIsaAdapterPath.h"
#include "support/CoreTestTree.h"

namespace {

std::string const kWipe = "\r             \r";

std::string int32Bytes(std::initializer_list<uint32_t> values)
{
    std::string bytes;
    for (uint32_t value : values)
        bytes.append(reinterpret_cast<char const*>(&value), sizeof value);
    return bytes;
}

} // namespace

using ExecutionFrame = CoreTreeTest;

TEST_F(ExecutionFrame, PlainCommandPrintsItsOutput)
{
    EXPECT_EQ(0, run("show lun"));
    EXPECT_EQ("LUN list\n", out);
    EXPECT_EQ(1, showLun->runs);
}

TEST_F(ExecutionFrame, QuietKeepsConsoleSilentButFillsTextFile)
{
    EXPECT_EQ(0, run("show lun -quiet -textfile"));
    EXPECT_EQ("", out);
    EXPECT_EQ("LUN list\n", readWholeFile(dir.file("show_lun.log")));
}

TEST_F(ExecutionFrame, TextFileWithGivenNameGrows)
{
    EXPECT_EQ(0, run("show lun -textfile=mine.txt"));
    EXPECT_EQ(0, run("show lun -textfile=mine.txt"));
    EXPECT_EQ("LUN list\nLUN list\n", readWholeFile(dir.file("mine.txt")));
    EXPECT_FALSE(std::filesystem::exists(dir.file("show_lun.log")));
}

TEST_F(ExecutionFrame, ShowOnlyErrorWithSuccessShowsNothing)
{
    EXPECT_EQ(0, run("show lun -show_only_error"));
    EXPECT_EQ("", out);
}

TEST_F(ExecutionFrame, ShowOnlyErrorWithFailureShowsMessageOnce)
{
    showLun->rc = 1004;
    showLun->failure = "no such LUN";
    EXPECT_EQ(1004, run("show lun -show_only_error"));
    EXPECT_EQ(kWipe + "*** API text of 1004 -- no such LUN\n", out);
}

TEST_F(ExecutionFrame, ShowOnlyErrorWithTextFileWritesMessageTwice)
{
    showLun->rc = 54;
    showLun->output.clear();
    EXPECT_EQ(54, run("show lun -show_only_error -textfile"));
    std::string const line = kWipe + "*** ZEKCLI_CMD_FAIL\n";
    EXPECT_EQ(line + line, readWholeFile(dir.file("show_lun.log")));
}

TEST_F(ExecutionFrame, FailureIsShownWithNameAndText)
{
    showLun->rc = 54;
    showLun->output.clear();
    showLun->failure = "broken";
    EXPECT_EQ(54, run("show lun"));
    EXPECT_EQ(kWipe + "*** ZEKCLI_CMD_FAIL -- broken\n", out);
}

TEST_F(ExecutionFrame, RefusedConfirmationReadsNoActionTaken)
{
    showLun->rc = 53;
    showLun->output.clear();
    EXPECT_EQ(53, run("show lun"));
    EXPECT_EQ("(No action taken) \n", out);
    showLun->failure = "because";
    EXPECT_EQ(53, run("show lun"));
    EXPECT_EQ("(No action taken)  -- because\n", out);
}

TEST_F(ExecutionFrame, FailureTextOfASuccessIsDropped)
{
    showLun->output.clear();
    showLun->failure = "only words";
    EXPECT_EQ(0, run("show lun"));
    EXPECT_EQ("", out);
}

TEST_F(ExecutionFrame, QuietFailureIsSilent)
{
    showLun->rc = 54;
    EXPECT_EQ(54, run("show lun -quiet"));
    EXPECT_EQ("", out);
}

TEST_F(ExecutionFrame, FailedTextFileShowsTheMessageTwiceAndGives55)
{
    showLun->output.clear();
    showLun->rc = 54;
    EXPECT_EQ(54, run("show lun -textfile=\"/nonexistent dir/x.log\""));
    std::string const line = kWipe + "*** ZEKCLI_CMD_FAIL\n";
    EXPECT_EQ(line + line, out);
}

TEST_F(ExecutionFrame, CommandWhoseTextFileFailsReturns55)
{
    showLun->output = "text";
    EXPECT_EQ(55, run("show lun -textfile=\"/nonexistent dir/x.log\""));
    std::string const line =
        kWipe + "*** API text of 55 -- Unable to open file \"/nonexistent dir/x.log\", (No such file or directory)\n";
    EXPECT_EQ("text\n" + line + line, out);
}

TEST_F(ExecutionFrame, EchoShowsTheLineButNotUnderQuiet)
{
    EXPECT_EQ(0, run("show lun -echo"));
    EXPECT_EQ("show lun -echo\nLUN list\n", out);
    EXPECT_EQ(0, run("show lun -echo -quiet -textfile"));
    EXPECT_EQ("", out);
    EXPECT_EQ("LUN list\n", readWholeFile(dir.file("show_lun.log")));
}

TEST_F(ExecutionFrame, EchoIntoFailingTextFileGives55WithoutRunning)
{
    EXPECT_EQ(55, run("show lun -echo -textfile=\"/nonexistent dir/x\""));
    EXPECT_EQ(0, showLun->runs);
    ASSERT_EQ(1u, parser.root.stats.adapters.size());
    EXPECT_EQ(55, parser.root.stats.adapters[0].commands[0].returnValues[0].returnValue);
}

TEST_F(ExecutionFrame, ScriptLinesCarryTheirNumber)
{
    iteration = 7;
    EXPECT_EQ(0, run("show lun"));
    EXPECT_EQ(kWipe + "7: LUN list\n", out);
    EXPECT_EQ(0, run("show lun -echo"));
    EXPECT_EQ(kWipe + "7: show lun -echo\nLUN list\n", out);
}

TEST_F(ExecutionFrame, DisabledGroupIsRefusedSilently)
{
    parser.root.disabledGroups[0] = TokenCmd::GROUP_ORDINARY;
    EXPECT_EQ(52, run("show lun"));
    EXPECT_EQ("*** This feature is not enabled", err);
    EXPECT_EQ("", out);
    EXPECT_EQ(0, showLun->runs);
}

TEST_F(ExecutionFrame, HelpKeywordShowsHelpWithoutRunning)
{
    parser.commandLine = "show lun -help";
    ASSERT_EQ(0, parser.parseCommandLine(err));
    fake.api.agentConnectionCode = MHBA_E_AGENT_NOT_RESPONDING;
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(0, parser.execCommand(err, 0));
    std::string const shown = ::testing::internal::GetCapturedStdout();
    EXPECT_EQ(0, shown.find("\nSyntax: show lun\n"));
    EXPECT_EQ(0, showLun->runs);
    EXPECT_EQ(0, fake.api.agentTests);
}

TEST_F(ExecutionFrame, DemonstrationFileCannotBeCombinedWithAgent)
{
    EXPECT_EQ(52, run("show lun -demonstration_file=demo -agent=10.0.0.1"));
    EXPECT_EQ("Cannot combine use of -agent=... and -demonstration_file=... keywords", err);
    EXPECT_EQ(0, showLun->runs);
    EXPECT_EQ("", fake.api.demonstrationFileLoaded);
}

TEST_F(ExecutionFrame, DemonstrationFileIsLoadedAndSkipsTheAgentTest)
{
    EXPECT_EQ(0, run("show lun -demonstration_file=demo.json"));
    EXPECT_EQ("demo.json", fake.api.demonstrationFileLoaded);
    EXPECT_EQ(0, fake.api.agentTests);
    EXPECT_EQ(1, showLun->runs);

    fake.api.demonstrationCode = MHBA_E_INVALID_ARG;
    EXPECT_EQ(MHBA_E_INVALID_ARG, run("show lun -demonstration_file=bad"));
    EXPECT_EQ(1, showLun->runs);
}

TEST_F(ExecutionFrame, AgentThatDoesNotAnswerStopsTheCommand)
{
    fake.api.agentConnectionCode = MHBA_E_AGENT_NOT_RESPONDING;
    EXPECT_EQ(MHBA_E_AGENT_NOT_RESPONDING, run("show lun -agent=10.0.0.1"));
    EXPECT_EQ(1, fake.api.agentTests);
    EXPECT_EQ(0, showLun->runs);
    EXPECT_EQ("", out);
}

TEST_F(ExecutionFrame, UnreadableAgentAddressGives1105)
{
    EXPECT_EQ(MHBA_E_BAD_AGENT_ADDRESS, run("show lun -agent=nohost"));
    EXPECT_EQ("\"nohost\" is not an address", err);
}

TEST_F(ExecutionFrame, HelpCommandsSkipTheAgentTest)
{
    fake.api.agentConnectionCode = MHBA_E_AGENT_NOT_RESPONDING;
    EXPECT_EQ(0, run("? cli -agent=10.0.0.1"));
    EXPECT_EQ(0, fake.api.agentTests);
}

// Root is needed for local device work only: agents and version queries
// go without it, and the refusal carries no text on the console.
TEST_F(ExecutionFrame, LocalDeviceWorkNeedsRoot)
{
    auto const asNobody = [&](std::string const& line) {
        if (getuid() == 0 && setuid(65534) != 0)
            std::exit(3);
        int const rc = run(line);
        if (rc == 52 && err == "Controlling devices on the local host requires running this utility as a root." &&
            out.empty() && showLun->runs == 0)
            std::exit(52);
        std::exit(rc == 0 ? 0 : 1);
    };
    EXPECT_EXIT(asNobody("show lun"), ::testing::ExitedWithCode(52), "");
    EXPECT_EXIT(asNobody("show lun -agent=10.0.0.1"), ::testing::ExitedWithCode(0), "");
    EXPECT_EXIT(asNobody("version cli"), ::testing::ExitedWithCode(0), "");
    EXPECT_EXIT(asNobody("show lun -demonstration_file=x"), ::testing::ExitedWithCode(0), "");
}

TEST_F(ExecutionFrame, RunsAreCountedExceptParseFailures)
{
    iteration = 1;
    run("show lun -zek=3");
    showLun->rc = 52;
    iteration = 2;
    run("show lun -zek=3");
    showLun->rc = 1004;
    iteration = 3;
    run("show lun");
    ASSERT_EQ(2u, parser.root.stats.adapters.size());
    EXPECT_EQ("3", parser.root.stats.adapters[0].adapterText);
    EXPECT_EQ("show lun", parser.root.stats.adapters[0].commands[0].commandName);
    EXPECT_EQ(1u, parser.root.stats.adapters[0].commands[0].returnValues.size());
    EXPECT_EQ("", parser.root.stats.adapters[1].adapterText);
    EXPECT_EQ(1004, parser.root.stats.adapters[1].commands[0].returnValues[0].returnValue);
}

TEST_F(ExecutionFrame, ReturnCodeNames)
{
    EXPECT_EQ("ZEKCLI_OK", Parser::zekcliReturnToText(0));
    EXPECT_EQ("ZEKCLI_INIT_FAIL", Parser::zekcliReturnToText(51));
    EXPECT_EQ("ZEKCLI_PARSE_FAIL", Parser::zekcliReturnToText(52));
    EXPECT_EQ("ZEKCLI_CONFIRM_FAIL", Parser::zekcliReturnToText(53));
    EXPECT_EQ("ZEKCLI_CMD_FAIL", Parser::zekcliReturnToText(54));
    EXPECT_EQ("API text of 55", Parser::zekcliReturnToText(55));
    EXPECT_EQ("ZEKCLI_EXIT", Parser::zekcliReturnToText(58));
    EXPECT_EQ("ZEKCLI_TIMEOUT", Parser::zekcliReturnToText(59));
    EXPECT_EQ("API text of 1206", Parser::zekcliReturnToText(1206));
}

TEST_F(ExecutionFrame, EmptyDisplayTextTouchesNoFile)
{
    showLun->output.clear();
    EXPECT_EQ(0, run("show lun -textfile"));
    EXPECT_FALSE(std::filesystem::exists(dir.file("show_lun.log")));
}

TEST_F(ExecutionFrame, ResultFileGetsOneRecordPerCallAndGrows)
{
    fake.api.version[3] = 9;
    EXPECT_EQ(0, run("show lun -result -quiet"));
    std::string const record = int32Bytes({32, 0, 2, 103, 6, 9, CmdAction::ACTION_SHOW, CmdItem::ITEM_LUN, 0, 0});
    EXPECT_EQ(record, readWholeFile(dir.file("show_lun.dat")));
    EXPECT_EQ("", out);
    EXPECT_EQ(0, run("show lun -result"));
    EXPECT_EQ(record + record, readWholeFile(dir.file("show_lun.dat")));
}

TEST_F(ExecutionFrame, ResultRecordWithPayload)
{
    parser.root.resultFileEnabled = true;
    parser.root.resultFileName = dir.file("given.dat");
    char const payload[] = {'a', 'b', 'c'};
    EXPECT_TRUE(parser.root.outResult(CmdAction::ACTION_LIST, CmdItem::ITEM_DRIVE, MHBA_E_FAILURE, payload, 3,
                                      "ignored.dat", err));
    std::string const expected =
        int32Bytes({32, 0, 2, 103, 6, 4, CmdAction::ACTION_LIST, CmdItem::ITEM_DRIVE, 1000, 7}) + "abc" +
        int32Bytes({0});
    EXPECT_EQ(expected, readWholeFile(dir.file("given.dat")));
    EXPECT_EQ(47u, expected.size());
}

TEST_F(ExecutionFrame, ResultFileThatCannotOpenFails)
{
    parser.root.resultFileEnabled = true;
    parser.root.resultFileName = "/nonexistent/r.dat";
    EXPECT_FALSE(parser.root.outResult(CmdAction::ACTION_SHOW, CmdItem::ITEM_LUN, MHBA_S_OK, nullptr, 0, "x", err));
    EXPECT_EQ("Unable to open file \"/nonexistent/r.dat\", (No such file or directory)", err);
    parser.root.resultFileEnabled = false;
    EXPECT_TRUE(parser.root.outResult(CmdAction::ACTION_SHOW, CmdItem::ITEM_LUN, MHBA_S_OK, nullptr, 0, "x", err));
}

TEST_F(ExecutionFrame, OutScriptWritesToItsStreamOrDisplays)
{
    std::string scratch;
    EXPECT_TRUE(showLun->outScript(nullptr, "", scratch));
    FILE* stream = tmpfile();
    EXPECT_TRUE(showLun->outScript(stream, "line\n", scratch));
    rewind(stream);
    char buffer[16] = {};
    EXPECT_EQ(5u, fread(buffer, 1, sizeof buffer, stream));
    fclose(stream);
    EXPECT_EQ(std::string("line\n"), buffer);
    ::testing::internal::CaptureStdout();
    EXPECT_TRUE(showLun->outScript(nullptr, "shown", scratch));
    EXPECT_EQ("shown\n", ::testing::internal::GetCapturedStdout());
}

TEST_F(ExecutionFrame, BannerWithoutAdapter)
{
    EXPECT_EQ("??? [ local host ]\n", adapterBannerText(nullptr, false, ""));
    EXPECT_EQ("??? [ 10.0.0.1 ]\n", adapterBannerText(nullptr, true, "10.0.0.1"));
    parser.commandLine = "show lun";
    ASSERT_EQ(0, parser.parseCommandLine(err));
    ::testing::internal::CaptureStdout();
    EXPECT_TRUE(parser.displayIpAddress(nullptr, err));
    EXPECT_EQ("??? [ local host ]\n\n", ::testing::internal::GetCapturedStdout());
}

TEST_F(ExecutionFrame, BannerForLocalAndSanAdapters)
{
    PIpAddress agent;
    agent.setType(PIpAddress::IPV_SHORT_1);
    agent.setNumericText("10.1.2.3", "");
    KIsaAdapterPath local;
    local.init(0x5001438001234567ULL, 1, true, agent, KIsaAdapterPath::ADAPTER_TYPE(1));
    EXPECT_EQ("[ Device 1 on host at 10.1.2.3 ]\n", adapterBannerText(&local, true, "x"));
    EXPECT_EQ("[ Device 1 on local host ]\n", adapterBannerText(&local, false, ""));
    KIsaAdapterPath san;
    san.init(0x5001438001234567ULL, -1, false, agent, KIsaAdapterPath::ADAPTER_TYPE(1));
    EXPECT_EQ("[ HBA ID " + san.hbaIDText() + " discovered in SAN connected to host at 10.1.2.3 ]\n",
              adapterBannerText(&san, true, "x"));
    EXPECT_EQ("[ HBA ID " + san.hbaIDText() + " discovered in SAN connected to local host ]\n",
              adapterBannerText(&san, false, ""));
}
