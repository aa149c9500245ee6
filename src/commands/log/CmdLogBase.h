// Base of the log commands: the word tables of -basepos and -severity, which
// several of them resolve.
#pragma once

#include "core/EnumStrList.h"
#include "core/TokenCmd.h"

class CmdLogBase : public TokenCmd {
public:
    // Where -offset counts from.
    enum BASEPOS_TYPE : int {
        BASEPOS_START = 0,
        BASEPOS_END = 1,
    };

    CmdLogBase();

    EnumStrList<BASEPOS_TYPE> basePositionWords;
    // Values are log entry severities; a lower number is worse.
    EnumStrList<int> severityWords;
};
