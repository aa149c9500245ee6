#include <cmath>
#include <ctime>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "scripting/CsvFileInfo.h"
#include "support/ScratchFileTest.h"

namespace {

constexpr char kLunHead[] = "LUN,2,0,2100-0024-FF3C-5A10,\n"
                            ",,,Read,Read,Write,Write,Total,Total\n"
                            "Date,Time,Cached\n"
                            "\n";

class CsvFileInfoTest : public ScratchFileTest {
protected:
    bool open(std::string const& bytes)
    {
        std::string err;
        return info.csvOpenFile(writeFile("f.csv", bytes), err);
    }

    // Seconds of a "YYYY-MM-DD hh:mm:ss" in UTC.
    static long long utc(char const* text)
    {
        std::tm t{};
        strptime(text, "%Y-%m-%d %H:%M:%S", &t);
        return static_cast<long long>(timegm(&t));
    }

    // The times of the samples of a file, from the first to the last.
    std::vector<long long> sampleTimes(std::string const& bytes)
    {
        std::vector<long long> times;
        if (!open(bytes))
            return times;
        do
            times.push_back(info.sampleTime.getPosixTime());
        while (info.getNextSample());
        return times;
    }

    CsvFileInfo info;
};

} // namespace

// ---- identification ----------------------------------------------------------

TEST(CsvFileType, FirstLinePrefixDecides)
{
    EXPECT_EQ(CsvFileInfo::CSV_FILE_PORT_FC, CsvFileInfo::fileTypeOfFirstLine("PORT,FC,1"));
    EXPECT_EQ(CsvFileInfo::CSV_FILE_PORT_GE, CsvFileInfo::fileTypeOfFirstLine("PORT,GE"));
    EXPECT_EQ(CsvFileInfo::CSV_FILE_LUN, CsvFileInfo::fileTypeOfFirstLine("LUN,2,0,T,"));
    EXPECT_EQ(CsvFileInfo::CSV_FILE_LUN, CsvFileInfo::fileTypeOfFirstLine("LUNATIC"));
    EXPECT_EQ(CsvFileInfo::CSV_FILE_FC_STAT, CsvFileInfo::fileTypeOfFirstLine("FC_STAT,"));
    EXPECT_EQ(CsvFileInfo::CSV_FILE_IS_STAT, CsvFileInfo::fileTypeOfFirstLine("IS_STAT"));
    EXPECT_EQ(CsvFileInfo::CSV_FILE_FCIP_STAT, CsvFileInfo::fileTypeOfFirstLine("FCIP_STAT,x"));
}

TEST(CsvFileType, OtherFirstLinesAreUnknown)
{
    for (char const* line : {"", "PORT,IB", "PORT", "lun,1", " LUN", "Date,Time,Adapter ID,", "FC"})
        EXPECT_EQ(CsvFileInfo::CSV_FILE_UNKNOWN, CsvFileInfo::fileTypeOfFirstLine(line)) << line;
}

TEST_F(CsvFileInfoTest, LunFileIsIdentifiedWithItsTitlesAndFirstSample)
{
    ASSERT_TRUE(open(std::string(kLunHead) + "11/18/2026,08:26:40,1.000000,25.5,\n"));
    EXPECT_EQ(CsvFileInfo::CSV_FILE_LUN, info.fileType);
    EXPECT_EQ("LUN,2,0,2100-0024-FF3C-5A10,", info.fileIdentification);
    ASSERT_EQ(2u, info.titleLines.size());
    EXPECT_EQ("Date,Time,Cached", info.titleLines[1]);
    EXPECT_EQ(utc("2026-11-18 08:26:40"), info.sampleTime.getPosixTime());
    EXPECT_EQ((std::vector<double>{1.0, 25.5}), info.sampleValues);
    EXPECT_FALSE(info.sampleUsed);
    EXPECT_EQ("2100-0024-FF3C-5A10", info.getFileIdentificationPart(3));
    EXPECT_EQ("LUN", info.getFileIdentificationPart(0));
}

TEST_F(CsvFileInfoTest, NoTitleLinesIsFine)
{
    ASSERT_TRUE(open("PORT,FC,0\n\n1/2/2026,0:0:0,7,\n"));
    EXPECT_EQ(CsvFileInfo::CSV_FILE_PORT_FC, info.fileType);
    EXPECT_TRUE(info.titleLines.empty());
}

TEST_F(CsvFileInfoTest, FilesThatAreNotStatisticsFilesAreRefused)
{
    char const* const files[] = {
        "",                                             // nothing at all
        "\nLUN,1,0,T,\n\n1/1/2026,0:0:0,1,\n",          // empty first line
        "Date,Time,Adapter ID,\n\n1/1/2026,0:0:0,1,\n", // unknown kind
        "LUN,1,0,T,\ntitle\n",                          // titles never end
        "LUN,1,0,T,\ntitle\n\n",                        // titles only, no sample
        "LUN,1,0,T,\n\n1/1/2026,0:0:0,1,",              // the only sample has no line end
        "LUN,1,0,T,",                                   // first line without its end
    };
    for (char const* bytes : files) {
        EXPECT_FALSE(open(bytes)) << bytes;
        EXPECT_FALSE(info.isOpen()) << bytes;
    }
}

TEST_F(CsvFileInfoTest, EndlessTitlesAreRefused)
{
    std::string bytes = "LUN,1,0,T,\n";
    for (std::size_t i = 0; i <= CsvFileInfo::kMaxTitleLines; ++i)
        bytes += "title\n";
    EXPECT_FALSE(open(bytes + "\n1/1/2026,0:0:0,1,\n"));
}

TEST_F(CsvFileInfoTest, MissingFileReportsTheOpenFailure)
{
    std::string err;
    EXPECT_FALSE(info.csvOpenFile(dir.file("none.csv"), err));
    EXPECT_EQ("Unable to open file \"" + dir.file("none.csv") + "\", (No such file or directory)", err);
}

TEST_F(CsvFileInfoTest, OpeningAgainStartsFromNothing)
{
    ASSERT_TRUE(open("LUN,1,0,A,\nt\n\n1/1/2026,0:0:0,1,2,3,4,5,\n"));
    std::string err;
    ASSERT_TRUE(info.csvOpenFile(writeFile("g.csv", "PORT,GE\n\n1/1/2026,0:0:0,9,\n"), err));
    EXPECT_EQ(CsvFileInfo::CSV_FILE_PORT_GE, info.fileType);
    EXPECT_TRUE(info.titleLines.empty());
    EXPECT_EQ((std::vector<double>{9.0}), info.sampleValues);
}

// ---- samples ---------------------------------------------------------------

TEST_F(CsvFileInfoTest, LaterSamplesKeepTheFirstSamplesValuesAtTheirIndexes)
{
    ASSERT_TRUE(open("LUN,1,0,A,\n\n1/1/2026,00:00:00,1,2,\n1/1/2026,00:00:10,3,4,\n1/1/2026,00:00:20,5,6,\n"));
    EXPECT_EQ((std::vector<double>{1, 2}), info.sampleValues);
    ASSERT_TRUE(info.getNextSample());
    EXPECT_EQ((std::vector<double>{1, 2, 3, 4}), info.sampleValues);
    EXPECT_EQ(utc("2026-01-01 00:00:10"), info.sampleTime.getPosixTime());
    ASSERT_TRUE(info.getNextSample());
    EXPECT_EQ((std::vector<double>{1, 2, 3, 4}), info.sampleValues) << "no growth past what is read";
    EXPECT_FALSE(info.getNextSample());
}

TEST_F(CsvFileInfoTest, FirstSampleIsKeptWholeButLaterOnesDoNotPileUp)
{
    std::string bytes = "LUN,1,0,A,\n\n";
    for (int row = 0; row < 1000; ++row)
        bytes += "1/1/2026,00:00:" + std::to_string(row % 60) + ",1,2,3,4,5,6,7,8,\n";
    ASSERT_TRUE(open(bytes));
    while (info.getNextSample()) {}
    EXPECT_EQ(8u, info.sampleValues.size());
}

TEST_F(CsvFileInfoTest, SampleWithoutValuesLeavesRoomForTheNextOnes)
{
    ASSERT_TRUE(open("LUN,1,0,A,\n\n1/1/2026,00:00:00,\n1/1/2026,00:00:10,3,4,5,6,7,\n"));
    EXPECT_TRUE(info.sampleValues.empty());
    ASSERT_TRUE(info.getNextSample());
    EXPECT_EQ((std::vector<double>{3, 4, 5, 6, 7}), info.sampleValues);
}

TEST_F(CsvFileInfoTest, CellsGoThroughStrtod)
{
    ASSERT_TRUE(open("LUN,1,0,A,\n\n1/1/2026,0:0:0,abc,,1e999, 2.5x,-0.5\n"));
    ASSERT_EQ(5u, info.sampleValues.size());
    EXPECT_EQ(0.0, info.sampleValues[0]);
    EXPECT_EQ(0.0, info.sampleValues[1]);
    EXPECT_TRUE(std::isinf(info.sampleValues[2]));
    EXPECT_EQ(2.5, info.sampleValues[3]);
    EXPECT_EQ(-0.5, info.sampleValues[4]) << "a last cell without a comma counts";
}

TEST_F(CsvFileInfoTest, MissingDatePartsCountAsOneAndAMissingYearAsNineteenHundred)
{
    EXPECT_EQ(
        (std::vector<long long>{utc("1900-11-01 08:26:40"), utc("1900-05-01 01:02:03"), utc("1900-01-01 01:01:01")}),
        sampleTimes("LUN,1,0,A,\n\n11,08:26:40,1,\n5/,1:2:3,\n,,\n"));
}

TEST_F(CsvFileInfoTest, MissingTimePartsCountAsOne)
{
    EXPECT_EQ(
        (std::vector<long long>{utc("2026-01-02 10:01:01"), utc("2026-01-02 10:20:01"), utc("2026-01-02 01:01:01")}),
        sampleTimes("LUN,1,0,A,\n\n1/2/2026,10,1,\n1/2/2026,10:20,1,\n1/2/2026\n"));
}

TEST_F(CsvFileInfoTest, OutOfRangeFieldsRollOverAsTheCalendarDoes)
{
    ASSERT_TRUE(open("LUN,1,0,A,\n\n13/40/2025,25:61:61,1,\n"));
    EXPECT_EQ(utc("2026-02-10 02:02:01"), info.sampleTime.getPosixTime());
}

TEST_F(CsvFileInfoTest, BlanksAroundDateAndTimePartsAreAllowed)
{
    ASSERT_TRUE(open("LUN,1,0,A,\n\n 11/ 18 /2026\t, 8:26: 40 ,1,\n"));
    EXPECT_EQ(utc("2026-11-18 08:26:40"), info.sampleTime.getPosixTime());
}

TEST_F(CsvFileInfoTest, DatesAndTimesThatCannotBeConvertedEndTheFile)
{
    char const* const samples[] = {"1x/1/2026,0:0:0,1,",        "1/1/2026,a:0:0,1,",        "1/2/3/4,0:0:0,1,",
                                   "1/1/2026,1:2:3:4,1,",       "1/1/99999999999,0:0:0,1,", "1/1/-5,0:0:0,1,",
                                   "1/1/2026,0:0:9999999999,1,"};
    for (char const* sample : samples) {
        EXPECT_FALSE(open(std::string("LUN,1,0,A,\n\n") + sample + "\n")) << sample;
        ASSERT_TRUE(open(std::string("LUN,1,0,A,\n\n1/1/2026,0:0:0,1,\n") + sample + "\n")) << sample;
        EXPECT_FALSE(info.getNextSample()) << sample;
    }
}

TEST_F(CsvFileInfoTest, FarYearsThatTheCalendarHoldsAreRead)
{
    ASSERT_TRUE(open("LUN,1,0,A,\n\n1/1/99999,0:0:0,1,\n"));
    EXPECT_EQ("01/01/99999", info.sampleTime.displayGmtDate());
}

TEST_F(CsvFileInfoTest, CarriageReturnLineEndsAreRead)
{
    ASSERT_TRUE(open("LUN,1,0,A,\r\nt\r\n\r\n1/1/2026,0:0:5,3,\r\n"));
    EXPECT_EQ("LUN,1,0,A,", info.fileIdentification);
    EXPECT_EQ(utc("2026-01-01 00:00:05"), info.sampleTime.getPosixTime());
    EXPECT_EQ((std::vector<double>{3}), info.sampleValues);
}

TEST_F(CsvFileInfoTest, NextSampleClearsTheUsedMark)
{
    ASSERT_TRUE(open("LUN,1,0,A,\n\n1/1/2026,0:0:0,1,\n1/1/2026,0:0:10,1,\n"));
    info.sampleUsed = true;
    ASSERT_TRUE(info.getNextSample());
    EXPECT_FALSE(info.sampleUsed);
}

TEST_F(CsvFileInfoTest, InitForgetsEverythingRead)
{
    ASSERT_TRUE(open("LUN,1,0,A,\nt\n\n1/1/2026,0:0:0,1,\n"));
    info.sampleUsed = true;
    info.init();
    EXPECT_EQ(CsvFileInfo::CSV_FILE_UNKNOWN, info.fileType);
    EXPECT_EQ(0, info.sampleTime.getPosixTime());
    EXPECT_TRUE(info.sampleValues.empty());
    EXPECT_TRUE(info.fileIdentification.empty());
    EXPECT_TRUE(info.titleLines.empty());
    EXPECT_FALSE(info.sampleUsed);
}

// ---- writing ----------------------------------------------------------------

namespace {

class CsvAppendTest : public ScratchFileTest {
protected:
    void SetUp() override
    {
        ScratchFileTest::SetUp();
        time.initFromPosixTime(1795000000); // 11/18/2026 11:06:40 UTC
    }

    std::string read(std::string const& name) const
    {
        std::ifstream in(dir.file(name), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }

    bool appendNumbers(bool first, std::vector<long long> const& values = {1, -2})
    {
        return CsvFileInfo::csvAppendFile(dir.path + "/run", "a.csv", "ID", "Date,Time,Adapter ID,x,y,", time, values,
                                          first, err);
    }

    PTime time;
    std::string err;
};

} // namespace

TEST_F(CsvAppendTest, TheFirstCycleMakesTheFolderAndReplacesTheFile)
{
    ASSERT_TRUE(appendNumbers(true)) << err;
    ASSERT_TRUE(appendNumbers(false, {3, 4}));
    EXPECT_EQ("Date,Time,Adapter ID,x,y,\n11/18/2026,11:06:40,ID,1,-2,\n11/18/2026,11:06:40,ID,3,4,\n",
              read("run/a.csv"));
    // A new run in the same folder starts the file again.
    ASSERT_TRUE(appendNumbers(true, {5, 6}));
    EXPECT_EQ("Date,Time,Adapter ID,x,y,\n11/18/2026,11:06:40,ID,5,6,\n", read("run/a.csv"));
}

TEST_F(CsvAppendTest, AFileRemovedDuringTheRunComesBackWithItsTitle)
{
    ASSERT_TRUE(appendNumbers(true));
    std::remove(dir.file("run/a.csv").c_str());
    ASSERT_TRUE(appendNumbers(false, {7, 8}));
    EXPECT_EQ("Date,Time,Adapter ID,x,y,\n11/18/2026,11:06:40,ID,7,8,\n", read("run/a.csv"));
}

TEST_F(CsvAppendTest, AFolderWhoseParentIsMissingFailsWithTheOpenText)
{
    EXPECT_FALSE(CsvFileInfo::csvAppendFile(dir.path + "/no/run", "a.csv", "ID", "t,", time, std::vector<long long>{1},
                                            true, err));
    EXPECT_EQ("Unable to open file \"" + dir.path + "/no/run/a.csv\", (No such file or directory)", err);
}

TEST_F(CsvAppendTest, AFolderThatIsAFileFails)
{
    writeFile("plain", "x");
    EXPECT_FALSE(
        CsvFileInfo::csvAppendFile(dir.file("plain"), "a.csv", "ID", "t,", time, std::vector<long long>{1}, true, err));
    EXPECT_EQ("Unable to open file \"" + dir.path + "/plain/a.csv\", (Not a directory)", err);
}

TEST_F(CsvAppendTest, AFullDiskLeavesNoPartialRow)
{
    // /dev/full takes the open and refuses every byte written.
    ASSERT_EQ(0, mkdir(dir.file("run").c_str(), 0755));
    ASSERT_EQ(0, symlink("/dev/full", dir.file("run/a.csv").c_str()));
    EXPECT_FALSE(appendNumbers(false));
    EXPECT_EQ("Unable to write file \"" + dir.path + "/run/a.csv\", (No space left on device)", err);
    std::string lunErr;
    EXPECT_FALSE(CsvFileInfo::csvAppendFile(dir.file("run/a.csv"), "t1", "t2", time, {1.0}, lunErr));
    EXPECT_EQ(err, lunErr);
}

TEST_F(CsvAppendTest, FloatingValuesAreWrittenWithSixDecimals)
{
    ASSERT_TRUE(
        CsvFileInfo::csvAppendFile(dir.path, "f.csv", "ID", "T,", time, std::vector<double>{0.5, -1.25, 3}, true, err));
    EXPECT_EQ("T,\n11/18/2026,11:06:40,ID,0.500000,-1.250000,3.000000,\n", read("f.csv"));
}

TEST_F(CsvAppendTest, TheSummaryRowHasGlobalValuesCountTotalsAndGroups)
{
    std::vector<double> const values = {100, 50, 1, 2, CsvFileInfo::kEndOfGroup, 3, CsvFileInfo::kEndOfGroup};
    std::vector<double> const mirror = {9, CsvFileInfo::kEndOfGroup};
    ASSERT_TRUE(CsvFileInfo::csvAppendFile(dir.path, "s.csv", "ID", "T,", time, 2, {0.5}, {"L1", "L2"}, values, {"M1"},
                                           mirror, true, err));
    EXPECT_EQ("T,\n11/18/2026,11:06:40,ID,0.500000,2,100.000000,50.000000,L1,1.000000,2.000000,L2,3.000000,M1,"
              "9.000000,\n",
              read("s.csv"));
}

TEST_F(CsvAppendTest, TheSummaryCountShowsAtMostThreeDigits)
{
    ASSERT_TRUE(
        CsvFileInfo::csvAppendFile(dir.path, "s.csv", "ID", "T,", time, 1234, {}, {}, {0, 0}, {}, {}, true, err));
    EXPECT_EQ("T,\n11/18/2026,11:06:40,ID,123,0.000000,0.000000,\n", read("s.csv"));
    ASSERT_TRUE(CsvFileInfo::csvAppendFile(dir.path, "s.csv", "ID", "T,", time, 0, {}, {}, {0, 0}, {}, {}, true, err));
    EXPECT_EQ("T,\n11/18/2026,11:06:40,ID,0,0.000000,0.000000,\n", read("s.csv"));
}

TEST_F(CsvAppendTest, TheLunFileLeavesOutCountAndTotalsWithoutLuns)
{
    std::vector<double> const mirror = {7, 8, CsvFileInfo::kEndOfGroup};
    ASSERT_TRUE(CsvFileInfo::csvAppendFile(dir.path, "l.csv", "ID", "T,", time, 0, {}, {}, {"M"}, mirror, true, err));
    EXPECT_EQ("T,\n11/18/2026,11:06:40,ID,M,7.000000,8.000000,\n", read("l.csv"));
    std::vector<double> const values = {10, 20, 5, CsvFileInfo::kEndOfGroup};
    ASSERT_TRUE(CsvFileInfo::csvAppendFile(dir.path, "l.csv", "ID", "T,", time, 1, {"L"}, values, {}, {}, true, err));
    EXPECT_EQ("T,\n11/18/2026,11:06:40,ID,1,10.000000,20.000000,L,5.000000,\n", read("l.csv"));
}

TEST_F(CsvAppendTest, GroupsWithoutTheirValuesEndAtTheList)
{
    ASSERT_TRUE(
        CsvFileInfo::csvAppendFile(dir.path, "l.csv", "ID", "T,", time, 2, {"L1", "L2"}, {1}, {}, {}, true, err));
    EXPECT_EQ("T,\n11/18/2026,11:06:40,ID,2,1.000000,0.000000,L1,L2,\n", read("l.csv"));
}

TEST_F(CsvAppendTest, ALunFileGetsItsTitlesOnlyWhenNewAndIsNeverMade)
{
    std::string const path = dir.file("lun1vpg1_x.csv");
    ASSERT_TRUE(CsvFileInfo::csvAppendFile(path, "LUN,1,", "a\nb\n", time, {1, 2}, err));
    ASSERT_TRUE(CsvFileInfo::csvAppendFile(path, "LUN,1,", "a\nb\n", time, {3}, err));
    EXPECT_EQ("LUN,1,\na\nb\n\n11/18/2026,11:06:40,1.000000,2.000000,\n11/18/2026,11:06:40,3.000000,\n",
              read("lun1vpg1_x.csv"));
    EXPECT_FALSE(CsvFileInfo::csvAppendFile(dir.file("none/l.csv"), "t", "t", time, {1}, err));
    EXPECT_EQ("Unable to open file \"" + dir.path + "/none/l.csv\", (No such file or directory)", err);
    ASSERT_EQ(0, mkdir(dir.file("isdir.csv").c_str(), 0755));
    EXPECT_FALSE(CsvFileInfo::csvAppendFile(dir.file("isdir.csv"), "t", "t", time, {1}, err));
    EXPECT_EQ("Unable to open file \"" + dir.path + "/isdir.csv\", (Is a directory)", err);
}
