// "version adapter": checks that the firmware of the adapter has an expected version.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdAdapterVersion : public TokenCmd {
public:
    CmdAdapterVersion();

    int execCommand(std::string& err) override;
};
