// "unlock cache": lets a locked range of logical blocks of a cached LUN leave the cache again.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdCacheUnlock : public TokenCmd {
public:
    CmdCacheUnlock();

    int execCommand(std::string& err) override;
};
