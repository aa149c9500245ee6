#include "core/cli/CmdZekcliHelp.h"

#include "commands/CommandDeclaration.h"
#include "core/TokenRoot.h"
#include "core/TreeRoot.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_HELP, CmdItem::ITEM_CLI, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_GENHELPDOC, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_CONSTRAINT, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE, "~"),
    endRow(),
};

} // namespace

CmdZekcliHelp::CmdZekcliHelp()
{
    declareCommand(*this, rows);
    helpTitle = "Help";
    helpDescription = "Lists every command of the CLI with its keywords, followed by the keywords that all "
                      "commands accept. With -constraint it lists only the commands that have usage "
                      "constraints, with those constraints. With -genhelpdoc it writes the help of every "
                      "command into a set of text fragment files for the documentation.";
    helpSyntax = "\t[-constraint]\n"
                 "\t[-genhelpdoc=<base file name>]";
    helpModifiers = "-constraint\n"
                    "\tLists the commands that have usage constraints, with their constraints.\n"
                    "-genhelpdoc=<base file name>\n"
                    "\tWrites the help texts of all commands into fragment files whose names begin with\n"
                    "\tthe base file name and end in \".txt\".\n";
    helpExamples = ugCommandPrompt() + "\n" + ugCommandPrompt() + "-constraint\n" + ugCommandPrompt() +
        "-genhelpdoc=/tmp/help/cli\n";
    helpResultFile = "";
    helpNotes = "";
}

int CmdZekcliHelp::execCommand(std::string& err)
{
    TokenRoot* const root = rootOfTree(this);
    TokenModifierString const* const genHelpDoc = findModifier(ModifierId::MODIFIER_GENHELPDOC, err);
    TokenModifierString const* const constraint =
        genHelpDoc ? findModifier(ModifierId::MODIFIER_CONSTRAINT, err) : nullptr;
    if (!root || !constraint)
        return ZEKCLI_PARSE_FAIL;
    if (!genHelpDoc->isDefault)
        return root->genHelpDoc(genHelpDoc->value, err) ? ZEKCLI_OK : ZEKCLI_CMD_FAIL;
    if (!constraint->isDefault)
        root->displayConstraintHelp(err);
    else
        root->displaySummaryHelp(err);
    return ZEKCLI_OK;
}
