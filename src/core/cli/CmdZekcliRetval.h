#pragma once

#include "core/TokenCmd.h"

class CmdZekcliRetval : public TokenCmd {
public:
    CmdZekcliRetval();
    int execCommand(std::string& err) override;
};
