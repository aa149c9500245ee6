#include "commands/adapter/FileCommand.h"

#include <gtest/gtest.h>

TEST(ArchiveEnding, KeepsANameThatEndsInTarGz)
{
    EXPECT_EQ("a.tar.gz", withArchiveEnding("a.tar.gz"));
    EXPECT_EQ("dir.v2/support.tar.gz", withArchiveEnding("dir.v2/support.tar.gz"));
    EXPECT_EQ(".tar.gz", withArchiveEnding(".tar.gz"));
}

TEST(ArchiveEnding, AppendsToOtherEndings)
{
    EXPECT_EQ("a.gz.tar.gz", withArchiveEnding("a.gz"));
    EXPECT_EQ("a.tar.tar.gz", withArchiveEnding("a.tar"));
    EXPECT_EQ("a.zip.gz.tar.gz", withArchiveEnding("a.zip.gz"));
}

TEST(ArchiveEnding, AppendsToANameWithFewerThanTwoDots)
{
    EXPECT_EQ("tar.gz.tar.gz", withArchiveEnding("tar.gz"));
    EXPECT_EQ("a.tar.gz", withArchiveEnding("a"));
    EXPECT_EQ(".tar.gz", withArchiveEnding(""));
    EXPECT_EQ("x.tgz.tar.gz", withArchiveEnding("x.tgz"));
}

TEST(ArchiveEnding, ComparesTheWholeTail)
{
    EXPECT_EQ("a.tar.gzip.tar.gz", withArchiveEnding("a.tar.gzip"));
    EXPECT_EQ("a.TAR.GZ.tar.gz", withArchiveEnding("a.TAR.GZ"));
}
