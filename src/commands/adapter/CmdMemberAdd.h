// "add member": adds an adapter to an existing cluster.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdMemberAdd : public TokenCmd {
public:
    CmdMemberAdd();

    int execCommand(std::string& err) override;
};
