#include "commands/storage/CmdDeviceShow.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/storage/FabricFamilies.h"
#include "commands/storage/FabricListing.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_DEVICE, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FC_DEVICE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_IS_DEVICE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdDeviceShow::CmdDeviceShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Device";
    helpDescription = "Shows the details of one device that the adapter sees on the fabric, or of all.";
    helpSyntax = "\t[-fc_device=<wwpn>]\n"
                 "\t[-is_device=<iscsi name>]\n" +
        adapterSyntax();
    helpModifiers = "-fc_device=<wwpn>\n"
                    "\tWorld-wide port name of a Fibre Channel device.\n"
                    "-is_device=<iscsi name>\n"
                    "\tName of an iSCSI device.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -fc_device=5006-0160-3BE0-1234";
    helpResultFile = listResultHelp("KDeviceInfo", 848, "device record");
    helpNotes = "Without -fc_device or -is_device every device is shown, and the result holds all their records, "
                "the adapter's own internal devices too. A device that is both a target and an initiator shows "
                "both parts.";
}

int CmdDeviceShow::execCommand(std::string& err)
{
    return showFabric<DeviceFamily>(*this, err);
}
