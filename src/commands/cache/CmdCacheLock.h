// "lock cache": keeps a range of logical blocks of a cached LUN in the cache.
#pragma once

#include <cstdio>
#include <string>

#include "core/TokenCmd.h"

class HIsaAdapter;

class CmdCacheLock : public TokenCmd {
public:
    CmdCacheLock();

    int execCommand(std::string& err) override;

    // Writes this command's lines of a configuration script (to the console
    // when `file` is null). Returns 0, the library's code, or 55.
    int saveScript(HIsaAdapter* adapter, FILE* file, std::string const& tail, std::string const& appendName,
                   std::string& err);
};
