// "remove cache_pool": removes the storage cache pool of the adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdPoolRemove : public TokenCmd {
public:
    CmdPoolRemove();

    int execCommand(std::string& err) override;
};
