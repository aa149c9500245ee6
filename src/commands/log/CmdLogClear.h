// "clear log": clears the event log of the adapter.
#pragma once

#include <string>

#include "commands/log/CmdLogBase.h"

class CmdLogClear : public CmdLogBase {
public:
    CmdLogClear();

    int execCommand(std::string& err) override;
};
