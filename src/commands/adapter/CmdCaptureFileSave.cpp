#include "commands/adapter/CmdCaptureFileSave.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/FileCommand.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SAVE, CmdItem::ITEM_CAPTURE_FILE, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED, "~"),
    endRow(),
};

} // namespace

CmdCaptureFileSave::CmdCaptureFileSave()
{
    declareCommand(*this, rows);
    helpTitle = "Save Capture_File";
    helpDescription = "Saves a capture of the state of the adapter, for support, in a .tar.gz file.";
    helpSyntax = "\t-file=<file name>\n" + adapterSyntax();
    helpModifiers = "-file=<file name>\n"
                    "\tThe file. \".tar.gz\" is added unless the name ends in it.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -file=capture0.tar.gz";
}

int CmdCaptureFileSave::execCommand(std::string& err)
{
    return saveAdapterArchive(*this, &HIsaAdapter::saveCaptureFile, "Capture file saved successfully\n", err);
}
