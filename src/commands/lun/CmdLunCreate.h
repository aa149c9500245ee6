// "create lun": creates a data LUN on the SSD drives of the adapter, optionally mirrored on a
// second adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdLunCreate : public TokenCmd {
public:
    CmdLunCreate();

    int execCommand(std::string& err) override;
};
