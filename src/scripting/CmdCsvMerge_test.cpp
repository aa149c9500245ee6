#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "core/ZekcliReturn.h"
#include "scripting/CmdCsvMerge.h"
#include "scripting/CsvMergeReport.h"
#include "support/ScratchFileTest.h"

namespace {

using CsvMergeFolder = ScratchFileTest;

} // namespace

TEST_F(CsvMergeFolder, RegularCsvFilesInByteOrder)
{
    for (char const* name : {"b.csv", "B.csv", "a.csv", "a.CSV", "notes.txt", "x.csv.bak", ".csv", "a b.csv"})
        writeFile(name, "");
    ASSERT_EQ(0, mkdir(dir.file("folder.csv").c_str(), 0755));
    ASSERT_EQ(0, mkfifo(dir.file("pipe.csv").c_str(), 0644));
    ASSERT_EQ(0, symlink(dir.file("a.csv").c_str(), dir.file("link.csv").c_str()));
    ASSERT_EQ(0, symlink(dir.file("gone").c_str(), dir.file("dangling.csv").c_str()));
    std::vector<std::string> names;
    ASSERT_TRUE(CmdCsvMerge::csvFileNamesOf(dir.path, names));
    EXPECT_EQ((std::vector<std::string>{".csv", "B.csv", "a b.csv", "a.csv", "b.csv", "link.csv"}), names);
}

TEST_F(CsvMergeFolder, MissingFolderCannotBeRead)
{
    std::vector<std::string> names{"stale"};
    EXPECT_FALSE(CmdCsvMerge::csvFileNamesOf(dir.file("none"), names));
    EXPECT_TRUE(names.empty());
}

TEST_F(CsvMergeFolder, UnreadableFolderLeavesTheTitlesOnly)
{
    CsvMergeReport report;
    std::string err;
    EXPECT_EQ(ZEKCLI_OK, CmdCsvMerge::readFolder(dir.file("none"), report, err));
    EXPECT_EQ("Error opening " + dir.file("none"), err);
    EXPECT_EQ(0u, report.fileCount());
}

TEST_F(CsvMergeFolder, FilesAreTakenFromTheLastNameToTheFirst)
{
    std::string const tail = ",\n\n11/18/2026,08:00:00,1,1,1,1,\n";
    writeFile("a.csv", "LUN,1,0,TA" + tail);
    writeFile("b.csv", "LUN,2,0,TB" + tail);
    writeFile("c.csv", "LUN,3,0,TC" + tail);
    writeFile("d.csv", "not a statistics file\n");
    CsvMergeReport report;
    std::string err;
    ASSERT_EQ(ZEKCLI_OK, CmdCsvMerge::readFolder(dir.path, report, err));
    EXPECT_EQ(3u, report.fileCount());
    report.buildColumns();
    ASSERT_EQ(12u, report.reportColumns().size());
    EXPECT_EQ("TC", report.reportColumns()[0].matchText);
    EXPECT_EQ("TB", report.reportColumns()[4].matchText);
    EXPECT_EQ("TA", report.reportColumns()[8].matchText);
}
