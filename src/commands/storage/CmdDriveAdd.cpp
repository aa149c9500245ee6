#include "commands/storage/CmdDriveAdd.h"

#include "api/HIsaAdapter.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/storage/DrivePoolChange.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_ADD, CmdItem::ITEM_DRIVE, TokenCmd::GROUP_CACHE),
    keywordRow(ModifierId::MODIFIER_DRIVE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    LUN_SELECTOR_ROWS,
    endRow(),
};

} // namespace

CmdDriveAdd::CmdDriveAdd()
{
    declareCommand(*this, rows);
    helpTitle = "Add Drive";
    helpDescription = "Adds an SSD drive to the storage cache pool of the adapter. The drive is named with -drive, or "
                      "as the LUN through which the adapter presents it.";
    helpSyntax = "\t[-drive=<drive id>]\n" + lunSelectorSyntax() + "\n" + adapterSyntax();
    helpModifiers = "-drive=<drive id>\n"
                    "\tThe SSD drive to add, by the identifier that \"list drive\" shows.\n" +
        lunSelectorHelp() + "\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -drive=6006-0160-2B10-2D00-8E5A-3A4B-C1D2-E311" + ugCommandPrompt() +
        "-zek=0 -lun_number=3 -fc_target=5006-0160-3BE0-1234";
    helpNotes = "Name the drive either with -drive or with the LUN keywords.";
}

int CmdDriveAdd::execCommand(std::string& err)
{
    DrivePoolChange const change{&HIsaAdapter::addDriveToPool, &HIsaAdapter::addDriveToPoolBySsdId,
                                 "Drive successfully added."};
    return changeDrivePool(*this, change, err);
}
