#include "commands/storage/CmdDriveList.h"

#include "commands/CommandDeclaration.h"
#include "commands/CommandOutput.h"
#include "commands/CommandPattern.h"
#include "commands/CountedRecordBuffer.h"
#include "commands/KeywordHelp.h"
#include "commands/storage/DrivePools.h"
#include "records/PUniqueID.h"

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
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    HIsaAdapter& adapter = *addressed.adapter;
    // Drives that could not be read are named first; the rest are listed.
    std::string text;
    int const gathered = gatherDrives(adapter, text);
    if (gathered != 0 && gathered != MHBA_S_PARTIAL_SUCCESS)
        return gathered;

    CommandOutput out(*this);
    if (!out.banner(&adapter))
        return out.end(0, err);
    out.line(text + poolListingText(adapter, nullptr) + "\n");
    writeCountedResult(out, gathered, driveIdsOf(adapter));
    return out.end(0, err);
}
