// "execute nvdimm": runs an NVDIMM operation on the adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdNvdimmExecute : public TokenCmd {
public:
    CmdNvdimmExecute();

    int execCommand(std::string& err) override;
};
