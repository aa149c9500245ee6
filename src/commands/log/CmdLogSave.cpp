#include "commands/log/CmdLogSave.h"

#include "api/HIsaAdapter.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/FileCommand.h"

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

// A log the library could not save ends the command with 0 and without a
// word of its own.
int CmdLogSave::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    std::string file;
    if (int const rc = findAdapterAndFile(*this, addressed, file, err))
        return rc;
    if (int const rc = addressed.adapter->loadLog(0))
        return rc;
    if (!addressed.adapter->saveLogFile(file))
        return 0;
    CommandReport report;
    report.text = "Log saved successfully to file: \"" + file + "\"";
    return finishCommand(*this, addressed.adapter, report, err);
}
