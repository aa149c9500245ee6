// "remove drive": removes an SSD drive from the storage cache pool of the adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdDriveRemove : public TokenCmd {
public:
    CmdDriveRemove();

    int execCommand(std::string& err) override;
};
