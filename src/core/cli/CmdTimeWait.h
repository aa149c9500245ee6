#pragma once

#include "core/cli/CmdTimeBase.h"

class CmdTimeWait : public CmdTimeBase {
public:
    CmdTimeWait();
    int execCommand(std::string& err) override;

    // How long to wait, from whether -seconds was given and with what text.
    static int secondsToWait(bool given, std::string const& value);
    // The count-down display, "MM:SS" or "HH:MM:SS" from one hour up.
    static std::string remainingTimeText(int seconds);
};
