#include "commands/storage/CmdInitiatorShow.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/storage/FabricFamilies.h"
#include "commands/storage/FabricListing.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_INITIATOR, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FC_INITIATOR, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_IS_INITIATOR, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdInitiatorShow::CmdInitiatorShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Initiator";
    helpDescription = "Shows the details of one initiator that the adapter sees on the fabric, or of all.";
    helpSyntax = "\t[-fc_initiator=<wwpn>]\n"
                 "\t[-is_initiator=<iscsi name>]\n" +
        adapterSyntax();
    helpModifiers = "-fc_initiator=<wwpn>\n"
                    "\tWorld-wide port name of a Fibre Channel initiator.\n"
                    "-is_initiator=<iscsi name>\n"
                    "\tName of an iSCSI initiator.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -fc_initiator=5006-0160-3BE0-1234";
    helpResultFile = listResultHelp("KInitiatorInfo", 464, "initiator record");
    helpNotes = "Without -fc_initiator or -is_initiator every initiator is shown, and the result holds all their "
                "records.";
}

int CmdInitiatorShow::execCommand(std::string& err)
{
    return showFabric<InitiatorFamily>(*this, err);
}
