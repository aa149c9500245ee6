// "show lun_statistics": displays statistics in a tabular format for either a single LUN or for all
// LUNs known to the Fibre Channel Adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdLunStatisticsShow : public TokenCmd {
public:
    CmdLunStatisticsShow();

    int execCommand(std::string& err) override;
};
