#include "commands/adapter/CmdFruRestore.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

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
        "\tThe saved FRU file.\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -file=adapter0.tar.gz";
    helpNotes = "The adapter must be restarted (\"restart adapter\") for the change to take effect.";
}

int CmdFruRestore::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
