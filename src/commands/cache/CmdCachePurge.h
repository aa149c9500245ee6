// "purge cache": discards the cached write data of a LUN that is gone for good.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdCachePurge : public TokenCmd {
public:
    CmdCachePurge();

    int execCommand(std::string& err) override;
};
