// "show cache_statistics": displays cache statistics.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdCacheStatisticsShow : public TokenCmd {
public:
    CmdCacheStatisticsShow();

    int execCommand(std::string& err) override;
};
