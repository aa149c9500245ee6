#include "commands/adapter/CmdClusterList.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

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
    helpDescription = "Lists clusters with their member adapters and their roles. Adapters outside any cluster are listed "
        "as a group of their own.";
    helpSyntax = "\t[-clusterid=<cluster id>]\n"
        "\t[-zek=<adapter>]";
    helpModifiers = "-clusterid=<cluster id>\n"
        "\tList only this cluster.\n"
        "-zek=<adapter>\n"
        "\tList only the cluster of this adapter.";
    helpExamples = ugCommandPrompt()
        + ugCommandPrompt() + "-clusterid=SANCLUSTER1"
        + ugCommandPrompt() + "-zek=0";
    helpResultFile = recordResultHelp("KClusterInfo", 40);
}

int CmdClusterList::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
