#include "commands/cache/CmdCacheEnableBase.h"

#include <gtest/gtest.h>

#include <string>

#include "commands/cache/CmdCacheEnable.h"
#include "commands/cache/CmdCacheModify.h"

namespace {

TEST(CacheModeWords, AnyUniqueBeginningIsEnough)
{
    CmdCacheEnable command;
    std::string err;
    EXPECT_EQ(command.modeWords.valFromPartialText("read_write_b", err), KLunInfo::CACHE_CONFIG_READ_WRITE_BACK);
    EXPECT_EQ(err, "");
    EXPECT_EQ(command.modeWords.valFromPartialText("write_t", err), KLunInfo::CACHE_CONFIG_WRITE_THROUGH_ONLY);
    EXPECT_EQ(err, "");
}

TEST(CacheModeWords, TheBeginningOfNoneIsNone)
{
    CmdCacheEnable command;
    std::string err;
    EXPECT_EQ(command.modeWords.valFromPartialText("n", err), KLunInfo::CACHE_CONFIG_NONE);
    EXPECT_EQ(err, "");
}

TEST(CacheModeWords, ASharedBeginningIsAmbiguous)
{
    CmdCacheModify command;
    std::string err;
    command.modeWords.valFromPartialText("read", err);
    EXPECT_EQ(err, "Ambiguous selection, please choose \"read_write_through\" \"read_write_back\" or \"read_only\"");
}

TEST(CacheProfileWords, AreNumberedAsTheAdapterTakesThem)
{
    CmdCacheEnable command;
    std::string err;
    EXPECT_EQ(command.profileWords.valFromPartialText("default", err), 1);
    EXPECT_EQ(command.profileWords.valFromPartialText("media", err), 5);
    EXPECT_EQ(command.profileWords.valFromPartialText("vendor", err), 6);
    EXPECT_EQ(err, "");
    command.profileWords.valFromPartialText("e", err);
    EXPECT_EQ(err, "Ambiguous selection, please choose \"erp\" or \"exchange\"");
}

} // namespace
