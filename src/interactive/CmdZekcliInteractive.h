// "interactive cli": starts menu-driven interactive mode: choose an action, an item, an adapter and
// the keywords from numbered menus.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdZekcliInteractive : public TokenCmd {
public:
    CmdZekcliInteractive();

    int execCommand(std::string& err) override;
};
