#include "core/cli/CmdDisplayClear.h"

#include <cstdlib>

#include "core/ZekcliReturn.h"

namespace {

TokenInitializer::TOKEN_INITIALIZER const rows[] = {
    {1, Token::TOKEN_TYPE_CMD, "", "", CmdAction::ACTION_CLEAR, CmdItem::ITEM_DISPLAY, TokenCmd::GROUP_ORDINARY},
    {0, 0, "", "", 0, 0, 0},
};

} // namespace

CmdDisplayClear::CmdDisplayClear()
{
    init(TokenInitializer(rows[0]));
    initModifiers(&rows[1]);
    helpTitle = "Clear Display";
    helpDescription = "Clears the terminal screen. Useful in scripts and interactive sessions before a new "
                      "display.";
    helpSyntax = " ";
    helpModifiers = "\tNone.\n";
    helpExamples = ugCommandPrompt() + "\n";
    helpResultFile = "";
    helpNotes = "";
}

int CmdDisplayClear::execCommand(std::string&)
{
    // The terminal's own clear program knows its escape sequences.
    int const status = system("clear");
    (void)status;
    return ZEKCLI_OK;
}
