#include "statistics/CmdStatisticsClear.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_CLEAR, CmdItem::ITEM_STATISTICS, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdStatisticsClear::CmdStatisticsClear()
{
    declareCommand(*this, rows);
    helpTitle = "Clear Statistics";
    helpDescription = "Resets cache statistics to zero";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
}

int CmdStatisticsClear::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
