// "create cluster": creates a cluster of adapters.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdClusterCreate : public TokenCmd {
public:
    CmdClusterCreate();

    int execCommand(std::string& err) override;
};
