#pragma once

#include "core/TokenCmd.h"

// The words for one of the command line's own return codes, or null for a
// code that is not its own. The manual and the result-file decoder use them too.
char const* zekcliReturnValueText(long code);

class CmdZekcliRetval : public TokenCmd {
public:
    CmdZekcliRetval();
    int execCommand(std::string& err) override;
};
