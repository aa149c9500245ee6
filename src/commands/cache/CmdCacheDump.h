// "dump cache": saves a summary of the cache of the adapter in a file named CacheInfo-<adapter
// id><YYYY-MM-DD_HH-MM-SS>.txt and displays it, once or at an interval.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdCacheDump : public TokenCmd {
public:
    CmdCacheDump();

    int execCommand(std::string& err) override;
};
