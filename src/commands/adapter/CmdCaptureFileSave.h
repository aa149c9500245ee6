// "save capture_file": saves a capture of the state of the adapter, for support, in a .tar.gz file.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdCaptureFileSave : public TokenCmd {
public:
    CmdCaptureFileSave();

    int execCommand(std::string& err) override;
};
