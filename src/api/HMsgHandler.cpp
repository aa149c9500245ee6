#include "api/HMsgHandler.h"

HMsgHandler::HMsgHandler() = default;

HMsgHandler::~HMsgHandler() = default;

void HMsgHandler::debugMsg(const char*) {}

void HMsgHandler::infoMsg(const char*) {}

void HMsgHandler::failureMsg(const char*) {}

void HMsgHandler::progressMsg(int) {}

void HMsgHandler::progressBar(const char*) {}

void HMsgHandler::unknownMsg(MSG_TYPE, const void*) {}

namespace {

// A message without text is shown as an empty one rather than followed into
// nowhere.
const char* textOf(const void* data)
{
    return data != nullptr ? static_cast<const char*>(data) : "";
}

} // namespace

void HMsgHandler::notify(MSG_TYPE type, const void* data)
{
    switch (type) {
    case MSG_DEBUG:
    // Warnings take the debug route on purpose; failureMsg is for the
    // command line's own use and is never reached from here.
    case MSG_WARNING:
        debugMsg(textOf(data));
        break;
    case MSG_INFO:
        infoMsg(textOf(data));
        break;
    case MSG_PROGRESS:
        if (data != nullptr)
            notifyProgress(*static_cast<const int32_t*>(data));
        break;
    case MSG_PROGRESS_BAR:
        progressBar(textOf(data));
        break;
    default:
        unknownMsg(type, data);
        break;
    }
}

void HMsgHandler::configureProgress(unsigned int intervalMs)
{
    progressIntervalMs = intervalMs;
}

// A long operation may report progress many times a second; without a limit
// the screen would only flicker. The final 100 always shows, so a finished
// operation never seems stuck below it.
void HMsgHandler::notifyProgress(int percent)
{
    if (progressIntervalMs != 0) {
        if (percent == lastProgress)
            return;
        if (percent != 100 && !progressTimer.isExpired(progressIntervalMs))
            return;
    }
    progressTimer.initElapsedTime();
    lastProgress = percent;
    progressMsg(percent);
}
