#include "records/KLibraryVersionInfo.h"

#include <gtest/gtest.h>

namespace {

TEST(KLibraryVersionInfo, FourNumbersJoinedByDots)
{
    KLibraryVersionInfo info;
    EXPECT_EQ("0.0.0.0", info.displayText());
    info.versionMajor = 2;
    info.versionMinor = 103;
    info.versionPatch = 6;
    info.versionBuild = 4294967295u;
    EXPECT_EQ("2.103.6.4294967295", info.displayText());
    KLibraryVersionInfo copy;
    copy = info;
    EXPECT_EQ("2.103.6.4294967295", copy.displayText());
    EXPECT_EQ(20u, copy.getSerialOffset());
}

} // namespace
