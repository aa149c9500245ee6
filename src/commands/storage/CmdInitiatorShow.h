// "show initiator": shows the details of one initiator that the adapter sees on the fabric, or of
// all.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdInitiatorShow : public TokenCmd {
public:
    CmdInitiatorShow();

    int execCommand(std::string& err) override;
};
