#include "commands/adapter/CmdDemonstrationSave.h"

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/FileCommand.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SAVE, CmdItem::ITEM_DEMONSTRATION_FILE, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED, "~"),
    endRow(),
};

} // namespace

CmdDemonstrationSave::CmdDemonstrationSave()
{
    declareCommand(*this, rows);
    helpTitle = "Save Demonstration_File";
    helpDescription =
        "Saves what is known about the adapters in a demonstration file, which -demonstration_file can later "
        "use in place of real adapters.";
    helpSyntax = "\t-file=<file name>\n" + adapterSyntax();
    helpModifiers = "-file=<file name>\n"
                    "\tThe demonstration file.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -file=demo.dat";
}

int CmdDemonstrationSave::execCommand(std::string& err)
{
    AddressedAdapter target;
    std::string file;
    if (int const rc = findAdapterAndFile(*this, target, file, err))
        return rc;
    // The library writes what it holds of the whole SAN, under the name as given.
    if (int const rc = g_pHbaMgmtApi->saveDemonstrationFile(file, err))
        return rc;
    err.clear();
    CommandReport report;
    report.text = "DEMONSTRATION file saved successfully\n";
    return finishCommand(*this, target.adapter, report, err);
}
