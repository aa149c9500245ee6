// "update firmware": loads new firmware from a file into the adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdFirmwareUpdate : public TokenCmd {
public:
    CmdFirmwareUpdate();

    int execCommand(std::string& err) override;
};
