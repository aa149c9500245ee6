#include "statistics/CmdLunStatisticsClear.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_CLEAR, CmdItem::ITEM_LUN_STATISTICS, TokenCmd::GROUP_ORDINARY),
    LUN_SELECTOR_ROWS,
    endRow(),
};

} // namespace

CmdLunStatisticsClear::CmdLunStatisticsClear()
{
    declareCommand(*this, rows);
    helpTitle = "Clear LUN_Statistics";
    helpDescription = "Resets the I/O statistics of the selected LUNs, or of all LUNs, to zero.";
    helpSyntax = lunSelectorSyntax() + "\n" + adapterSyntax();
    helpModifiers = lunSelectorHelp() + "\n" + adapterHelp();
    helpExamples =
        ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -lun_number=2 -fc_target=5006-0160-3BE0-1234";
}

int CmdLunStatisticsClear::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
