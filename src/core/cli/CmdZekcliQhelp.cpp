#include "core/cli/CmdZekcliQhelp.h"

#include "commands/CommandDeclaration.h"
#include "core/TokenRoot.h"
#include "core/TreeRoot.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_QUESTION, CmdItem::ITEM_CLI, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdZekcliQhelp::CmdZekcliQhelp()
{
    declareCommand(*this, rows);
    helpTitle = "Summary Help";
    helpDescription = "Lists every command of the CLI with its keywords, followed by the keywords that all "
                      "commands accept. The same list is shown by \"help cli\".";
    helpSyntax = " ";
    helpModifiers = "\tNone.\n";
    helpExamples = ugCommandPrompt() + "\n";
    helpResultFile = "";
    helpNotes = "";
}

int CmdZekcliQhelp::execCommand(std::string& err)
{
    TokenRoot const* const root = rootOfTree(this);
    if (root)
        root->displaySummaryHelp(err);
    return 0;
}
