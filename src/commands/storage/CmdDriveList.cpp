#include "commands/storage/CmdDriveList.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_LIST, CmdItem::ITEM_DRIVE, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdDriveList::CmdDriveList()
{
    declareCommand(*this, rows);
    helpTitle = "List Drive";
    helpDescription = "Lists the SSD drives of the adapter by pool.";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
    helpResultFile = listResultHelp("KDriveID", 288, "drive identifier");
}

int CmdDriveList::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
