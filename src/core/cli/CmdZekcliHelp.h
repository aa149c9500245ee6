#pragma once

#include "core/TokenCmd.h"

class CmdZekcliHelp : public TokenCmd {
public:
    CmdZekcliHelp();
    int execCommand(std::string& err) override;
};
