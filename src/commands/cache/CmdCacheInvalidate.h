// "invalidate cache": drops the cached data of a range of logical blocks of one LUN, or of the
// whole LUN when no range is given.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdCacheInvalidate : public TokenCmd {
public:
    CmdCacheInvalidate();

    int execCommand(std::string& err) override;
};
