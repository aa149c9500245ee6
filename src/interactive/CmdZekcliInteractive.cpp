#include "interactive/CmdZekcliInteractive.h"

#include "commands/CommandDeclaration.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_INTERACTIVE, CmdItem::ITEM_CLI, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdZekcliInteractive::CmdZekcliInteractive()
{
    declareCommand(*this, rows);
    helpTitle = "Interactive CLI";
    helpDescription =
        "Starts menu-driven interactive mode: choose an action, an item, an adapter and the keywords from "
        "numbered menus. The equivalent command line is shown as it grows.";
    helpSyntax = "\t[-zek=<adapter>]";
    helpModifiers = "-zek=<adapter>\n"
                    "\tAdapter offered first in the adapter menu.";
    helpExamples = ugCommandPrompt() + ugCommandPrompt() + "-zek=0";
    helpNotes = "Enter q at any menu to quit, m for the main menu, h or ? for help.";
}

int CmdZekcliInteractive::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
