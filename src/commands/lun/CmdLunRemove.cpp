#include "commands/lun/CmdLunRemove.h"

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
    AddressedAdapter addressed;
    std::vector<PLunID> ids;
    if (int const rc = findAdapterAndLuns(*this, addressed, true, ids, err))
        return rc;
    if (int const rc = checkLunTargetKeywords(*this, err))
        return rc;
    PLunID const lun = ids.front();

    std::string text;
    int const rc = addressed.adapter->removeLun(lun, text);
    if (g_pHbaMgmtApi->isFailure(rc)) {
        // The code alone tells the refusal: what the library wrote to explain
        // it is not the command's text.
        err.clear();
        return rc;
    }
    text += "Successfully removed LUN  " + lun.targetID().displayText() +
        " -lun_number=" + PBase::numberToText(lun.lunNumber()) + "\n";
    CommandReport report;
    report.text = text;
    report.resultCode = static_cast<e_MHBA_RETURN>(rc);
    return finishCommand(*this, addressed.adapter, report, err);
}
