#include <gtest/gtest.h>

#include "core/MyMsgHandler.h"
#include "support/CoreTestTree.h"

namespace {

template <typename Action>
std::string consoleOf(Action action)
{
    ::testing::internal::CaptureStdout();
    action();
    fflush(stdout);
    return ::testing::internal::GetCapturedStdout();
}

} // namespace

using MessageHandler = CoreTreeTest;

TEST_F(MessageHandler, ProgressRewritesOneLineAndWipesItAtTheEnd)
{
    MyMsgHandler handler(&parser.root);
    EXPECT_EQ("\r37% Complete", consoleOf([&] { handler.progressMsg(37); }));
    EXPECT_EQ("\r99% Complete", consoleOf([&] { handler.progressMsg(99); }));
    EXPECT_EQ("\r\r              \r", consoleOf([&] { handler.progressMsg(100); }));
}

TEST_F(MessageHandler, ProgressThroughNotifyIsRateLimited)
{
    MyMsgHandler handler(&parser.root);
    handler.progressIntervalMs = 2000;
    int const first = 37;
    int const last = 100;
    EXPECT_EQ("\r37% Complete", consoleOf([&] {
                  handler.notify(HMsgHandler::MSG_PROGRESS, &first);
                  handler.notify(HMsgHandler::MSG_PROGRESS, &first);
              }));
    EXPECT_EQ("\r\r              \r", consoleOf([&] { handler.notify(HMsgHandler::MSG_PROGRESS, &last); }));
}

TEST_F(MessageHandler, UnknownTypeIsNamed)
{
    MyMsgHandler handler(&parser.root);
    EXPECT_EQ("Unknown message type 7 received",
              consoleOf([&] { handler.notify(static_cast<HMsgHandler::MSG_TYPE>(7), nullptr); }));
}

TEST_F(MessageHandler, ProgressBarIsShownAsItComes)
{
    MyMsgHandler handler(&parser.root);
    EXPECT_EQ("[####", consoleOf([&] { handler.notify(HMsgHandler::MSG_PROGRESS_BAR, "[####"); }));
}

TEST_F(MessageHandler, DebugAndWarningGoOutAsErrors)
{
    MyMsgHandler handler(&parser.root);
    EXPECT_EQ("debug text\n", consoleOf([&] { handler.notify(HMsgHandler::MSG_DEBUG, "debug text"); }));
    EXPECT_EQ("warning text\n", consoleOf([&] { handler.notify(HMsgHandler::MSG_WARNING, "warning text"); }));
    EXPECT_EQ("failure text\n", consoleOf([&] { handler.failureMsg("failure text"); }));
    parser.root.quiet = true;
    EXPECT_EQ("", consoleOf([&] { handler.notify(HMsgHandler::MSG_WARNING, "warning text"); }));
    parser.root.showOnlyError = true;
    EXPECT_EQ("warning text\n", consoleOf([&] { handler.notify(HMsgHandler::MSG_WARNING, "warning text"); }));
}

TEST_F(MessageHandler, InformationAlsoReachesTheTextFile)
{
    MyMsgHandler handler(&parser.root);
    parser.root.textFileEnabled = true;
    EXPECT_EQ("adapter restarted\n", consoleOf([&] { handler.notify(HMsgHandler::MSG_INFO, "adapter restarted"); }));
    EXPECT_EQ("adapter restarted\n", readWholeFile(dir.file("hsp_api.log")));
    parser.root.textFileName = "/nonexistent/t.log";
    EXPECT_EQ("note\nUnable to open file \"/nonexistent/t.log\", (No such file or directory)\n",
              consoleOf([&] { handler.infoMsg("note"); }));
}

TEST_F(MessageHandler, ProgressOfACommandIsSilentUnderQuiet)
{
    EXPECT_EQ("\r50% Complete", consoleOf([&] { showLun->myProgressMsg(50); }));
    parser.root.quiet = true;
    EXPECT_EQ("", consoleOf([&] { showLun->myProgressMsg(50); }));
}
