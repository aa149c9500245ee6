#include "core/cli/CmdDisplayClear.h"

#include <cstdlib>

#include "commands/CommandDeclaration.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_CLEAR, CmdItem::ITEM_DISPLAY, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdDisplayClear::CmdDisplayClear()
{
    declareCommand(*this, rows);
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
