// "enable cache": starts caching a SAN LUN on the adapter named by -zek, with the given cache mode
// and limits, optionally mirrored on a second adapter.
#pragma once

#include <cstdio>
#include <string>

#include "commands/cache/CmdCacheEnableBase.h"

class HIsaAdapter;

class CmdCacheEnable : public CmdCacheEnableBase {
public:
    CmdCacheEnable();

    int execCommand(std::string& err) override;

    // Writes this command's lines of a configuration script (to the console
    // when `file` is null). Returns 0, the library's code, or 55.
    int saveScript(HIsaAdapter* adapter, FILE* file, std::string const& tail, std::string const& appendName,
                   std::string& err);
};
