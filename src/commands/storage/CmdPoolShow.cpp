#include "commands/storage/CmdPoolShow.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_POOL, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdPoolShow::CmdPoolShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Pool";
    helpDescription = "Shows the storage cache pool of the adapter: SSD storage, its use and data LUNs.";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
    helpResultFile = recordResultHelp("KPoolInfo", 64);
}

int CmdPoolShow::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
