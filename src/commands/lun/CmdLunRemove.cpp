#include "commands/lun/CmdLunRemove.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_REMOVE, CmdItem::ITEM_LUN, TokenCmd::GROUP_LUN_CONFIG),
    LUN_SELECTOR_ROWS,
    endRow(),
};

} // namespace

CmdLunRemove::CmdLunRemove()
{
    declareCommand(*this, rows);
    helpTitle = "Remove LUN";
    helpDescription = "Deletes a data LUN of the adapter, or removes an offline SAN LUN from its lists.";
    helpSyntax = lunSelectorSyntax() + "\n" + adapterSyntax();
    helpModifiers = lunSelectorHelp() + "\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -lun_number=1 -fc_target=5006-0160-3BE0-1234";
    helpNotes = "Exactly one LUN must be selected. There is no confirmation prompt.";
}

int CmdLunRemove::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
