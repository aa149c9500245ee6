#include "commands/adapter/CmdMemberAdd.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/ClusterScope.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_ADD, CmdItem::ITEM_MEMBER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_CLUSTERID, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_MEMBER, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdMemberAdd::CmdMemberAdd()
{
    declareCommand(*this, rows);
    helpTitle = "Add Member";
    helpDescription =
        "Adds an adapter to an existing cluster. The command is sent to the primary adapter of the cluster.";
    helpSyntax = "\t-clusterid=<cluster id>\n"
                 "\t-member=<adapter>\n" +
        adapterSyntax();
    helpModifiers = "-clusterid=<cluster id>\n"
                    "\tIdentifier of the cluster, 8 to 16 characters.\n"
                    "-member=<adapter>\n"
                    "\tThe adapter to add, in any form that -zek accepts.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -clusterid=SANCLUSTER1 -member=2000001B32A1B2C3";
    helpNotes = "-zek must name the primary adapter of the cluster, and the cluster must exist.";
}

int CmdMemberAdd::execCommand(std::string& err)
{
    AddressedAdapter primary;
    AddressedAdapter member;
    KClusterID id;
    if (int const rc = findPrimaryAndMember(*this, primary, member, id, err))
        return rc;
    e_MHBA_RETURN const rc = primary.adapter->addClusterMember(member.path, id);
    if (rc == MHBA_E_OBJECT_NOT_FOUND)
        err =
            "Cluster \"" + id.displayText() + "\" was not found.  Members can only be added to pre-existing clusters.";
    if (rc != MHBA_S_OK)
        return rc;
    std::string const text = "Fibre Channel Adapter " + member.path.displayText() + " successfully added to cluster " +
        id.displayText() + "\n";
    return finishCommand(*this, primary.adapter, CommandReport::withoutBanner(text), err);
}
