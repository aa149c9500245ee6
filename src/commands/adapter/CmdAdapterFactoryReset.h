// "factory_reset adapter": erases all persistent settings of the adapter and returns them to
// factory defaults.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdAdapterFactoryReset : public TokenCmd {
public:
    CmdAdapterFactoryReset();

    int execCommand(std::string& err) override;
};
