// The parts of the adapter commands that need no device: the NVDIMM action
// flags, the elapsed time of the notification watch, and that watch's single
// poll against a stand-in library.
#include <gtest/gtest.h>

#include <string>

#include "api/HbaMgmtLoader.h"
#include "commands/adapter/CmdNotificationShow.h"
#include "commands/adapter/CmdNvdimmExecute.h"
#include "commands/adapter/NvdimmActions.h"
#include "core/TokenRoot.h"
#include "core/ZekcliReturn.h"
#include "support/FailingHbaMgmtApi.h"

namespace {

void give(TokenCmd& cmd, ModifierId::MODIFIER_ID id, std::string const& value = std::string())
{
    std::string err;
    TokenModifierString* const keyword = cmd.findModifier(id, err);
    ASSERT_NE(nullptr, keyword) << err;
    keyword->setValue(value);
}

int commandOf(std::initializer_list<ModifierId::MODIFIER_ID> flags, std::string& err)
{
    CmdNvdimmExecute cmd;
    for (ModifierId::MODIFIER_ID flag : flags)
        give(cmd, flag);
    int command = -1;
    int const rc = nvdimmCommandFromFlags(cmd, command, err);
    return rc == 0 ? command : -rc;
}

// Counts the calls of the notification watch; everything else fails.
class NotificationApi : public fixture::FailingHbaMgmtApi {
public:
    NotificationApi() : FailingHbaMgmtApi(2, 103, 6, 4) {}
    e_MHBA_RETURN registerAenCallback(AenCallback callback) override
    {
        registered = callback;
        return registerCode;
    }
    void unregisterAenCallback(AenCallback callback) override
    {
        if (callback == registered)
            ++unregistrations;
    }
    e_MHBA_RETURN pollAenEvents() override
    {
        ++polls;
        return pollCode;
    }
    AenCallback registered = nullptr;
    e_MHBA_RETURN registerCode = MHBA_S_OK;
    e_MHBA_RETURN pollCode = MHBA_S_OK;
    int polls = 0;
    int unregistrations = 0;
};

class NotificationWatch : public ::testing::Test {
protected:
    void SetUp() override
    {
        previous = g_pHbaMgmtApi;
        g_pHbaMgmtApi = &api;
        command = new CmdNotificationShow;
        root.addChild(command);
    }
    void TearDown() override { g_pHbaMgmtApi = previous; }

    NotificationApi api;
    HbaMgmtApi* previous = nullptr;
    TokenRoot root;
    CmdNotificationShow* command = nullptr;
};

} // namespace

TEST(NvdimmFlags, EachFlagGivesItsCode)
{
    std::string err;
    EXPECT_EQ(0, commandOf({ModifierId::MODIFIER_DISARM}, err));
    EXPECT_EQ(1, commandOf({ModifierId::MODIFIER_ERASE}, err));
    EXPECT_EQ(2, commandOf({ModifierId::MODIFIER_UPDATE}, err));
    EXPECT_EQ(5, commandOf({ModifierId::MODIFIER_UPDATE_ALL}, err));
    EXPECT_EQ(6, commandOf({ModifierId::MODIFIER_SCAP_SELFTEST}, err));
    EXPECT_EQ(7, commandOf({ModifierId::MODIFIER_SCRUB}, err));
}

TEST(NvdimmFlags, TheFirstFlagInDeclarationOrderWins)
{
    std::string err;
    EXPECT_EQ(1, commandOf({ModifierId::MODIFIER_UPDATE, ModifierId::MODIFIER_ERASE}, err));
    EXPECT_EQ(0, commandOf({ModifierId::MODIFIER_SCRUB, ModifierId::MODIFIER_DISARM}, err));
    EXPECT_EQ(5, commandOf({ModifierId::MODIFIER_SCRUB, ModifierId::MODIFIER_UPDATE_ALL}, err));
}

TEST(NvdimmFlags, NoFlagIsAParseFailure)
{
    std::string err;
    EXPECT_EQ(-ZEKCLI_PARSE_FAIL, commandOf({}, err));
    EXPECT_EQ("One of -disarm, -erase, -update, -update_all, -scap_selftest or -scrub is required", err);
}

TEST(NvdimmFlags, OnlyTheUpdateHasItsOwnDoneText)
{
    EXPECT_EQ("NVDIMM update completed.\n", nvdimmDoneText(2));
    for (int command : {0, 1, 5, 6, 7})
        EXPECT_EQ("NVDIMM successfully configured.\n", nvdimmDoneText(command));
}

TEST(NotificationElapsedText, ShowsHoursOnlyOnceThereAreAny)
{
    EXPECT_EQ("00:10", CmdNotificationShow::elapsedText(10));
    EXPECT_EQ("01:05", CmdNotificationShow::elapsedText(65));
    EXPECT_EQ("59:59", CmdNotificationShow::elapsedText(3599));
    EXPECT_EQ("1:00:00", CmdNotificationShow::elapsedText(3600));
    EXPECT_EQ("27:46:40", CmdNotificationShow::elapsedText(100000));
}

TEST_F(NotificationWatch, WithoutIntervalPollsOnceAndUnregisters)
{
    std::string err;
    EXPECT_EQ(0, command->execCommand(err)) << err;
    EXPECT_EQ(&CmdNotificationShow::aenCallback, api.registered);
    EXPECT_EQ(1, api.polls);
    EXPECT_EQ(1, api.unregistrations);
}

TEST_F(NotificationWatch, APollFailureIsReturned)
{
    api.pollCode = MHBA_E_FAILURE;
    std::string err;
    EXPECT_EQ(MHBA_E_FAILURE, command->execCommand(err));
    EXPECT_EQ(1, api.polls);
    EXPECT_EQ(0, api.unregistrations);
}

TEST_F(NotificationWatch, ARefusedRegistrationIsReturnedWithoutPolling)
{
    api.registerCode = MHBA_E_NOT_SUPPORTED;
    std::string err;
    EXPECT_EQ(MHBA_E_NOT_SUPPORTED, command->execCommand(err));
    EXPECT_EQ(0, api.polls);
}

TEST_F(NotificationWatch, AnIntervalOutOfRangeIsAParseFailure)
{
    give(*command, ModifierId::MODIFIER_INTERVAL, "100001");
    std::string err;
    EXPECT_EQ(ZEKCLI_PARSE_FAIL, command->execCommand(err));
    EXPECT_EQ("-interval modifier requires a number in the range 0 to 100000", err);
    EXPECT_EQ(0, api.polls);
}
