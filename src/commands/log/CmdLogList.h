// "list log": prints the event log of the adapter, or of a log file saved by "save log", oldest
// entry first, optionally filtered by text or severity.
#pragma once

#include <string>

#include "commands/log/CmdLogBase.h"

class LogFilter;

class CmdLogList : public CmdLogBase {
public:
    CmdLogList();

    int execCommand(std::string& err) override;

private:
    bool readFilter(TokenModifierString const& find, TokenModifierString const& severity, LogFilter& filter,
                    std::string& err) const;
};
