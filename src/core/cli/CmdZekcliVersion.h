#pragma once

#include "core/TokenCmd.h"

class CmdZekcliVersion : public TokenCmd {
public:
    CmdZekcliVersion();
    int execCommand(std::string& err) override;
};
