// "clear reservation": clears the SCSI persistent reservation of one LUN.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdReservationClear : public TokenCmd {
public:
    CmdReservationClear();

    int execCommand(std::string& err) override;
};
