#pragma once

#include "core/TokenCmd.h"

class CmdZekcliQhelp : public TokenCmd {
public:
    CmdZekcliQhelp();
    int execCommand(std::string& err) override;
};
