// "report log": writes a text report of the event log of the adapter to a file, or to the console.
#pragma once

#include <string>

#include "commands/log/CmdLogBase.h"

class CmdLogReport : public CmdLogBase {
public:
    CmdLogReport();

    int execCommand(std::string& err) override;
};
