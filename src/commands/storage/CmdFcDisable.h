// "disable fc_port": disables a Fibre Channel port of the adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdFcDisable : public TokenCmd {
public:
    CmdFcDisable();

    int execCommand(std::string& err) override;
};
