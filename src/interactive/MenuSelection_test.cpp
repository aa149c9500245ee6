#include "interactive/MenuSelection.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/TokenCmd.h"
#include "interactive/MenuCodes.h"
#include "support/ScriptedConsole.h"

namespace {

std::vector<std::string> const kThree = {"alpha", "beta", "gamma"};

std::vector<std::string> numbered(size_t count)
{
    std::vector<std::string> entries;
    for (size_t i = 0; i < count; ++i)
        entries.push_back("entry " + std::to_string(i));
    return entries;
}

TEST(MenuScreen, DrawsBannerLineEntriesKeysAndPrompt)
{
    EXPECT_EQ(menuScreenText(kThree, 1, "Select: ", "show lun "),
              "\n        HalvardConsole\n\n"
              "        Korvane CLI - Version 2.103.6.4"
              "\n\n        show lun \n\n"
              "        0:   alpha\n"
              "       [1:]  beta\n"
              "        2:   gamma\n"
              "\n        (m or 98: Main Menu; q or 99: Quit; h or ?  - Help)\n"
              "        Select: ");
}

TEST(MenuScreen, IndexesAboveNineLoseOneBlankOfIndent)
{
    std::string const screen = menuScreenText(numbered(12), 10, "p", "");
    EXPECT_NE(screen.find("\n        9:   entry 9\n"), std::string::npos);
    EXPECT_NE(screen.find("\n      [10:]  entry 10\n"), std::string::npos);
    EXPECT_NE(screen.find("\n       11:   entry 11\n"), std::string::npos);
}

TEST(MenuScreen, ShowsEveryEntryOfALongMenu)
{
    std::string const screen = menuScreenText(numbered(150), 0, "p", "");
    EXPECT_NE(screen.find("\n       98:   entry 98\n"), std::string::npos);
    EXPECT_NE(screen.find("\n       149:   entry 149\n"), std::string::npos);
}

TEST(MenuScreen, ADefaultOutsideTheEntriesMarksNothing)
{
    EXPECT_EQ(menuScreenText(kThree, -1, "p", "").find('['), std::string::npos);
}

TEST(MenuAnswer, EmptyTakesTheDefaultWhateverItIs)
{
    EXPECT_EQ(menuChoiceFromAnswer("", 2, 3), 2);
    EXPECT_EQ(menuChoiceFromAnswer("", 7, 3), 7);
    EXPECT_EQ(menuChoiceFromAnswer("", -1, 3), MENU_QUIT);
}

TEST(MenuAnswer, OnlyTheFirstCharacterNamesAKeyAndCaseCounts)
{
    EXPECT_EQ(menuChoiceFromAnswer("q", 0, 3), MENU_QUIT);
    EXPECT_EQ(menuChoiceFromAnswer("quit", 0, 3), MENU_QUIT);
    EXPECT_EQ(menuChoiceFromAnswer("m", 0, 3), MENU_MAIN_MENU);
    EXPECT_EQ(menuChoiceFromAnswer("h", 0, 3), MENU_HELP);
    EXPECT_EQ(menuChoiceFromAnswer("help", 0, 3), MENU_HELP);
    EXPECT_EQ(menuChoiceFromAnswer("?", 0, 3), MENU_HELP);
    EXPECT_EQ(menuChoiceFromAnswer("Q", 0, 3), kAskAgain);
    EXPECT_EQ(menuChoiceFromAnswer("H", 0, 3), kAskAgain);
    EXPECT_EQ(menuChoiceFromAnswer("M", 0, 3), kAskAgain);
}

TEST(MenuAnswer, NumbersSelectEntriesAndNinetyEightNinetyNineLeave)
{
    EXPECT_EQ(menuChoiceFromAnswer("0", 0, 3), 0);
    EXPECT_EQ(menuChoiceFromAnswer("2", 0, 3), 2);
    EXPECT_EQ(menuChoiceFromAnswer("5x", 0, 6), 5);
    EXPECT_EQ(menuChoiceFromAnswer("98", 0, 3), MENU_MAIN_MENU);
    EXPECT_EQ(menuChoiceFromAnswer("99", 0, 3), MENU_QUIT);
    EXPECT_EQ(menuChoiceFromAnswer("98", 0, 150), MENU_MAIN_MENU);
    EXPECT_EQ(menuChoiceFromAnswer("99", 0, 150), MENU_QUIT);
    EXPECT_EQ(menuChoiceFromAnswer("100", 0, 150), 100);
}

TEST(MenuAnswer, AnswersThatSelectNothingAskAgain)
{
    EXPECT_EQ(menuChoiceFromAnswer("3", 0, 3), kAskAgain);
    EXPECT_EQ(menuChoiceFromAnswer("x", 0, 3), kAskAgain);
    EXPECT_EQ(menuChoiceFromAnswer("-1", 0, 3), kAskAgain);
    EXPECT_EQ(menuChoiceFromAnswer("2147483648", 0, 3), kAskAgain);
    EXPECT_EQ(menuChoiceFromAnswer("-2147483649", 0, 3), kAskAgain);
    EXPECT_EQ(menuChoiceFromAnswer(std::string(1, '\0') + "1", 0, 3), kAskAgain);
    EXPECT_EQ(menuChoiceFromAnswer("\xc3\xa9", 0, 3), kAskAgain);
    EXPECT_EQ(menuChoiceFromAnswer(std::string(1 << 20, '7'), 0, 3), kAskAgain);
}

TEST(MenuAnswer, ALongAnswerIsReadFromBehindItsFirstThirtyTwoCharacters)
{
    EXPECT_EQ(menuChoiceFromAnswer(std::string(32, '9') + "00000001", 0, 3), 1);
    EXPECT_EQ(menuChoiceFromAnswer(std::string(32, 'x') + "2", 0, 3), 2);
    EXPECT_EQ(menuChoiceFromAnswer(std::string(31, 'x') + "2", 0, 3), kAskAgain);
}

class MenuSelection : public ::testing::Test {
protected:
    TokenCmd cmd;
};

TEST_F(MenuSelection, ShowsTheMenuAgainUntilSomethingIsSelected)
{
    ScriptedConsole console("x\n7\n  1\n");
    EXPECT_EQ(cmd.getMenuSelection(kThree, 0, "p: ", ""), 1);
    EXPECT_EQ(console.count("HalvardConsole"), 3u);
}

TEST_F(MenuSelection, EndOfInputQuitsAndIsRemembered)
{
    ScriptedConsole console("");
    EXPECT_EQ(cmd.getMenuSelection(kThree, 0, "p: ", ""), MENU_QUIT);
    EXPECT_TRUE(menu_console::inputEnded());
}

TEST_F(MenuSelection, EmptyLinesAreNoEndOfInput)
{
    ScriptedConsole console("\n\r\n");
    EXPECT_EQ(cmd.getMenuSelection(kThree, 2, "p: ", ""), 2);
    EXPECT_EQ(cmd.getMenuSelection(kThree, 1, "p: ", ""), 1);
    EXPECT_FALSE(menu_console::inputEnded());
}

TEST_F(MenuSelection, ALastLineWithoutItsLineFeedStillCounts)
{
    ScriptedConsole console("2");
    EXPECT_EQ(cmd.getMenuSelection(kThree, 0, "p: ", ""), 2);
    EXPECT_FALSE(menu_console::inputEnded());
    EXPECT_EQ(cmd.getMenuSelection(kThree, 0, "p: ", ""), MENU_QUIT);
    EXPECT_TRUE(menu_console::inputEnded());
}

TEST_F(MenuSelection, ANulByteLineIsAnsweredByTheMenuAgain)
{
    ScriptedConsole console(std::string("\0\n1\n", 4));
    EXPECT_EQ(cmd.getMenuSelection(kThree, 0, "p: ", ""), 1);
    EXPECT_EQ(console.count("HalvardConsole"), 2u);
}

} // namespace
