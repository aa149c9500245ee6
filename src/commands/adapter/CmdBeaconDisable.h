// "disable beacon": turns off the beacon light of a Fibre Channel port.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdBeaconDisable : public TokenCmd {
public:
    CmdBeaconDisable();

    int execCommand(std::string& err) override;
};
