// The callback object through which the management library reports messages
// and progress during an operation. The library calls notify() only; notify
// sorts by type and, for progress, limits how often a new figure is shown.
// The handlers of this base do nothing: the command line derives from it to
// print.
#pragma once

#include <cstdint>

#include "records/PElapsedTime.h"

class HMsgHandler {
public:
    enum MSG_TYPE : int32_t {
        MSG_DEBUG = 0,
        MSG_INFO = 1,
        MSG_WARNING = 2,
        MSG_PROGRESS = 3,
        MSG_PROGRESS_BAR = 4,
    };

    HMsgHandler();
    // The virtual slots below are in the order the library expects.
    virtual ~HMsgHandler();
    virtual void debugMsg(const char* text);
    virtual void infoMsg(const char* text);
    virtual void failureMsg(const char* text);
    virtual void progressMsg(int percent);
    virtual void progressBar(const char* text);
    virtual void unknownMsg(MSG_TYPE type, const void* data);
    virtual void notify(MSG_TYPE type, const void* data);
    virtual void configureProgress(unsigned int intervalMs);

    int32_t lastProgress = 0;
    // Minimum time between two progress displays; 0 shows every change.
    uint32_t progressIntervalMs = 0;
    PElapsedTime progressTimer;

private:
    void notifyProgress(int percent);
};
