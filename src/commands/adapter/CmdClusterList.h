// "list cluster": lists clusters with their member adapters and their roles.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdClusterList : public TokenCmd {
public:
    CmdClusterList();

    int execCommand(std::string& err) override;
};
