#include "commands/adapter/CmdClusterShow.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_CLUSTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_CLUSTERID, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
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
    helpExamples = ugCommandPrompt()
        + ugCommandPrompt() + "-clusterid=SANCLUSTER1"
        + ugCommandPrompt() + "-zek=0";
    helpResultFile = recordResultHelp("KIsaAdapterInfo", 1496);
}

int CmdClusterShow::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
