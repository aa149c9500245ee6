#include "commands/adapter/CmdFruRestore.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/FileCommand.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_RESTORE, CmdItem::ITEM_FRU_FILE, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED, "~"),
    endRow(),
};

} // namespace

CmdFruRestore::CmdFruRestore()
{
    declareCommand(*this, rows);
    helpTitle = "Restore FRU_File";
    helpDescription = "Restores the field replaceable unit data of the adapter from a file saved by \"save fru_file\".";
    helpSyntax = "\t-file=<file name>\n" + adapterSyntax();
    helpModifiers = "-file=<file name>\n"
                    "\tThe saved FRU file.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -file=adapter0.tar.gz";
    helpNotes = "The adapter must be restarted (\"restart adapter\") for the change to take effect.";
}

int CmdFruRestore::execCommand(std::string& err)
{
    AddressedAdapter target;
    std::string file;
    if (int const rc = findAdapterAndFile(*this, target, file, err))
        return rc;
    e_MHBA_RETURN const rc = target.adapter->restoreFruFile(file);
    if (rc > MHBA_S_OK_REBOOT_REQUIRED)
        return rc;
    // The data are restored; should the output fail, the user still learns it.
    CommandReport report;
    report.text = "Restore successful -- 'restart adapter' is required for changes to take effect";
    report.resultCode = rc;
    std::string outputErr;
    int const outcome = finishCommand(*this, target.adapter, report, outputErr);
    err = outcome == 0 ? std::string() : "FRU file restored successfully\n\n";
    return outcome;
}
