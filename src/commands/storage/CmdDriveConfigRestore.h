// "restore drive_config": takes over the drive configuration that another adapter left on the
// drives, for example after the adapter has been replaced.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdDriveConfigRestore : public TokenCmd {
public:
    CmdDriveConfigRestore();

    int execCommand(std::string& err) override;
};
