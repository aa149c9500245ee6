#include "interactive/MenuSession.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>

#include "core/Parser.h"
#include "core/TokenRoot.h"
#include "core/ZekcliReturn.h"
#include "support/ScriptedConsole.h"

namespace {

// The whole command table, as a session of a first run sees it (file and
// NVDIMM commands hidden); these tests stay in the menus that need no
// management library.
class Session : public ::testing::Test {
protected:
    Session()
    {
        parser.initParsingTree();
        int32_t const hiddenOnAFirstRun[] = {4, 5, 6, 7};
        std::copy(std::begin(hiddenOnAFirstRun), std::end(hiddenOnAFirstRun), parser.root.hiddenGroups);
        std::string unused;
        interactive = parser.root.findCmd(CmdAction::ACTION_INTERACTIVE, CmdItem::ITEM_CLI, unused);
    }

    int run(std::string const& answers)
    {
        console.emplace(answers);
        err.clear();
        return interactive->execCommand(err);
    }

    Parser parser;
    TokenCmd* interactive = nullptr;
    std::optional<ScriptedConsole> console;
    std::string err;
};

TEST_F(Session, ExitReturnsZeroAndQuitOrTheEndOfInputFiftyEight)
{
    EXPECT_EQ(run("5\n"), ZEKCLI_OK);
    EXPECT_EQ(run("q\n"), ZEKCLI_EXIT);
    EXPECT_EQ(run("0\n2\n99\n"), ZEKCLI_EXIT);
    EXPECT_EQ(run("0\n2\n"), ZEKCLI_EXIT);
    EXPECT_EQ(run(""), ZEKCLI_EXIT);
}

TEST_F(Session, TheInformationGroupHoldsListReportShowAndView)
{
    run("0\nq\n");
    std::string const out = console->output();
    EXPECT_NE(out.find("       [0:]  list  "), std::string::npos);
    EXPECT_NE(out.find("        1:   report  "), std::string::npos);
    EXPECT_NE(out.find("        2:   show  "), std::string::npos);
    EXPECT_NE(out.find("        3:   view  "), std::string::npos);
    EXPECT_EQ(out.find("        4:   "), out.rfind("        4:   Help"));
}

TEST_F(Session, UpdatesAndDiagnosticsHoldTheirOwnActions)
{
    run("2\nm\n3\nq\n");
    std::string const out = console->output();
    EXPECT_NE(out.find("       [0:]  update          [ firmware ]\n\n"), std::string::npos);
    EXPECT_NE(out.find("       [0:]  restore         [ drive_config | fru_file ]\n"
                       "        1:   save            "),
              std::string::npos);
}

TEST_F(Session, ChoicesAreRememberedAndMarkedAsDefaultsNextTime)
{
    EXPECT_EQ(run("0\n2\n6\nm\n5\n"), ZEKCLI_OK);
    EXPECT_EQ(parser.root.lastInteractiveAction, CmdAction::ACTION_SHOW);
    EXPECT_EQ(parser.root.lastInteractiveItem, CmdItem::ITEM_HEALTH);
    run("0\n2\nq\n");
    EXPECT_NE(console->output().find("       [2:]  show  "), std::string::npos);
    EXPECT_NE(console->output().find("       [6:]  health\n"), std::string::npos);
}

TEST_F(Session, AnItemNotOfferedLeavesTheDefaultAtTheFirstEntry)
{
    parser.root.lastInteractiveItem = CmdItem::ITEM_CACHE_STATISTICS;
    run("0\n2\nq\n");
    EXPECT_NE(console->output().find("       [0:]  adapter\n"), std::string::npos);
}

TEST_F(Session, TheCommandLineShownGrowsByActionAndItem)
{
    run("0\n1\nq\n");
    EXPECT_NE(console->output().find("\n\n        report log \n\n"), std::string::npos);
}

TEST_F(Session, HelpAndQuestionMarkActionsOnlyRemind)
{
    EXPECT_EQ(run("1\n11\n1\n0\n5\n"), ZEKCLI_OK);
    EXPECT_EQ(console->count("Please select a command action from the list, or use 'q' to quit\n"), 2u);
}

TEST_F(Session, EndOfInputInsideACommandsMenusEndsTheSessionWithoutRunningIt)
{
    EXPECT_EQ(run("0\n2\n0\n"), ZEKCLI_EXIT);
    EXPECT_EQ(console->count("\nzekcli "), 0u);
}

} // namespace
