// "view log": pages through the event log of the adapter, or of a log file saved by "save log",
// from a position that is remembered between runs.
#pragma once

#include <string>

#include "commands/log/CmdLogBase.h"

class CmdLogView : public CmdLogBase {
public:
    CmdLogView();

    int execCommand(std::string& err) override;
};
