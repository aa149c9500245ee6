#include "commands/adapter/CmdAdapterList.h"

#include <vector>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "core/ZekcliReturn.h"
#include "records/PIpAddress.h"
#include "records/PUniqueID.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_LIST, CmdItem::ITEM_ADAPTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

void addUnlessListed(std::vector<KClusterID>& ids, KClusterID const& id)
{
    for (KClusterID const& listed : ids)
        if (listed == id)
            return;
    ids.push_back(id);
}

} // namespace

CmdAdapterList::CmdAdapterList()
{
    declareCommand(*this, rows);
    helpTitle = "List Adapter";
    helpDescription = "Lists the adapters reachable from this host, or through a remote agent, grouped by cluster, one "
                      "pasteable -zek= line per adapter.";
    helpSyntax = "\t[-zek=<adapter>]";
    helpModifiers = "-zek=<adapter>\n"
                    "\tAlso list the adapters that this adapter sees in the SAN.";
    helpExamples = ugCommandPrompt() + ugCommandPrompt() + "-agent=192.168.1.20" + ugCommandPrompt() + "-zek=0";
}

int CmdAdapterList::execCommand(std::string& err)
{
    PIpAddress agent;
    TokenModifierString const* const zek = readScanKeywords(*this, agent, err);
    if (!zek)
        return ZEKCLI_PARSE_FAIL;

    // An empty host lists no clusters rather than failing.
    bool noneFound = false;
    if (int const rc = rescanAdapters(agent, noneFound))
        return rc;
    std::vector<KClusterID> ids;
    for (HCluster* cluster : g_pHbaMgmtApi->getClusters()->items)
        ids.push_back(*cluster->getClusterId());

    // The named adapter adds the clusters it sees in the SAN, its own first.
    if (keywordGiven(zek)) {
        AddressedAdapter named;
        if (int const rc = selectAdapter(named.path, err))
            return rc;
        if (int const rc = rescanFromAdapter(*this, named, err))
            return rc;
        KClusterID const* const own = named.adapter->getClusterId();
        if (!own || own->isEmpty()) {
            err = "-zek=" + zek->value + " is not a member of a cluster";
            return ZEKCLI_PARSE_FAIL;
        }
        addUnlessListed(ids, *own);
    }

    std::string text;
    for (KClusterID const& id : ids)
        text += getSummaryText_Cluster(id);
    if (ids.empty())
        text = "\nNo Clusters found";
    return finishCommand(*this, nullptr, CommandReport::withoutBanner(text), err);
}
