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
                    "\tAccepted but not used: the adapter of each command is chosen in its own menu.";
    helpExamples = ugCommandPrompt();
    helpNotes = "In the session's own menus (main, action, item, agent, adapter) q or 99 quits, m or 98 goes back "
                "to the main menu and h or ? shows help; in the menus of a command's keywords they leave the "
                "command being built. Enter takes the entry in brackets. Exit in the main menu ends the session and "
                "keeps the last choices for the next one; q, or the end of the input, ends it with 58 and keeps "
                "nothing.";
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
