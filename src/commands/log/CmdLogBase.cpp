#include "commands/log/CmdLogBase.h"

CmdLogBase::CmdLogBase()
{
    basePositionWords.add(BASEPOS_START, "start");
    basePositionWords.add(BASEPOS_END, "end");

    int severity = 0;
    for (char const* word : {"unknown", "fatal", "error", "warning", "trace", "info", "debug", "system"})
        severityWords.add(severity++, word);
}
