// "save demonstration_file": saves what is known about the adapters in a demonstration file, which
// -demonstration_file can later use in place of real adapters.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdDemonstrationSave : public TokenCmd {
public:
    CmdDemonstrationSave();

    int execCommand(std::string& err) override;
};
