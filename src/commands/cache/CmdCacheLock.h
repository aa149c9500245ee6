// "lock cache": keeps a range of logical blocks of a cached LUN in the cache.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdCacheLock : public TokenCmd {
public:
    CmdCacheLock();

    int execCommand(std::string& err) override;
};
