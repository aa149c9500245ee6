#include <cmath>
#include <ctime>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

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
