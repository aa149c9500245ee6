#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

#include "scripting/CsvOutputFile.h"
#include "support/TempDirectory.h"

namespace {

std::string contents(std::string const& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

} // namespace

TEST(CsvOutputFile, PiecesLandInOrderAndAnOldFileIsReplaced)
{
    TempDirectory dir;
    ASSERT_TRUE(dir.made());
    std::ofstream(dir.file("out.csv")) << "old and longer text\n";
    CsvOutputFile out;
    std::string err;
    ASSERT_TRUE(out.open(dir.file("out.csv"), err)) << err;
    std::string const big(3 * CsvOutputFile::kBufferSize, 'x');
    EXPECT_TRUE(out.write("a,", err));
    EXPECT_TRUE(out.write(big, err));
    EXPECT_TRUE(out.write("\n", err));
    EXPECT_TRUE(out.close(err));
    EXPECT_EQ("a," + big + "\n", contents(dir.file("out.csv")));
    EXPECT_FALSE(out.isOpen());
    EXPECT_TRUE(out.close(err)) << "closing twice is harmless";
}

TEST(CsvOutputFile, OpenFailureSaysWhy)
{
    TempDirectory dir;
    ASSERT_TRUE(dir.made());
    CsvOutputFile out;
    std::string err;
    EXPECT_FALSE(out.open(dir.file("none/out.csv"), err));
    EXPECT_EQ("Unable to open file \"" + dir.file("none/out.csv") + "\", (No such file or directory)", err);
    EXPECT_FALSE(out.write("x", err));
}

TEST(CsvOutputFile, FullDiskIsReportedAtTheWriteOrAtTheClose)
{
    CsvOutputFile out;
    std::string err;
    ASSERT_TRUE(out.open("/dev/full", err)) << err;
    EXPECT_TRUE(out.write("small", err)) << "still in the buffer";
    EXPECT_FALSE(out.close(err));
    EXPECT_EQ("Unable to write file \"/dev/full\", (No space left on device)", err);
    ASSERT_TRUE(out.open("/dev/full", err));
    EXPECT_FALSE(out.write(std::string(2 * CsvOutputFile::kBufferSize, 'x'), err));
    EXPECT_EQ("Unable to write file \"/dev/full\", (No space left on device)", err);
}
