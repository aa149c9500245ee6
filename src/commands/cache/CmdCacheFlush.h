// "flush cache": writes the dirty data in the cache back to the LUN, for the selected LUNs or for
// every cached LUN of the adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdCacheFlush : public TokenCmd {
public:
    CmdCacheFlush();

    int execCommand(std::string& err) override;

private:
    // A non-zero result ends the command with that code. `shown` is false
    // when the LUN's line could not be written; `code` is what the result
    // record reports.
    int flushOneLun(HIsaAdapter& adapter, PLunID const& lun, bool waitForEnd, bool& shown, int& code, std::string& err);
    int waitForFlushEnd(HIsaAdapter& adapter, PLunID const& lun, bool& shown, int& code, std::string& err);
};
