#include "commands/CommandPattern.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace {

// Standard input as a test would type it.
class TypedInput {
public:
    explicit TypedInput(std::string const& typed) : text(typed)
    {
        file = text.empty() ? fopen("/dev/null", "r") : fmemopen(text.data(), text.size(), "r");
    }
    ~TypedInput()
    {
        if (file)
            fclose(file);
    }
    TypedInput(TypedInput const&) = delete;
    TypedInput& operator=(TypedInput const&) = delete;

    std::string text;
    FILE* file = nullptr;
};

std::string replyTo(std::string const& typed)
{
    TypedInput input(typed);
    return readReplyLine(input.file);
}

bool confirmedBy(std::string const& typed)
{
    TypedInput input(typed);
    testing::internal::CaptureStdout();
    bool const confirmed = confirmRisk("Go on [yes/no]? ", input.file);
    EXPECT_EQ("Go on [yes/no]? ", testing::internal::GetCapturedStdout());
    return confirmed;
}

} // namespace

TEST(ReplyLine, IsCutAtTheFirstNewline)
{
    EXPECT_EQ("yes", replyTo("yes\nno\n"));
    EXPECT_EQ("", replyTo("\nyes\n"));
    EXPECT_EQ("no", replyTo("no"));
}

TEST(ReplyLine, HoldsAtMost32Bytes)
{
    std::string const long_reply(40, 'y');
    EXPECT_EQ(std::string(32, 'y'), replyTo(long_reply + "\n"));
}

TEST(ReplyLine, IsEmptyWhenInputEndsOrIsMissing)
{
    EXPECT_EQ("", replyTo(""));
    EXPECT_EQ("", readReplyLine(nullptr));
}

TEST(ConfirmRisk, GoesOnOnlyForTheExactWordYes)
{
    EXPECT_TRUE(confirmedBy("yes\n"));
    EXPECT_TRUE(confirmedBy("yes"));
    EXPECT_FALSE(confirmedBy("Yes\n"));
    EXPECT_FALSE(confirmedBy("YES\n"));
    EXPECT_FALSE(confirmedBy("y\n"));
    EXPECT_FALSE(confirmedBy(" yes\n"));
    EXPECT_FALSE(confirmedBy("yes \n"));
    EXPECT_FALSE(confirmedBy("yesyes\n"));
    EXPECT_FALSE(confirmedBy("no\n"));
    EXPECT_FALSE(confirmedBy(""));
}

TEST(CommandReport, WithoutBannerKeepsTextCodeAndData)
{
    int const data = 7;
    CommandReport const report = CommandReport::withoutBanner("text", MHBA_E_FAILURE, &data, sizeof data);
    EXPECT_FALSE(report.banner);
    EXPECT_TRUE(report.writeResult);
    EXPECT_EQ("text", report.text);
    EXPECT_EQ(MHBA_E_FAILURE, report.resultCode);
    EXPECT_EQ(&data, report.data);
    EXPECT_EQ(sizeof data, report.size);
}
