#include "commands/log/CmdLogSave.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SAVE, CmdItem::ITEM_LOG, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED, "~"),
    endRow(),
};

} // namespace

CmdLogSave::CmdLogSave()
{
    declareCommand(*this, rows);
    helpTitle = "Save Log";
    helpDescription = "Saves the event log of the adapter in a file, which \"view log\" and \"list log\" can read.";
    helpSyntax = "\t-file=<file name>\n" + adapterSyntax();
    helpModifiers = "-file=<file name>\n"
                    "\tThe log file.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -file=adapter0.log";
}

int CmdLogSave::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
