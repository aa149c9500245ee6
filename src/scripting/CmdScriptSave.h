// "save script": saves an editable text file containing the current adapter configuration as a list
// of Host CLI commands.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdScriptSave : public TokenCmd {
public:
    CmdScriptSave();

    int execCommand(std::string& err) override;
};
