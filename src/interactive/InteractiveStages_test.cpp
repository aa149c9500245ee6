#include <gtest/gtest.h>

#include <string>

#include "interactive/MenuCodes.h"
#include "support/ScriptedConsole.h"
#include "support/TokenTreeFixture.h"

namespace {

using testtree::kFlag;
using testtree::kKey;
using testtree::kOpt;
using testtree::kReq;
using testtree::kVal;

// The keywords of "set fc", and of the NVDIMM actions, on one command.
testtree::Row const kFlags[] = {
    {1, testtree::kCmd, "", "", CmdAction::ACTION_SET, CmdItem::ITEM_FC, 1},
    {2, kKey, "", "", ModifierId::MODIFIER_PORT, kReq, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_LOOP_ONLY, kOpt, kFlag},
    {2, kKey, "", "", ModifierId::MODIFIER_P2P_ONLY, kOpt, kFlag},
    {2, kKey, "", "", ModifierId::MODIFIER_AUTO, kOpt, kFlag},
    {2, kKey, "", "", ModifierId::MODIFIER_DISARM, kOpt, kFlag},
    {2, kKey, "", "", ModifierId::MODIFIER_ERASE, kOpt, kFlag},
    {2, kKey, "", "", ModifierId::MODIFIER_SCRUB, kOpt, kFlag},
    {0, 0, "", "", 0, 0, 0},
};

// Keywords of every kind that the last two stages sort out.
testtree::Row const kMixed[] = {
    {1, testtree::kCmd, "", "", CmdAction::ACTION_LOCK, CmdItem::ITEM_CACHE, 2},
    {2, kKey, "", "", ModifierId::MODIFIER_ZEK, kReq, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_LUN_SIZE_LBA, kReq, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_SIZE, kReq, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_FC_TARGET, kReq, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_NAME, kOpt, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_EXEC_THROTTLE, kOpt, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_CLUSTERID, kOpt, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_LUN_NUMBER, kOpt, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_FC_DEVICE, kOpt, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_FC_INITIATOR, kOpt, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_DELTA, kOpt, kFlag},
    {0, 0, "", "", 0, 0, 0},
};

class Stages : public ::testing::Test {
protected:
    TokenModifierString* keyword(testtree::FakeCmd& cmd, ModifierId::MODIFIER_ID id)
    {
        std::string unused;
        return cmd.findModifier(id, unused);
    }

    testtree::FakeCmd flags{kFlags, ""};
    testtree::FakeCmd mixed{kMixed, ""};
    std::string line = "set fc -zek=0";
    std::string err;
};

TEST_F(Stages, FlagMenuListsFlagsWithTheirStateAndContinueAsDefault)
{
    ScriptedConsole console("\n");
    EXPECT_EQ(flags.interactivePromptForModifiersThatHaveNoParamData(line, err), 0);
    std::string const out = console.output();
    EXPECT_EQ(out.find("\n\nset fc -zek=0\n\n"), 0u);
    EXPECT_NE(out.find("        0:   -loop_only [ ]  (not selected)\n"
                       "        1:   -p2p_only  [ ]  (not selected)\n"
                       "        2:   -auto      [ ]  (not selected)\n"
                       "        3:   -disarm    [ ]  (not selected)\n"
                       "        4:   -erase     [ ]  (not selected)\n"
                       "        5:   -scrub     [ ]  (not selected)\n"
                       "       [6:]  Continue using these selections\n"),
              std::string::npos);
    EXPECT_TRUE(out.ends_with("\n        Select: "));
    EXPECT_EQ(line, "set fc -zek=0");
}

TEST_F(Stages, FlagMenuTogglesAndKeepsOneOfEachExclusiveTrio)
{
    ScriptedConsole console("0\n2\n3\n4\n5\n5\n\n");
    EXPECT_EQ(flags.interactivePromptForModifiersThatHaveNoParamData(line, err), 0);
    EXPECT_NE(console.output().find("0:   -loop_only [X]  (Selected)\n"), std::string::npos);
    EXPECT_NE(console.output().find("2:   -auto      [X]  (Selected)\n"), std::string::npos);
    EXPECT_EQ(line, "set fc -zek=0 -auto -erase");
    EXPECT_TRUE(keyword(flags, ModifierId::MODIFIER_LOOP_ONLY)->isDefault);
    EXPECT_EQ(keyword(flags, ModifierId::MODIFIER_LOOP_ONLY)->value, "");
    EXPECT_FALSE(keyword(flags, ModifierId::MODIFIER_AUTO)->isDefault);
    EXPECT_EQ(keyword(flags, ModifierId::MODIFIER_AUTO)->value, " ");
    EXPECT_TRUE(keyword(flags, ModifierId::MODIFIER_DISARM)->isDefault);
    EXPECT_TRUE(keyword(flags, ModifierId::MODIFIER_SCRUB)->isDefault);
}

TEST_F(Stages, FlagMenuLeftOrAskedForHelpStopsTheCommand)
{
    {
        ScriptedConsole console("q\n");
        EXPECT_EQ(flags.interactivePromptForModifiersThatHaveNoParamData(line, err), MENU_CONTROL_MAIN_MENU);
    }
    {
        ScriptedConsole console("h\n");
        EXPECT_EQ(flags.interactivePromptForModifiersThatHaveNoParamData(line, err), MENU_CONTROL_SHOW_HELP);
    }
}

TEST_F(Stages, NoFlagsNoMenu)
{
    testtree::FakeCmd plain{testtree::kCreateLun, ""};
    ScriptedConsole console("");
    EXPECT_EQ(plain.interactivePromptForModifiersThatHaveNoParamData(line, err), 0);
    EXPECT_EQ(console.output(), "");
}

TEST_F(Stages, RequiredKeywordsAreAskedInOrderSkippingZekAndLunKeywords)
{
    ScriptedConsole console("\n8\n");
    EXPECT_EQ(mixed.interactivePromptForRequiredModifiers(line, err), 0);
    EXPECT_EQ(console.count("[Required] Enter a value for -size= "), 2u);
    EXPECT_EQ(console.count("for -zek"), 0u);
    EXPECT_EQ(console.count("for -fc_target"), 0u);
    EXPECT_EQ(console.count("for -lun_size_lba"), 0u);
    EXPECT_EQ(line, "set fc -zek=0 -size=8");
    EXPECT_TRUE(keyword(mixed, ModifierId::MODIFIER_LUN_SIZE_LBA)->isDefault);
}

TEST_F(Stages, OptionalMenuOffersPlainOptionalKeywordsThenRuns)
{
    ScriptedConsole console("0\nnightly\n\n");
    EXPECT_EQ(mixed.interactivePromptForOptionalModifiersAndExecute(line, err), 0);
    std::string const out = console.output();
    EXPECT_NE(out.find("        0:   -name\n"
                       "        1:   -exec_throttle\n"
                       "       [2:]  Execute\n"),
              std::string::npos);
    EXPECT_NE(out.find("        0:   -name          [ nightly ]\n"
                       "        1:   -exec_throttle\n"),
              std::string::npos);
    EXPECT_NE(out.find("        Choose an optional input, or <Enter> to execute: "), std::string::npos);
    EXPECT_TRUE(out.ends_with("\nzekcli set fc -zek=0 -name=nightly\n\n"));
    EXPECT_EQ(mixed.runs, 1);
}

TEST_F(Stages, OptionalMenuPassesTheCommandsOwnResultOn)
{
    mixed.answer = 1206;
    mixed.answerText = "no such thing";
    ScriptedConsole console("\n");
    EXPECT_EQ(mixed.interactivePromptForOptionalModifiersAndExecute(line, err), 1206);
    EXPECT_EQ(err, "no such thing");
}

TEST_F(Stages, OptionalMenuLeftDoesNotRunTheCommand)
{
    ScriptedConsole console("m\n");
    EXPECT_EQ(mixed.interactivePromptForOptionalModifiersAndExecute(line, err), MENU_CONTROL_MAIN_MENU);
    EXPECT_EQ(mixed.runs, 0);
}

TEST_F(Stages, NoOptionalKeywordsRunsAtOnce)
{
    testtree::FakeCmd health{testtree::kShowHealth, ""};
    ScriptedConsole console("");
    EXPECT_EQ(health.interactivePromptForOptionalModifiersAndExecute(line, err), 0);
    EXPECT_EQ(console.output(), "\nzekcli set fc -zek=0\n\n");
    EXPECT_EQ(health.runs, 1);
}

TEST_F(Stages, ALongKeywordNameIsNotPadded)
{
    testtree::Row const rows[] = {
        {1, testtree::kCmd, "", "", CmdAction::ACTION_SET, CmdItem::ITEM_TARGET, 1},
        {2, kKey, "", "", ModifierId::MODIFIER_MAX_OUTSTANDING_IO, kOpt, kVal},
        {0, 0, "", "", 0, 0, 0},
    };
    testtree::FakeCmd target{rows, ""};
    keyword(target, ModifierId::MODIFIER_MAX_OUTSTANDING_IO)->setValue("64");
    ScriptedConsole console("\n");
    EXPECT_EQ(target.interactivePromptForOptionalModifiersAndExecute(line, err), 0);
    EXPECT_NE(console.output().find("0:   -max_outstanding_io[ 64 ]\n"), std::string::npos);
}

} // namespace
