#include "commands/adapter/CmdMemoryShow.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

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
    return commandNotAvailableYet(*this, err);
}
