// "restore fru_file": restores the field replaceable unit data of the adapter from a file saved by
// "save fru_file".
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdFruRestore : public TokenCmd {
public:
    CmdFruRestore();

    int execCommand(std::string& err) override;
};
