#include "core/cli/CmdZekcliQhelp.h"

#include "core/TokenRoot.h"
#include "core/TreeRoot.h"

namespace {

TokenInitializer::TOKEN_INITIALIZER const rows[] = {
    {1, Token::TOKEN_TYPE_CMD, "", "", CmdAction::ACTION_QUESTION, CmdItem::ITEM_CLI, TokenCmd::GROUP_ORDINARY},
    {0, 0, "", "", 0, 0, 0},
};

} // namespace

CmdZekcliQhelp::CmdZekcliQhelp()
{
    init(TokenInitializer(rows[0]));
    initModifiers(&rows[1]);
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
