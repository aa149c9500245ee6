#include "commands/lun/CmdReservationShow.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_RESERVATION, TokenCmd::GROUP_CACHE),
    LUN_SELECTOR_ROWS,
    endRow(),
};

} // namespace

CmdReservationShow::CmdReservationShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Reservation";
    helpDescription = "Shows the SCSI persistent reservation of the selected LUNs, or of all LUNs.";
    helpSyntax = lunSelectorSyntax() + "\n" + adapterSyntax();
    helpModifiers = lunSelectorHelp() + "\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0"
        + ugCommandPrompt() + "-zek=0 -lun_number=2 -fc_target=5006-0160-3BE0-1234";
    helpResultFile = listResultHelp("KLunReservationInfo", 32, "reservation record");
}

int CmdReservationShow::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
