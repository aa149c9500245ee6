// "disable cache": stops caching a LUN on the adapter named by -zek.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdCacheDisable : public TokenCmd {
public:
    CmdCacheDisable();

    int execCommand(std::string& err) override;
};
