// "list lun": lists LUNs, one line per LUN with the keywords that select it.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdLunList : public TokenCmd {
public:
    CmdLunList();

    int execCommand(std::string& err) override;
};
