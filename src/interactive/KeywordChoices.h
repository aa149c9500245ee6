// The words a keyword can take, for the keywords whose command owns such a
// list (-mode, -profile, -severity and the like), so that a menu can offer
// them.
#pragma once

#include <string>
#include <vector>

#include "core/ModifierId.h"

class TokenCmd;

// Null when the command keeps no list of words for that keyword.
std::vector<std::string> const* keywordChoices(TokenCmd const& cmd, ModifierId::MODIFIER_ID id);
