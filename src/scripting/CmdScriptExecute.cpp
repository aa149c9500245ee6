#include "scripting/CmdScriptExecute.h"

#include "commands/CommandDeclaration.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_EXECUTE, CmdItem::ITEM_SCRIPT, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_CONTINUE_ON_ERROR, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE, "~"),
    endRow(),
};

} // namespace

CmdScriptExecute::CmdScriptExecute()
{
    declareCommand(*this, rows);
    helpTitle = "Execute Script";
    helpDescription = "Executes a list of Host CLI commands read in from a file ";
    helpSyntax = "\t-file=<file name>\n"
        "\t[-continue_on_error]";
    helpModifiers = "-file=<file name>\n"
        "\tThe script: one command per line. Lines starting with one of\n"
        "\t# ! ; / : are comments.\n"
        "-continue_on_error\n"
        "\tGo on with the next line when a line of the script fails.";
    helpExamples = ugCommandPrompt() + "-file=adapter0.cfg"
        + ugCommandPrompt() + "-file=adapter0.cfg -continue_on_error -textfile";
    helpNotes = "-quiet, -show_only_error, -echo and -textfile are added to every line of the script.";
}

int CmdScriptExecute::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
