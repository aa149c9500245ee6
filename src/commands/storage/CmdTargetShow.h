// "show target": shows the details of one target that the adapter sees on the fabric, or of all.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdTargetShow : public TokenCmd {
public:
    CmdTargetShow();

    int execCommand(std::string& err) override;
};
