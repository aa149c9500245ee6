// What the cache commands share: reaching the library's object of one LUN
// path with a filled record, and the " -fc_target=... -lun_number=..." tail
// by which their messages name a LUN.
#pragma once

#include <string>

#include "api/MhbaReturn.h"
#include "commands/CommandPattern.h"
#include "records/PUniqueID.h"

class HIsaAdapter;
class HLun;
class KLunInfo;
class PLunID;
class PTargetID;

// The library's object of this path. A LUN named fully by its keywords was
// never gathered, so when it is not held yet the adapter's targets and LUNs
// are gathered once and it is looked for again. Null when the adapter does
// not see it.
HLun* findLunObject(HIsaAdapter& adapter, PLunID const& lun);

// Makes sure the record of the LUN is filled: 0, or the code of the refresh.
int readLunRecord(HLun& lun);

// " -is_target=" for an iSCSI target, otherwise " -fc_target=".
std::string targetKeyword(bool iscsi);

// The target keyword text of the LUN's own target and " -lun_number=" with
// its number.
std::string lunKeywordText(PLunID const& lun);

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
