#include <gtest/gtest.h>
#include <string>

#include "scripting/CsvReportColumn.h"

namespace {

CsvReportColumn column(CsvReportColumn::CSV_REPORT_COLUMN_TYPE type, std::string const& match = "")
{
    return CsvReportColumn(type, "Group", "Title", 0, match);
}

} // namespace

TEST(CsvReportColumn, InitLeavesAnEmptyColumnWithNoIndex)
{
    CsvReportColumn c(CsvReportColumn::COLUMN_TARGET_LUNS, "g", "t", 2, "m", {{"LUN,1,0,m,", 3.0}});
    c.init();
    EXPECT_EQ(CsvReportColumn::COLUMN_NONE, c.type);
    EXPECT_EQ(-1, c.sampleIndex);
    EXPECT_TRUE(c.groupTitle.empty() && c.columnTitle.empty() && c.matchText.empty() && c.samples.empty());
    EXPECT_EQ(-1, CsvReportColumn().sampleIndex);
}

TEST(CsvReportColumn, ConstructorKeepsEverythingGiven)
{
    CsvReportColumn c(CsvReportColumn::COLUMN_FC_PORT, "g", "t", 2, "m", {{"PORT,FC", 3.0}});
    EXPECT_EQ(CsvReportColumn::COLUMN_FC_PORT, c.type);
    EXPECT_EQ("g", c.groupTitle);
    EXPECT_EQ("t", c.columnTitle);
    EXPECT_EQ(2, c.sampleIndex);
    EXPECT_EQ("m", c.matchText);
    ASSERT_EQ(1u, c.samples.size());
    EXPECT_EQ(3.0, c.sumSamples());
}

TEST(CsvReportColumn, TypesAcceptTheirFiles)
{
    EXPECT_TRUE(column(CsvReportColumn::COLUMN_ANY_PORT).acceptsFile("PORT,GE,1"));
    EXPECT_TRUE(column(CsvReportColumn::COLUMN_ANY_PORT).acceptsFile(" PORT ,x"));
    EXPECT_FALSE(column(CsvReportColumn::COLUMN_ANY_PORT).acceptsFile("PORTS,FC"));
    EXPECT_TRUE(column(CsvReportColumn::COLUMN_FC_PORT).acceptsFile("PORT,FC,0"));
    EXPECT_TRUE(column(CsvReportColumn::COLUMN_FC_PORT).acceptsFile("PORT,Fx"));
    EXPECT_FALSE(column(CsvReportColumn::COLUMN_FC_PORT).acceptsFile("PORT,GE"));
    EXPECT_TRUE(column(CsvReportColumn::COLUMN_GE_PORT).acceptsFile("PORT,GE"));
    EXPECT_FALSE(column(CsvReportColumn::COLUMN_GE_PORT).acceptsFile("PORT,ge"));
    EXPECT_TRUE(column(CsvReportColumn::COLUMN_TARGET_LUNS, "T1").acceptsFile("LUN,2,0,T1,"));
    EXPECT_FALSE(column(CsvReportColumn::COLUMN_TARGET_LUNS, "T1").acceptsFile("LUN,2,0,T10,"));
    EXPECT_FALSE(column(CsvReportColumn::COLUMN_TARGET_LUNS, "T1").acceptsFile("LUNA,2,0,T1,"));
    EXPECT_FALSE(column(CsvReportColumn::COLUMN_TARGET_LUNS, "T1").acceptsFile("PORT,FC,0,T1,"));
    EXPECT_FALSE(column(CsvReportColumn::COLUMN_NONE).acceptsFile("PORT,FC"));
    EXPECT_FALSE(column(static_cast<CsvReportColumn::CSV_REPORT_COLUMN_TYPE>(9)).acceptsFile("LUN,1,0,,"));
}

TEST(CsvReportColumn, RefusedFilesLeaveNoSample)
{
    CsvReportColumn c = column(CsvReportColumn::COLUMN_TARGET_LUNS, "T1");
    c.putSample("LUN,1,0,T2,", 5.0);
    EXPECT_TRUE(c.samples.empty());
    EXPECT_EQ(0.0, c.sumSamples());
}

TEST(CsvReportColumn, OneSamplePerFileAndTheSumOverFiles)
{
    CsvReportColumn c = column(CsvReportColumn::COLUMN_TARGET_LUNS, "T1");
    c.putSample("LUN,1,0,T1,", 5.0);
    c.putSample("LUN,2,0,T1,", 7.0);
    ASSERT_EQ(2u, c.samples.size());
    EXPECT_EQ("LUN,1,0,T1,", c.samples[0].fileIdentification);
    EXPECT_EQ(12.0, c.sumSamples());
}

TEST(CsvReportColumn, SameFileAgainMakesARunningMeanWithTheLatestWeighingHalf)
{
    CsvReportColumn c = column(CsvReportColumn::COLUMN_ANY_PORT);
    c.putSample("PORT,FC", 8.0);
    c.putSample("PORT,FC", 4.0);
    EXPECT_EQ(6.0, c.sumSamples());
    c.putSample("PORT,FC", 2.0);
    EXPECT_EQ(4.0, c.sumSamples());
    EXPECT_EQ(1u, c.samples.size());
}

TEST(CsvReportColumn, IdentificationsMatchExactly)
{
    CsvReportColumn c = column(CsvReportColumn::COLUMN_ANY_PORT);
    c.putSample("PORT,FC", 1.0);
    c.putSample("PORT,FC ", 2.0);
    EXPECT_EQ(2u, c.samples.size());
    EXPECT_EQ(3.0, c.sumSamples());
}
