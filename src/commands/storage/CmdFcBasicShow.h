// "show fc": shows the settings and state of one Fibre Channel port, or of all.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdFcBasicShow : public TokenCmd {
public:
    CmdFcBasicShow();

    int execCommand(std::string& err) override;
};
