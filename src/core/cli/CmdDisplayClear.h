#pragma once

#include "core/TokenCmd.h"

class CmdDisplayClear : public TokenCmd {
public:
    CmdDisplayClear();
    int execCommand(std::string& err) override;
};
