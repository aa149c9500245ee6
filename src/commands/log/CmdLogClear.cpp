#include "commands/log/CmdLogClear.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_CLEAR, CmdItem::ITEM_LOG, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdLogClear::CmdLogClear()
{
    declareCommand(*this, rows);
    helpTitle = "Clear Log";
    helpDescription = "Clears the event log of the adapter.";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
}

int CmdLogClear::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
