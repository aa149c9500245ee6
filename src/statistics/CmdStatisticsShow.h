// "show statistics": displays cache statistics.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdStatisticsShow : public TokenCmd {
public:
    CmdStatisticsShow();

    int execCommand(std::string& err) override;
};
