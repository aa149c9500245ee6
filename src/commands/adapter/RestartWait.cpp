#include "commands/adapter/RestartWait.h"

#include <cstdio>

bool waitUntilAdapterAnswers(RestartWait const& wait)
{
    printf("ZEK is restarting...");
    fflush(stdout);
    wait.pause(wait.secondsBeforeFirstPoll);
    for (int polls = 0;;) {
        e_MHBA_RETURN const rc = wait.poll();
        printf(".");
        fflush(stdout);
        wait.pause(wait.secondsBetweenPolls);
        // The count is tested first: an answer to the question after the
        // last one allowed comes too late.
        if (++polls > wait.maxPolls)
            return false;
        if (rc == MHBA_S_OK)
            return true;
    }
}
