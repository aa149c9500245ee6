// "show drive": shows the details and paths of one SSD drive, or of all, optionally with SMART
// data.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdDriveShow : public TokenCmd {
public:
    CmdDriveShow();

    int execCommand(std::string& err) override;
};
