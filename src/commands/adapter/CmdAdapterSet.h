// "set adapter": sets the symbolic name of the adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdAdapterSet : public TokenCmd {
public:
    CmdAdapterSet();

    int execCommand(std::string& err) override;
};
