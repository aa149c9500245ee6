#pragma once

#include "core/TokenCmd.h"

class CmdAppendSet : public TokenCmd {
public:
    CmdAppendSet();
    int execCommand(std::string& err) override;
};
