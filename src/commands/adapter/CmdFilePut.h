// "put file": copies a file from the host to the adapter (to its /var/ftp area).
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdFilePut : public TokenCmd {
public:
    CmdFilePut();

    int execCommand(std::string& err) override;
};
