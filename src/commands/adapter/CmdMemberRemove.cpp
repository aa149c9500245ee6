#include "commands/adapter/CmdMemberRemove.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/ClusterScope.h"
#include "core/ZekcliReturn.h"

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
                 "\t[-accept_risk]\n" +
        adapterSyntax();
    helpModifiers = "-clusterid=<cluster id>\n"
                    "\tIdentifier of the cluster, 8 to 16 characters.\n"
                    "-member=<adapter>\n"
                    "\tThe adapter to remove, in any form that -zek accepts.\n"
                    "-accept_risk\n"
                    "\tRemove without asking for confirmation.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -clusterid=SANCLUSTER1 -member=2000001B32A1B2C3";
    helpNotes = "-zek must name the primary adapter of the cluster. Remove the member physically or\n"
                "from the FC zone, or its access to LUNs cached on other adapters may corrupt data.";
}

int CmdMemberRemove::execCommand(std::string& err)
{
    AddressedAdapter primary;
    AddressedAdapter member;
    KClusterID id;
    if (int const rc = findPrimaryAndMember(*this, primary, member, id, err))
        return rc;
    TokenModifierString const* const acceptRisk = findModifier(ModifierId::MODIFIER_ACCEPT_RISK, err);
    if (!acceptRisk)
        return ZEKCLI_PARSE_FAIL;
    // The prompt's text is kept word for word as users and scripts know it.
    if (!keywordGiven(acceptRisk) &&
        !confirmRisk("Future access via this adapter to to LUNs cached on other adapters in the cluster may result in "
                     "corruption of user data.  It is strongly recommended that this adapter be removed either "
                     "physically or from the FC zone.  Are you sure you want to remove this member from the cluster "
                     "[yes/no]? "))
        return ZEKCLI_CONFIRM_FAIL;

    if (int const rc = primary.adapter->removeClusterMember(member.path, id))
        return rc;
    std::string const text = "Fibre Channel Adapter " + member.path.displayText() +
        " successfully removed from cluster " + id.displayText() + "\n";
    return finishCommand(*this, primary.adapter, CommandReport::withoutBanner(text), err);
}
