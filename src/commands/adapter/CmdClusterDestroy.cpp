#include "commands/adapter/CmdClusterDestroy.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/ClusterScope.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_DESTROY, CmdItem::ITEM_CLUSTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_CLUSTERID, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdClusterDestroy::CmdClusterDestroy()
{
    declareCommand(*this, rows);
    helpTitle = "Destroy Cluster";
    helpDescription = "Destroys a cluster. Its adapters no longer belong to any cluster.";
    helpSyntax = "\t-clusterid=<cluster id>\n" + adapterSyntax();
    helpModifiers = "-clusterid=<cluster id>\n"
                    "\tIdentifier of the cluster, 8 to 16 characters.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -clusterid=SANCLUSTER1";
    helpNotes = "-zek must name the primary adapter of the cluster.";
}

int CmdClusterDestroy::execCommand(std::string& err)
{
    AddressedAdapter target;
    KClusterID id;
    if (int const rc = findAdapterAndClusterId(*this, target, id, err))
        return rc;
    if (int const rc = target.adapter->destroyCluster(id))
        return rc;
    std::string const text = "cluster " + id.displayText() + " successfully destroyed\n";
    return finishCommand(*this, target.adapter, CommandReport::withoutBanner(text), err);
}
