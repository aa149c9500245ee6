#include "commands/adapter/CmdFirmwareUpdate.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_UPDATE, CmdItem::ITEM_FIRMWARE, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED, "~"),
    endRow(),
};

} // namespace

CmdFirmwareUpdate::CmdFirmwareUpdate()
{
    declareCommand(*this, rows);
    helpTitle = "Update Firmware";
    helpDescription = "Loads new firmware from a file into the adapter.";
    helpSyntax = "\t-file=<file name>\n" + adapterSyntax();
    helpModifiers = "-file=<file name>\n"
        "\tThe firmware image.\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -file=zek_fw_2_103.bin";
    helpNotes = "The adapter may need \"restart adapter\" for the new firmware to run.";
}

int CmdFirmwareUpdate::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
