// "show health": shows the health of the adapter: temperatures, PCI Express links, memory and cache
// error counts, beacons and hardware error flags.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdHealthShow : public TokenCmd {
public:
    CmdHealthShow();

    int execCommand(std::string& err) override;
};
