// "show lun": shows everything known about LUNs: identity, state, paths, cache settings and
// statistics.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdLunShow : public TokenCmd {
public:
    CmdLunShow();

    int execCommand(std::string& err) override;
};
