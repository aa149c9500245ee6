// list, show and set of targets, and list and show of initiators and
// devices, against a simulated adapter: texts, result payloads with their
// images, partial gathering, the refusals, and what the adapter sees after
// a port goes down.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "commands/storage/CmdDeviceList.h"
#include "commands/storage/CmdDeviceShow.h"
#include "commands/storage/CmdFcBasicSet.h"
#include "commands/storage/CmdFcBasicShow.h"
#include "commands/storage/CmdFcDisable.h"
#include "commands/storage/CmdFcEnable.h"
#include "commands/storage/CmdInitiatorList.h"
#include "commands/storage/CmdInitiatorShow.h"
#include "commands/storage/CmdTargetList.h"
#include "commands/storage/CmdTargetSet.h"
#include "commands/storage/CmdTargetShow.h"
#include "commands/storage/FabricFamilies.h"
#include "core/ZekcliReturn.h"
#include "support/AddressingFixture.h"
#include "support/CommandRun.h"

namespace {

char const kFabric[] = "src/commands/storage/testdata/fabric.json";
std::string const kBanner = "[ Device 0 on local host ]\n\n";

std::string partialFault(int firstError)
{
    return R"([{"adapter": "A0", "operation": "getTargetsAndInitiators", "code": 2, "firstError": )" +
        std::to_string(firstError) + "}]";
}

std::string const kGatheringFails = R"([{"adapter": "A0", "operation": "getTargetsAndInitiators", "code": 1006}])";

PTargetID fcTarget(std::string const& text)
{
    PTargetID id;
    id.initFcTargetIDFromString(text);
    return id;
}

class FabricSan : public CommandsOnSimulatedSan {
protected:
    FabricSan() : CommandsOnSimulatedSan(kFabric, "0") {}
};

std::string const kTargetP1 = "-fc_target=5000-0000-0000-0001\n"
                              "FC Target \n"
                              "    WWNN:    5000-0000-0000-0F01\n"
                              "    WWPN:    5000-0000-0000-0001\n"
                              "    Port ID: 01-02-00\n"
                              "    Target State = online, mapped, FC1\n"
                              "    Target Portal Mode = FCP\n";

} // namespace

TEST(FabricAndPortCommands, AnAdapterTheLibraryDoesNotHoldIsNotFound)
{
    expectAdapterNotFoundByEach({new CmdFcBasicShow, new CmdFcBasicSet, new CmdFcEnable, new CmdFcDisable,
                                 new CmdTargetList, new CmdTargetShow, new CmdTargetSet, new CmdInitiatorList,
                                 new CmdInitiatorShow, new CmdDeviceList, new CmdDeviceShow});
}

TEST_F(FabricSan, ListTargetShowsTheTargetsButNotTheAdaptersOwnAndGivesAllInTheResult)
{
    auto run = ran<CmdTargetList>({});
    EXPECT_EQ(kBanner +
                  "Target count = 5\n"
                  "-fc_target=5000-0000-0000-0001\n"
                  "-fc_target=5000-0000-0000-0002\n"
                  "-fc_target=5000-0000-0000-0003\n"
                  "-is_target=iqn.2020-01.com.sim:vault\n"
                  "-fc_target=2100-0000-0000-00B0\n"
                  "\n\n\n",
              run->text);
    EXPECT_EQ(0u, run->resultStatus());
    CountedPayload const payload = counted(*run, 6, 292);
    ASSERT_EQ(6u, payload.images.size());
    EXPECT_TRUE(recordOfImage<PTargetID>(payload.images[0]) == fcTarget("5000-0000-0000-0001"));
    EXPECT_TRUE(recordOfImage<PTargetID>(payload.images[4]) == fcTarget("2100-0000-0000-00A0"));
}

TEST_F(FabricSan, ListTargetAfterAPartialGatheringShowsOnlyItsNoticeAndGivesEveryTarget)
{
    load(partialFault(1006));
    auto run = ran<CmdTargetList>({});
    EXPECT_EQ(kBanner +
                  "getTargetsAndInitiators() returned partial success.  At least one attempt to get info returned " +
                  g_pHbaMgmtApi->returnCodeToText(1006) + "\n\n\n\n",
              run->text);
    EXPECT_EQ(2u, run->resultStatus());
    counted(*run, 6, 292);
}

TEST_F(FabricSan, ListTargetReturnsAFailedGatheringWithNothingShown)
{
    load(kGatheringFails);
    auto run = ran<CmdTargetList>({}, 1006);
    EXPECT_EQ("", run->text);
    EXPECT_FALSE(run->wroteResult());
}

TEST_F(FabricSan, ListTargetOfAnAdapterWithOneOwnTargetCountsTheOthers)
{
    auto run = std::make_unique<CommandRun>(new CmdTargetList);
    run->giveAdapter("1"); // B0 has one port and sees p1, both, vault and peer there
    ASSERT_EQ(0, run->run());
    EXPECT_NE(std::string::npos, run->text.find("Target count = 4\n"));
}

TEST_F(FabricSan, ShowTargetByNameGivesItsRecordInTheResult)
{
    auto run = ran<CmdTargetShow>({{ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001"}});
    EXPECT_EQ(kBanner + kTargetP1 + "\n", run->text);
    CountedPayload const payload = counted(*run, 1, 292);
    ASSERT_EQ(1u, payload.images.size());
    KTargetInfo const info = recordOfImage<KTargetInfo>(payload.images[0]);
    EXPECT_TRUE(info.isFcTarget());
    EXPECT_TRUE(info.isDiscoveredOnPort_1());
    EXPECT_FALSE(info.isDiscoveredOnPort_2());
}

TEST_F(FabricSan, ShowTargetOfATargetTheAdapterDoesNotSeeIsNotFound)
{
    auto run = ran<CmdTargetShow>({{ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-00FF"}}, 1206);
    EXPECT_EQ("Target \"5000-0000-0000-00FF\" not found", run->err);
    EXPECT_EQ("", run->text);
    EXPECT_FALSE(run->wroteResult());
}

TEST_F(FabricSan, ShowTargetRefusesBadNames)
{
    auto text = ran<CmdTargetShow>({{ModifierId::MODIFIER_FC_TARGET, "xyz"}}, ZEKCLI_PARSE_FAIL);
    EXPECT_EQ("xyz\" is not valid text for an FC target", text->err);
    auto both = ran<CmdTargetShow>({{ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001"},
                                    {ModifierId::MODIFIER_IS_TARGET, "iqn.2020-01.com.sim:vault"}},
                                   ZEKCLI_PARSE_FAIL);
    EXPECT_EQ("Only one of -is_target or -fc_target can be used", both->err);
}

TEST_F(FabricSan, ShowTargetOfAllShowsThemButTheResultCountsNone)
{
    auto run = ran<CmdTargetShow>({});
    std::string const head = kBanner + kTargetP1 + "\n\n-fc_target=5000-0000-0000-0002\n";
    EXPECT_EQ(head, run->text.substr(0, head.size()));
    EXPECT_NE(std::string::npos,
              run->text.find("    Target State = online, mapped, FC1/FC2\n"
                             "    Target Portal Mode = FCP\n"
                             "    Max Outstanding IO = 256\n\n\n"));
    EXPECT_EQ(std::string::npos, run->text.find("2100-0000-0000-00A0"));
    EXPECT_EQ(0u, run->resultStatus());
    counted(*run, 0, 0);
}

TEST_F(FabricSan, ShowTargetTellsOfAPartialGatheringAheadOfTheTargets)
{
    load(partialFault(1206));
    auto run = ran<CmdTargetShow>({});
    std::string const head = kBanner +
        "getTargetsAndInitiators() returned partial success.  At least one attempt to get info returned " +
        g_pHbaMgmtApi->returnCodeToText(1206) + "\n" + kTargetP1;
    EXPECT_EQ(head, run->text.substr(0, head.size()));
    EXPECT_EQ(2u, run->resultStatus());
}

TEST_F(FabricSan, SetTargetSetsTheLimitThatShowTargetThenShows)
{
    for (char const* count : {"32", "2048"}) {
        auto run = ran<CmdTargetSet>({{ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001"},
                                      {ModifierId::MODIFIER_MAX_OUTSTANDING_IO, count}});
        EXPECT_EQ(kBanner + "\n\t-max_outstanding_io=" + count +
                      " for -fc_target=5000-0000-0000-0001 set successfully.\n",
                  run->text);
        EXPECT_TRUE(run->wroteResult());
        EXPECT_EQ("", run->payload());
    }
    auto show = ran<CmdTargetShow>({{ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001"}});
    EXPECT_NE(std::string::npos, show->text.find("    Max Outstanding IO = 2048\n"));
}

TEST_F(FabricSan, SetTargetNamesAnIscsiTargetAfterTheFcKeywordInTheText)
{
    auto run = ran<CmdTargetSet>({{ModifierId::MODIFIER_IS_TARGET, "iqn.2020-01.com.sim:vault"},
                                  {ModifierId::MODIFIER_MAX_OUTSTANDING_IO, "64"}});
    EXPECT_EQ(kBanner + "\n\t-max_outstanding_io=64 for -fc_target=iqn.2020-01.com.sim:vault set successfully.\n",
              run->text);
}

TEST_F(FabricSan, SetTargetReportsATargetTheAdapterDoesNotSeeButSendsItNothing)
{
    load(R"([{"adapter": "A0", "operation": "setTargetMaxOutstandingIo", "code": 1000}])");
    auto run = ran<CmdTargetSet>(
        {{ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-00FF"}, {ModifierId::MODIFIER_MAX_OUTSTANDING_IO, "64"}});
    EXPECT_EQ(kBanner + "\n\t-max_outstanding_io=64 for -fc_target=5000-0000-0000-00FF set successfully.\n", run->text);
    // The library was never asked: the fault waits for the first call.
    ran<CmdTargetSet>(
        {{ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001"}, {ModifierId::MODIFIER_MAX_OUTSTANDING_IO, "64"}});
    auto show = ran<CmdTargetShow>({{ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001"}});
    EXPECT_EQ(std::string::npos, show->text.find("Max Outstanding IO"));
}

TEST_F(FabricSan, SetTargetRefusesAMissingTargetAndACountOutOfRange)
{
    auto noTarget = ran<CmdTargetSet>({{ModifierId::MODIFIER_MAX_OUTSTANDING_IO, "64"}}, ZEKCLI_PARSE_FAIL);
    EXPECT_EQ("This command requires a target - please use -fc_target=..", noTarget->err);
    for (char const* count : {"31", "2049"}) {
        auto run = ran<CmdTargetSet>(
            {{ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001"}, {ModifierId::MODIFIER_MAX_OUTSTANDING_IO, count}},
            ZEKCLI_PARSE_FAIL);
        EXPECT_EQ("-max_outstanding_io modifier requires a number in the range 32 to 2048", run->err);
        EXPECT_EQ("", run->text);
    }
    auto noCount = ran<CmdTargetSet>({{ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001"}}, ZEKCLI_PARSE_FAIL);
    EXPECT_EQ("", noCount->text);
}

TEST_F(FabricSan, ListInitiatorNamesEachInitiatorByItsProtocol)
{
    auto run = ran<CmdInitiatorList>({});
    EXPECT_EQ(kBanner +
                  "Initiator count = 3\n"
                  "-fc_initiator=1000-0000-0000-0001\n"
                  "-fc_initiator=2100-0000-0000-00B0\n"
                  "-is_initiator=iqn.1994-05.com.sim:host\n"
                  "\n\n\n",
              run->text);
    CountedPayload const payload = counted(*run, 3, 292);
    ASSERT_EQ(3u, payload.images.size());
    PInitiatorID expected;
    expected.initIscsiInitiatorID(reinterpret_cast<unsigned char const*>("iqn.1994-05.com.sim:host"));
    EXPECT_TRUE(recordOfImage<PInitiatorID>(payload.images[2]) == expected);
}

TEST_F(FabricSan, ShowInitiatorStartsTheHeadingOnALineOfItsOwn)
{
    auto run = ran<CmdInitiatorShow>({{ModifierId::MODIFIER_FC_INITIATOR, "2100-0000-0000-00B0"}});
    EXPECT_EQ(kBanner +
                  "\n-fc_initiator=2100-0000-0000-00B0\n"
                  "    -wwpn=2100-0000-0000-00B0 -wwnn=2000-0000-0000-00B0\n"
                  "FC Initiator\n"
                  "    (FCP) Fibre Channel Initiator 2000-0000-0000-00B0, 2100-0000-0000-00B0\n"
                  "    Port ID = 00-00-00\n"
                  "    Operational State = Logged In, Target, DM\n"
                  "\n",
              run->text);
    CountedPayload const payload = counted(*run, 1, 468);
    ASSERT_EQ(1u, payload.images.size());
    EXPECT_TRUE(recordOfImage<KInitiatorInfo>(payload.images[0]).isDmInitiator());
}

TEST_F(FabricSan, ShowInitiatorOfAllGivesAllInTheResult)
{
    auto run = ran<CmdInitiatorShow>({});
    EXPECT_NE(std::string::npos, run->text.find("    Operational State = Logged Out\n\n\n"));
    counted(*run, 3, 468);
}

TEST_F(FabricSan, ShowInitiatorRefusesAnUnknownOrDoublyNamedInitiator)
{
    auto unknown = ran<CmdInitiatorShow>({{ModifierId::MODIFIER_IS_INITIATOR, "iqn.nobody"}}, 1206);
    EXPECT_EQ("Initiator \"iqn.nobody\" not found", unknown->err);
    auto both = ran<CmdInitiatorShow>(
        {{ModifierId::MODIFIER_IS_INITIATOR, "iqn.nobody"}, {ModifierId::MODIFIER_FC_INITIATOR, "1000-0000-0000-0001"}},
        ZEKCLI_PARSE_FAIL);
    EXPECT_EQ("Only one of -is_initiator or -fc_initiator can be used", both->err);
}

TEST_F(FabricSan, ListDeviceSkipsTheAdaptersOwnDeviceButGivesItInTheResult)
{
    auto run = ran<CmdDeviceList>({});
    EXPECT_EQ(kBanner +
                  "Device count = 7\n"
                  "-fc_device=5000-0000-0000-0001\n"
                  "-fc_device=5000-0000-0000-0002\n"
                  "-fc_device=5000-0000-0000-0003\n"
                  "-is_device=iqn.2020-01.com.sim:vault\n"
                  "-fc_device=2100-0000-0000-00B0\n"
                  "-fc_device=1000-0000-0000-0001\n"
                  "-is_device=iqn.1994-05.com.sim:host\n"
                  "\n\n\n",
              run->text);
    CountedPayload const payload = counted(*run, 8, 292);
    ASSERT_EQ(8u, payload.images.size());
    KDeviceID own;
    own.initFcDeviceIDFromString("2100-0000-0000-00A0");
    EXPECT_TRUE(recordOfImage<KDeviceID>(payload.images[4]) == own);
}

TEST_F(FabricSan, ShowDeviceOfATargetThatIsAlsoAnInitiatorShowsBothParts)
{
    auto run = ran<CmdDeviceShow>({{ModifierId::MODIFIER_FC_DEVICE, "2100-0000-0000-00B0"}});
    EXPECT_EQ(kBanner +
                  "-fc_device=2100-0000-0000-00B0\n"
                  "FC Target \n"
                  "    WWNN:    2000-0000-0000-00B0\n"
                  "    WWPN:    2100-0000-0000-00B0\n"
                  "    Port ID: 00-00-00\n"
                  "    Target State = online, mapped, FC1\n"
                  "    Target Portal Mode = FCP\n"
                  "FC Initiator\n"
                  "    (FCP) Fibre Channel Initiator 2000-0000-0000-00B0, 2100-0000-0000-00B0\n"
                  "    Port ID = 00-00-00\n"
                  "    Operational State = Logged In, Target, DM\n"
                  "\n",
              run->text);
    CountedPayload const payload = counted(*run, 1, 852);
    ASSERT_EQ(1u, payload.images.size());
    KDeviceInfo const info = recordOfImage<KDeviceInfo>(payload.images[0]);
    EXPECT_TRUE(info.isTarget);
    EXPECT_TRUE(info.isInitiator);
}

TEST_F(FabricSan, ShowDeviceOfAllGivesEveryDeviceInTheResultTheAdaptersOwnToo)
{
    auto run = ran<CmdDeviceShow>({});
    EXPECT_EQ(std::string::npos, run->text.find("-fc_device=2100-0000-0000-00A0"));
    CountedPayload const payload = counted(*run, 8, 852);
    ASSERT_EQ(8u, payload.images.size());
    EXPECT_TRUE(recordOfImage<KDeviceInfo>(payload.images[4]).isInternal);
}

TEST_F(FabricSan, ShowDeviceRefusesUnknownDoublyNamedAndUnreadableDevices)
{
    auto unknown = ran<CmdDeviceShow>({{ModifierId::MODIFIER_FC_DEVICE, "5000-0000-0000-00FF"}}, 1206);
    EXPECT_EQ("Device \"5000-0000-0000-00FF\" not found", unknown->err);
    auto both = ran<CmdDeviceShow>({{ModifierId::MODIFIER_FC_DEVICE, "5000-0000-0000-0001"},
                                    {ModifierId::MODIFIER_IS_DEVICE, "iqn.2020-01.com.sim:vault"}},
                                   ZEKCLI_PARSE_FAIL);
    EXPECT_EQ("Only one of -is_device or -fc_device can be used", both->err);
    auto text = ran<CmdDeviceShow>({{ModifierId::MODIFIER_FC_DEVICE, "xyz"}}, ZEKCLI_PARSE_FAIL);
    EXPECT_EQ("Please specify -is_device or -fc_device", text->err);
}

TEST_F(FabricSan, APortThatGoesDownTakesItsTargetsOutOfSight)
{
    ran<CmdTargetList>({});
    ran<CmdFcDisable>({{ModifierId::MODIFIER_PORT, "1"}});
    auto after = ran<CmdTargetList>({});
    EXPECT_EQ(kBanner +
                  "Target count = 2\n"
                  "-fc_target=5000-0000-0000-0002\n"
                  "-fc_target=5000-0000-0000-0003\n"
                  "\n\n\n",
              after->text);
    counted(*after, 3, 292); // and the adapter's own, on port 2 too
    ran<CmdTargetShow>({{ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001"}}, 1206);
    auto both = ran<CmdTargetShow>({{ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0003"}});
    EXPECT_NE(std::string::npos, both->text.find("    Target State = online, mapped, FC2\n"));
}

TEST_F(FabricSan, DevicesShowWhatTheLatestGatheringFound)
{
    auto first = ran<CmdDeviceShow>({{ModifierId::MODIFIER_FC_DEVICE, "5000-0000-0000-0001"}});
    EXPECT_EQ(std::string::npos, first->text.find("Max Outstanding IO"));
    ran<CmdTargetSet>(
        {{ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001"}, {ModifierId::MODIFIER_MAX_OUTSTANDING_IO, "512"}});
    auto all = ran<CmdDeviceShow>({});
    EXPECT_NE(std::string::npos,
              all->text.find("    Target State = online, mapped, FC1\n"
                             "    Target Portal Mode = FCP\n"
                             "    Max Outstanding IO = 512\n"));
}

TEST(FabricNames, InitiatorsAndDevicesAreNamedFromTheirRecords)
{
    KInitiatorInfo fc;
    fc.protocol = PBase::PROTOCOL_FIBRE_CHANNEL;
    unsigned char const wwpn[8] = {0x21, 0, 0, 0, 0, 0, 0, 0xB0};
    std::memcpy(fc.fc.wwpn, wwpn, sizeof wwpn);
    PInitiatorID fcId;
    fcId.initFcInitiatorIDFromString("2100-0000-0000-00B0");
    EXPECT_TRUE(initiatorIdOf(fc) == fcId);

    KInitiatorInfo iscsi;
    iscsi.protocol = PBase::PROTOCOL_ISCSI;
    std::memset(iscsi.iscsi.iscsiName, 'n', sizeof iscsi.iscsi.iscsiName); // no terminating zero
    EXPECT_EQ(std::string(sizeof iscsi.iscsi.iscsiName, 'n'), initiatorIdOf(iscsi).displayText());

    EXPECT_TRUE(initiatorIdOf(KInitiatorInfo()).isEmpty());

    KDeviceInfo device;
    device.isInitiator = true;
    device.initiator = fc;
    KDeviceID expected;
    expected.initFcDeviceIDFromString("2100-0000-0000-00B0");
    EXPECT_TRUE(deviceIdOf(device) == expected);
    device.isTarget = true;
    device.target.protocol = PBase::PROTOCOL_ISCSI;
    PBase::textToCharField(device.target.iscsi.iscsiName, sizeof device.target.iscsi.iscsiName, "iqn.t");
    EXPECT_EQ("iqn.t", deviceIdOf(device).displayText());
    EXPECT_TRUE(deviceIdOf(KDeviceInfo()).isEmpty());
}
