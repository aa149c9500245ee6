// "show memory": shows the memory of the adapter and its use.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdMemoryShow : public TokenCmd {
public:
    CmdMemoryShow();

    int execCommand(std::string& err) override;
};
