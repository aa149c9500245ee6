#include "commands/adapter/CmdMemoryShow.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "records/KMemoryInfo.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_MEMORY, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdMemoryShow::CmdMemoryShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Memory";
    helpDescription = "Shows the memory of the adapter and its use.";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
    helpResultFile = recordResultHelp("KMemoryInfo", 72);
}

int CmdMemoryShow::execCommand(std::string& err)
{
    AddressedAdapter target;
    if (int const rc = findAddressedAdapter(*this, target, err))
        return rc;
    return showAdapterRecord(*this, *target.adapter, &HIsaAdapter::getMemoryInfo, err);
}
