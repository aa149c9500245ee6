#include "commands/storage/CmdPoolRemove.h"

#include "api/HIsaAdapter.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_REMOVE, CmdItem::ITEM_CACHE_POOL, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdPoolRemove::CmdPoolRemove()
{
    declareCommand(*this, rows);
    helpTitle = "Remove Cache_Pool";
    helpDescription = "Removes the storage cache pool of the adapter.";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
}

int CmdPoolRemove::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    if (int const rc = addressed.adapter->removePool())
        return rc;
    CommandReport report;
    report.text = "Storage cache pool has been removed successfully.\n";
    report.writeResult = false;
    return finishCommand(*this, addressed.adapter, report, err);
}
