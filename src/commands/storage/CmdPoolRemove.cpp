#include "commands/storage/CmdPoolRemove.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

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
    return commandNotAvailableYet(*this, err);
}
