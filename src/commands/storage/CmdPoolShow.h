// "show pool": shows the storage cache pool of the adapter: SSD storage, its use and data LUNs.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdPoolShow : public TokenCmd {
public:
    CmdPoolShow();

    int execCommand(std::string& err) override;
};
