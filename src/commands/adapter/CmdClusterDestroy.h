// "destroy cluster": destroys a cluster.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdClusterDestroy : public TokenCmd {
public:
    CmdClusterDestroy();

    int execCommand(std::string& err) override;
};
