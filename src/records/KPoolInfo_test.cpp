#include "records/KPoolInfo.h"

#include <gtest/gtest.h>

TEST(KPoolInfo, EmptyPoolShowsZeroOnEveryLine)
{
    KPoolInfo pool;
    EXPECT_EQ(pool.displayText(),
              "    Total SSD Storage                     = 0"
              "\n    Free SSD Storage                      = 0"
              "\n    SSD Storage Configured for Cache Pool = 0"
              "\n    SSD Storage Used for Cache Pool       = 0"
              "\n");
    EXPECT_EQ(pool.displayText(true),
              "    Total SSD Storage                     = 0"
              "\n    Free SSD Storage                      = 0"
              "\n    SSD Storage Configured for Cache Pool = 0"
              "\n    SSD Storage Used for Cache Pool       = 0"
              "\n    SSD Storage Used for Data LUNs        = 0"
              "\n");
}

TEST(KPoolInfo, FiguresInTheirLines)
{
    KPoolInfo pool;
    pool.totalSsdStorage = 800ULL << 30;
    pool.freeSsdStorage = 100ULL << 30;
    pool.configuredForCachePool = 600ULL << 30;
    pool.usedForCachePool = 1536ULL << 20;
    pool.usedForDataLuns = 100ULL << 30;
    EXPECT_EQ(pool.displayText(true),
              "    Total SSD Storage                     = 800GB"
              "\n    Free SSD Storage                      = 100GB"
              "\n    SSD Storage Configured for Cache Pool = 600GB"
              "\n    SSD Storage Used for Cache Pool       = 1.50GB"
              "\n    SSD Storage Used for Data LUNs        = 100GB"
              "\n");
    EXPECT_EQ(pool.displayText(), pool.displayText(false));
    EXPECT_EQ(pool.displayText().find("Data LUNs"), std::string::npos);
}

TEST(KPoolInfo, CopyAndInit)
{
    KPoolInfo pool;
    pool.totalSsdStorage = 7;
    pool.usedForDataLuns = 9;
    KPoolInfo copy(pool);
    EXPECT_EQ(copy.totalSsdStorage, 7u);
    EXPECT_EQ(copy.usedForDataLuns, 9u);
    copy.init();
    EXPECT_EQ(copy.totalSsdStorage, 0u);
    EXPECT_EQ(copy.usedForDataLuns, 0u);
    EXPECT_EQ(copy.getSerialOffset(), 24u);
    EXPECT_EQ(copy.getSerialSize(), 40u);
}
