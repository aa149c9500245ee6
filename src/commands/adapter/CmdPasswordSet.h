// "set password": changes the password with which remote management reaches the adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdPasswordSet : public TokenCmd {
public:
    CmdPasswordSet();

    int execCommand(std::string& err) override;
};
