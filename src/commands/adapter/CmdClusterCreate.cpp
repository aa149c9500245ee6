#include "commands/adapter/CmdClusterCreate.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/ClusterScope.h"
#include "core/EnumStrList.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_CREATE, CmdItem::ITEM_CLUSTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_CLUSTERID, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_SECONDARY, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_HOST_CLUSTER_TYPE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

constexpr int kNoHostClustering = 1;

} // namespace

EnumStrList<int> const& CmdClusterCreate::hostClusterTypes()
{
    static EnumStrList<int> const types = [] {
        EnumStrList<int> list;
        list.add(0, "unknown");
        list.add(1, "none");
        list.add(2, "mscs");
        list.add(3, "vmware");
        list.add(4, "oracle_rac");
        list.add(5, "linux");
        return list;
    }();
    return types;
}

CmdClusterCreate::CmdClusterCreate()
{
    declareCommand(*this, rows);
    helpTitle = "Create Cluster";
    helpDescription = "Creates a cluster of adapters. The adapter named by -zek becomes the cluster primary, which has "
                      "overall control of the cached data; -secondary names the adapter that can reach the cached data "
                      "and takes over if the primary fails.";
    helpSyntax = "\t-clusterid=<cluster id>\n"
                 "\t-secondary=<adapter>\n"
                 "\t[-host_cluster_type=<type>]\n" +
        adapterSyntax();
    helpModifiers = "-clusterid=<cluster id>\n"
                    "\tIdentifier of the cluster, 8 to 16 characters.\n"
                    "-secondary=<adapter>\n"
                    "\tThe adapter that becomes the cluster secondary, in any form that -zek\n"
                    "\taccepts. It takes over as primary if the primary fails.\n"
                    "-host_cluster_type=<type>\n"
                    "\tClustering software of the hosts: unknown, none, mscs, vmware,\n"
                    "\toracle_rac or linux. Default is none.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -clusterid=SANCLUSTER1 -secondary=1" + ugCommandPrompt() +
        "-zek=0 -clusterid=SANCLUSTER1 -secondary=2000001B32A1B2C3 -host_cluster_type=vmware";
    helpNotes = "An adapter can belong to one cluster only.";
}

int CmdClusterCreate::execCommand(std::string& err)
{
    AddressedAdapter primary;
    KClusterID id;
    if (int const rc = findAdapterAndClusterId(*this, primary, id, err))
        return rc;
    if (!findModifier(ModifierId::MODIFIER_SECONDARY, err))
        return ZEKCLI_PARSE_FAIL;
    AddressedAdapter secondary;
    if (int const rc = findAdapterFromKeyword(*this, ModifierId::MODIFIER_SECONDARY, secondary, err))
        return rc;
    TokenModifierString const* const type = findModifier(ModifierId::MODIFIER_HOST_CLUSTER_TYPE, err);
    if (!type)
        return ZEKCLI_PARSE_FAIL;
    int hostClusterType = kNoHostClustering;
    if (keywordGiven(type)) {
        hostClusterType = hostClusterTypes().valFromPartialText(type->value, err);
        if (!err.empty())
            return ZEKCLI_PARSE_FAIL;
    }

    if (int const rc = primary.adapter->createCluster(primary.path, secondary.path, id, hostClusterType)) {
        err.clear();
        return rc;
    }
    return finishCommand(*this, primary.adapter, CommandReport::withoutBanner("Cluster successfully created.\n"), err);
}
