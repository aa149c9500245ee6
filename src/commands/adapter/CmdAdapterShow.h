// "show adapter": shows the details of the local adapters, or of one adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdAdapterShow : public TokenCmd {
public:
    CmdAdapterShow();

    int execCommand(std::string& err) override;
};
