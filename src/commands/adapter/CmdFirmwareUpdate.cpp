#include "commands/adapter/CmdFirmwareUpdate.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandOutput.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/FileCommand.h"
#include "core/ZekcliReturn.h"

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
                    "\tThe firmware image.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -file=zek_fw_2_103.bin";
    helpNotes = "The adapter may need \"restart adapter\" for the new firmware to run.";
}

int CmdFirmwareUpdate::execCommand(std::string& err)
{
    AddressedAdapter target;
    std::string file;
    if (int const rc = findAdapterAndFile(*this, target, file, err))
        return rc;
    e_MHBA_RETURN const rc = target.adapter->updateFirmware(file.c_str());
    if (rc > MHBA_S_OK_REBOOT_REQUIRED) {
        CommandOutput out(*this);
        out.banner(target.adapter);
        return out.end(rc, err);
    }
    CommandReport report;
    report.text = rc == MHBA_S_OK_REBOOT_REQUIRED
        ? "Firmware update complete --> 'restart adapter' is required for changes to take effect"
        : "Firmware update complete";
    // An update leaves no result record behind, whatever its outcome.
    report.writeResult = false;
    return finishCommand(*this, target.adapter, report, err);
}
