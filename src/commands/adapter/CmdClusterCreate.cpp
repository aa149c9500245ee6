#include "commands/adapter/CmdClusterCreate.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_CREATE, CmdItem::ITEM_CLUSTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_CLUSTERID, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_SECONDARY, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_HOST_CLUSTER_TYPE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdClusterCreate::CmdClusterCreate()
{
    declareCommand(*this, rows);
    helpTitle = "Create Cluster";
    helpDescription = "Creates a cluster of adapters. The adapter named by -zek becomes the cluster primary, which has "
        "overall control of the cached data; -secondary names the adapter that can reach the cached data "
        "and takes over if the primary fails.";
    helpSyntax = "\t-clusterid=<cluster id>\n"
        "\t-secondary=<adapter>\n"
        "\t[-host_cluster_type=<type>]\n" + adapterSyntax();
    helpModifiers = "-clusterid=<cluster id>\n"
        "\tIdentifier of the cluster, 8 to 16 characters.\n"
        "-secondary=<adapter>\n"
        "\tThe adapter that becomes the cluster secondary, in any form that -zek\n"
        "\taccepts. It takes over as primary if the primary fails.\n"
        "-host_cluster_type=<type>\n"
        "\tClustering software of the hosts: unknown, none, mscs, vmware,\n"
        "\toracle_rac or linux. Default is none.\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -clusterid=SANCLUSTER1 -secondary=1"
        + ugCommandPrompt() + "-zek=0 -clusterid=SANCLUSTER1 -secondary=2000001B32A1B2C3 -host_cluster_type=vmware";
    helpNotes = "An adapter can belong to one cluster only.";
}

int CmdClusterCreate::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
