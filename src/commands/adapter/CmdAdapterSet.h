// "set adapter": sets the symbolic name of the adapter.
#pragma once

#include <cstdio>
#include <string>

#include "core/TokenCmd.h"

class HIsaAdapter;
class KIsaAdapterInfo;

class CmdAdapterSet : public TokenCmd {
public:
    CmdAdapterSet();

    int execCommand(std::string& err) override;

    // Writes this command's lines of a configuration script (to the console
    // when `file` is null). Returns 0, the library's code, or 55.
    int saveScript(HIsaAdapter* adapter, FILE* file, std::string const& tail, std::string const& appendName,
                   KIsaAdapterInfo const& info, std::string& err);
};
