#include "commands/storage/CmdInitiatorList.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/storage/FabricFamilies.h"
#include "commands/storage/FabricListing.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_LIST, CmdItem::ITEM_INITIATOR, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdInitiatorList::CmdInitiatorList()
{
    declareCommand(*this, rows);
    helpTitle = "List Initiator";
    helpDescription = "Lists the initiators that the adapter sees on the fabric.";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
    helpResultFile = listResultHelp("PInitiatorID", 288, "initiator identifier");
    helpNotes = "When the adapter could gather only some initiators, no list is shown, only the reason, and the "
                "result carries status 2.";
}

int CmdInitiatorList::execCommand(std::string& err)
{
    return listFabric<InitiatorFamily>(*this, err);
}
