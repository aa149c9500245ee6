#pragma once

#include "core/TokenCmd.h"

class CmdAppendShow : public TokenCmd {
public:
    CmdAppendShow();
    int execCommand(std::string& err) override;
};
