#include "commands/lun/LunOutcomeTally.h"

#include "api/MhbaReturn.h"

void LunOutcomeTally::record(int code)
{
    if (code == 0) {
        anySucceeded = true;
        return;
    }
    anyFailed = true;
    lastFailure = code;
}

int LunOutcomeTally::resultCode() const
{
    if (!anyFailed)
        return 0;
    return anySucceeded ? MHBA_S_PARTIAL_SUCCESS : lastFailure;
}
