// "set pool": sets how much of the SSD storage of the adapter serves as cache pool.
#pragma once

#include <cstdio>
#include <string>

#include "core/TokenCmd.h"

class HIsaAdapter;

class CmdPoolSet : public TokenCmd {
public:
    CmdPoolSet();

    int execCommand(std::string& err) override;

    // Writes this command's lines of a configuration script (to the console
    // when `file` is null). Returns 0, the library's code, or 55.
    int saveScript(HIsaAdapter* adapter, FILE* file, std::string const& tail, std::string const& appendName,
                   std::string& err);
};
