#include "commands/adapter/CmdClusterShow.h"

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/ClusterScope.h"
#include "records/KIsaAdapterInfo.h"
#include "records/KIsaAdapterPath.h"
#include "records/RecordImage.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_CLUSTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_CLUSTERID, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

// These words deliberately differ from those of the cluster summary.
std::string rolesText(HCluster& cluster)
{
    bool const primary = cluster.isPrimaryValid();
    bool const secondary = cluster.isSecondaryValid();
    if (!primary && !secondary)
        return "   (Orphan cluster -- no valid primary or secondary adapter)";
    if (!secondary)
        return "   (Secondary adapter is not valid)";
    if (!primary)
        return "   (Secondary adapter is valid, but primary is not)";
    return std::string();
}

bool isPseudoCluster(HCluster& cluster)
{
    KClusterID const* const id = cluster.getClusterId();
    return !id || !id->isClusterKeyValid();
}

// Builds the report and remembers the description of the last adapter shown,
// which becomes the result record.
class ClusterReport {
public:
    std::string text;
    KIsaAdapterInfo const* lastShown = nullptr;

    void addCluster(HCluster& cluster)
    {
        text += "-clusterid=\"" + cluster.getClusterId()->displayText() + "\"" + rolesText(cluster) + "\n";
        for (KIsaAdapterPath const& member : members(cluster)) {
            text += "  -zek=" + member.hbaIDText();
            HIsaAdapter* const adapter = knownAdapter(member);
            if (!adapter)
                continue;
            KIsaAdapterPath const* const path = adapter->getAdapterPath();
            if (path && reachedThroughAgent(*path))
                text += "  -agent=" + path->ipAddrRemoteAgentHost().displayText();
            text += "\n        " + member.displayText() + "\n" + adapterText(*adapter) + "\n";
        }
        text += "\n";
    }

    void addAdaptersOutsideClusters(std::vector<HCluster*> const& clusters)
    {
        bool headed = false;
        for (HCluster* cluster : clusters) {
            if (!isPseudoCluster(*cluster))
                continue;
            if (!headed)
                text += "\nThe following adapters are not members of any cluster:\n";
            headed = true;
            for (KIsaAdapterPath const& member : members(*cluster))
                addUnclusteredAdapter(member);
            text += "\n";
        }
    }

private:
    static std::vector<KIsaAdapterPath> members(HCluster& cluster)
    {
        std::vector<KIsaAdapterPath> const* const paths = cluster.getMemberPaths();
        return paths ? *paths : std::vector<KIsaAdapterPath>();
    }

    static HIsaAdapter* knownAdapter(KIsaAdapterPath const& path)
    {
        HIsaAdapterCollection* const adapters = g_pHbaMgmtApi->getAdapters();
        return adapters->contains(path) ? adapters->find(path) : nullptr;
    }

    std::string adapterText(HIsaAdapter& adapter)
    {
        KIsaAdapterInfo const* const info = adapter.getCachedAdapterInfo();
        if (!info)
            return std::string();
        lastShown = info;
        return info->displayText();
    }

    void addUnclusteredAdapter(KIsaAdapterPath const& member)
    {
        text += "    -zek=" + member.hbaIDText();
        HIsaAdapterCollection* const adapters = g_pHbaMgmtApi->getAdapters();
        if (!adapters->contains(member))
            return;
        HIsaAdapter* const adapter = adapters->find(member);
        KIsaAdapterInfo const* const info = adapter ? adapter->getCachedAdapterInfo() : nullptr;
        if (info && info->adapterState != KIsaAdapterInfo::ADAPTER_STATE_OFFLINE)
            text += "\n        " + member.displayText() + "\n" + adapterText(*adapter) + "\n";
        else
            text += "\n        (OFFLINE)\n\n";
    }
};

} // namespace

CmdClusterShow::CmdClusterShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Cluster";
    helpDescription = "Shows the clusters with the details of each member adapter, and the adapters that belong to no "
                      "cluster.";
    helpSyntax = "\t[-clusterid=<cluster id>]\n"
                 "\t[-zek=<adapter>]";
    helpModifiers = "-clusterid=<cluster id>\n"
                    "\tShow only this cluster.\n"
                    "-zek=<adapter>\n"
                    "\tShow only the cluster of this adapter.";
    helpExamples = ugCommandPrompt() + ugCommandPrompt() + "-clusterid=SANCLUSTER1" + ugCommandPrompt() + "-zek=0";
    helpResultFile = recordResultHelp("KIsaAdapterInfo", 1496);
}

int CmdClusterShow::execCommand(std::string& err)
{
    ClusterScope scope;
    int const rc = gatherClusterScope(*this, scope, err);
    if (rc != 0 || scope.finished)
        return rc;
    if (scope.ids.empty())
        return finishCommand(*this, nullptr, CommandReport::withoutBanner("No Clusters found"), err);

    std::vector<HCluster*> const& clusters = g_pHbaMgmtApi->getClusters()->items;
    ClusterReport report;
    for (HCluster* cluster : clusters)
        if (scope.covers(*cluster) && !isPseudoCluster(*cluster))
            report.addCluster(*cluster);
    if (!scope.limited()) {
        report.addAdaptersOutsideClusters(clusters);
        for (KClusterID const& id : scope.ids)
            report.text += getSummaryText_Cluster(id);
    }
    std::vector<unsigned char> const image =
        report.lastShown ? recordImage(*report.lastShown) : std::vector<unsigned char>();
    CommandReport const result = CommandReport::withoutBanner(report.text, MHBA_S_OK, image.data(), image.size());
    return finishCommand(*this, nullptr, result, err);
}
