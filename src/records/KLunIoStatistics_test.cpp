#include "records/KLunIoStatistics.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace {

KLunIoStatistics someIo()
{
    KLunIoStatistics io;
    io.ui64ReadCount = 10;
    io.ui64WriteCount = 20;
    io.ui64ReadBlocks = 2048;
    io.ui64WriteBlocks = 4;
    io.cacheStatistics.bValid = true;
    io.cacheStatistics.ui64TotalRead = 99;
    return io;
}

} // namespace

TEST(KLunIoStatistics, TextShowsCountsAndBlocksAsSizes)
{
    EXPECT_EQ(someIo().displayText(),
              "        I/O Count Read/Write:       [ 10\t/ 20 ]\n"
              "        Read/Write I/O:             [ 1MB\t/ 2KB ]\n");
}

TEST(KLunIoStatistics, SubtractLeavesTheCacheCountersAlone)
{
    KLunIoStatistics now = someIo();
    KLunIoStatistics before;
    before.ui64ReadCount = 4;
    before.ui64WriteCount = 21;
    before.ui64ReadBlocks = 48;
    before.ui64WriteBlocks = 1;
    before.cacheStatistics.ui64TotalRead = 90;
    now.subtract(before);
    EXPECT_EQ(now.ui64ReadCount, 6u);
    EXPECT_EQ(now.ui64WriteCount, ~0ULL);
    EXPECT_EQ(now.ui64ReadBlocks, 2000u);
    EXPECT_EQ(now.ui64WriteBlocks, 3u);
    EXPECT_EQ(now.cacheStatistics.ui64TotalRead, 99u);
}

TEST(KLunIoStatistics, SavedImageRoundTrip)
{
    KLunIoStatistics io = someIo();
    FILE* f = tmpfile();
    ASSERT_NE(f, nullptr);
    std::string err;
    ASSERT_TRUE(io.serialize(true, f, err));
    EXPECT_EQ(ftell(f), 32 + 68);
    rewind(f);
    KLunIoStatistics back;
    ASSERT_TRUE(back.serialize(false, f, err));
    EXPECT_EQ(back.displayText(), io.displayText());
    EXPECT_TRUE(back.cacheStatistics.bValid);
    EXPECT_EQ(back.cacheStatistics.ui64TotalRead, 99u);
    fclose(f);
}

TEST(KLunIoStatistics, CopyAndInit)
{
    KLunIoStatistics copy;
    copy = someIo();
    EXPECT_EQ(copy.ui64WriteBlocks, 4u);
    EXPECT_EQ(copy.cacheStatistics.ui64TotalRead, 99u);
    copy.init();
    EXPECT_EQ(copy.ui64ReadCount, 0u);
    EXPECT_FALSE(copy.cacheStatistics.bValid);
}
