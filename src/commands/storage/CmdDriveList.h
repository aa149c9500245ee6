// "list drive": lists the SSD drives of the adapter by pool.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdDriveList : public TokenCmd {
public:
    CmdDriveList();

    int execCommand(std::string& err) override;
};
