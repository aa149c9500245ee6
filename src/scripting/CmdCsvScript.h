// "script csv": writes one command line per row of a CSV file. Any keyword of
// any command may stand in the template, so this command accepts them all.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdCsvScript : public TokenCmd {
public:
    CmdCsvScript();

    int execCommand(std::string& err) override;
};
