#include "scripting/CmdScriptSave.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SAVE, CmdItem::ITEM_SCRIPT, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_USEAPPEND, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdScriptSave::CmdScriptSave()
{
    declareCommand(*this, rows);
    helpTitle = "Save Script";
    helpDescription = "Saves an editable text file containing the current adapter configuration as a list of Host CLI "
                      "commands.";
    helpSyntax = "\t[-file=<file name>]\n"
                 "\t[-useappend=<append set>]\n" +
        adapterSyntax();
    helpModifiers = "-file=<file name>\n"
                    "\tThe script file. Default is the console.\n"
                    "-useappend=<append set>\n"
                    "\tName of an append set (see \"set append\"): the script starts by\n"
                    "\tdefining it, and adapter commands of the script use it.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -file=adapter0.cfg" + ugCommandPrompt() +
        "-zek=0 -file=adapter0.cfg -useappend=site1";
    helpNotes = "The script does not hold cluster membership, cache size limits or passwords.";
}

int CmdScriptSave::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
