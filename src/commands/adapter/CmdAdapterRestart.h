// "restart adapter": restarts the adapter and waits until it answers again, for up to about 3
// minutes.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdAdapterRestart : public TokenCmd {
public:
    CmdAdapterRestart();

    int execCommand(std::string& err) override;
};
