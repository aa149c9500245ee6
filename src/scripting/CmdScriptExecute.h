// "execute script": executes a list of Host CLI commands read in from a file.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdScriptExecute : public TokenCmd {
public:
    CmdScriptExecute();

    int execCommand(std::string& err) override;
};
