// "enable fc_port": enables a Fibre Channel port of the adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdFcEnable : public TokenCmd {
public:
    CmdFcEnable();

    int execCommand(std::string& err) override;
};
