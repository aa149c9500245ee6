// "set target": sets the maximum number of outstanding I/O requests that the adapter sends to a
// target.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdTargetSet : public TokenCmd {
public:
    CmdTargetSet();

    int execCommand(std::string& err) override;
};
