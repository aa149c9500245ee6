#include "commands/lun/CmdLunShow.h"

#include <cstring>
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
#include "records/KAdapterGroupExtendedLunInfo.h"
#include "records/KIsaAdapterPath.h"
#include "records/KLunIoStatistics.h"
#include "records/PIpAddress.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_LUN, TokenCmd::GROUP_ORDINARY),
    LUN_SELECTOR_ROWS,
    keywordRow(ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

// Adapter-internal LUNs (cache stores, pool LUNs, controller LUNs on local
// storage) are not the user's to look at.
bool isAdapterPlumbing(KLunInfo const& info)
{
    return info.isLunState(KLunInfo::LUN_STATE_EXTERNAL_CACHE_STORE_LUN) ||
        info.isLunState(KLunInfo::LUN_STATE_LOGICAL_CACHE_POOL_LUN) ||
        info.isLunState(KLunInfo::LUN_STATE_CACHE_STORE) ||
        (info.isLunState(KLunInfo::LUN_STATE_STORAGE_CONTROLLER_LUN) && info.isLunState(KLunInfo::LUN_STATE_LOCAL));
}

// The adapter that knows most about the LUN: the one caching it, otherwise
// the first that reaches it.
HIsaAdapter* adapterToAsk(KAdapterGroupExtendedLunInfo const& group)
{
    if (group.bCached)
        return findAdapterById(group.ui64PreferredAdapter);
    if (group.ui32NonCachedAdapterCount == 0)
        return nullptr;
    return findAdapterById(group.ui64NonCachedAdapters[0]);
}

} // namespace

CmdLunShow::CmdLunShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show LUN";
    helpDescription = "Shows everything known about LUNs: identity, state, paths, cache settings and statistics. With "
                      "-zek the selected LUNs as this adapter sees them; without it every LUN, once, from the adapter "
                      "that caches it.";
    helpSyntax = lunSelectorSyntax() +
        "\n"
        "\t[-zek=<adapter>]";
    helpModifiers = lunSelectorHelp() +
        "\n"
        "-zek=<adapter>\n"
        "\tShow the LUNs as this adapter sees them.";
    helpExamples = ugCommandPrompt() + ugCommandPrompt() + "-zek=0 -lun_number=2 -fc_target=5006-0160-3BE0-1234" +
        ugCommandPrompt() + "-zek=0 -lun_wwuln=6006-0160-2B10-2D00-8E5A-3A4B-C1D2-E311";
    helpResultFile = listResultHelp("KLunInfo", 1560, "LUN record");
    helpNotes = "The LUN keywords are used only together with -zek.";
}

int CmdLunShow::execCommand(std::string& err)
{
    TokenModifierString const* const zek = findModifier(ModifierId::MODIFIER_ZEK, err);
    if (!zek)
        return ZEKCLI_PARSE_FAIL;
    if (keywordGiven(zek))
        return showThroughOneAdapter(err);
    return showThroughAdapterGroup(err);
}

int CmdLunShow::showThroughOneAdapter(std::string& err)
{
    AddressedAdapter addressed;
    std::vector<PLunID> ids;
    if (int const rc = findAdapterAndLuns(*this, addressed, false, ids, err))
        return rc;
    // What the resolution had to say (no LUNs, a partial gathering) leads the output.
    std::string text = std::exchange(err, std::string());
    CommandOutput out(*this);
    if (!out.banner(addressed.adapter))
        return out.end(0, err);
    if (ids.empty())
        out.line(text);

    // Records are large: grown one by one they would be copied over and over.
    std::vector<KLunInfo> infos;
    infos.reserve(ids.size());
    LunOutcomeTally tally;
    for (PLunID const& id : ids) {
        int const rc = showOneLun(addressed.adapter, id, text, infos, err);
        if (rc == MHBA_E_ADAPTER_NOT_IN_COLLECTION)
            return rc;
        tally.record(rc);
        if (rc != 0)
            continue;
        if (!out.line(text))
            break;
        text.clear();
    }
    writeCountedResult(out, tally.resultCode(), infos);
    return out.end(0, err);
}

int CmdLunShow::showThroughAdapterGroup(std::string& err)
{
    PIpAddress agent;
    if (int const rc = scanAdapterGroupLuns(*this, agent, err))
        return rc;
    std::vector<KAdapterGroupExtendedLunInfo> const& groups = g_pHbaMgmtApi->getAdapterGroupLuns()->items;
    std::vector<KLunInfo> infos;
    infos.reserve(groups.size());
    LunOutcomeTally tally;
    CommandOutput out(*this);
    std::string text;
    for (KAdapterGroupExtendedLunInfo const& group : groups) {
        text += group.displayHeaderText(agent);
        if (HIsaAdapter* const adapter = adapterToAsk(group))
            tally.record(showOneLun(adapter, group.lunId, text, infos, err));
        if (!out.line(text))
            break;
        text.clear();
    }
    writeCountedResult(out, tally.resultCode(), infos);
    return out.end(0, err);
}

int CmdLunShow::showOneLun(HIsaAdapter* adapter, PLunID const& lun, std::string& text, std::vector<KLunInfo>& infos,
                           std::string& err)
{
    HLun* const held = findLunObject(*adapter, lun, LunGathering::PathTarget);
    if (!held) {
        err = "LUN \"" + lun.displayText() + "\" not found";
        return MHBA_E_OBJECT_NOT_FOUND;
    }
    // A refresh that fails is shown beside the LUN, not reported: the other
    // LUNs are still worth showing.
    int refreshed = 0;
    if (!held->getLunInfo()->isLunInfoValid())
        refreshed = held->refreshLunInfo();
    KLunInfo const& info = *held->getLunInfo();
    if (refreshed == 0 && isAdapterPlumbing(info))
        return 0;

    bool const usable = refreshed == 0 && info.isLunInfoValid();
    KLunIoStatistics statistics;
    bool haveStatistics = false;
    if (usable) {
        // A peer's cache is counted by the peer, so only the I/O counters are asked for then.
        bool const withCache =
            info.isSanLun() && info.eCacheState() != KLunInfo::CACHE_STATE_CACHED_PEER && info.isLunCached();
        haveStatistics = adapter->getLunIoStatistics(info.ui8Wwuln, info.ui32WwulnLength, withCache, statistics) == 0;
    }

    text += getDisplayText_Lun(lun, false);
    if (refreshed != 0)
        text += "  (" + g_pHbaMgmtApi->returnCodeToText(refreshed) + ")";
    text += "\n";
    if (info.isLunInfoValid()) {
        text += identityText(info, lun);
        if (info.isOnline()) {
            HLunPathTable* const table = adapter->getLunPathTable();
            if (HLunPathEntry* const entry = table ? table->find(lun) : nullptr)
                text += entry->displayText();
            if (info.isSanLun() && haveStatistics)
                text += statisticsText(info, statistics);
        }
    } else {
        text += "    ****** LUN info not available ******\n";
    }
    text += "\n";
    infos.push_back(info);
    return 0;
}

std::string CmdLunShow::identityText(KLunInfo const& info, PLunID const& lun) const
{
    std::string text;
    if (info.eWwulnCodeSet != PBase::WWULN_CODE_SET_NONE)
        text += getDisplayText_Wwname(info.ui8Wwuln, static_cast<int>(info.ui32WwulnLength), info.eWwulnCodeSet,
                                      "lun_wwuln", false) +
            "\n";
    if (info.ui32Page80SerialLength != 0)
        text += "-lun_serial=\"" +
            std::string(info.szPage80Serial, strnlen(info.szPage80Serial, sizeof info.szPage80Serial)) + "\"\n";
    text += "    Target     = " + lun.targetID().displayText() +
        "\n    LUN Number = " + PBase::numberToText(lun.lunNumber()) + "\n";
    return text + info.displayText();
}

std::string CmdLunShow::statisticsText(KLunInfo const& info, KLunIoStatistics const& statistics)
{
    std::string text;
    if (info.eLunType() == KLunInfo::LUN_TYPE_DIRECT_ACCESS)
        text += "    LUN I/O Statistics:\n" + statistics.displayText();
    if (info.eCacheState() == KLunInfo::CACHE_STATE_CACHED_PEER)
        // The caching adapter holds the cache's figures; only the mirror is known here.
        return text + "    (LUN is cached on remote adapter " +
            KIsaAdapterPath::ui64numberToHexText(info.ui64ClusterCacheAdapterPrimary()) + ")\n" +
            info.cacheInfo.displayMirrorLunText();
    if (!info.isLunCached())
        return text + "    (LUN is not cached)\n";
    return text + "    LUN Cache Info:\n" +
        info.cacheInfo.displayText(info.eLunType() == KLunInfo::LUN_TYPE_DIRECT_ACCESS) +
        "\n    LUN Cache Statistics:\n" + statistics.cacheStatistics.displayText();
}
