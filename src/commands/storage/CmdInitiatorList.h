// "list initiator": lists the initiators that the adapter sees on the fabric.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdInitiatorList : public TokenCmd {
public:
    CmdInitiatorList();

    int execCommand(std::string& err) override;
};
