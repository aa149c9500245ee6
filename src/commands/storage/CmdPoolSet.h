// "set pool": sets how much of the SSD storage of the adapter serves as cache pool.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdPoolSet : public TokenCmd {
public:
    CmdPoolSet();

    int execCommand(std::string& err) override;
};
