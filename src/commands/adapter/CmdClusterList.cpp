#include "commands/adapter/CmdClusterList.h"

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/ClusterScope.h"
#include "records/KClusterInfo.h"
#include "records/RecordImage.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_LIST, CmdItem::ITEM_CLUSTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_CLUSTERID, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdClusterList::CmdClusterList()
{
    declareCommand(*this, rows);
    helpTitle = "List Cluster";
    helpDescription =
        "Lists clusters with their member adapters and their roles. Adapters outside any cluster are listed "
        "as a group of their own.";
    helpSyntax = "\t[-clusterid=<cluster id>]\n"
                 "\t[-zek=<adapter>]";
    helpModifiers = "-clusterid=<cluster id>\n"
                    "\tList only this cluster.\n"
                    "-zek=<adapter>\n"
                    "\tList only the cluster of this adapter.";
    helpExamples = ugCommandPrompt() + ugCommandPrompt() + "-clusterid=SANCLUSTER1" + ugCommandPrompt() + "-zek=0";
    helpResultFile = recordResultHelp("KClusterInfo", 40);
}

int CmdClusterList::execCommand(std::string& err)
{
    ClusterScope scope;
    int const rc = gatherClusterScope(*this, scope, err);
    if (rc != 0 || scope.finished)
        return rc;
    HClusterCollection* const clusters = g_pHbaMgmtApi->getClusters();
    if (clusters->items.empty())
        return finishCommand(*this, nullptr, CommandReport::withoutBanner("No Clusters found"), err);

    std::string text;
    // The record describes the last cluster walked, whether shown or not.
    HCluster* last = nullptr;
    for (HCluster* cluster : clusters->items) {
        last = cluster;
        if (scope.covers(*cluster))
            text += getSummaryText_Cluster(*cluster->getClusterId());
    }
    KClusterInfo const* const info = last->getClusterInfo();
    std::vector<unsigned char> const image = info ? recordImage(*info) : std::vector<unsigned char>();
    CommandReport const report = CommandReport::withoutBanner(text, MHBA_S_OK, image.data(), image.size());
    return finishCommand(*this, nullptr, report, err);
}
