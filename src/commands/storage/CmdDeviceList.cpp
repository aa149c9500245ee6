#include "commands/storage/CmdDeviceList.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/storage/FabricFamilies.h"
#include "commands/storage/FabricListing.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_LIST, CmdItem::ITEM_DEVICE, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdDeviceList::CmdDeviceList()
{
    declareCommand(*this, rows);
    helpTitle = "List Device";
    helpDescription = "Lists the devices that the adapter sees on the fabric.";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
    helpResultFile = listResultHelp("KDeviceID", 288, "device identifier");
    helpNotes = "The adapter's own internal devices are not listed; the result holds every device, those too. When "
                "the adapter could gather only some devices, no list is shown, only the reason, and the result "
                "carries status 2.";
}

int CmdDeviceList::execCommand(std::string& err)
{
    return listFabric<DeviceFamily>(*this, err);
}
