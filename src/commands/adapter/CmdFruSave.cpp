#include "commands/adapter/CmdFruSave.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/FileCommand.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SAVE, CmdItem::ITEM_FRU_FILE, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED, "~"),
    endRow(),
};

} // namespace

CmdFruSave::CmdFruSave()
{
    declareCommand(*this, rows);
    helpTitle = "Save FRU_File";
    helpDescription = "Saves the field replaceable unit data of the adapter in a .tar.gz file.";
    helpSyntax = "\t-file=<file name>\n" + adapterSyntax();
    helpModifiers = "-file=<file name>\n"
                    "\tThe file. \".tar.gz\" is added unless the name ends in it.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -file=adapter0.tar.gz";
}

int CmdFruSave::execCommand(std::string& err)
{
    return saveAdapterArchive(*this, &HIsaAdapter::saveFruFile, "FRU file saved successfully\n", err);
}
