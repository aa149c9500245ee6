#include "commands/adapter/ClusterScope.h"

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "core/Token.h"
#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"
#include "records/PIpAddress.h"

namespace {

bool listed(std::vector<KClusterID> const& ids, KClusterID const& id)
{
    for (KClusterID const& known : ids)
        if (known == id)
            return true;
    return false;
}

int readScopeKeywords(TokenCmd& cmd, ClusterScope& scope, PIpAddress& agent, std::string& err)
{
    TokenModifierString const* const zek = readScanKeywords(cmd, agent, err);
    if (!zek)
        return ZEKCLI_PARSE_FAIL;
    scope.zekGiven = keywordGiven(zek);
    scope.zekValue = zek->value;
    if (!cmd.getClusterIdFromCommandLineModifiers(scope.wanted, scope.idGiven, err))
        return ZEKCLI_PARSE_FAIL;
    if (scope.idGiven)
        scope.idValue = cmd.findModifier(ModifierId::MODIFIER_CLUSTERID, err)->value;
    return 0;
}

int scanForScope(TokenCmd& cmd, ClusterScope& scope, PIpAddress& agent, std::string& err)
{
    if (scope.zekGiven) {
        if (int const rc = cmd.selectAdapter(scope.named.path, err))
            return rc;
        return rescanFromAdapter(cmd, scope.named, err);
    }
    // With no adapter at all the report says that no cluster was found.
    bool noneFound = false;
    return rescanAdapters(agent, noneFound);
}

// The named adapter's own cluster decides what the report covers; when it
// has none, or another than asked about, that is the whole report.
int narrowToNamedAdapter(TokenCmd& cmd, ClusterScope& scope, std::string& err)
{
    KClusterID const* const own = scope.named.adapter->getClusterId();
    KClusterID const ownId = own ? *own : KClusterID();
    std::string text;
    if (!scope.idGiven) {
        if (ownId.isEmpty())
            text = "-zek=" + scope.zekValue + " is not a member of a cluster\n";
        scope.wanted = ownId;
        if (text.empty() && !listed(scope.ids, ownId))
            scope.ids.push_back(ownId);
    } else if (!(ownId == scope.wanted)) {
        text = "-zek=" + scope.zekValue + " is not a member of the -clusterid=" + scope.wanted.displayText();
    }
    if (text.empty())
        return 0;
    scope.finished = true;
    return finishCommand(cmd, nullptr, CommandReport::withoutBanner(text), err);
}

} // namespace

int findAdapterAndClusterId(TokenCmd& cmd, AddressedAdapter& target, KClusterID& id, std::string& err)
{
    if (int const rc = findAddressedAdapter(cmd, target, err))
        return rc;
    err.clear();
    bool given = false;
    if (!cmd.getClusterIdFromCommandLineModifiers(id, given, err))
        return ZEKCLI_PARSE_FAIL;
    return 0;
}

int findPrimaryAndMember(TokenCmd& cmd, AddressedAdapter& primary, AddressedAdapter& member, KClusterID& id,
                         std::string& err)
{
    if (int const rc = findAdapterAndClusterId(cmd, primary, id, err))
        return rc;
    if (!cmd.findModifier(ModifierId::MODIFIER_MEMBER, err))
        return ZEKCLI_PARSE_FAIL;
    return findAdapterFromKeyword(cmd, ModifierId::MODIFIER_MEMBER, member, err);
}

bool ClusterScope::covers(HCluster& cluster) const
{
    KClusterID const* const id = cluster.getClusterId();
    return !limited() || (id && *id == wanted);
}

int gatherClusterScope(TokenCmd& cmd, ClusterScope& scope, std::string& err)
{
    PIpAddress agent;
    if (int const rc = readScopeKeywords(cmd, scope, agent, err))
        return rc;
    if (int const rc = scanForScope(cmd, scope, agent, err))
        return rc;

    HClusterCollection* const clusters = g_pHbaMgmtApi->getClusters();
    if (scope.idGiven) {
        if (!clusters->contains(scope.wanted)) {
            err = "No cluster found for -clusterid=" + scope.idValue;
            return ZEKCLI_PARSE_FAIL;
        }
        scope.ids.push_back(scope.wanted);
    } else {
        for (HCluster* cluster : clusters->items)
            scope.ids.push_back(*cluster->getClusterId());
    }
    if (scope.zekGiven)
        return narrowToNamedAdapter(cmd, scope, err);
    return 0;
}
