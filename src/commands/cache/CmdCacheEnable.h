// "enable cache": starts caching a SAN LUN on the adapter named by -zek, with the given cache mode
// and limits, optionally mirrored on a second adapter.
#pragma once

#include <string>

#include "commands/cache/CmdCacheEnableBase.h"

class CmdCacheEnable : public CmdCacheEnableBase {
public:
    CmdCacheEnable();

    int execCommand(std::string& err) override;
};
