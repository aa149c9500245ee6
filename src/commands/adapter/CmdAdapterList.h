// "list adapter": lists the adapters reachable from this host, or through a remote agent, grouped
// by cluster, one pasteable -zek= line per adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdAdapterList : public TokenCmd {
public:
    CmdAdapterList();

    int execCommand(std::string& err) override;
};
