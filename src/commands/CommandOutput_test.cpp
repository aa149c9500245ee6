#include "commands/CommandOutput.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "core/ZekcliReturn.h"
#include "support/CoreTestTree.h"

namespace {

constexpr char const* kUnwritable = "no-such-folder/out.log";

class CommandOutputTest : public CoreTreeTest {
protected:
    void sendTextTo(char const* path)
    {
        parser.root.textFileEnabled = true;
        parser.root.textFileName = path;
    }
    void sendResultTo(char const* path)
    {
        parser.root.resultFileEnabled = true;
        parser.root.resultFileName = path;
    }
    std::string shown()
    {
        fflush(stdout);
        return ::testing::internal::GetCapturedStdout();
    }
};

} // namespace

TEST_F(CommandOutputTest, WritesBannerLinesAndResultInOrderAndKeepsTheCode)
{
    sendTextTo("out.log");
    sendResultTo("out.dat");
    ::testing::internal::CaptureStdout();
    CommandOutput out(*showLun);
    EXPECT_TRUE(out.banner(nullptr));
    EXPECT_TRUE(out.line("first"));
    EXPECT_TRUE(out.line("second"));
    EXPECT_TRUE(out.result(2));
    std::string err = "kept";
    EXPECT_EQ(out.end(7, err), 7);
    EXPECT_EQ(err, "kept");
    EXPECT_EQ(shown(), "??? [ local host ]\n\nfirst\nsecond\n");
    EXPECT_EQ(readWholeFile("out.log"), "??? [ local host ]\n\nfirst\nsecond\n");
    EXPECT_EQ(readWholeFile("out.dat").size(), 40u);
}

TEST_F(CommandOutputTest, AFailedWriteEndsTheCommandWith55AndItsMessage)
{
    sendTextTo(kUnwritable);
    ::testing::internal::CaptureStdout();
    CommandOutput out(*showLun);
    EXPECT_FALSE(out.line("lost"));
    EXPECT_FALSE(out.ok());
    std::string err = "the walk's own words";
    EXPECT_EQ(out.end(0, err), ZEKCLI_OUTPUT_FAIL);
    EXPECT_EQ(err, std::string("Unable to open file \"") + kUnwritable + "\", (No such file or directory)");
    shown();
}

TEST_F(CommandOutputTest, WritesAfterAFailureAreSkipped)
{
    sendTextTo(kUnwritable);
    sendResultTo("out.dat");
    ::testing::internal::CaptureStdout();
    CommandOutput out(*showLun);
    out.line("first");
    parser.root.textFileEnabled = false;
    EXPECT_FALSE(out.line("second"));
    EXPECT_FALSE(out.banner(nullptr));
    EXPECT_FALSE(out.result(0));
    // The console got the first line before its file failed; nothing after.
    EXPECT_EQ(shown(), "first\n");
    EXPECT_FALSE(std::filesystem::exists("out.dat"));
}

TEST_F(CommandOutputTest, TheFirstFailureIsTheOneReported)
{
    sendResultTo(kUnwritable);
    ::testing::internal::CaptureStdout();
    CommandOutput out(*showLun);
    out.result(0);
    out.fail("later");
    std::string err;
    EXPECT_EQ(out.end(0, err), ZEKCLI_OUTPUT_FAIL);
    EXPECT_EQ(err.rfind("Unable to open file", 0), 0u) << err;
    shown();
}

TEST_F(CommandOutputTest, AFailureThatIsNotAWriteAlsoEndsWith55)
{
    CommandOutput out(*showLun);
    out.fail("no memory");
    std::string err;
    EXPECT_EQ(out.end(0, err), ZEKCLI_OUTPUT_FAIL);
    EXPECT_EQ(err, "no memory");
}
