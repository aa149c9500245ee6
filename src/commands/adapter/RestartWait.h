// The wait of "restart adapter": the adapter goes silent after the request,
// and is asked again at a steady pace until it answers or the wait ends.
#pragma once

#include <functional>

#include "api/MhbaReturn.h"

struct RestartWait {
    // Time for the adapter to go down before the first question.
    unsigned int secondsBeforeFirstPoll = 10;
    unsigned int secondsBetweenPolls = 3;
    // More questions than this end the wait by time-out.
    int maxPolls = 50;
    // Asks the adapter whether it answers; 0 when it does.
    std::function<e_MHBA_RETURN()> poll;
    std::function<void(unsigned int)> pause;
};

// Prints "ZEK is restarting..." and a dot per question. True when the
// adapter answered in time, false on time-out.
bool waitUntilAdapterAnswers(RestartWait const& wait);
