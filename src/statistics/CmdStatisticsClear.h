// "clear statistics": resets cache statistics to zero.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdStatisticsClear : public TokenCmd {
public:
    CmdStatisticsClear();

    int execCommand(std::string& err) override;
};
