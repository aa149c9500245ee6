// The settings that "set fc" writes to a Fibre Channel port, read from its
// keywords over the values the port has now.
#pragma once

#include <cstdint>
#include <string>

class KFcInfo;
class TokenCmd;

struct FcPortSettings {
    int32_t linkRate = 0;         // a PBase::FC_LINK_RATE value
    int32_t connectionOption = 0; // a KFcInfo::PROGRAMMED_CONNECTION_OPTION value
    uint32_t executionThrottle = 0;

    // What the port is set to now: a keyword that is not given keeps it.
    static FcPortSettings of(KFcInfo const& port);
};

// The link rate named by any unambiguous beginning of "auto", "2gb", "4gb",
// "8gb", "10gb" or "16gb", in any case. False with the matcher's message.
bool linkRateFromText(std::string const& text, int32_t& rate, std::string& err);

// A decimal execution throttle of 16 to 65535; an empty text counts as 0.
// False with the range message for anything else.
bool executionThrottleFromText(std::string const& text, uint32_t& throttle, std::string& err);

// Puts the values of -fc_link_rate, -exec_throttle and of one of -loop_only,
// -p2p_only and -auto into `settings`. False when a value is refused (with
// its message) or when more than one connection keyword is given (with no
// message of its own, as the help says only one can be given).
bool readFcPortSettings(TokenCmd& cmd, FcPortSettings& settings, std::string& err);
