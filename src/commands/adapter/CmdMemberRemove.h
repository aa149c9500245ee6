// "remove member": removes an adapter from a cluster.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdMemberRemove : public TokenCmd {
public:
    CmdMemberRemove();

    int execCommand(std::string& err) override;
};
