#include <gtest/gtest.h>

#include <string>

#include "commands/cache/CmdCacheEnable.h"
#include "commands/cache/CmdCacheModify.h"
#include "commands/log/CmdLogList.h"
#include "interactive/KeywordChoices.h"
#include "interactive/MenuCodes.h"
#include "support/ScriptedConsole.h"
#include "support/TokenTreeFixture.h"

namespace {

using testtree::kKey;
using testtree::kOpt;
using testtree::kReq;
using testtree::kVal;

testtree::Row const kPrompted[] = {
    {1, testtree::kCmd, "", "", CmdAction::ACTION_CREATE, CmdItem::ITEM_LUN, 3},
    {2, kKey, "", "", ModifierId::MODIFIER_SIZE, kReq, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_NAME, kOpt, kVal},
    {2, kKey, "", "~", ModifierId::MODIFIER_FILEPATH, kReq, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_LUN_START_LBA, kReq, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_RESET_TYPE, kOpt, kVal},
    {0, 0, "", "", 0, 0, 0},
};

class KeywordPrompt : public ::testing::Test {
protected:
    TokenModifierString* keyword(ModifierId::MODIFIER_ID id)
    {
        std::string err;
        return cmd.findModifier(id, err);
    }

    int ask(ModifierId::MODIFIER_ID id, bool required = false)
    {
        return cmd.promptForModifier(keyword(id), required, line, err);
    }

    testtree::FakeCmd cmd{kPrompted, ""};
    std::string line = "create lun ";
    std::string err;
};

TEST_F(KeywordPrompt, RequiredTextIsAskedAgainUntilGiven)
{
    ScriptedConsole console("\n  \n512\n");
    EXPECT_EQ(ask(ModifierId::MODIFIER_SIZE), 0);
    EXPECT_EQ(console.output(),
              "[Required] Enter a value for -size= [Required] Enter a value for -size= "
              "[Required] Enter a value for -size= ");
    EXPECT_EQ(keyword(ModifierId::MODIFIER_SIZE)->value, "512");
    EXPECT_FALSE(keyword(ModifierId::MODIFIER_SIZE)->isDefault);
    EXPECT_EQ(line, "create lun  -size=512");
}

TEST_F(KeywordPrompt, QOnARequiredKeywordQuits)
{
    ScriptedConsole console("q\n");
    EXPECT_EQ(ask(ModifierId::MODIFIER_SIZE), MENU_CONTROL_QUIT);
    EXPECT_EQ(line, "create lun ");
}

TEST_F(KeywordPrompt, QOnAnOptionalKeywordIsAValue)
{
    ScriptedConsole console("q\n");
    EXPECT_EQ(ask(ModifierId::MODIFIER_NAME), 0);
    EXPECT_EQ(keyword(ModifierId::MODIFIER_NAME)->value, "q");
}

TEST_F(KeywordPrompt, AnOptionalKeywordLeftEmptyStaysOutYetShowsOnTheLine)
{
    ScriptedConsole console("\n");
    EXPECT_EQ(ask(ModifierId::MODIFIER_NAME), 0);
    EXPECT_EQ(console.output(), "Enter a value for -name= ");
    EXPECT_TRUE(keyword(ModifierId::MODIFIER_NAME)->isDefault);
    EXPECT_EQ(line, "create lun  -name=");
}

TEST_F(KeywordPrompt, AnEarlierValueIsOfferedAndKeptOnEnter)
{
    keyword(ModifierId::MODIFIER_SIZE)->value = "64";
    ScriptedConsole console("\n");
    EXPECT_EQ(ask(ModifierId::MODIFIER_SIZE), 0);
    EXPECT_EQ(console.output(), "[Required] Enter a new value or use <enter> to continue [-size=64]: ");
    EXPECT_FALSE(keyword(ModifierId::MODIFIER_SIZE)->isDefault);
    EXPECT_EQ(line, "create lun  -size=64");
}

TEST_F(KeywordPrompt, ThePlaceholderTildeIsNoValue)
{
    ScriptedConsole console("\nscript.txt\n");
    EXPECT_EQ(ask(ModifierId::MODIFIER_FILEPATH), 0);
    EXPECT_EQ(console.count("[Required] Enter a value for -filepath= "), 2u);
    EXPECT_EQ(keyword(ModifierId::MODIFIER_FILEPATH)->value, "script.txt");
}

TEST_F(KeywordPrompt, EndOfInputQuitsEvenAnOptionalPrompt)
{
    ScriptedConsole console("");
    EXPECT_EQ(ask(ModifierId::MODIFIER_NAME), MENU_CONTROL_QUIT);
    EXPECT_EQ(line, "create lun ");
}

TEST_F(KeywordPrompt, KeywordsNoPromptKnowsAreNotAskedFor)
{
    ScriptedConsole console("1\n");
    EXPECT_EQ(ask(ModifierId::MODIFIER_LUN_START_LBA, true), 0);
    EXPECT_EQ(console.output(), "");
    EXPECT_TRUE(keyword(ModifierId::MODIFIER_LUN_START_LBA)->isDefault);
}

TEST_F(KeywordPrompt, AWordKeywordWithoutAListIsAskedAsText)
{
    ScriptedConsole console("warm\n");
    EXPECT_EQ(ask(ModifierId::MODIFIER_RESET_TYPE), 0);
    EXPECT_EQ(keyword(ModifierId::MODIFIER_RESET_TYPE)->value, "warm");
}

TEST(KeywordChoices, TheCommandsLendTheirOwnWordLists)
{
    CmdCacheEnable enable;
    CmdLogList logList;
    ASSERT_NE(keywordChoices(enable, ModifierId::MODIFIER_MODE), nullptr);
    EXPECT_EQ(*keywordChoices(enable, ModifierId::MODIFIER_MODE), enable.modeWords.texts());
    EXPECT_EQ(*keywordChoices(enable, ModifierId::MODIFIER_PROFILE), enable.profileWords.texts());
    EXPECT_EQ(*keywordChoices(logList, ModifierId::MODIFIER_SEVERITY), logList.severityWords.texts());
    EXPECT_EQ(keywordChoices(logList, ModifierId::MODIFIER_MODE), nullptr);
    EXPECT_EQ(keywordChoices(enable, ModifierId::MODIFIER_NAME), nullptr);
}

class WordPrompt : public ::testing::Test {
protected:
    TokenModifierString* mode()
    {
        std::string unused;
        return cmd.findModifier(ModifierId::MODIFIER_MODE, unused);
    }

    CmdCacheEnable cmd;
    std::string line = "enable cache";
    std::string err;
};

TEST_F(WordPrompt, OffersEveryWordWithTheSecondAsDefault)
{
    ScriptedConsole console("\n");
    EXPECT_EQ(cmd.promptForModifier(mode(), true, line, err), 0);
    std::string const out = console.output();
    EXPECT_NE(out.find("        0:   -mode=none\n"), std::string::npos);
    EXPECT_NE(out.find("       [1:]  -mode=read_write_through\n"), std::string::npos);
    EXPECT_NE(out.find("        5:   -mode=write_back_only\n"), std::string::npos);
    EXPECT_TRUE(out.ends_with("\n        [Required] Select: "));
    EXPECT_EQ(mode()->value, "read_write_through");
    EXPECT_FALSE(mode()->isDefault);
    EXPECT_EQ(line, "enable cache -mode=read_write_through");
}

TEST_F(WordPrompt, TheWordHeldNowIsTheDefault)
{
    mode()->value = "read_only";
    ScriptedConsole console("\n");
    EXPECT_EQ(cmd.promptForModifier(mode(), true, line, err), 0);
    EXPECT_NE(console.output().find("       [3:]  -mode=read_only\n"), std::string::npos);
    EXPECT_EQ(mode()->value, "read_only");
}

TEST_F(WordPrompt, QuitAndMainMenuBothLeadToTheMainMenuAndHelpAsksForIt)
{
    {
        ScriptedConsole console("q\n");
        EXPECT_EQ(cmd.promptForEnum(mode(), line, err), MENU_CONTROL_MAIN_MENU);
    }
    {
        ScriptedConsole console("98\n");
        EXPECT_EQ(cmd.promptForEnum(mode(), line, err), MENU_CONTROL_MAIN_MENU);
    }
    {
        ScriptedConsole console("?\n");
        EXPECT_EQ(cmd.promptForEnum(mode(), line, err), MENU_CONTROL_SHOW_HELP);
    }
    EXPECT_EQ(line, "enable cache");
    EXPECT_TRUE(mode()->isDefault);
}

TEST_F(WordPrompt, AnOptionalWordHasNoRequiredMark)
{
    CmdCacheModify modify;
    std::string unused;
    TokenModifierString* const optionalMode = modify.findModifier(ModifierId::MODIFIER_MODE, unused);
    ScriptedConsole console("2\n");
    EXPECT_EQ(modify.promptForModifier(optionalMode, false, line, err), 0);
    std::string const out = console.output();
    EXPECT_TRUE(out.ends_with("\n        Select: "));
    EXPECT_EQ(optionalMode->value, "read_write_back");
}

} // namespace
