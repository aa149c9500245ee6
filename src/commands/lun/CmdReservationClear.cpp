#include "commands/lun/CmdReservationClear.h"

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "commands/LunLookup.h"
#include "core/ZekcliReturn.h"
#include "records/PUniqueID.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_CLEAR, CmdItem::ITEM_RESERVATION, TokenCmd::GROUP_CACHE),
    LUN_SELECTOR_ROWS,
    endRow(),
};

} // namespace

CmdReservationClear::CmdReservationClear()
{
    declareCommand(*this, rows);
    helpTitle = "Clear Reservation";
    helpDescription = "Clears the SCSI persistent reservation of one LUN.";
    helpSyntax = lunSelectorSyntax() + "\n" + adapterSyntax();
    helpModifiers = lunSelectorHelp() + "\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -lun_number=2 -fc_target=5006-0160-3BE0-1234";
    helpNotes = "Exactly one LUN must be selected.";
}

int CmdReservationClear::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    std::vector<PLunID> ids;
    if (int const rc = findAdapterAndLuns(*this, addressed, true, ids, err))
        return rc;
    if (int const rc = addressed.adapter->clearReservation(ids.front())) {
        err.clear();
        return rc;
    }
    CommandReport report;
    report.text = "Reservation has been cleared successfully.";
    report.writeResult = false;
    return finishCommand(*this, addressed.adapter, report, err);
}
