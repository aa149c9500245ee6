#include "commands/lun/CmdLunList.h"

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "api/MHbaReturnBuffer.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandOutput.h"
#include "commands/CommandPattern.h"
#include "commands/CountedRecordBuffer.h"
#include "commands/KeywordHelp.h"
#include "commands/LunLookup.h"
#include "core/ZekcliReturn.h"
#include "records/KAdapterGroupExtendedLunInfo.h"
#include "records/KLunInfo.h"
#include "records/KTargetInfo.h"
#include "records/PIpAddress.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_LIST, CmdItem::ITEM_LUN, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdLunList::CmdLunList()
{
    declareCommand(*this, rows);
    helpTitle = "List LUN";
    helpDescription =
        "Lists LUNs, one line per LUN with the keywords that select it. With -zek the LUNs of each target "
        "that this adapter sees; without it every LUN seen by any adapter, once, with the adapter that caches "
        "it.";
    helpSyntax = "\t[-zek=<adapter>]";
    helpModifiers = "-zek=<adapter>\n"
                    "\tList the LUNs as this adapter sees them, target by target.";
    helpExamples = ugCommandPrompt() + ugCommandPrompt() + "-zek=0";
    helpResultFile = listResultHelp("PLunID", 576, "LUN identifier");
}

int CmdLunList::execCommand(std::string& err)
{
    TokenModifierString const* const zek = findModifier(ModifierId::MODIFIER_ZEK, err);
    if (!zek)
        return ZEKCLI_PARSE_FAIL;
    if (keywordGiven(zek))
        return listThroughOneAdapter(err);
    return listThroughAdapterGroup(err);
}

int CmdLunList::listThroughOneAdapter(std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    HIsaAdapter* const adapter = addressed.adapter;

    std::string text;
    MHbaReturnBuffer firstFailure;
    int const gathered = adapter->getTargetsAndInitiators(&firstFailure);
    if (gathered == MHBA_S_PARTIAL_SUCCESS) {
        // Some targets answered: list those, with the reason for the rest first.
        err = "getTargetsAndInitiators() returned partial success.  At least one attempt to get info returned " +
            firstFailure.displayText() + "\n";
        text = err;
    } else if (gathered != 0) {
        return gathered;
    }

    // Taken apart first: gathering a target's LUNs must not disturb the walk.
    std::vector<PTargetID> targets;
    for (HTarget* target : adapter->getTargets()->items) {
        KTargetInfo const* const info = target->getTargetInfo();
        if (!info || !info->isInternal())
            targets.push_back(*target->getTargetId());
    }
    if (adapter->getTargets()->items.empty()) {
        CommandReport report;
        report.text = text + "No targets found\n";
        report.resultCode = static_cast<e_MHBA_RETURN>(gathered);
        return finishCommand(*this, adapter, report, err);
    }

    std::vector<PLunID> luns;
    for (PTargetID const& target : targets)
        if (int const rc = listLunsForOneTarget(adapter, target, text, luns, err))
            return rc;
    CommandOutput out(*this);
    out.banner(adapter);
    out.line(text + "\n\n");
    writeCountedResult(out, gathered, luns);
    return out.end(0, err);
}

int CmdLunList::listThroughAdapterGroup(std::string& err)
{
    PIpAddress agent;
    if (int const rc = scanAdapterGroupLuns(*this, agent, err))
        return rc;
    // One pasteable line per LUN and nothing else, so the adapters that see
    // each LUN (the group's header) are not shown here.
    CommandOutput out(*this);
    for (KAdapterGroupExtendedLunInfo const& info : g_pHbaMgmtApi->getAdapterGroupLuns()->items)
        out.line(getDisplayText_AdapterGroupLun(info));
    // This view is of LUNs across adapters, not of one adapter's paths, so
    // the result holds no paths.
    writeCountedResult(out, 0, std::vector<PLunID>());
    return out.end(0, err);
}

int CmdLunList::listLunsForOneTarget(HIsaAdapter* adapter, PTargetID const& target, std::string& text,
                                     std::vector<PLunID>& luns, std::string& err)
{
    HTarget* const seen = adapter->getTargets()->find(target);
    if (!seen) {
        err = "Target \"" + target.displayText() + "\" not found";
        return MHBA_E_OBJECT_NOT_FOUND;
    }
    MHbaReturnBuffer firstFailure;
    if (int const rc = adapter->getLunsForSpecificTarget(seen, &firstFailure))
        return rc;
    text += "\n\nTarget \"" + target.displayText() + "\"\n";

    for (PLunID const& id : lunPathsOf(seen->getLunIds())) {
        HLun* const lun = adapter->getLuns()->find(id);
        // A path that the library lists but holds no object for has
        // nothing to show.
        if (!lun)
            continue;
        bool listed = false;
        text += lunLine(lun, id, listed);
        if (listed)
            luns.push_back(id);
    }
    return 0;
}

std::string CmdLunList::lunLine(HLun* lun, PLunID const& id, bool& listed) const
{
    listed = false;
    int rc = 0;
    if (!lun->getLunInfo()->isLunInfoValid())
        rc = lun->refreshLunInfo();
    KLunInfo const* const info = lun->getLunInfo();
    std::string const line = "        " + getDisplayText_Lun(id, false);
    if (rc != 0)
        return line + "  (" + g_pHbaMgmtApi->returnCodeToText(rc) + ")\n";
    if (!info->isLunInfoValid())
        return line + "  (Error getting LUN info)\n";
    // The adapter's external cache store is its own plumbing, not a LUN to address.
    if (info->isLunState(KLunInfo::LUN_STATE_EXTERNAL_CACHE_STORE_LUN))
        return std::string();
    listed = true;
    return line + "\n";
}
