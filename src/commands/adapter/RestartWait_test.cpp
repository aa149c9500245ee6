#include "commands/adapter/RestartWait.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// An adapter that stays silent for `silentPolls` questions, and a clock that
// only records the pauses asked of it.
struct Restart {
    int silentPolls = 0;
    int polls = 0;
    std::vector<unsigned int> pauses;
    std::string printed;

    bool run(int maxPolls = 50)
    {
        RestartWait wait;
        wait.maxPolls = maxPolls;
        wait.poll = [this] { return polls++ < silentPolls ? MHBA_E_FAILURE : MHBA_S_OK; };
        wait.pause = [this](unsigned int seconds) { pauses.push_back(seconds); };
        testing::internal::CaptureStdout();
        bool const answered = waitUntilAdapterAnswers(wait);
        printed = testing::internal::GetCapturedStdout();
        return answered;
    }
};

} // namespace

TEST(RestartWait, WaitsTenSecondsThenAsksEveryThreeUntilTheAdapterAnswers)
{
    Restart restart;
    restart.silentPolls = 2;
    EXPECT_TRUE(restart.run());
    EXPECT_EQ(3, restart.polls);
    EXPECT_EQ((std::vector<unsigned int>{10, 3, 3, 3}), restart.pauses);
    EXPECT_EQ("ZEK is restarting......", restart.printed);
}

TEST(RestartWait, AnAdapterThatAnswersAtOnceIsStillAskedOnceAfterTheFirstWait)
{
    Restart restart;
    EXPECT_TRUE(restart.run());
    EXPECT_EQ(1, restart.polls);
    EXPECT_EQ((std::vector<unsigned int>{10, 3}), restart.pauses);
    EXPECT_EQ("ZEK is restarting....", restart.printed);
}

TEST(RestartWait, EndsByTimeOutAfterFiftyOneQuestions)
{
    Restart restart;
    restart.silentPolls = 1000;
    EXPECT_FALSE(restart.run());
    EXPECT_EQ(51, restart.polls);
    EXPECT_EQ(52u, restart.pauses.size());
    EXPECT_EQ("ZEK is restarting..." + std::string(51, '.'), restart.printed);
}

TEST(RestartWait, AnAnswerToTheQuestionPastTheLimitComesTooLate)
{
    Restart late;
    late.silentPolls = 50;
    EXPECT_FALSE(late.run());
    Restart inTime;
    inTime.silentPolls = 49;
    EXPECT_TRUE(inTime.run());
    EXPECT_EQ(50, inTime.polls);
}
