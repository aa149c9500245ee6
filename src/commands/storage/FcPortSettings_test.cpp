// The values that "set fc" reads from its keywords: the link rate words,
// the execution throttle, and the three connection keywords of which only
// one may be given.
#include <gtest/gtest.h>

#include "commands/storage/CmdFcBasicSet.h"
#include "commands/storage/FcPortSettings.h"
#include "records/KFcInfo.h"
#include "support/CommandRun.h"

namespace {

int32_t rateOf(std::string const& text, std::string& err)
{
    int32_t rate = -1;
    return linkRateFromText(text, rate, err) ? rate : -1;
}

bool throttleOf(std::string const& text, uint32_t& throttle, std::string& err)
{
    throttle = 7;
    return executionThrottleFromText(text, throttle, err);
}

FcPortSettings current()
{
    KFcInfo port;
    port.programmedLinkRate = PBase::FC_LINK_RATE_8GB;
    port.programmedConnectionOption = KFcInfo::CONNECTION_OPTION_AUTO;
    port.executionThrottle = 64;
    return FcPortSettings::of(port);
}

} // namespace

TEST(FcLinkRate, EveryRateByItsWordInAnyCase)
{
    std::string err;
    EXPECT_EQ(0, rateOf("auto", err));
    EXPECT_EQ(0, rateOf("AUTO", err));
    EXPECT_EQ(1, rateOf("2gb", err));
    EXPECT_EQ(2, rateOf("4GB", err));
    EXPECT_EQ(3, rateOf("8gb", err));
    EXPECT_EQ(4, rateOf("10gb", err));
    EXPECT_EQ(5, rateOf("16Gb", err));
    EXPECT_EQ("", err);
}

TEST(FcLinkRate, AnUnambiguousBeginningIsEnough)
{
    std::string err;
    EXPECT_EQ(0, rateOf("a", err));
    EXPECT_EQ(1, rateOf("2", err));
    EXPECT_EQ(4, rateOf("10", err));
    EXPECT_EQ(5, rateOf("16", err));
}

TEST(FcLinkRate, AnAmbiguousOrUnknownWordIsRefusedWithTheMatchersText)
{
    std::string err;
    EXPECT_EQ(-1, rateOf("1", err));
    EXPECT_EQ("Ambiguous selection, please choose \"10gb\" or \"16gb\"", err);
    EXPECT_EQ(-1, rateOf("32gb", err));
    EXPECT_EQ("\"32gb\" is not recognized\n", err);
    EXPECT_EQ(-1, rateOf("8gbit", err));
    EXPECT_EQ("\"8gbit\" is not recognized\n", err);
}

TEST(FcExecutionThrottle, TheRangeEndsPass)
{
    uint32_t throttle = 0;
    std::string err;
    EXPECT_TRUE(throttleOf("16", throttle, err));
    EXPECT_EQ(16u, throttle);
    EXPECT_TRUE(throttleOf("65535", throttle, err));
    EXPECT_EQ(65535u, throttle);
    EXPECT_TRUE(throttleOf("000256", throttle, err));
    EXPECT_EQ(256u, throttle);
}

TEST(FcExecutionThrottle, AnythingElseGetsTheRangeTextAndKeepsTheValue)
{
    for (char const* bad : {"15", "65536", "", "0", "16abc", "abc", "-16", " 16", "1.5", "0x20", "4294967312",
                            "99999999999999999999999"}) {
        uint32_t throttle = 0;
        std::string err;
        EXPECT_FALSE(throttleOf(bad, throttle, err)) << bad;
        EXPECT_EQ("Execution Throttle must be in range 16 to 65535", err) << bad;
        EXPECT_EQ(7u, throttle) << bad;
    }
}

TEST(FcPortSettingsKeywords, NoKeywordKeepsWhatThePortHas)
{
    CommandRun run(new CmdFcBasicSet);
    FcPortSettings settings = current();
    std::string err;
    ASSERT_TRUE(readFcPortSettings(*run.cmd, settings, err)) << err;
    EXPECT_EQ(PBase::FC_LINK_RATE_8GB, settings.linkRate);
    EXPECT_EQ(KFcInfo::CONNECTION_OPTION_AUTO, settings.connectionOption);
    EXPECT_EQ(64u, settings.executionThrottle);
}

TEST(FcPortSettingsKeywords, EachKeywordChangesItsOwnSetting)
{
    struct Case {
        ModifierId::MODIFIER_ID keyword;
        char const* value;
        int32_t rate;
        int32_t option;
        uint32_t throttle;
    } const cases[] = {
        {ModifierId::MODIFIER_FC_LINK_RATE, "4gb", PBase::FC_LINK_RATE_4GB, KFcInfo::CONNECTION_OPTION_AUTO, 64},
        {ModifierId::MODIFIER_EXEC_THROTTLE, "512", PBase::FC_LINK_RATE_8GB, KFcInfo::CONNECTION_OPTION_AUTO, 512},
        {ModifierId::MODIFIER_LOOP_ONLY, "", PBase::FC_LINK_RATE_8GB, KFcInfo::CONNECTION_OPTION_LOOP_ONLY, 64},
        {ModifierId::MODIFIER_P2P_ONLY, "", PBase::FC_LINK_RATE_8GB, KFcInfo::CONNECTION_OPTION_POINT_TO_POINT_ONLY,
         64},
        {ModifierId::MODIFIER_AUTO, "", PBase::FC_LINK_RATE_8GB, KFcInfo::CONNECTION_OPTION_AUTO, 64},
    };
    for (Case const& c : cases) {
        CommandRun run(new CmdFcBasicSet);
        run.give(c.keyword, c.value);
        FcPortSettings settings = current();
        settings.connectionOption =
            c.keyword == ModifierId::MODIFIER_AUTO ? KFcInfo::CONNECTION_OPTION_LOOP_ONLY : settings.connectionOption;
        std::string err;
        ASSERT_TRUE(readFcPortSettings(*run.cmd, settings, err)) << err;
        EXPECT_EQ(c.rate, settings.linkRate) << c.value;
        EXPECT_EQ(c.option, settings.connectionOption) << c.value;
        EXPECT_EQ(c.throttle, settings.executionThrottle) << c.value;
    }
}

TEST(FcPortSettingsKeywords, TwoConnectionKeywordsAreRefusedWithoutWords)
{
    ModifierId::MODIFIER_ID const trio[] = {ModifierId::MODIFIER_LOOP_ONLY, ModifierId::MODIFIER_P2P_ONLY,
                                            ModifierId::MODIFIER_AUTO};
    for (size_t skipped = 0; skipped < 4; ++skipped) {
        CommandRun run(new CmdFcBasicSet);
        for (size_t i = 0; i < 3; ++i)
            if (i != skipped)
                run.give(trio[i]);
        FcPortSettings settings = current();
        std::string err;
        EXPECT_FALSE(readFcPortSettings(*run.cmd, settings, err)) << skipped;
        EXPECT_EQ("", err);
        EXPECT_EQ(KFcInfo::CONNECTION_OPTION_AUTO, settings.connectionOption);
    }
}

TEST(FcPortSettingsKeywords, ARefusedValueStopsBeforeTheConnectionKeywords)
{
    CommandRun run(new CmdFcBasicSet);
    run.give(ModifierId::MODIFIER_EXEC_THROTTLE, "15");
    run.give(ModifierId::MODIFIER_AUTO);
    run.give(ModifierId::MODIFIER_LOOP_ONLY);
    FcPortSettings settings = current();
    std::string err;
    EXPECT_FALSE(readFcPortSettings(*run.cmd, settings, err));
    EXPECT_EQ("Execution Throttle must be in range 16 to 65535", err);

    CommandRun rate(new CmdFcBasicSet);
    rate.give(ModifierId::MODIFIER_FC_LINK_RATE, "1");
    rate.give(ModifierId::MODIFIER_EXEC_THROTTLE, "15");
    EXPECT_FALSE(readFcPortSettings(*rate.cmd, settings, err));
    EXPECT_EQ("Ambiguous selection, please choose \"10gb\" or \"16gb\"", err);
}
