#include "commands/storage/CmdDriveConfigRestore.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_RESTORE, CmdItem::ITEM_DRIVE_CONFIG, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_OWNER, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdDriveConfigRestore::CmdDriveConfigRestore()
{
    declareCommand(*this, rows);
    helpTitle = "Restore Drive_Config";
    helpDescription =
        "Takes over the drive configuration that another adapter left on the drives, for example after the "
        "adapter has been replaced.";
    helpSyntax = "\t-owner=<adapter id>\n" + adapterSyntax();
    helpModifiers = "-owner=<adapter id>\n"
                    "\tIdentifier of the adapter that owned the drives, in hexadecimal.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -owner=2000001B32A1B2C3";
}

int CmdDriveConfigRestore::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
