// "remove lun": deletes a data LUN of the adapter, or removes an offline SAN LUN from its lists.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdLunRemove : public TokenCmd {
public:
    CmdLunRemove();

    int execCommand(std::string& err) override;
};
