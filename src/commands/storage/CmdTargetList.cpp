#include "commands/storage/CmdTargetList.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/storage/FabricFamilies.h"
#include "commands/storage/FabricListing.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_LIST, CmdItem::ITEM_TARGET, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdTargetList::CmdTargetList()
{
    declareCommand(*this, rows);
    helpTitle = "List Target";
    helpDescription = "Lists the targets that the adapter sees on the fabric.";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
    helpResultFile = listResultHelp("PTargetID", 288, "target identifier");
    helpNotes = "The adapter's own internal targets are not listed; the result holds every target, those too. When "
                "the adapter could gather only some targets, no list is shown, only the reason, and the result "
                "carries status 2.";
}

int CmdTargetList::execCommand(std::string& err)
{
    return listFabric<TargetFamily>(*this, err);
}
