// "modify lun": grows, renames or changes the mirror of a data LUN of the adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdLunModify : public TokenCmd {
public:
    CmdLunModify();

    int execCommand(std::string& err) override;
};
