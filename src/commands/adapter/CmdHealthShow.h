// "show health": shows the health of the adapter: temperatures, voltages, batteries and components.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdHealthShow : public TokenCmd {
public:
    CmdHealthShow();

    int execCommand(std::string& err) override;
};
