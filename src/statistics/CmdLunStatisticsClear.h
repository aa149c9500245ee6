// "clear lun_statistics": resets the I/O statistics of the selected LUNs, or of all LUNs, to zero.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class PLunID;

class CmdLunStatisticsClear : public TokenCmd {
public:
    CmdLunStatisticsClear();

    int execCommand(std::string& err) override;

private:
    // The line of one LUN; `lastResult` is that of the last library call.
    std::string clearOne(HIsaAdapter& adapter, PLunID const& id, int& lastResult) const;
};
