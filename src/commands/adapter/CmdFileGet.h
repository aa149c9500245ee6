// "get file": copies a file from the adapter (from its /var/ftp area) to the host.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdFileGet : public TokenCmd {
public:
    CmdFileGet();

    int execCommand(std::string& err) override;
};
