#include "commands/adapter/CmdMemberRemove.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_REMOVE, CmdItem::ITEM_MEMBER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_CLUSTERID, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_MEMBER, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_ACCEPT_RISK, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    endRow(),
};

} // namespace

CmdMemberRemove::CmdMemberRemove()
{
    declareCommand(*this, rows);
    helpTitle = "Remove Member";
    helpDescription = "Removes an adapter from a cluster. The command is sent to the primary adapter of the cluster.";
    helpSyntax = "\t-clusterid=<cluster id>\n"
        "\t-member=<adapter>\n"
        "\t[-accept_risk]\n" + adapterSyntax();
    helpModifiers = "-clusterid=<cluster id>\n"
        "\tIdentifier of the cluster, 8 to 16 characters.\n"
        "-member=<adapter>\n"
        "\tThe adapter to remove, in any form that -zek accepts.\n"
        "-accept_risk\n"
        "\tRemove without asking for confirmation.\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -clusterid=SANCLUSTER1 -member=2000001B32A1B2C3";
    helpNotes = "-zek must name the primary adapter of the cluster. Remove the member physically or\n"
        "from the FC zone, or its access to LUNs cached on other adapters may corrupt data.";
}

int CmdMemberRemove::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
