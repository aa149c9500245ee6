// Views of an adapter log: the saved-file form, read a block at a time, and
// files that are not saved logs.
#include "api/SimLogView.h"

#include "support/TempDirectory.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <random>

using namespace sim;

namespace {

std::vector<LogRecord> records(int count)
{
    std::vector<LogRecord> log;
    for (int i = 0; i < count; ++i)
        log.push_back({1700000000 + i, i % 8, "src" + std::to_string(i % 3), "message " + std::to_string(i)});
    return log;
}

std::string messageOf(const KLogEntry& e)
{
    return std::string(e.message, strnlen(e.message, sizeof e.message));
}

void writeBytes(const std::string& file, const std::string& bytes)
{
    std::ofstream(file, std::ios::binary) << bytes;
}

class SimLogViewTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(scratch.made()); }

    // A saved log of `count` records, read back as a file view.
    std::unique_ptr<SimLogView> savedAndReopened(int count)
    {
        std::string error;
        EXPECT_TRUE(SimLogView::fromRecords(records(count))->save(file, error)) << error;
        std::unique_ptr<SimLogView> view = SimLogView::fromFile(file, error);
        EXPECT_NE(view, nullptr) << error;
        return view;
    }

    TempDirectory scratch{"zek-simlog"};
    std::string file = scratch.file("saved.log");
};

} // namespace

TEST_F(SimLogViewTest, ASavedLogIsBareRecordsOfThreeHundredBytes)
{
    std::string error;
    ASSERT_TRUE(SimLogView::fromRecords(records(3))->save(file, error)) << error;
    std::ifstream in(file, std::ios::binary);
    std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    ASSERT_EQ(bytes.size(), 3 * KLogEntry::SAVED_SIZE);
    KLogEntry second;
    second.restoreFrom(reinterpret_cast<const unsigned char*>(bytes.data()) + KLogEntry::SAVED_SIZE);
    EXPECT_EQ(messageOf(second), "message 1");
    EXPECT_EQ(second.time.getPosixTime(), 1700000001);
}

TEST_F(SimLogViewTest, AFileViewWalksAcrossBlocksBothWays)
{
    std::unique_ptr<SimLogView> view = savedAndReopened(600);
    ASSERT_NE(view, nullptr);
    ASSERT_EQ(view->getCount(), 600u);
    KLogEntry entry;
    ASSERT_TRUE(view->getLastEntry(entry));
    for (int i = 598; i >= 0; --i) {
        KLogEntry const from = entry;
        ASSERT_TRUE(view->getPreviousEntry(from, entry)) << i;
        ASSERT_EQ(messageOf(entry), "message " + std::to_string(i));
    }
    KLogEntry none;
    EXPECT_FALSE(view->getPreviousEntry(entry, none));
    for (int i = 1; i < 600; ++i) {
        KLogEntry const from = entry;
        ASSERT_TRUE(view->getNextEntry(from, entry)) << i;
        ASSERT_EQ(messageOf(entry), "message " + std::to_string(i));
    }
    EXPECT_FALSE(view->getNextEntry(entry, none));
    EXPECT_FALSE(view->getEntryAt(600, none));
    EXPECT_FALSE(view->getEntryAt(-1, none));
}

TEST_F(SimLogViewTest, SearchesGoToOlderRecordsFromTheOneGiven)
{
    std::unique_ptr<SimLogView> view = savedAndReopened(600);
    ASSERT_NE(view, nullptr);
    KLogEntry from, found;
    ASSERT_TRUE(view->getEntryAt(402, from));
    ASSERT_TRUE(view->findByText("message 3", from, found));
    EXPECT_EQ(messageOf(found), "message 399");
    ASSERT_TRUE(view->findBySeverity(1, 1, from, found));
    EXPECT_EQ(messageOf(found), "message 401") << "severity 1 or worse, the nearest older";
    ASSERT_TRUE(view->findBySeverity(2, 1, from, found));
    EXPECT_EQ(messageOf(found), "message 402") << "the record searched from counts";
    PTime time;
    time.initFromPosixTime(1700000000 + 10);
    ASSERT_TRUE(view->findByTime(time, from, found));
    EXPECT_EQ(messageOf(found), "message 10");
    EXPECT_FALSE(view->findByText("absent", from, found));
}

TEST_F(SimLogViewTest, AClosedViewHoldsNoRecords)
{
    std::unique_ptr<SimLogView> view = savedAndReopened(3);
    ASSERT_NE(view, nullptr);
    view->close();
    KLogEntry entry;
    EXPECT_EQ(view->getCount(), 0u);
    EXPECT_FALSE(view->getLastEntry(entry));
}

TEST_F(SimLogViewTest, AnEmptyFileIsAnEmptyLog)
{
    writeBytes(file, "");
    std::string error;
    std::unique_ptr<SimLogView> view = SimLogView::fromFile(file, error);
    ASSERT_NE(view, nullptr) << error;
    EXPECT_EQ(view->getCount(), 0u);
}

TEST_F(SimLogViewTest, WhatIsNotASavedLogIsRefusedWithItsReason)
{
    std::string error;
    writeBytes(file, std::string(301, 'x'));
    EXPECT_EQ(SimLogView::fromFile(file, error), nullptr);
    EXPECT_EQ(error, "\"" + file + "\" is not a saved log: 301 bytes are not a whole number of 300-byte records");
    EXPECT_EQ(SimLogView::fromFile(scratch.path, error), nullptr);
    EXPECT_EQ(error, "\"" + scratch.path + "\" is not a saved log: not a regular file");
    EXPECT_EQ(SimLogView::fromFile(scratch.file("missing"), error), nullptr);
    EXPECT_EQ(error, "cannot open saved log \"" + scratch.file("missing") + "\": No such file or directory");
    EXPECT_EQ(SimLogView::fromFile(file + "/below", error), nullptr);
    EXPECT_EQ(error, "cannot open saved log \"" + file + "/below\": Not a directory");
}

TEST_F(SimLogViewTest, RandomBytesGiveRecordsThatStayInTheirFields)
{
    std::mt19937 random(7);
    std::string bytes(20 * KLogEntry::SAVED_SIZE, '\0');
    for (char& c : bytes)
        c = static_cast<char>(random() % 255 + 1); // no NUL anywhere
    writeBytes(file, bytes);
    std::string error;
    std::unique_ptr<SimLogView> view = SimLogView::fromFile(file, error);
    ASSERT_NE(view, nullptr) << error;
    KLogEntry entry;
    ASSERT_TRUE(view->getLastEntry(entry));
    std::string const text = entry.displayText();
    EXPECT_LE(text.size(), 7 + 1 + 19 + 1 + KLogEntry::SOURCE_SIZE + 1 + KLogEntry::MESSAGE_SIZE + 1);
    KLogEntry found;
    EXPECT_FALSE(view->findByText(std::string(300, 'z'), entry, found));
    EXPECT_TRUE(view->writeReport(scratch.file("report.txt")));
}

TEST_F(SimLogViewTest, ReportAndCsvHaveAHeadingAndALinePerRecord)
{
    std::unique_ptr<SimLogView> view = SimLogView::fromRecords(records(2));
    ASSERT_TRUE(view->writeCsvFile(file, ";"));
    std::ifstream csv(file);
    std::string line;
    std::getline(csv, line);
    EXPECT_EQ(line, "Severity;Time;Source;Message");
    std::getline(csv, line);
    EXPECT_EQ(line, "UNKN ;11/14/2023 22:13:20;src0;message 0");
    ASSERT_TRUE(view->writeReport(file));
    std::ifstream report(file);
    std::getline(report, line);
    EXPECT_EQ(line, "Event log report: 2 records, oldest first");
    EXPECT_FALSE(view->writeCsvFile("", ","));
    EXPECT_FALSE(view->writeCsvFile(scratch.path, ","));
}
