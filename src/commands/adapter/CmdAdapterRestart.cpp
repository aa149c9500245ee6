#include "commands/adapter/CmdAdapterRestart.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_RESTART, CmdItem::ITEM_ADAPTER, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdAdapterRestart::CmdAdapterRestart()
{
    declareCommand(*this, rows);
    helpTitle = "Restart Adapter";
    helpDescription = "Restarts the adapter and waits until it answers again, for up to about 3 minutes.";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
}

int CmdAdapterRestart::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
