#include "commands/storage/CmdDriveShow.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_DRIVE, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_DRIVE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_SMART, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    keywordRow(ModifierId::MODIFIER_VERBOSE, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    keywordRow(ModifierId::MODIFIER_LUN_NUMBER, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_FC_TARGET, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_IS_TARGET, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdDriveShow::CmdDriveShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Drive";
    helpDescription = "Shows the details and paths of one SSD drive, or of all, optionally with SMART data.";
    helpSyntax = "\t[-drive=<drive id>]\n"
                 "\t[-smart]\n"
                 "\t[-verbose]\n"
                 "\t[-lun_number=<number>]\n"
                 "\t[-fc_target=<wwpn>]\n"
                 "\t[-is_target=<iscsi name>]\n" +
        adapterSyntax();
    helpModifiers = "-drive=<drive id>\n"
                    "\tThe SSD drive, by the identifier that \"list drive\" shows.\n"
                    "-smart\n"
                    "\tAlso read the SMART data of the drive.\n"
                    "-verbose\n"
                    "\tShow all SMART attributes.\n"
                    "-lun_number=<number>\n"
                    "\tWith -fc_target or -is_target: the drive presented as this LUN.\n"
                    "-fc_target=<wwpn>\n"
                    "\tWorld-wide port name of a Fibre Channel target.\n"
                    "-is_target=<iscsi name>\n"
                    "\tName of an iSCSI target.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() +
        "-zek=0 -drive=6006-0160-2B10-2D00-8E5A-3A4B-C1D2-E311 -smart -verbose";
    helpResultFile = listResultHelp("KDriveInfo", 5784, "drive record");
    helpNotes = "-lun_number needs -fc_target or -is_target.";
}

int CmdDriveShow::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
