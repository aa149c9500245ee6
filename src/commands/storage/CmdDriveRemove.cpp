#include "commands/storage/CmdDriveRemove.h"

#include "api/HIsaAdapter.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/storage/DrivePoolChange.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_REMOVE, CmdItem::ITEM_DRIVE, TokenCmd::GROUP_CACHE),
    keywordRow(ModifierId::MODIFIER_DRIVE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    LUN_SELECTOR_ROWS,
    endRow(),
};

} // namespace

CmdDriveRemove::CmdDriveRemove()
{
    declareCommand(*this, rows);
    helpTitle = "Remove Drive";
    helpDescription =
        "Removes an SSD drive from the storage cache pool of the adapter. The drive is named with -drive, "
        "or as the LUN through which the adapter presents it.";
    helpSyntax = "\t[-drive=<drive id>]\n" + lunSelectorSyntax() + "\n" + adapterSyntax();
    helpModifiers = "-drive=<drive id>\n"
                    "\tThe SSD drive to remove, by the identifier that \"list drive\" shows.\n" +
        lunSelectorHelp() + "\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -drive=6006-0160-2B10-2D00-8E5A-3A4B-C1D2-E311";
    helpNotes = "Name the drive either with -drive or with the LUN keywords.";
}

int CmdDriveRemove::execCommand(std::string& err)
{
    DrivePoolChange const change{&HIsaAdapter::removeDriveFromPool, &HIsaAdapter::removeDriveFromPoolBySsdId,
                                 "Drive successfully removed."};
    return changeDrivePool(*this, change, err);
}
