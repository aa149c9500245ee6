// "show system_capture": shows the system capture of the adapter: a readable dump of its state for
// support.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdSystemCaptureShow : public TokenCmd {
public:
    CmdSystemCaptureShow();

    int execCommand(std::string& err) override;
};
