#include "core/FileByName.h"

#include "support/TempDirectory.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class FileByNameTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(scratch.made()); }

    std::string fifo(std::string const& name)
    {
        std::string const path = scratch.file(name);
        EXPECT_EQ(mkfifo(path.c_str(), 0600), 0);
        return path;
    }

    TempDirectory scratch;
    std::string reason;
};

TEST_F(FileByNameTest, AMissingFileIsMadeForWritingAndNotForReading)
{
    std::string const path = scratch.file("new.txt");
    EXPECT_EQ(openFileByName(path, "r", reason), nullptr);
    EXPECT_EQ(reason, "No such file or directory");
    FILE* file = openFileByName(path, "a", reason);
    ASSERT_NE(file, nullptr);
    std::fputs("x", file);
    std::fclose(file);
    file = openFileByName(path, "rb", reason);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(std::fgetc(file), 'x');
    std::fclose(file);
}

TEST_F(FileByNameTest, AFifoIsNeverReadAndWrittenOnlyWhenSomebodyReadsIt)
{
    std::string const path = fifo("pipe");
    EXPECT_EQ(openFileByName(path, "r", reason), nullptr);
    EXPECT_EQ(reason, "Not a regular file");
    EXPECT_EQ(openFileByName(path, "w", reason), nullptr);
    EXPECT_EQ(reason, "No process reads the pipe");
    EXPECT_EQ(openFileByName(path, "a+", reason), nullptr);
    EXPECT_EQ(reason, "Not a regular file");

    int const reader = ::open(path.c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    FILE* file = openFileByName(path, "a", reason);
    ASSERT_NE(file, nullptr);
    std::fputs("through", file);
    std::fclose(file);
    char got[16] = {};
    EXPECT_EQ(::read(reader, got, sizeof got), 7);
    EXPECT_STREQ(got, "through");
    ::close(reader);
}

TEST_F(FileByNameTest, DevicesAreSinksButNeverSources)
{
    FILE* file = openFileByName("/dev/null", "w", reason);
    ASSERT_NE(file, nullptr);
    std::fclose(file);
    EXPECT_EQ(openFileByName("/dev/zero", "rb", reason), nullptr);
    EXPECT_EQ(reason, "Not a regular file");
}

TEST_F(FileByNameTest, ADirectoryIsRefusedEitherWay)
{
    EXPECT_EQ(openFileByName(scratch.path, "r", reason), nullptr);
    EXPECT_EQ(reason, "Is a directory");
    EXPECT_EQ(openFileByName(scratch.path, "w", reason), nullptr);
    EXPECT_EQ(reason, "Is a directory");
}

TEST_F(FileByNameTest, ASymlinkIsFollowedAndStaysALink)
{
    std::string const target = scratch.file("target.txt");
    std::string const link = scratch.file("link.txt");
    ASSERT_EQ(::symlink(target.c_str(), link.c_str()), 0);
    FILE* file = openFileByName(link, "w", reason);
    ASSERT_NE(file, nullptr);
    std::fputs("via link", file);
    std::fclose(file);
    struct stat status {};
    ASSERT_EQ(::lstat(link.c_str(), &status), 0);
    EXPECT_TRUE(S_ISLNK(status.st_mode));
    EXPECT_EQ(::stat(target.c_str(), &status), 0);
    EXPECT_EQ(status.st_size, 8);
}

} // namespace
