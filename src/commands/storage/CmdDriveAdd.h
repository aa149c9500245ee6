// "add drive": adds an SSD drive to the storage cache pool of the adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdDriveAdd : public TokenCmd {
public:
    CmdDriveAdd();

    int execCommand(std::string& err) override;
};
