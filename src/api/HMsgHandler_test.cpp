#include "api/HMsgHandler.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

// Writes down every handler the base class calls, in order.
class RecordingHandler : public HMsgHandler {
public:
    void debugMsg(const char* text) override { calls.push_back("debug:" + std::string(text)); }
    void infoMsg(const char* text) override { calls.push_back("info:" + std::string(text)); }
    void failureMsg(const char* text) override { calls.push_back("failure:" + std::string(text)); }
    void progressMsg(int percent) override { calls.push_back("progress:" + std::to_string(percent)); }
    void progressBar(const char* text) override { calls.push_back("bar:" + std::string(text)); }
    void unknownMsg(MSG_TYPE type, const void* data) override
    {
        calls.push_back("unknown:" + std::to_string(type));
        unknownData = data;
    }

    void progress(int32_t percent) { notify(MSG_PROGRESS, &percent); }

    std::vector<std::string> calls;
    const void* unknownData = nullptr;
};

using Calls = std::vector<std::string>;

// Long enough that no test run gets near it.
constexpr unsigned kHourMs = 3600 * 1000;

} // namespace

TEST(HMsgHandler, StartsWithoutRateLimitAndNothingShown)
{
    HMsgHandler handler;
    EXPECT_EQ(handler.lastProgress, 0);
    EXPECT_EQ(handler.progressIntervalMs, 0u);
    handler.configureProgress(2000);
    EXPECT_EQ(handler.progressIntervalMs, 2000u);
}

TEST(HMsgHandler, RoutesEachTextMessageToItsHandler)
{
    RecordingHandler handler;
    handler.notify(HMsgHandler::MSG_DEBUG, "d");
    handler.notify(HMsgHandler::MSG_INFO, "i");
    handler.notify(HMsgHandler::MSG_PROGRESS_BAR, "[###   ]");
    EXPECT_EQ(handler.calls, (Calls{"debug:d", "info:i", "bar:[###   ]"}));
}

TEST(HMsgHandler, SendsAWarningTheSameWayAsADebugMessage)
{
    RecordingHandler handler;
    handler.notify(HMsgHandler::MSG_WARNING, "careful");
    EXPECT_EQ(handler.calls, (Calls{"debug:careful"}));
}

TEST(HMsgHandler, PassesTypesBeyondTheKnownOnesToUnknownMsg)
{
    RecordingHandler handler;
    int payload = 5;
    handler.notify(static_cast<HMsgHandler::MSG_TYPE>(5), &payload);
    EXPECT_EQ(handler.unknownData, &payload);
    handler.notify(static_cast<HMsgHandler::MSG_TYPE>(99), nullptr);
    EXPECT_EQ(handler.calls, (Calls{"unknown:5", "unknown:99"}));
}

TEST(HMsgHandler, BaseHandlersDoNothing)
{
    HMsgHandler handler;
    int32_t percent = 50;
    handler.notify(HMsgHandler::MSG_DEBUG, "d");
    handler.notify(HMsgHandler::MSG_PROGRESS, &percent);
    handler.notify(static_cast<HMsgHandler::MSG_TYPE>(7), nullptr);
    handler.failureMsg("f");
    EXPECT_EQ(handler.lastProgress, 50);
}

TEST(HMsgHandler, AMessageWithoutDataDoesNotCrash)
{
    RecordingHandler handler;
    handler.notify(HMsgHandler::MSG_INFO, nullptr);
    handler.notify(HMsgHandler::MSG_PROGRESS, nullptr);
    EXPECT_EQ(handler.calls, (Calls{"info:"}));
}

TEST(HMsgHandler, ShowsEveryProgressFigureWithoutARateLimit)
{
    RecordingHandler handler;
    handler.progress(37);
    handler.progress(37);
    handler.progress(100);
    handler.progress(100);
    EXPECT_EQ(handler.calls, (Calls{"progress:37", "progress:37", "progress:100", "progress:100"}));
}

TEST(HMsgHandler, ShowsTheSameFigureOnceWithinTheInterval)
{
    RecordingHandler handler;
    handler.progress(37); // no limit yet: shown, and the timer starts
    handler.configureProgress(kHourMs);
    handler.progress(37);
    EXPECT_EQ(handler.calls, (Calls{"progress:37"}));
    EXPECT_EQ(handler.lastProgress, 37);
}

TEST(HMsgHandler, HoldsBackANewFigureWithinTheInterval)
{
    RecordingHandler handler;
    handler.progress(37);
    handler.configureProgress(kHourMs);
    handler.progress(38);
    EXPECT_EQ(handler.calls, (Calls{"progress:37"}));
    EXPECT_EQ(handler.lastProgress, 37);
}

TEST(HMsgHandler, Shows100WithinTheIntervalUnlessItWasTheLastShown)
{
    RecordingHandler handler;
    handler.progress(37);
    handler.configureProgress(kHourMs);
    handler.progress(37);
    handler.progress(100);
    handler.progress(100);
    EXPECT_EQ(handler.calls, (Calls{"progress:37", "progress:100"}));
    EXPECT_EQ(handler.lastProgress, 100);
}

TEST(HMsgHandler, ShowsAFigureOnceTheIntervalHasPassed)
{
    RecordingHandler handler;
    // The timer has not been started: it counts from the start of the clock,
    // so far more than a minute has passed unless the 32-bit millisecond
    // count wrapped in the last minute.
    if (handler.progressTimer.isExpired(60 * 1000)) {
        handler.configureProgress(60 * 1000);
        handler.progress(37);
        EXPECT_EQ(handler.calls, (Calls{"progress:37"}));
    }
}
