// "disable cache": stops caching a LUN.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdCacheDisable : public TokenCmd {
public:
    CmdCacheDisable();

    int execCommand(std::string& err) override;
};
