// What the cluster commands share: the addressed adapter with the cluster id
// it is asked about, and, for the two reports, which clusters they cover.
#pragma once

#include <string>
#include <vector>

#include "commands/CommandPattern.h"
#include "records/PUniqueID.h"

class HCluster;
class TokenCmd;

// Selects and finds the adapter the command is addressed to and reads the
// cluster id: 0, the selection's code, 1004, or 52 for a bad id.
int findAdapterAndClusterId(TokenCmd& cmd, AddressedAdapter& target, KClusterID& id, std::string& err);

// The same, and then the adapter named by -member: the member that a
// membership change is about.
int findPrimaryAndMember(TokenCmd& cmd, AddressedAdapter& primary, AddressedAdapter& member, KClusterID& id,
                         std::string& err);

// What a cluster report covers.
struct ClusterScope {
    bool zekGiven = false;
    std::string zekValue;
    bool idGiven = false;
    std::string idValue;
    // The one cluster the report is limited to, when -zek or -clusterid
    // limits it.
    KClusterID wanted;
    AddressedAdapter named;
    std::vector<KClusterID> ids;
    // Set when the report has already been given (the named adapter is in
    // no cluster, or in another one than asked about).
    bool finished = false;

    bool limited() const { return zekGiven || idGiven; }
    // False for a cluster that a limited report passes over.
    bool covers(HCluster& cluster) const;
};

// Forgets earlier scans, scans what the report is about and gathers the ids
// of the clusters it covers. 0 or a return code; when the named adapter's
// cluster doesn't fit, the report is given here and `finished` is set.
int gatherClusterScope(TokenCmd& cmd, ClusterScope& scope, std::string& err);
