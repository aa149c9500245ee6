// What the range commands (lock, unlock, invalidate cache) share: reading a
// range of logical blocks of one LUN, and ending the command once the
// adapter has answered.
#pragma once

#include <string>

#include "api/MhbaReturn.h"
#include "commands/CommandPattern.h"
#include "records/PUniqueID.h"

class TokenCmd;

// A range of logical blocks of one LUN, as the range commands read it: the
// adapter, the two numbers (0 when not given) and exactly one LUN path.
struct LbaRangeRequest {
    AddressedAdapter addressed;
    long long start = 0;
    long long size = 0;
    PLunID lun;
};

// 0, the selection's code, or 52 with the words in `err`.
int readLbaRangeRequest(TokenCmd& cmd, LbaRangeRequest& request, std::string& err);

// Ends a range command after its request was sent: a failure is returned as
// it is; otherwise the banner, `message` with the LUN named after it, and
// the result record. 0 or 55.
int finishLbaRangeCommand(TokenCmd const& cmd, LbaRangeRequest const& request, e_MHBA_RETURN code,
                          std::string const& message, std::string& err);
