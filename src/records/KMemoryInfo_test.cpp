#include "records/KMemoryInfo.h"

#include <gtest/gtest.h>

TEST(KMemoryInfo, ShowsFreeThenTotalForEachPool)
{
    KMemoryInfo memory;
    memory.physicalTotal = 1024;
    memory.physicalFree = 512;
    memory.bufferPoolTotal = 200;
    memory.bufferPoolFree = 150;
    memory.processBlocksTotal = 64;
    memory.processBlocksFree = 60;
    memory.requestBlocksTotal = 4096;
    memory.requestBlocksFree = 4000;
    memory.eventBlocksTotal = 32;
    memory.eventBlocksFree = 31;
    memory.controlBlocksTotal = 16;
    memory.controlBlocksFree = -1;
    EXPECT_EQ(memory.displayText(),
              "    Physical (free/total)        = 512 / 1024"
              "\n    Buffer pool (free/total)     = 150 / 200"
              "\n    Process Blocks (free/total)  = 60 / 64"
              "\n    Request Blocks (free/total)  = 4000 / 4096"
              "\n    Event Blocks (free/total)    = 31 / 32"
              "\n    Control Blocks (free/total)  = -1 / 16"
              "\n\n");
}

TEST(KMemoryInfo, BlankAndCopy)
{
    KMemoryInfo memory;
    EXPECT_EQ(memory.displayText().substr(0, 40), "    Physical (free/total)        = 0 / 0");
    memory.eventBlocksFree = 5;
    memory.controlBlocksFree = 6;
    KMemoryInfo copy;
    copy = memory;
    EXPECT_EQ(copy.eventBlocksFree, 5);
    EXPECT_EQ(copy.controlBlocksFree, 6);
    EXPECT_EQ(copy.getSerialSize(), 72u - 20u);
}
