#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <vector>

#include "core/ZekcliReturn.h"
#include "scripting/CsvMergeReport.h"
#include "support/ScratchFileTest.h"

namespace {

constexpr char kTitles[] = ",,,Read,Read\nDate,Time,Cached\n\n";

std::string lunHead(int lun, std::string const& target)
{
    return "LUN," + std::to_string(lun) + ",0," + target + ",\n" + kTitles;
}

// A row with a clock of 11/18/2026 and four values.
std::string row(std::string const& clock, double a, double b, double c, double d)
{
    return "11/18/2026," + clock + "," + std::to_string(a) + "," + std::to_string(b) + "," + std::to_string(c) + "," +
        std::to_string(d) + ",\n";
}

std::string const kHeaderOneTarget = ",,Target T1,,,,\nDate,Time,Read Block/sec,Write Block/sec,Read I/O/sec,"
                                     "Write I/O/sec,\n";

// The table of one target as expected: its titles, then one row per clock,
// all with the same values.
std::string oneTargetTable(std::vector<std::string> const& clocks, std::string const& values)
{
    std::string table = kHeaderOneTarget;
    for (std::string const& clock : clocks)
        table += "11/18/2026," + clock + "," + values;
    return table;
}

class CsvMergeReportTest : public ScratchFileTest {
protected:
    void add(std::string const& name, std::string const& bytes,
             CsvMergeReport::ADD_RESULT expected = CsvMergeReport::FILE_KEPT)
    {
        std::string err;
        EXPECT_EQ(expected, report.addFile(writeFile(name, bytes), err)) << name;
    }

    // The report as written, and the code.
    int merge(std::string& text)
    {
        report.buildColumns();
        std::string err;
        int const rc = report.write(
            [&](std::string const& piece, std::string&) {
                text += piece;
                return true;
            },
            err);
        lastErr = err;
        return rc;
    }

    std::string merged()
    {
        std::string text;
        EXPECT_EQ(ZEKCLI_OK, merge(text));
        return text;
    }

    CsvMergeReport report;
    std::string lastErr;
};

} // namespace

TEST_F(CsvMergeReportTest, NoFilesGiveTheTitlesTwice)
{
    std::string const titles = ",,\nDate,Time,\n";
    EXPECT_EQ(titles + titles, merged());
}

TEST_F(CsvMergeReportTest, FilesThatAreNotStatisticsFilesAreDropped)
{
    add("a.csv", "Date,Time,Adapter ID,\n11/18/2026,08:00:00,x,\n", CsvMergeReport::FILE_DROPPED);
    add("b.csv", lunHead(1, "T1"), CsvMergeReport::FILE_DROPPED);
    add("c.csv", "", CsvMergeReport::FILE_DROPPED);
    std::string err;
    EXPECT_EQ(CsvMergeReport::FILE_DROPPED, report.addFile(dir.file("none.csv"), err));
    EXPECT_EQ(0u, report.fileCount());
}

TEST_F(CsvMergeReportTest, OneLunFileGivesOneGroupAndTheDoubledLastRow)
{
    add("a.csv", lunHead(1, "T1") + row("08:00:00", 1, 2, 3, 4));
    std::string const last = "11/18/2026,08:00:00,1.000000,2.000000,3.000000,4.000000,\n";
    EXPECT_EQ(kHeaderOneTarget + last + last, merged());
}

TEST_F(CsvMergeReportTest, TwoFilesOfOneTargetShareOneGroupAndAreSummed)
{
    add("a.csv", lunHead(1, "T1") + row("08:00:00", 1, 2, 3, 4));
    add("b.csv", lunHead(2, "T1") + row("08:00:05", 10, 20, 30, 40));
    ASSERT_EQ(4u, report.fileCount() * 2);
    std::string const last = "11/18/2026,08:00:00,11.000000,22.000000,33.000000,44.000000,\n";
    EXPECT_EQ(kHeaderOneTarget + last + last, merged());
}

TEST_F(CsvMergeReportTest, TwoTargetsGiveTwoGroupsInOrderOfFirstSight)
{
    add("a.csv", lunHead(1, "T2") + row("08:00:00", 1, 2, 3, 4));
    add("b.csv", lunHead(2, "T1") + row("08:00:00", 5, 6, 7, 8));
    add("c.csv", lunHead(3, "T2") + row("08:00:00", 1, 1, 1, 1));
    std::string const text = merged();
    EXPECT_EQ(",,Target T2,,,,Target T1,,,,\nDate,Time,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,"
              "Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,\n",
              text.substr(0, text.find("11/18")));
    EXPECT_NE(std::string::npos,
              text.find("08:00:00,2.000000,3.000000,4.000000,5.000000,5.000000,6.000000,7.000000,8.000000,\n"));
    ASSERT_EQ(8u, report.reportColumns().size());
    EXPECT_EQ("T2", report.reportColumns()[0].matchText);
    EXPECT_EQ(3, report.reportColumns()[3].sampleIndex);
}

TEST_F(CsvMergeReportTest, PortFileFeedsNoColumnButDrivesTheGrid)
{
    add("a.csv", lunHead(1, "T1") + row("08:00:00", 1, 2, 3, 4));
    add("p.csv", "PORT,FC,0\n\n" + row("08:00:00", 9, 9, 9, 9) + row("08:00:25", 9, 9, 9, 9));
    std::string const values = "1.000000,2.000000,3.000000,4.000000,\n";
    EXPECT_EQ(oneTargetTable({"08:00:00", "08:00:10", "08:00:20", "08:00:20"}, values), merged());
}

TEST_F(CsvMergeReportTest, OnlyPortFilesGiveRowsWithoutColumns)
{
    add("p.csv", "PORT,GE\n\n" + row("08:00:00", 1, 1, 1, 1) + row("08:00:11", 1, 1, 1, 1));
    EXPECT_EQ(",,\nDate,Time,\n11/18/2026,08:00:00,\n11/18/2026,08:00:10,\n11/18/2026,08:00:10,\n", merged());
}

TEST_F(CsvMergeReportTest, SampleExactlyTenSecondsOnFallsIntoTheWindowAndIsNotSeenTwice)
{
    add("a.csv",
        lunHead(1, "T1") + row("08:00:00", 1, 1, 1, 1) + row("08:00:10", 1, 1, 1, 1) + row("08:00:21", 1, 1, 1, 1));
    std::string const values = "1.000000,1.000000,1.000000,1.000000,\n";
    EXPECT_EQ(oneTargetTable({"08:00:00", "08:00:10", "08:00:20", "08:00:20"}, values), merged());
}

TEST_F(CsvMergeReportTest, GapsRepeatTheSums)
{
    add("a.csv", lunHead(1, "T1") + row("08:00:00", 1, 2, 3, 4) + row("08:00:35", 1, 2, 3, 4));
    std::string const values = "1.000000,2.000000,3.000000,4.000000,\n";
    EXPECT_EQ(oneTargetTable({"08:00:00", "08:00:10", "08:00:20", "08:00:30", "08:00:30"}, values), merged());
}

TEST_F(CsvMergeReportTest, LaterSamplesReuseTheFirstSamplesValues)
{
    add("a.csv", lunHead(1, "T1") + row("08:00:00", 1, 2, 3, 4) + row("08:00:15", 100, 200, 300, 400));
    std::string const values = "1.000000,2.000000,3.000000,4.000000,\n";
    EXPECT_EQ(oneTargetTable({"08:00:00", "08:00:10", "08:00:10"}, values), merged());
}

TEST_F(CsvMergeReportTest, FilesOfTheSameFirstLineMakeARunningMean)
{
    // Read from the last name to the first by the command; here in the order added.
    add("a.csv", lunHead(1, "T1") + row("08:00:00", 8, 8, 8, 8));
    add("b.csv", lunHead(1, "T1") + row("08:00:00", 4, 4, 4, 4));
    add("c.csv", lunHead(1, "T1") + row("08:00:00", 2, 2, 2, 2));
    std::string const text = merged();
    EXPECT_NE(std::string::npos, text.find("08:00:00,4.000000,4.000000,4.000000,4.000000,\n")) << text;
    ASSERT_EQ(1u, report.reportColumns()[0].samples.size());
}

TEST_F(CsvMergeReportTest, SampleTooShortForAColumnGivesThatColumnNothing)
{
    add("a.csv", lunHead(1, "T1") + "11/18/2026,08:00:00,7,8,\n");
    std::string const last = "11/18/2026,08:00:00,7.000000,8.000000,0.000000,0.000000,\n";
    EXPECT_EQ(kHeaderOneTarget + last + last, merged());
    EXPECT_TRUE(report.reportColumns()[2].samples.empty());
}

TEST_F(CsvMergeReportTest, SampleGoingBackInTimeGoesIntoTheCurrentWindow)
{
    add("a.csv",
        lunHead(1, "T1") + row("08:00:00", 1, 1, 1, 1) + row("08:00:25", 1, 1, 1, 1) + row("07:00:00", 1, 1, 1, 1) +
            row("08:00:31", 1, 1, 1, 1));
    std::string const values = "1.000000,1.000000,1.000000,1.000000,\n";
    EXPECT_EQ(oneTargetTable({"08:00:00", "08:00:10", "08:00:20", "08:00:30", "08:00:30"}, values), merged());
}

TEST_F(CsvMergeReportTest, UnconvertibleDateEndsThatFileOnly)
{
    add("a.csv",
        lunHead(1, "T1") + row("08:00:00", 1, 1, 1, 1) + "xx/1/2026,08:00:30,5,5,5,5,\n" + row("08:00:40", 1, 1, 1, 1));
    add("b.csv", lunHead(2, "T1") + row("08:00:00", 1, 1, 1, 1) + row("08:00:12", 1, 1, 1, 1));
    std::string const values = "2.000000,2.000000,2.000000,2.000000,\n";
    EXPECT_EQ(oneTargetTable({"08:00:00", "08:00:10", "08:00:10"}, values), merged());
}

TEST_F(CsvMergeReportTest, SamplesMoreThanTenYearsApartStopTheMerge)
{
    add("a.csv", lunHead(1, "T1") + row("08:00:00", 1, 1, 1, 1));
    add("b.csv", lunHead(2, "T1") + "11/18/1956,08:00:00,1,1,1,1,\n");
    std::string text;
    EXPECT_EQ(ZEKCLI_CMD_FAIL, merge(text));
    EXPECT_EQ("The CSV samples lie more than 10 years apart (11/18/1956 08:00:00 and 11/18/2026 08:00:00); the "
              "merge was stopped",
              lastErr);
    EXPECT_EQ(kHeaderOneTarget + "11/18/1956,08:00:00,1.000000,1.000000,1.000000,1.000000,\n", text);
}

TEST_F(CsvMergeReportTest, FailingWriterStopsAtOnce)
{
    add("a.csv", lunHead(1, "T1") + row("08:00:00", 1, 1, 1, 1) + row("08:00:40", 1, 1, 1, 1));
    report.buildColumns();
    int calls = 0;
    std::string err;
    EXPECT_EQ(ZEKCLI_OUTPUT_FAIL,
              report.write(
                  [&](std::string const&, std::string& writeErr) {
                      writeErr = "disk full";
                      return ++calls < 2;
                  },
                  err));
    EXPECT_EQ(2, calls);
    EXPECT_EQ("disk full", err);
}

TEST_F(CsvMergeReportTest, HugeValuesAreWrittenInFull)
{
    add("a.csv", lunHead(1, "T1") + "11/18/2026,08:00:00,1e300,-1e308,1e999,nan,\n");
    std::string const text = merged();
    std::string const row = text.substr(kHeaderOneTarget.size(), text.find('\n', kHeaderOneTarget.size()));
    EXPECT_GT(row.size(), 300u + 310u) << "1e300 and -1e308 with all their digits";
    EXPECT_NE(std::string::npos, row.find(",-1")) << row;
    EXPECT_NE(std::string::npos, row.find(",inf,nan,")) << row;
}

TEST_F(CsvMergeReportTest, RunningOutOfFileHandlesStopsTheMerge)
{
    rlimit before{};
    ASSERT_EQ(0, getrlimit(RLIMIT_NOFILE, &before));
    std::string const bytes = lunHead(1, "T1") + row("08:00:00", 1, 1, 1, 1);
    for (int i = 0; i < 40; ++i)
        writeFile("f" + std::to_string(i) + ".csv", bytes);
    rlimit tight = before;
    tight.rlim_cur = 32;
    ASSERT_EQ(0, setrlimit(RLIMIT_NOFILE, &tight));
    CsvMergeReport::ADD_RESULT last = CsvMergeReport::FILE_KEPT;
    std::string err;
    for (int i = 0; i < 40 && last == CsvMergeReport::FILE_KEPT; ++i)
        last = report.addFile(dir.file("f" + std::to_string(i) + ".csv"), err);
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(CsvMergeReport::MERGE_STOPPED, last);
    EXPECT_NE(std::string::npos, err.find("(Too many open files)")) << err;
}
