// The " -fc_target=... -lun_number=..." tail by which the cache commands'
// messages name a LUN.
#pragma once

#include <string>

class PLunID;

// " -is_target=" for an iSCSI target, otherwise " -fc_target=".
std::string targetKeyword(bool iscsi);

// The target keyword text of the LUN's own target and " -lun_number=" with
// its number.
std::string lunKeywordText(PLunID const& lun);
