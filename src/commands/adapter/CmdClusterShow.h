// "show cluster": shows the clusters with the details of each member adapter, and the adapters that
// belong to no cluster.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdClusterShow : public TokenCmd {
public:
    CmdClusterShow();

    int execCommand(std::string& err) override;
};
