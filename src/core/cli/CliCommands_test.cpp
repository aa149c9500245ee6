#include <gtest/gtest.h>

#include "support/CoreTestTree.h"

namespace {

std::string const kWipe = "\r             \r";

} // namespace

using RetvalCli = CoreTreeTest;

TEST_F(RetvalCli, ZeroExplainsNothing)
{
    EXPECT_EQ(0, run("retval cli -rv=0"));
    EXPECT_EQ("", out);
    EXPECT_EQ("CLI Command completed OK", err);
}

TEST_F(RetvalCli, OwnCodesComeBackWithTheirText)
{
    struct Case {
        int code;
        std::string shown;
    } const cases[] = {
        {51, kWipe + "*** ZEKCLI_INIT_FAIL -- CLI could not start because the API library failed to load\n"},
        {52, kWipe + "*** ZEKCLI_PARSE_FAIL -- CLI could not parse the command line input\n"},
        {53, "(No action taken)  -- User was prompted [yes/no] to accept risk, and the answer was not \"yes\"\n"},
        {54, kWipe + "*** ZEKCLI_CMD_FAIL -- CLI Command execution failed\n"},
        {55,
         kWipe +
             "*** API text of 55 -- CLI Command execution OK, but unable to output results, (e.g. file "
             "output required but could not open file)\n"},
    };
    for (Case const& c : cases) {
        EXPECT_EQ(c.code, run("retval cli -rv=" + std::to_string(c.code)));
        EXPECT_EQ(c.shown, out);
    }
}

TEST_F(RetvalCli, LibraryCodesAreExplainedByTheLibrary)
{
    EXPECT_EQ(54, run("retval cli -rv=1005"));
    EXPECT_EQ(kWipe + "*** ZEKCLI_CMD_FAIL -- CLI return value \"1005\" ==> API text of 1005\n", out);
    EXPECT_EQ(0, run("retval cli -rv=1"));
    EXPECT_EQ("", out);
    EXPECT_EQ("CLI return value \"1\" ==> API text of 1", err);
    EXPECT_EQ(54, run("retval cli -rv=58"));
    EXPECT_EQ(kWipe + "*** ZEKCLI_CMD_FAIL -- CLI return value \"58\" ==> API text of 58\n", out);
}

TEST_F(RetvalCli, TextThatIsNoNumberReadsAsZero)
{
    EXPECT_EQ(0, run("retval cli -rv=abc"));
    EXPECT_EQ("CLI Command completed OK", err);
}

using VersionCli = CoreTreeTest;

TEST_F(VersionCli, NamePrintsTheBareVersion)
{
    EXPECT_EQ(0, run("version cli -name"));
    EXPECT_EQ("2.103.6.4.0.0", out);
}

TEST_F(VersionCli, ExpectedLibraryNeedsNoNote)
{
    EXPECT_EQ(0, run("version"));
    EXPECT_EQ("\nHost Command Line Interface (CLI)\nVersion 2.103.6.4.0.0\n\n\n", out);
}

TEST_F(VersionCli, OtherLibraryIsNamed)
{
    fake.api.version[3] = 9;
    EXPECT_EQ(0, run("version cli"));
    EXPECT_EQ("\nHost Command Line Interface (CLI)\nVersion 2.103.6.9.0.0, (Using HBA API library version 2.103.6.9)"
              "\n\n\n",
              out);
}

TEST_F(VersionCli, LocalHostAnswers)
{
    std::string const head = "\nHost Command Line Interface (CLI)\nVersion 2.103.6.4.0.0";
    fake.api.remoteAgentCode = MHBA_E_NO_ADAPTER_FOUND;
    EXPECT_EQ(0, run("version cli"));
    EXPECT_EQ(head + "\n    (No ZEK found on local host)\n\n\n\n", out);
    fake.api.remoteAgentCode = MHBA_E_AGENT_HAS_NO_ADAPTER;
    EXPECT_EQ(0, run("version cli"));
    EXPECT_EQ(head + "(No ZEK device found on local host)\n\n\n", out);
    fake.api.remoteAgentCode = MHBA_E_FAILURE;
    EXPECT_EQ(0, run("version cli"));
    EXPECT_EQ(head + "\n\n\n", out);
}

TEST_F(VersionCli, RemoteAgentAnswers)
{
    std::string const head = "\nHost Command Line Interface (CLI)\nVersion 2.103.6.4.0.0";
    EXPECT_EQ(0, run("version cli -agent=10.0.0.1"));
    EXPECT_EQ(head + "\n    rmtagent_zek agent found on 10.0.0.1\n\n\n", out);
    fake.api.remoteVersion[0] = 3;
    EXPECT_EQ(0, run("version cli -agent=10.0.0.1"));
    EXPECT_EQ(head + "\n    rmtagent_zek agent found on 10.0.0.1\n\n\n", out);
    fake.api.remoteVersion[3] = 2;
    EXPECT_EQ(0, run("version cli -agent=10.0.0.1"));
    EXPECT_EQ(head + "\n    rmtagent_zek agent found on 10.0.0.1, Version 3.103.6.2\n\n\n", out);
    fake.api.remoteAgentCode = MHBA_E_AGENT_HAS_NO_ADAPTER;
    EXPECT_EQ(0, run("version cli -agent=10.0.0.1"));
    EXPECT_EQ(
        head +
            "\n    rmtagent_zek agent found on 10.0.0.1, (Version 3.103.6.2), (No ZEK device found on remote host)"
            "\n\n\n",
        out);
    fake.api.remoteVersion[3] = 4;
    EXPECT_EQ(0, run("version cli -agent=10.0.0.1"));
    EXPECT_EQ(head + "\n    rmtagent_zek agent found on 10.0.0.1, (No ZEK device found on remote host)\n\n\n", out);
}

TEST_F(VersionCli, AgentThatDoesNotAnswer)
{
    fake.api.remoteAgentCode = MHBA_E_AGENT_NOT_RESPONDING;
    EXPECT_EQ(0, run("version cli -agent=10.0.0.1"));
    EXPECT_EQ("\nHost Command Line Interface (CLI)\nVersion 2.103.6.4.0.0\n    rmtagent_zek agent not found on "
              "\n10.0.0.1\n\n\n\n",
              out);
}

TEST_F(VersionCli, UnreadableAgentAddress)
{
    parser.commandLine = "version cli -agent=nohost";
    ASSERT_EQ(0, parser.parseCommandLine(err));
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(52, parser.currentCmd->execCommand(err));
    EXPECT_EQ("", ::testing::internal::GetCapturedStdout());
    EXPECT_EQ("\"nohost\" is not an address", err);
}

using WaitTime = CoreTreeTest;

TEST_F(WaitTime, SecondsToWait)
{
    EXPECT_EQ(5, CmdTimeWait::secondsToWait(false, ""));
    EXPECT_EQ(0, CmdTimeWait::secondsToWait(true, ""));
    EXPECT_EQ(0, CmdTimeWait::secondsToWait(true, "0"));
    EXPECT_EQ(1, CmdTimeWait::secondsToWait(true, "1"));
    EXPECT_EQ(2591999, CmdTimeWait::secondsToWait(true, "2591999"));
    EXPECT_EQ(0, CmdTimeWait::secondsToWait(true, "2592000"));
    EXPECT_EQ(0, CmdTimeWait::secondsToWait(true, "-3"));
    EXPECT_EQ(12, CmdTimeWait::secondsToWait(true, "12s"));
}

TEST_F(WaitTime, RemainingTimeText)
{
    EXPECT_EQ("00:05", CmdTimeWait::remainingTimeText(5));
    EXPECT_EQ("59:59", CmdTimeWait::remainingTimeText(3599));
    EXPECT_EQ("01:00:00", CmdTimeWait::remainingTimeText(3600));
    EXPECT_EQ("719:59:59", CmdTimeWait::remainingTimeText(2591999));
}

TEST_F(WaitTime, ZeroAndOutOfRangeFinishAtOnce)
{
    EXPECT_EQ(0, run("wait time -seconds=0"));
    EXPECT_EQ("\n\r        \r", out);
    EXPECT_EQ(0, run("wait time -seconds=2592000"));
    EXPECT_EQ("\n\r        \r", out);
    EXPECT_EQ(0, run("wait time -seconds=0 -quiet"));
    EXPECT_EQ("", out);
}

TEST_F(WaitTime, OneSecondCountsDown)
{
    EXPECT_EQ(0, run("wait time -seconds=1"));
    EXPECT_EQ("\n\r        \r00:01\r        \r", out);
}

TEST_F(WaitTime, EmptySecondsIsRefusedByTheParser)
{
    EXPECT_EQ(52, run("wait time -seconds="));
}

using QuestionCli = CoreTreeTest;

TEST_F(QuestionCli, ShowsTheSummary)
{
    EXPECT_EQ(0, run("? cli"));
    std::string const viaHelp = out;
    EXPECT_EQ(0, run("help cli"));
    EXPECT_EQ(viaHelp, out);
    EXPECT_EQ(0u, out.find("  Usage:\n"));
}

TEST_F(QuestionCli, DeclaredRows)
{
    std::string lookup;
    TokenCmd* const help = parser.root.findCmd(CmdAction::ACTION_HELP, CmdItem::ITEM_CLI, lookup);
    ASSERT_NE(nullptr, help);
    TokenModifierString const* const genHelpDoc = help->findModifier(ModifierId::MODIFIER_GENHELPDOC, lookup);
    EXPECT_EQ("~", genHelpDoc->value);
    EXPECT_EQ(TokenModifier::VALUE_REQUIRED, genHelpDoc->valueKind);
    TokenModifierString const* const constraint = help->findModifier(ModifierId::MODIFIER_CONSTRAINT, lookup);
    EXPECT_EQ(TokenModifier::VALUE_NONE, constraint->valueKind);
    TokenCmd* const retval = parser.root.findCmd(CmdAction::ACTION_RETVAL, CmdItem::ITEM_CLI, lookup);
    EXPECT_EQ(TokenModifier::REQUIRED, retval->findModifier(ModifierId::MODIFIER_RV, lookup)->requiredKind);
    TokenCmd* const setAppend = parser.root.findCmd(CmdAction::ACTION_SET, CmdItem::ITEM_APPEND, lookup);
    EXPECT_EQ(1u, setAppend->children.size());
    TokenCmd* const wait = parser.root.findCmd(CmdAction::ACTION_WAIT, CmdItem::ITEM_TIME, lookup);
    EXPECT_EQ(2u, wait->children.size());
    for (Token* child : parser.root.children) {
        TokenCmd const* const cmd = static_cast<TokenCmd const*>(child);
        EXPECT_EQ(TokenCmd::GROUP_ORDINARY, cmd->commandGroup == TokenCmd::GROUP_LUN_CONFIG ? 1 : cmd->commandGroup);
    }
}
