// "create cluster": creates a cluster of adapters.
#pragma once

#include <string>

#include "core/EnumStrList.h"
#include "core/TokenCmd.h"

class CmdClusterCreate : public TokenCmd {
public:
    CmdClusterCreate();

    int execCommand(std::string& err) override;

    // The words of -host_cluster_type: the clustering software of the
    // hosts, as the adapter numbers it.
    static EnumStrList<int> const& hostClusterTypes();
};
