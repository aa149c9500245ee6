// "enable beacon": turns on the beacon light of a Fibre Channel port, to find the adapter in the
// rack.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdBeaconEnable : public TokenCmd {
public:
    CmdBeaconEnable();

    int execCommand(std::string& err) override;
};
