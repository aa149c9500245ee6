#include "commands/adapter/CmdHealthShow.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "records/KAdapterHealthInfo.h"
#include "records/KIsaAdapterInfo.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_HEALTH, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdHealthShow::CmdHealthShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Health";
    helpDescription =
        "Shows the health of the adapter: temperatures, PCI Express links, memory and cache error counts, "
        "beacons and hardware error flags.";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
    helpResultFile = recordResultHelp("KAdapterHealthInfo", 360);
}

int CmdHealthShow::execCommand(std::string& err)
{
    AddressedAdapter target;
    KIsaAdapterInfo info;
    if (int const rc = findAdapterAndInfo(*this, target, info, err))
        return rc;
    return showAdapterRecord(*this, *target.adapter, &HIsaAdapter::getAdapterHealth, err);
}
