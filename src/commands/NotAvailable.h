// The one answer of a command whose work is not part of this build yet: a
// plain failure that says so, rather than output that looks real.
#pragma once

#include <string>

class TokenCmd;

// Sets `err` to name the command and returns ZEKCLI_CMD_FAIL.
int commandNotAvailableYet(TokenCmd const& command, std::string& err);
