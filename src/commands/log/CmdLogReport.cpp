#include "commands/log/CmdLogReport.h"

#include "api/HIsaAdapter.h"
#include "api/HLogView.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/FileCommand.h"

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

// The report goes to the file that -file names, or else to the console,
// where it stands ahead of the banner. A report the library could not write
// ends the command without a word and with 0.
int CmdLogReport::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    std::string file;
    if (int const rc = findAdapterAndFile(*this, addressed, file, err))
        return rc;
    std::string scratch;
    bool const toFile = keywordGiven(findModifier(ModifierId::MODIFIER_FILEPATH, scratch));
    if (!toFile)
        file.clear();
    if (int const rc = addressed.adapter->loadLog(0))
        return rc;
    if (HLogView* const view = addressed.adapter->getLogView()) {
        if (!view->writeReport(file))
            return 0;
    }
    CommandReport report;
    // Without its closing quote, as the product has always written it.
    report.text = toFile ? "Report saved successfully to file: \"" + file : std::string();
    return finishCommand(*this, addressed.adapter, report, err);
}
