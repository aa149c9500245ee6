// "save fru_file": saves the field replaceable unit data of the adapter in a .tar.gz file.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdFruSave : public TokenCmd {
public:
    CmdFruSave();

    int execCommand(std::string& err) override;
};
