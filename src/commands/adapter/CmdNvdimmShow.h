// "show nvdimm": shows the state of the NVDIMM of the adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdNvdimmShow : public TokenCmd {
public:
    CmdNvdimmShow();

    int execCommand(std::string& err) override;
};
