#include "commands/cache/CmdCacheDisable.h"

#include <vector>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "commands/LunLookup.h"
#include "commands/cache/LunKeywordText.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterPath.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_DISABLE, CmdItem::ITEM_CACHE, TokenCmd::GROUP_CACHE),
    LUN_SELECTOR_ROWS,
    keywordRow(ModifierId::MODIFIER_CLUSTERID, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

// Mode 0 of enableCache is how a LUN leaves the cache.
constexpr int kModeNone = 0;

} // namespace

CmdCacheDisable::CmdCacheDisable()
{
    declareCommand(*this, rows);
    helpTitle = "Disable Cache";
    helpDescription =
        "Stops caching a LUN on the adapter named by -zek. With -clusterid the request goes to the primary "
        "adapter of that cluster instead.";
    helpSyntax = lunSelectorSyntax() +
        "\n"
        "\t[-clusterid=<cluster id>]\n" +
        adapterSyntax();
    helpModifiers = lunSelectorHelp() +
        "\n"
        "-clusterid=<cluster id>\n"
        "\tSend the request to the primary adapter of this cluster; the LUN\n"
        "\tmust then be named with -lun_wwuln.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -lun_number=2 -fc_target=5006-0160-3BE0-1234" + ugCommandPrompt() +
        "-zek=0 -clusterid=SANCLUSTER1 -lun_wwuln=6006-0160-2B10-2D00-8E5A-3A4B-C1D2-E311";
    helpNotes = "-zek must name the adapter that caches the LUN.";
}

int CmdCacheDisable::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    err.clear();

    KClusterID cluster;
    bool clusterGiven = false;
    if (!getClusterIdFromCommandLineModifiers(cluster, clusterGiven, err))
        return ZEKCLI_PARSE_FAIL;
    std::vector<PLunID> ids;
    if (!getLunIdFromCommandLine(addressed.adapter, false, false, ids, err))
        return ZEKCLI_PARSE_FAIL;
    if (int const rc = checkLunTargetKeywords(*this, err))
        return rc;
    // The target as the command line gives it decides the keyword of the
    // success line, whatever the LUN turned out to be; with no target
    // keyword on the line that target counts as iSCSI. Scripts read this
    // line as it has always been.
    PTargetID lineTarget;
    bool targetGiven = false;
    getTargetIdFromCommandLineModifiers(false, lineTarget, targetGiven, err);
    bool const iscsiKeyword = !targetGiven || lineTarget.isIscsiTargetId();

    int const rc =
        clusterGiven ? disableThroughCluster(addressed, cluster, err) : disableOnAdapter(*addressed.adapter, ids, err);
    if (rc != 0)
        return rc;

    PLunID const first = ids.empty() ? PLunID() : ids.front();
    CommandReport report;
    report.text = "Successfully disabled caching for LUN  " + targetKeyword(iscsiKeyword) +
        first.targetID().displayText() + " -lun_number=" + PBase::numberToText(first.lunNumber()) + "\n";
    return finishCommand(*this, addressed.adapter, report, err);
}

int CmdCacheDisable::disableOnAdapter(HIsaAdapter& adapter, std::vector<PLunID>& ids, std::string& err)
{
    if (!filterLunIdListToOnePerMulipathLun(&adapter, ids, err))
        return ZEKCLI_PARSE_FAIL;
    HLun* const held = findLunObject(adapter, ids.front(), LunGathering::EveryTarget);
    if (!held) {
        err = "LUN not found";
        return MHBA_E_OBJECT_NOT_FOUND;
    }
    if (int const rc = readLunRecord(*held))
        return rc;
    KLunInfo const& info = *held->getLunInfo();
    if (!info.isLunInfoValid())
        return MHBA_E_OBJECT_NOT_FOUND;
    if (!info.isSanLun())
        return MHBA_E_LUN_NOT_APPLICABLE;

    e_MHBA_RETURN const rc = adapter.enableCache(ids.front(), kModeNone, 0, 0, 0, 0, 0, 0, 0);
    if (!g_pHbaMgmtApi->isFailure(rc))
        return 0;
    if (rc == MHBA_E_CACHED_BY_OTHER_ADAPTER) {
        // The command does not follow the LUN: the user picks the adapter.
        err += "This LUN is currently cached on another adapter, ( -zek=" +
            PBase::ui64NumberToHexText(info.ui64ClusterCacheAdapterPrimary()) +
            " ).\n"
            "Please reissue the command to the adapter that is caching this LUN.\n";
        return rc;
    }
    if (rc == MHBA_E_LUN_GONE)
        return disableGoneLun(adapter, err);
    return rc;
}

int CmdCacheDisable::disableGoneLun(HIsaAdapter& adapter, std::string& err)
{
    // A LUN that has gone away has no paths left to name it by; only its
    // world-wide name still reaches the cache entry.
    KWwulnLunID name;
    bool named = false;
    if (!getAsciiWwulnFromCommandLine(name, named, err))
        return MHBA_E_LUN_GONE;
    if (g_pHbaMgmtApi->isFailure(adapter.disableCache(name)))
        return MHBA_E_LUN_GONE;
    return 0;
}

int CmdCacheDisable::disableThroughCluster(AddressedAdapter& addressed, KClusterID const& cluster, std::string& err)
{
    // The clusters are known only after a scan; without one every cluster
    // would look unknown.
    if (g_pHbaMgmtApi->getClusters()->items.empty())
        if (int const rc = rescanFromAdapter(*this, addressed, err))
            return rc;
    HClusterCollection* const clusters = g_pHbaMgmtApi->getClusters();
    // A cluster the scan does not know has nothing cached to release.
    if (!clusters->contains(cluster))
        return 0;
    HCluster* const found = clusters->contains(cluster) ? clusters->find(cluster) : nullptr;
    if (!found) {
        TokenModifierString const* const keyword = findModifier(ModifierId::MODIFIER_CLUSTERID, err);
        err = "No cluster found for -clusterid=" + (keyword ? keyword->value : std::string());
        return ZEKCLI_PARSE_FAIL;
    }
    KIsaAdapterPath primaryPath;
    if (!found->getPrimaryPath(primaryPath)) {
        err = "Cluster has no primary adapter";
        return ZEKCLI_PARSE_FAIL;
    }
    HIsaAdapter* const primary = g_pHbaMgmtApi->getAdapters()->find(primaryPath);
    if (!primary) {
        err = "Cluster identified " + primaryPath.displayText() +
            " as primary adapter, but that adapter could not be found";
        return ZEKCLI_PARSE_FAIL;
    }
    KWwulnLunID name;
    bool named = false;
    if (!getAsciiWwulnFromCommandLine(name, named, err)) {
        err = "When -cluster_id=.. is specified, -lun_wwuln=... must be used to specify the LUN for which cache is "
              "to be disabled.";
        return ZEKCLI_PARSE_FAIL;
    }
    e_MHBA_RETURN const rc = primary->disableCacheByWwuln(name);
    return g_pHbaMgmtApi->isFailure(rc) ? rc : 0;
}
