// list, show and set of targets, and list and show of initiators and
// devices, against a simulated adapter: texts, result payloads with their
// images, partial gathering, the refusals, and what the adapter sees after
// a port goes down.
#include <gtest/gtest.h>

#include <cstring>

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
#include "support/FakeHbaMgmtApi.h"

using addressing_test::SimulatedSan;

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

template <typename Record>
Record imageOf(std::string const& image)
{
    Record record;
    EXPECT_LE(image.size(), sizeof record);
    std::memcpy(static_cast<void*>(&record), image.data(), std::min(image.size(), sizeof record));
    return record;
}

// A command of the fabric, addressed to device 0.
template <typename Command>
std::unique_ptr<CommandRun> onDevice0()
{
    auto run = std::make_unique<CommandRun>(new Command);
    run->giveAdapter("0");
    return run;
}

std::string const kTargetP1 = "-fc_target=5000-0000-0000-0001\n"
                              "FC Target \n"
                              "    WWNN:    5000-0000-0000-0F01\n"
                              "    WWPN:    5000-0000-0000-0001\n"
                              "    Port ID: 01-02-00\n"
                              "    Target State = online, mapped, FC1\n"
                              "    Target Portal Mode = FCP\n";

// A library that accepts every adapter path but holds no adapter.
class AdapterNotHeldApi : public FakeHbaMgmtApi {
public:
    e_MHBA_RETURN checkAdapterPath(KIsaAdapterPath&) override { return MHBA_S_OK; }
};

} // namespace

TEST(FabricAndPortCommands, AnAdapterTheLibraryDoesNotHoldIsNotFound)
{
    AdapterNotHeldApi api;
    HbaMgmtApi* const previous = g_pHbaMgmtApi;
    g_pHbaMgmtApi = &api;
    std::vector<TokenCmd*> const commands = {new CmdFcBasicShow, new CmdFcBasicSet,    new CmdFcEnable,
                                             new CmdFcDisable,   new CmdTargetList,    new CmdTargetShow,
                                             new CmdTargetSet,   new CmdInitiatorList, new CmdInitiatorShow,
                                             new CmdDeviceList,  new CmdDeviceShow};
    for (TokenCmd* command : commands) {
        CommandRun run(command);
        run.giveAdapter("0");
        EXPECT_EQ(1004, run.run()) << command->ugCommandLowCase();
        EXPECT_EQ("", run.text);
        EXPECT_FALSE(run.wroteResult());
    }
    g_pHbaMgmtApi = previous;
}

TEST(CmdTargetList, ListsTheTargetsButNotTheAdaptersOwnAndGivesAllInTheResult)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = onDevice0<CmdTargetList>();
    ASSERT_EQ(0, run->run()) << run->err;
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
    CountedPayload const payload(run->payload());
    ASSERT_TRUE(payload.whole);
    EXPECT_EQ(8u, payload.headerSize);
    ASSERT_EQ(6u, payload.count);
    for (uint32_t size : payload.entrySizes)
        EXPECT_EQ(292u, size);
    EXPECT_TRUE(imageOf<PTargetID>(payload.images[0]) == fcTarget("5000-0000-0000-0001"));
    EXPECT_TRUE(imageOf<PTargetID>(payload.images[4]) == fcTarget("2100-0000-0000-00A0"));
}

TEST(CmdTargetList, APartialGatheringShowsOnlyItsNoticeAndGivesEveryTarget)
{
    SimulatedSan san(kFabric, partialFault(1006));
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = onDevice0<CmdTargetList>();
    ASSERT_EQ(0, run->run()) << run->err;
    EXPECT_EQ(kBanner +
                  "getTargetsAndInitiators() returned partial success.  At least one attempt to get info returned " +
                  g_pHbaMgmtApi->returnCodeToText(1006) + "\n\n\n\n",
              run->text);
    EXPECT_EQ(2u, run->resultStatus());
    CountedPayload const payload(run->payload());
    ASSERT_TRUE(payload.whole);
    EXPECT_EQ(6u, payload.count);
}

TEST(CmdTargetList, AFailedGatheringIsReturnedWithNothingShown)
{
    SimulatedSan san(kFabric, kGatheringFails);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = onDevice0<CmdTargetList>();
    EXPECT_EQ(1006, run->run());
    EXPECT_EQ("", run->text);
    EXPECT_FALSE(run->wroteResult());
}

TEST(CmdTargetList, AnAdapterWithOnlyItsOwnTargetCountsNone)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = std::make_unique<CommandRun>(new CmdTargetList);
    run->giveAdapter("1"); // B0 has one port and sees p1, both, vault and peer there
    ASSERT_EQ(0, run->run());
    EXPECT_NE(std::string::npos, run->text.find("Target count = 4\n"));
}

TEST(CmdTargetShow, OneTargetByNameWithItsRecordInTheResult)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = onDevice0<CmdTargetShow>();
    run->give(ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001");
    ASSERT_EQ(0, run->run()) << run->err;
    EXPECT_EQ(kBanner + kTargetP1 + "\n", run->text);
    CountedPayload const payload(run->payload());
    ASSERT_TRUE(payload.whole);
    ASSERT_EQ(1u, payload.count);
    EXPECT_EQ(292u, payload.entrySizes[0]);
    KTargetInfo const info = imageOf<KTargetInfo>(payload.images[0]);
    EXPECT_TRUE(info.isFcTarget());
    EXPECT_TRUE(info.isDiscoveredOnPort_1());
    EXPECT_FALSE(info.isDiscoveredOnPort_2());
}

TEST(CmdTargetShow, ATargetTheAdapterDoesNotSeeIsNotFound)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = onDevice0<CmdTargetShow>();
    run->give(ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-00FF");
    EXPECT_EQ(1206, run->run());
    EXPECT_EQ("Target \"5000-0000-0000-00FF\" not found", run->err);
    EXPECT_EQ("", run->text);
    EXPECT_FALSE(run->wroteResult());
}

TEST(CmdTargetShow, BadNamesAreParseFailures)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto text = onDevice0<CmdTargetShow>();
    text->give(ModifierId::MODIFIER_FC_TARGET, "xyz");
    EXPECT_EQ(ZEKCLI_PARSE_FAIL, text->run());
    EXPECT_EQ("xyz\" is not valid text for an FC target", text->err);
    auto both = onDevice0<CmdTargetShow>();
    both->give(ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001");
    both->give(ModifierId::MODIFIER_IS_TARGET, "iqn.2020-01.com.sim:vault");
    EXPECT_EQ(ZEKCLI_PARSE_FAIL, both->run());
    EXPECT_EQ("Only one of -is_target or -fc_target can be used", both->err);
}

TEST(CmdTargetShow, AllTargetsAreShownButTheResultCountsNone)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = onDevice0<CmdTargetShow>();
    ASSERT_EQ(0, run->run()) << run->err;
    std::string const head = kBanner + kTargetP1 + "\n\n-fc_target=5000-0000-0000-0002\n";
    EXPECT_EQ(head, run->text.substr(0, head.size()));
    EXPECT_NE(std::string::npos,
              run->text.find("    Target State = online, mapped, FC1/FC2\n"
                             "    Target Portal Mode = FCP\n"
                             "    Max Outstanding IO = 256\n\n\n"));
    EXPECT_EQ(std::string::npos, run->text.find("2100-0000-0000-00A0"));
    EXPECT_EQ(0u, run->resultStatus());
    CountedPayload const payload(run->payload());
    ASSERT_TRUE(payload.whole);
    EXPECT_EQ(8u, payload.headerSize);
    EXPECT_EQ(0u, payload.count);
}

TEST(CmdTargetShow, APartialGatheringIsToldAheadOfTheTargets)
{
    SimulatedSan san(kFabric, partialFault(1206));
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = onDevice0<CmdTargetShow>();
    ASSERT_EQ(0, run->run()) << run->err;
    std::string const head = kBanner +
        "getTargetsAndInitiators() returned partial success.  At least one attempt to get info returned " +
        g_pHbaMgmtApi->returnCodeToText(1206) + "\n" + kTargetP1;
    EXPECT_EQ(head, run->text.substr(0, head.size()));
    EXPECT_EQ(2u, run->resultStatus());
}

TEST(CmdTargetSet, SetsTheLimitThatShowTargetThenShows)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    for (char const* count : {"32", "2048"}) {
        auto run = onDevice0<CmdTargetSet>();
        run->give(ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001");
        run->give(ModifierId::MODIFIER_MAX_OUTSTANDING_IO, count);
        ASSERT_EQ(0, run->run()) << run->err;
        EXPECT_EQ(kBanner + "\n\t-max_outstanding_io=" + count +
                      " for -fc_target=5000-0000-0000-0001 set successfully.\n",
                  run->text);
        EXPECT_TRUE(run->wroteResult());
        EXPECT_EQ("", run->payload());
    }
    auto show = onDevice0<CmdTargetShow>();
    show->give(ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001");
    ASSERT_EQ(0, show->run());
    EXPECT_NE(std::string::npos, show->text.find("    Max Outstanding IO = 2048\n"));
}

TEST(CmdTargetSet, AnIscsiTargetIsNamedAfterTheFcKeywordInTheText)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = onDevice0<CmdTargetSet>();
    run->give(ModifierId::MODIFIER_IS_TARGET, "iqn.2020-01.com.sim:vault");
    run->give(ModifierId::MODIFIER_MAX_OUTSTANDING_IO, "64");
    ASSERT_EQ(0, run->run()) << run->err;
    EXPECT_EQ(kBanner + "\n\t-max_outstanding_io=64 for -fc_target=iqn.2020-01.com.sim:vault set successfully.\n",
              run->text);
}

TEST(CmdTargetSet, ATargetTheAdapterDoesNotSeeIsReportedButNotSent)
{
    SimulatedSan san(kFabric, R"([{"adapter": "A0", "operation": "setTargetMaxOutstandingIo", "code": 1000}])");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = onDevice0<CmdTargetSet>();
    run->give(ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-00FF");
    run->give(ModifierId::MODIFIER_MAX_OUTSTANDING_IO, "64");
    ASSERT_EQ(0, run->run()) << run->err;
    EXPECT_EQ(kBanner + "\n\t-max_outstanding_io=64 for -fc_target=5000-0000-0000-00FF set successfully.\n", run->text);
    // The library was never asked: the fault waits for the first call.
    auto known = onDevice0<CmdTargetSet>();
    known->give(ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001");
    known->give(ModifierId::MODIFIER_MAX_OUTSTANDING_IO, "64");
    ASSERT_EQ(0, known->run());
    auto show = onDevice0<CmdTargetShow>();
    show->give(ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001");
    ASSERT_EQ(0, show->run());
    EXPECT_EQ(std::string::npos, show->text.find("Max Outstanding IO"));
}

TEST(CmdTargetSet, RefusalsOfTheTargetAndTheCount)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto noTarget = onDevice0<CmdTargetSet>();
    noTarget->give(ModifierId::MODIFIER_MAX_OUTSTANDING_IO, "64");
    EXPECT_EQ(ZEKCLI_PARSE_FAIL, noTarget->run());
    EXPECT_EQ("This command requires a target - please use -fc_target=..", noTarget->err);
    for (char const* count : {"31", "2049"}) {
        auto run = onDevice0<CmdTargetSet>();
        run->give(ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001");
        run->give(ModifierId::MODIFIER_MAX_OUTSTANDING_IO, count);
        EXPECT_EQ(ZEKCLI_PARSE_FAIL, run->run());
        EXPECT_EQ("-max_outstanding_io modifier requires a number in the range 32 to 2048", run->err);
        EXPECT_EQ("", run->text);
    }
    auto noCount = onDevice0<CmdTargetSet>();
    noCount->give(ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001");
    EXPECT_EQ(ZEKCLI_PARSE_FAIL, noCount->run());
    EXPECT_EQ("", noCount->text);
}

TEST(CmdInitiatorList, NamesEachInitiatorByItsProtocol)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = onDevice0<CmdInitiatorList>();
    ASSERT_EQ(0, run->run()) << run->err;
    EXPECT_EQ(kBanner +
                  "Initiator count = 3\n"
                  "-fc_initiator=1000-0000-0000-0001\n"
                  "-fc_initiator=2100-0000-0000-00B0\n"
                  "-is_initiator=iqn.1994-05.com.sim:host\n"
                  "\n\n\n",
              run->text);
    CountedPayload const payload(run->payload());
    ASSERT_TRUE(payload.whole);
    ASSERT_EQ(3u, payload.count);
    EXPECT_EQ(292u, payload.entrySizes[2]);
    PInitiatorID expected;
    expected.initIscsiInitiatorID(reinterpret_cast<unsigned char const*>("iqn.1994-05.com.sim:host"));
    EXPECT_TRUE(imageOf<PInitiatorID>(payload.images[2]) == expected);
}

TEST(CmdInitiatorShow, OneInitiatorStartsItsHeadingOnALineOfItsOwn)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = onDevice0<CmdInitiatorShow>();
    run->give(ModifierId::MODIFIER_FC_INITIATOR, "2100-0000-0000-00B0");
    ASSERT_EQ(0, run->run()) << run->err;
    EXPECT_EQ(kBanner +
                  "\n-fc_initiator=2100-0000-0000-00B0\n"
                  "    -wwpn=2100-0000-0000-00B0 -wwnn=2000-0000-0000-00B0\n"
                  "FC Initiator\n"
                  "    (FCP) Fibre Channel Initiator 2000-0000-0000-00B0, 2100-0000-0000-00B0\n"
                  "    Port ID = 00-00-00\n"
                  "    Operational State = Logged In, Target, DM\n"
                  "\n",
              run->text);
    CountedPayload const payload(run->payload());
    ASSERT_TRUE(payload.whole);
    ASSERT_EQ(1u, payload.count);
    EXPECT_EQ(468u, payload.entrySizes[0]);
    EXPECT_TRUE(imageOf<KInitiatorInfo>(payload.images[0]).isDmInitiator());
}

TEST(CmdInitiatorShow, AllInitiatorsAreShownAndAllAreInTheResult)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = onDevice0<CmdInitiatorShow>();
    ASSERT_EQ(0, run->run()) << run->err;
    EXPECT_NE(std::string::npos, run->text.find("    Operational State = Logged Out\n\n\n"));
    CountedPayload const payload(run->payload());
    ASSERT_TRUE(payload.whole);
    EXPECT_EQ(3u, payload.count);
}

TEST(CmdInitiatorShow, AnUnknownOrDoublyNamedInitiatorIsRefused)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto unknown = onDevice0<CmdInitiatorShow>();
    unknown->give(ModifierId::MODIFIER_IS_INITIATOR, "iqn.nobody");
    EXPECT_EQ(1206, unknown->run());
    EXPECT_EQ("Initiator \"iqn.nobody\" not found", unknown->err);
    auto both = onDevice0<CmdInitiatorShow>();
    both->give(ModifierId::MODIFIER_IS_INITIATOR, "iqn.nobody");
    both->give(ModifierId::MODIFIER_FC_INITIATOR, "1000-0000-0000-0001");
    EXPECT_EQ(ZEKCLI_PARSE_FAIL, both->run());
    EXPECT_EQ("Only one of -is_initiator or -fc_initiator can be used", both->err);
}

TEST(CmdDeviceList, SkipsTheAdaptersOwnDeviceButGivesItInTheResult)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = onDevice0<CmdDeviceList>();
    ASSERT_EQ(0, run->run()) << run->err;
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
    CountedPayload const payload(run->payload());
    ASSERT_TRUE(payload.whole);
    ASSERT_EQ(8u, payload.count);
    KDeviceID own;
    own.initFcDeviceIDFromString("2100-0000-0000-00A0");
    EXPECT_TRUE(imageOf<KDeviceID>(payload.images[4]) == own);
}

TEST(CmdDeviceShow, ADeviceThatIsTargetAndInitiatorShowsBothParts)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = onDevice0<CmdDeviceShow>();
    run->give(ModifierId::MODIFIER_FC_DEVICE, "2100-0000-0000-00B0");
    ASSERT_EQ(0, run->run()) << run->err;
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
    CountedPayload const payload(run->payload());
    ASSERT_TRUE(payload.whole);
    ASSERT_EQ(1u, payload.count);
    EXPECT_EQ(852u, payload.entrySizes[0]);
    KDeviceInfo const info = imageOf<KDeviceInfo>(payload.images[0]);
    EXPECT_TRUE(info.isTarget);
    EXPECT_TRUE(info.isInitiator);
}

TEST(CmdDeviceShow, AllDevicesIncludingTheAdaptersOwnAreInTheResult)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto run = onDevice0<CmdDeviceShow>();
    ASSERT_EQ(0, run->run()) << run->err;
    EXPECT_EQ(std::string::npos, run->text.find("-fc_device=2100-0000-0000-00A0"));
    CountedPayload const payload(run->payload());
    ASSERT_TRUE(payload.whole);
    EXPECT_EQ(8u, payload.count);
    EXPECT_TRUE(imageOf<KDeviceInfo>(payload.images[4]).isInternal);
}

TEST(CmdDeviceShow, UnknownAndDoublyNamedDevicesAreRefused)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto unknown = onDevice0<CmdDeviceShow>();
    unknown->give(ModifierId::MODIFIER_FC_DEVICE, "5000-0000-0000-00FF");
    EXPECT_EQ(1206, unknown->run());
    EXPECT_EQ("Device \"5000-0000-0000-00FF\" not found", unknown->err);
    auto both = onDevice0<CmdDeviceShow>();
    both->give(ModifierId::MODIFIER_FC_DEVICE, "5000-0000-0000-0001");
    both->give(ModifierId::MODIFIER_IS_DEVICE, "iqn.2020-01.com.sim:vault");
    EXPECT_EQ(ZEKCLI_PARSE_FAIL, both->run());
    EXPECT_EQ("Only one of -is_device or -fc_device can be used", both->err);
    auto text = onDevice0<CmdDeviceShow>();
    text->give(ModifierId::MODIFIER_FC_DEVICE, "xyz");
    EXPECT_EQ(ZEKCLI_PARSE_FAIL, text->run());
    EXPECT_EQ("Please specify -is_device or -fc_device", text->err);
}

TEST(FabricRegathering, APortThatGoesDownTakesItsTargetsOutOfSight)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto before = onDevice0<CmdTargetList>();
    ASSERT_EQ(0, before->run());
    auto disable = onDevice0<CmdFcDisable>();
    disable->give(ModifierId::MODIFIER_PORT, "1");
    ASSERT_EQ(0, disable->run()) << disable->err;

    auto after = onDevice0<CmdTargetList>();
    ASSERT_EQ(0, after->run());
    EXPECT_EQ(kBanner +
                  "Target count = 2\n"
                  "-fc_target=5000-0000-0000-0002\n"
                  "-fc_target=5000-0000-0000-0003\n"
                  "\n\n\n",
              after->text);
    EXPECT_EQ(3u, CountedPayload(after->payload()).count); // and the adapter's own, on port 2 too

    auto gone = onDevice0<CmdTargetShow>();
    gone->give(ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001");
    EXPECT_EQ(1206, gone->run());
    auto both = onDevice0<CmdTargetShow>();
    both->give(ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0003");
    ASSERT_EQ(0, both->run());
    EXPECT_NE(std::string::npos, both->text.find("    Target State = online, mapped, FC2\n"));
}

TEST(FabricRegathering, DevicesShowWhatTheLatestGatheringFound)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    auto first = onDevice0<CmdDeviceShow>();
    first->give(ModifierId::MODIFIER_FC_DEVICE, "5000-0000-0000-0001");
    ASSERT_EQ(0, first->run());
    EXPECT_EQ(std::string::npos, first->text.find("Max Outstanding IO"));
    auto set = onDevice0<CmdTargetSet>();
    set->give(ModifierId::MODIFIER_FC_TARGET, "5000-0000-0000-0001");
    set->give(ModifierId::MODIFIER_MAX_OUTSTANDING_IO, "512");
    ASSERT_EQ(0, set->run());
    auto all = onDevice0<CmdDeviceShow>();
    ASSERT_EQ(0, all->run());
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
