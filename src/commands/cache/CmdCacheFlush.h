// "flush cache": writes the dirty data in the cache back to the LUN, for the selected LUNs or for
// every cached LUN of the adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CommandOutput;

class CmdCacheFlush : public TokenCmd {
public:
    CmdCacheFlush();

    int execCommand(std::string& err) override;

private:
    // A non-zero result ends the command with that code. A line that could
    // not be written is remembered by `out`; `code` is what the result record
    // reports.
    int flushOneLun(CommandOutput& out, HIsaAdapter& adapter, PLunID const& lun, bool waitForEnd, int& code);
    int waitForFlushEnd(CommandOutput& out, HIsaAdapter& adapter, PLunID const& lun, int& code);
};
