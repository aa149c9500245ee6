// "clear lun_statistics": resets the I/O statistics of the selected LUNs, or of all LUNs, to zero.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdLunStatisticsClear : public TokenCmd {
public:
    CmdLunStatisticsClear();

    int execCommand(std::string& err) override;
};
