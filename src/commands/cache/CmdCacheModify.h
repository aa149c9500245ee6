// "modify cache": changes the cache settings of a LUN that is already cached.
#pragma once

#include <string>

#include "commands/cache/CmdCacheEnableBase.h"

class CmdCacheModify : public CmdCacheEnableBase {
public:
    CmdCacheModify();

    int execCommand(std::string& err) override;
};
