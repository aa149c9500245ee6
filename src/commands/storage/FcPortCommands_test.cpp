// show fc, set fc, enable fc_port and disable fc_port against a simulated
// adapter with two ports: the texts, the result records, the refusals, and
// that a refused command leaves the port as it was.
#include <gtest/gtest.h>

#include "commands/storage/CmdFcBasicSet.h"
#include "commands/storage/CmdFcBasicShow.h"
#include "commands/storage/CmdFcDisable.h"
#include "commands/storage/CmdFcEnable.h"
#include "core/ZekcliReturn.h"
#include "records/KFcInfo.h"
#include "support/AddressingFixture.h"
#include "support/CommandRun.h"

using addressing_test::SimulatedSan;

namespace {

char const kFabric[] = "src/commands/storage/testdata/fabric.json";

std::string fault(char const* operation, int code)
{
    return std::string(R"([{"adapter": "A0", "operation": ")") + operation + R"(", "code": )" + std::to_string(code) +
        "}]";
}

// The port record of a result payload.
KFcInfo portOf(CommandRun const& run)
{
    KFcInfo port;
    std::string const payload = run.payload();
    EXPECT_EQ(sizeof port, payload.size());
    if (payload.size() == sizeof port)
        std::memcpy(static_cast<void*>(&port), payload.data(), sizeof port);
    return port;
}

// What the adapter reports for a port now, read by a fresh show fc.
KFcInfo portNow(int port)
{
    CommandRun show(new CmdFcBasicShow);
    show.giveAdapter("0");
    show.give(ModifierId::MODIFIER_PORT, std::to_string(port));
    EXPECT_EQ(0, show.run()) << show.err;
    return portOf(show);
}

// The adapter's banner, as each piece of text, ends in a line feed of the
// output's own.
std::string const kBanner = "[ Device 0 on local host ]\n\n";

std::string const kPort1 = "    Port = FC1\n"
                           "    Port Status = PORT_ENABLED\n"
                           "    Link Status = LINK_UP\n"
                           "    FibreChannel Mode = FCP\n"
                           "    Current Link Rate = 8Gb\n"
                           "    Programmed Link Rate = Auto\n"
                           "    WWNN = 2000-0000-0000-00A0\n"
                           "    WWPN = 2100-0000-0000-00A0\n"
                           "    Port ID = 00-00-00\n"
                           "    Firmware Revision = 8.07.00\n"
                           "    Frame Size = 2048\n"
                           "    SFP Type = 8Gb\n"
                           "    Execution Throttle = 64\n"
                           "    Connection Mode = Point-to-Point\n"
                           "    Programmed Connection Option = Auto\n";

} // namespace

TEST(CmdFcBasicShow, OnePortShowsItsBlockAndRecord)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CommandRun run(new CmdFcBasicShow);
    run.giveAdapter("0");
    run.give(ModifierId::MODIFIER_PORT, "1");
    ASSERT_EQ(0, run.run()) << run.err;
    EXPECT_EQ(kBanner + kPort1 + "\n", run.text);
    EXPECT_EQ(0u, run.resultStatus());
    KFcInfo const port = portOf(run);
    EXPECT_EQ(0u, port.portIndex);
    EXPECT_EQ(PBase::LINK_UP, port.linkStatus);
}

TEST(CmdFcBasicShow, AllPortsAreShownAndTheLastIsTheRecord)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CommandRun run(new CmdFcBasicShow);
    run.giveAdapter("0");
    ASSERT_EQ(0, run.run()) << run.err;
    std::string const head = kBanner + kPort1 + "\n    Port = FC2\n";
    EXPECT_EQ(head, run.text.substr(0, head.size()));
    EXPECT_NE(std::string::npos, run.text.find("    SFP Type = 4Gb\n"));
    EXPECT_EQ("Auto\n\n\n", run.text.substr(run.text.size() - 7));
    EXPECT_EQ(1u, portOf(run).portIndex);
}

TEST(CmdFcBasicShow, APortOutsideTheAdaptersPortsIsAParseFailure)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    for (char const* bad : {"0", "3", "abc"}) {
        CommandRun run(new CmdFcBasicShow);
        run.giveAdapter("0");
        run.give(ModifierId::MODIFIER_PORT, bad);
        EXPECT_EQ(ZEKCLI_PARSE_FAIL, run.run()) << bad;
        EXPECT_EQ("-port modifier requires a number in the range 1 to 2", run.err) << bad;
        EXPECT_EQ("", run.text);
        EXPECT_FALSE(run.wroteResult());
    }
    CommandRun point(new CmdFcBasicShow);
    point.giveAdapter("0");
    point.give(ModifierId::MODIFIER_PORT, "1.5");
    EXPECT_EQ(ZEKCLI_PARSE_FAIL, point.run());
    EXPECT_EQ("-port modifier does not allow decimal point.", point.err);
}

TEST(CmdFcBasicShow, AnAdapterThatStopsAnsweringEndsTheCommand)
{
    SimulatedSan san(kFabric, fault("getFcInfo", 1006));
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CommandRun run(new CmdFcBasicShow);
    run.giveAdapter("0");
    EXPECT_EQ(1006, run.run());
    EXPECT_EQ("", run.text);
    EXPECT_FALSE(run.wroteResult());
}

TEST(CmdFcBasicShow, AnAdapterTheLibraryDoesNotHoldIsNotFound)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CommandRun run(new CmdFcBasicShow);
    run.giveAdapter("7");
    EXPECT_NE(0, run.run());
    EXPECT_FALSE(run.wroteResult());
}

TEST(CmdFcBasicSet, WritesTheSettingsAndShowsThePortAfterTheChange)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CommandRun run(new CmdFcBasicSet);
    run.giveAdapter("0");
    run.give(ModifierId::MODIFIER_PORT, "1");
    run.give(ModifierId::MODIFIER_FC_LINK_RATE, "4gb");
    run.give(ModifierId::MODIFIER_EXEC_THROTTLE, "128");
    run.give(ModifierId::MODIFIER_LOOP_ONLY);
    ASSERT_EQ(0, run.run()) << run.err;
    EXPECT_EQ(kBanner + "FC Port 1 basic info successfully configured\n", run.text);
    KFcInfo const written = portOf(run);
    EXPECT_EQ(PBase::FC_LINK_RATE_4GB, written.programmedLinkRate);
    EXPECT_EQ(KFcInfo::CONNECTION_OPTION_LOOP_ONLY, written.programmedConnectionOption);
    EXPECT_EQ(128u, written.executionThrottle);
    KFcInfo const now = portNow(1);
    EXPECT_EQ(PBase::FC_LINK_RATE_4GB, now.programmedLinkRate);
    EXPECT_EQ(KFcInfo::CONNECTION_MODE_LOOP, now.connectionMode);
}

TEST(CmdFcBasicSet, NoSettingWritesBackWhatThePortHas)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CommandRun run(new CmdFcBasicSet);
    run.giveAdapter("0");
    run.give(ModifierId::MODIFIER_PORT, "2");
    ASSERT_EQ(0, run.run()) << run.err;
    EXPECT_EQ(kBanner + "FC Port 2 basic info successfully configured\n", run.text);
    KFcInfo const port = portOf(run);
    EXPECT_EQ(PBase::FC_LINK_RATE_AUTO, port.programmedLinkRate);
    EXPECT_EQ(KFcInfo::CONNECTION_OPTION_AUTO, port.programmedConnectionOption);
    EXPECT_EQ(64u, port.executionThrottle);
}

TEST(CmdFcBasicSet, ARefusedKeywordChangesNothing)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    struct Case {
        ModifierId::MODIFIER_ID keyword;
        char const* value;
        char const* err;
    } const cases[] = {
        {ModifierId::MODIFIER_EXEC_THROTTLE, "15", "Execution Throttle must be in range 16 to 65535"},
        {ModifierId::MODIFIER_EXEC_THROTTLE, "65536", "Execution Throttle must be in range 16 to 65535"},
        {ModifierId::MODIFIER_EXEC_THROTTLE, "16abc", "Execution Throttle must be in range 16 to 65535"},
        {ModifierId::MODIFIER_FC_LINK_RATE, "1", "Ambiguous selection, please choose \"10gb\" or \"16gb\""},
        {ModifierId::MODIFIER_FC_LINK_RATE, "32gb", "\"32gb\" is not recognized\n"},
    };
    for (Case const& c : cases) {
        CommandRun run(new CmdFcBasicSet);
        run.giveAdapter("0");
        run.give(ModifierId::MODIFIER_PORT, "1");
        run.give(ModifierId::MODIFIER_LOOP_ONLY);
        run.give(c.keyword, c.value);
        EXPECT_EQ(ZEKCLI_PARSE_FAIL, run.run()) << c.value;
        EXPECT_EQ(c.err, run.err);
        EXPECT_EQ("", run.text);
    }
    CommandRun trio(new CmdFcBasicSet);
    trio.giveAdapter("0");
    trio.give(ModifierId::MODIFIER_PORT, "1");
    trio.give(ModifierId::MODIFIER_AUTO);
    trio.give(ModifierId::MODIFIER_LOOP_ONLY);
    EXPECT_EQ(ZEKCLI_PARSE_FAIL, trio.run());
    EXPECT_EQ("", trio.err);
    KFcInfo const now = portNow(1);
    EXPECT_EQ(KFcInfo::CONNECTION_OPTION_AUTO, now.programmedConnectionOption);
    EXPECT_EQ(64u, now.executionThrottle);
}

TEST(CmdFcBasicSet, ARateTheSfpCannotCarryIsTheLibrarysRefusal)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CommandRun run(new CmdFcBasicSet);
    run.giveAdapter("0");
    run.give(ModifierId::MODIFIER_PORT, "2"); // a 4Gb SFP
    run.give(ModifierId::MODIFIER_FC_LINK_RATE, "8gb");
    run.give(ModifierId::MODIFIER_EXEC_THROTTLE, "32");
    EXPECT_EQ(1016, run.run());
    EXPECT_EQ("", run.text);
    EXPECT_FALSE(run.wroteResult());
    KFcInfo const now = portNow(2);
    EXPECT_EQ(PBase::FC_LINK_RATE_AUTO, now.programmedLinkRate);
    EXPECT_EQ(64u, now.executionThrottle);
}

TEST(CmdFcBasicSet, AnAdapterThatStopsAnsweringGivesItsCodeAndNoText)
{
    SimulatedSan san(kFabric, R"([{"adapter": "A0", "operation": "getFcInfo", "code": 1006, "once": false}])");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CommandRun run(new CmdFcBasicSet);
    run.giveAdapter("0");
    run.give(ModifierId::MODIFIER_PORT, "1");
    EXPECT_EQ(1006, run.run());
    EXPECT_EQ("", run.text);
    EXPECT_FALSE(run.wroteResult());
}

TEST(CmdFcBasicSet, ALibraryRefusalOfTheSettingsIsReturned)
{
    SimulatedSan san(kFabric, fault("setFcInfo", 1100));
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CommandRun run(new CmdFcBasicSet);
    run.giveAdapter("0");
    run.give(ModifierId::MODIFIER_PORT, "1");
    EXPECT_EQ(1100, run.run());
    EXPECT_EQ("", run.text);
}

TEST(CmdFcDisable, DisablesThePortAndTakesItsLinkDown)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CommandRun run(new CmdFcDisable);
    run.giveAdapter("0");
    run.give(ModifierId::MODIFIER_PORT, "1");
    ASSERT_EQ(0, run.run()) << run.err;
    EXPECT_EQ(kBanner + "FC Port 1 successfully disabled\n", run.text);
    EXPECT_TRUE(run.wroteResult());
    EXPECT_EQ("", run.payload());
    KFcInfo const now = portNow(1);
    EXPECT_EQ(PBase::PORT_DISABLED, now.portStatus);
    EXPECT_EQ(PBase::LINK_DOWN, now.linkStatus);

    CommandRun enable(new CmdFcEnable);
    enable.giveAdapter("0");
    enable.give(ModifierId::MODIFIER_PORT, "1");
    ASSERT_EQ(0, enable.run()) << enable.err;
    EXPECT_EQ(kBanner + "FC Port 1 successfully enabled\n", enable.text);
    EXPECT_EQ(PBase::LINK_UP, portNow(1).linkStatus);
}

TEST(CmdFcDisable, APortWithAnFcipLinkStaysEnabled)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CommandRun run(new CmdFcDisable);
    run.giveAdapter("0");
    run.give(ModifierId::MODIFIER_PORT, "2");
    EXPECT_EQ(1015, run.run());
    EXPECT_EQ("Port cannot be disabled because FCIP Link is currently configured", run.err);
    EXPECT_EQ("", run.text);
    EXPECT_EQ(PBase::PORT_ENABLED, portNow(2).portStatus);
}

TEST(CmdFcEnable, TheFcipRefusalHasTheSameTextWhenEnabling)
{
    SimulatedSan san(kFabric, fault("setFcPortEnabled", 1015));
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CommandRun run(new CmdFcEnable);
    run.giveAdapter("0");
    run.give(ModifierId::MODIFIER_PORT, "1");
    EXPECT_EQ(1015, run.run());
    EXPECT_EQ("Port cannot be disabled because FCIP Link is currently configured", run.err);
}

TEST(CmdFcEnable, OtherRefusalsAreReturnedAsTheyStand)
{
    SimulatedSan san(kFabric, fault("setFcPortEnabled", 1006));
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CommandRun run(new CmdFcEnable);
    run.giveAdapter("0");
    run.give(ModifierId::MODIFIER_PORT, "1");
    EXPECT_EQ(1006, run.run());
    EXPECT_EQ("", run.err);
}

TEST(CmdFcEnable, WithoutAPortNothingIsSwitched)
{
    SimulatedSan san(kFabric);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CommandRun run(new CmdFcEnable);
    run.giveAdapter("0");
    EXPECT_EQ(ZEKCLI_PARSE_FAIL, run.run());
    EXPECT_EQ("-port modifier must be specified", run.err);
    EXPECT_EQ("", run.text);
}
