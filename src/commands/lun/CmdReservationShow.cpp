#include "commands/lun/CmdReservationShow.h"

#include <utility>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandOutput.h"
#include "commands/CommandPattern.h"
#include "commands/CountedRecordBuffer.h"
#include "commands/KeywordHelp.h"
#include "commands/LunLookup.h"
#include "commands/lun/LunOutcomeTally.h"
#include "core/ZekcliReturn.h"
#include "records/KLunReservationInfo.h"
#include "records/PUniqueID.h"

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
    helpExamples =
        ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -lun_number=2 -fc_target=5006-0160-3BE0-1234";
    helpResultFile = listResultHelp("KLunReservationInfo", 32, "reservation record");
    helpNotes = "The result file holds no reservation records: its count is always 0, and its\n"
                "return code tells whether the reservations of all selected LUNs could be read.";
}

int CmdReservationShow::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    std::vector<PLunID> ids;
    if (int const rc = findAdapterAndLuns(*this, addressed, false, ids, err))
        return rc;
    std::string const resolution = std::exchange(err, std::string());
    CommandOutput out(*this);
    if (!out.banner(addressed.adapter))
        return out.end(0, err);
    if (ids.empty())
        out.line(resolution);

    LunOutcomeTally tally;
    for (PLunID const& id : ids) {
        KLunReservationInfo reservation;
        reservation.init();
        int const rc = addressed.adapter->getReservations(id, reservation);
        if (rc == MHBA_E_ADAPTER_NOT_IN_COLLECTION)
            return rc;
        tally.record(rc);
        // A LUN whose reservation cannot be read is left out; the result code tells.
        if (rc != 0)
            continue;
        std::string const text = "-lun_number=" + PBase::numberToText(id.lunNumber()) +
            " -fc_target=" + id.targetID().displayText() + "\n" + reservation.displayText();
        if (!out.line(text))
            break;
    }
    // The result lists no reservation records: readers get the count alone.
    writeCountedResult(out, tally.resultCode(), std::vector<KLunReservationInfo>());
    return out.end(0, err);
}
