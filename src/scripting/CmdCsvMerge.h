// "merge csv": combines the statistics CSV files in a folder into one summary table with one row
// for each 10 second window and, per target, columns summed over its LUNs.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdCsvMerge : public TokenCmd {
public:
    CmdCsvMerge();

    int execCommand(std::string& err) override;
};
