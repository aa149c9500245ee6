// "show reservation": shows the SCSI persistent reservation of the selected LUNs, or of all LUNs.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdReservationShow : public TokenCmd {
public:
    CmdReservationShow();

    int execCommand(std::string& err) override;
};
