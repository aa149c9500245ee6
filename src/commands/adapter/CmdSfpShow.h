// "show sfp": shows the SFP transceiver data of one Fibre Channel port, or of all.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdSfpShow : public TokenCmd {
public:
    CmdSfpShow();

    int execCommand(std::string& err) override;
};
