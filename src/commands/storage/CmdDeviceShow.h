// "show device": shows the details of one device that the adapter sees on the fabric, or of all.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdDeviceShow : public TokenCmd {
public:
    CmdDeviceShow();

    int execCommand(std::string& err) override;
};
