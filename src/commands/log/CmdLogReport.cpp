#include "commands/log/CmdLogReport.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_REPORT, CmdItem::ITEM_LOG, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    endRow(),
};

} // namespace

CmdLogReport::CmdLogReport()
{
    declareCommand(*this, rows);
    helpTitle = "Report Log";
    helpDescription = "Writes a text report of the event log of the adapter to a file, or to the console.";
    helpSyntax = "\t[-file=<file name>]\n" + adapterSyntax();
    helpModifiers = "-file=<file name>\n"
                    "\tFile for the report. Default is the console.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -file=report.txt";
}

int CmdLogReport::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
