#include "commands/storage/CmdTargetShow.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/storage/FabricFamilies.h"
#include "commands/storage/FabricListing.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_TARGET, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FC_TARGET, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_IS_TARGET, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdTargetShow::CmdTargetShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Target";
    helpDescription = "Shows the details of one target that the adapter sees on the fabric, or of all.";
    helpSyntax = "\t[-fc_target=<wwpn>]\n"
                 "\t[-is_target=<iscsi name>]\n" +
        adapterSyntax();
    helpModifiers = "-fc_target=<wwpn>\n"
                    "\tWorld-wide port name of a Fibre Channel target.\n"
                    "-is_target=<iscsi name>\n"
                    "\tName of an iSCSI target.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -fc_target=5006-0160-3BE0-1234";
    helpResultFile = listResultHelp("KTargetInfo", 288, "target record");
    helpNotes = "Without -fc_target or -is_target every target is shown, and the result holds no records.";
}

int CmdTargetShow::execCommand(std::string& err)
{
    return showFabric<TargetFamily>(*this, err);
}
