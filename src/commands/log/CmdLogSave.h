// "save log": saves the event log of the adapter in a file, which "view log" and "list log" can
// read.
#pragma once

#include <string>

#include "commands/log/CmdLogBase.h"

class CmdLogSave : public CmdLogBase {
public:
    CmdLogSave();

    int execCommand(std::string& err) override;
};
