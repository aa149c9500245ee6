// "list device": lists the devices that the adapter sees on the fabric.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdDeviceList : public TokenCmd {
public:
    CmdDeviceList();

    int execCommand(std::string& err) override;
};
