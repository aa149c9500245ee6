#include "statistics/CmdLunStatisticsClear.h"

#include "api/HIsaAdapter.h"
#include "api/HLunCollection.h"
#include "api/HbaMgmtApi.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandOutput.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "commands/LunLookup.h"
#include "core/ZekcliReturn.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_CLEAR, CmdItem::ITEM_LUN_STATISTICS, TokenCmd::GROUP_ORDINARY),
    LUN_SELECTOR_ROWS,
    endRow(),
};

// Direct-access LUNs and LUNs on the adapter's own SSDs keep statistics.
bool keepsStatistics(KLunInfo const& info)
{
    return info.eLunType() == KLunInfo::LUN_TYPE_DIRECT_ACCESS ||
        info.isLunState(KLunInfo::LUN_STATE_STORAGE_MEDIA_SSD);
}

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
    AddressedAdapter addressed;
    std::vector<PLunID> ids;
    if (int const rc = findAdapterAndLuns(*this, addressed, false, ids, err))
        return rc;
    std::string text = err;
    int lastResult = MHBA_S_OK;
    if (ids.empty()) {
        text += "No LUN specified";
    } else {
        for (PLunID const& id : ids)
            text += clearOne(*addressed.adapter, id, lastResult);
        text += "\n\n";
    }
    // A LUN that could not be cleared is told in the text and in the
    // result record; the command itself has done its work.
    CommandOutput out(*this);
    if (out.line(text))
        out.result(lastResult);
    return out.end(0, err);
}

std::string CmdLunStatisticsClear::clearOne(HIsaAdapter& adapter, PLunID const& id, int& lastResult) const
{
    std::string const line = "    " + id.displayTextWithoutVpGroup();
    HLun* const lun = findLunObject(adapter, id, LunGathering::PathTarget);
    if (!lun)
        return line + " -- LUN not found\n";
    KLunInfo const& info = *lun->getLunInfo();
    if (!info.isLunInfoValid())
        lastResult = lun->refreshLunInfo();
    if (!info.isLunInfoValid())
        return line + " -- LUN info not available -- possibly offline\n";
    if (!keepsStatistics(info))
        return line + " -- Statistics not available (" + KLunInfo::lunTypeToText(info.eLunType()) + ")\n";
    lastResult = adapter.clearLunStatistics(info.ui8Wwuln, info.ui32WwulnLength, info.isSanLun() && info.isLunCached());
    if (lastResult == MHBA_S_OK)
        return line + " -- LUN statistics cleared OK\n";
    return line + " --> Clear Statistics failed --> " + g_pHbaMgmtApi->returnCodeToText(lastResult) + "\n ";
}
