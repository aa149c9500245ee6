// "set fc": sets the link rate, the connection mode and the execution throttle of a Fibre Channel
// port.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdFcBasicSet : public TokenCmd {
public:
    CmdFcBasicSet();

    int execCommand(std::string& err) override;
};
