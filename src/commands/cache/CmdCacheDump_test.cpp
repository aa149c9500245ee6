#include "commands/cache/CmdCacheDump.h"
#include "support/TempDirectory.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <regex>
#include <string>

namespace {

class CacheDumpFiles : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(dir.made()); }
    void write(std::string const& bytes)
    {
        path = dir.file("dump.txt");
        std::ofstream(path, std::ios::binary) << bytes;
    }

    CmdCacheDump command;
    TempDirectory dir{"cachedump"};
    std::string path;
};

TEST_F(CacheDumpFiles, NameHoldsTheAdapterAndTheLocalTime)
{
    std::string const name = command.getCacheInfoFileName("2000001B32A10C00");
    EXPECT_TRUE(std::regex_match(name,
                                 std::regex("CacheInfo-2000001B32A10C00"
                                            "[0-9]{4}-[0-9]{2}-[0-9]{2}_[0-9]{2}-[0-9]{2}-[0-9]{2}\\.txt")))
        << name;
}

TEST_F(CacheDumpFiles, LinesComeBackEachEndedByANewLine)
{
    write("first\nsecond\n");
    EXPECT_EQ(command.displayCacheInfoFile(path), "first\nsecond\n");
}

TEST_F(CacheDumpFiles, ALastLineWithoutItsEndIsKept)
{
    write("first\nlast");
    EXPECT_EQ(command.displayCacheInfoFile(path), "first\nlast\n");
}

TEST_F(CacheDumpFiles, AnEmptyFileShowsNothing)
{
    write("");
    EXPECT_EQ(command.displayCacheInfoFile(path), "");
}

TEST_F(CacheDumpFiles, AFileThatCannotBeOpenedShowsWhy)
{
    path = dir.file("missing.txt");
    EXPECT_EQ(command.displayCacheInfoFile(path), "Unable to open file \"" + path + "\", (No such file or directory)");
}

} // namespace
