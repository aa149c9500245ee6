#include "records/KClusterInfo.h"

#include <gtest/gtest.h>

namespace {

TEST(KClusterInfo, NoPrimary)
{
    KClusterInfo info;
    info.secondaryAdapterId = 5;
    EXPECT_EQ("*** Cluster has no primary adapter ***\n", info.displayText());
}

TEST(KClusterInfo, PrimaryWithoutSecondaryInDecimal)
{
    KClusterInfo info;
    info.primaryAdapterId = 0x2000;
    EXPECT_EQ("    -primary=8192\n*** Cluster has no secondary adapter ***\n", info.displayText());
}

TEST(KClusterInfo, BothInDecimal)
{
    KClusterInfo info;
    info.primaryAdapterId = 18446744073709551615ULL;
    info.secondaryAdapterId = 10;
    EXPECT_EQ("    -primary=18446744073709551615\n    -secondary=10\n", info.displayText());
}

TEST(KClusterInfo, ImageAndCopy)
{
    KClusterInfo info;
    EXPECT_EQ(24u, info.getSerialOffset());
    EXPECT_EQ(16u, info.getSerialSize());
    info.primaryAdapterId = 1;
    info.secondaryAdapterId = 2;
    KClusterInfo copy(info);
    EXPECT_EQ(info.displayText(), copy.displayText());
}

} // namespace
