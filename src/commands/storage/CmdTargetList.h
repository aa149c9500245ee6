// "list target": lists the targets that the adapter sees on the fabric.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdTargetList : public TokenCmd {
public:
    CmdTargetList();

    int execCommand(std::string& err) override;
};
