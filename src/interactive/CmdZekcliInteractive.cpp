#include "interactive/CmdZekcliInteractive.h"

#include "commands/CommandDeclaration.h"
#include "core/TokenRoot.h"
#include "core/TreeRoot.h"
#include "core/ZekcliReturn.h"
#include "interactive/MenuConsole.h"
#include "interactive/MenuSession.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_INTERACTIVE, CmdItem::ITEM_CLI, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

// A session can start another from its own menus; each level costs stack,
// so input cannot pile them up without end.
constexpr int kDeepestNesting = 32;
int nestingDepth = 0;

class NestedSession {
public:
    NestedSession() { ++nestingDepth; }
    ~NestedSession() { --nestingDepth; }
    NestedSession(NestedSession const&) = delete;
    NestedSession& operator=(NestedSession const&) = delete;
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
    TokenRoot* const root = rootOfTree(this);
    if (!root) {
        err = "The command \"" + ugCommandLowCase() + "\" is not part of the command tree";
        return ZEKCLI_CMD_FAIL;
    }
    if (nestingDepth >= kDeepestNesting) {
        err = "Menu sessions are nested too deeply (more than " + std::to_string(kDeepestNesting) + " levels).";
        return ZEKCLI_CMD_FAIL;
    }
    NestedSession const level;
    if (nestingDepth == 1)
        menu_console::resetInputEnded();
    return MenuSession(*this, *root, err).run();
}
