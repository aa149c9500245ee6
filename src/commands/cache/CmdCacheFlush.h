// "flush cache": writes the dirty data in the cache back to the LUN, for the selected LUNs or for
// every cached LUN of the adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdCacheFlush : public TokenCmd {
public:
    CmdCacheFlush();

    int execCommand(std::string& err) override;
};
