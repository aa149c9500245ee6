#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "core/ZekcliReturn.h"
#include "scripting/CmdCsvMerge.h"
#include "scripting/CsvMergeReport.h"
#include "support/TempDirectory.h"

namespace {

void touch(std::string const& path, std::string const& bytes = "")
{
    std::ofstream(path, std::ios::binary) << bytes;
}

} // namespace

TEST(CsvMergeFolder, RegularCsvFilesInByteOrder)
{
    TempDirectory dir;
    ASSERT_TRUE(dir.made());
    for (char const* name : {"b.csv", "B.csv", "a.csv", "a.CSV", "notes.txt", "x.csv.bak", ".csv", "a b.csv"})
        touch(dir.file(name));
    ASSERT_EQ(0, mkdir(dir.file("folder.csv").c_str(), 0755));
    ASSERT_EQ(0, mkfifo(dir.file("pipe.csv").c_str(), 0644));
    ASSERT_EQ(0, symlink(dir.file("a.csv").c_str(), dir.file("link.csv").c_str()));
    ASSERT_EQ(0, symlink(dir.file("gone").c_str(), dir.file("dangling.csv").c_str()));
    std::vector<std::string> names;
    ASSERT_TRUE(CmdCsvMerge::csvFileNamesOf(dir.path, names));
    EXPECT_EQ((std::vector<std::string>{".csv", "B.csv", "a b.csv", "a.csv", "b.csv", "link.csv"}), names);
}

TEST(CsvMergeFolder, MissingFolderCannotBeRead)
{
    TempDirectory dir;
    ASSERT_TRUE(dir.made());
    std::vector<std::string> names{"stale"};
    EXPECT_FALSE(CmdCsvMerge::csvFileNamesOf(dir.file("none"), names));
    EXPECT_TRUE(names.empty());
}

TEST(CsvMergeFolder, UnreadableFolderLeavesTheTitlesOnly)
{
    TempDirectory dir;
    ASSERT_TRUE(dir.made());
    CsvMergeReport report;
    std::string err;
    EXPECT_EQ(ZEKCLI_OK, CmdCsvMerge::readFolder(dir.file("none"), report, err));
    EXPECT_EQ("Error opening " + dir.file("none"), err);
    EXPECT_EQ(0u, report.fileCount());
}

TEST(CsvMergeFolder, FilesAreTakenFromTheLastNameToTheFirst)
{
    TempDirectory dir;
    ASSERT_TRUE(dir.made());
    std::string const tail = ",\n\n11/18/2026,08:00:00,1,1,1,1,\n";
    touch(dir.file("a.csv"), "LUN,1,0,TA" + tail);
    touch(dir.file("b.csv"), "LUN,2,0,TB" + tail);
    touch(dir.file("c.csv"), "LUN,3,0,TC" + tail);
    touch(dir.file("d.csv"), "not a statistics file\n");
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
