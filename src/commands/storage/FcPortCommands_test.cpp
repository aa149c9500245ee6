// show fc, set fc, enable fc_port and disable fc_port against a simulated
// adapter with two ports: the texts, the result records, the refusals, and
// that a refused command leaves the port as it was.
#include <gtest/gtest.h>

#include <cstring>

#include "commands/storage/CmdFcBasicSet.h"
#include "commands/storage/CmdFcBasicShow.h"
#include "commands/storage/CmdFcDisable.h"
#include "commands/storage/CmdFcEnable.h"
#include "core/ZekcliReturn.h"
#include "records/KFcInfo.h"
#include "support/CommandRun.h"

namespace {

char const kFabric[] = "src/commands/storage/testdata/fabric.json";

std::string fault(char const* operation, int code, bool always = false)
{
    return std::string(R"([{"adapter": "A0", "operation": ")") + operation + R"(", "code": )" + std::to_string(code) +
        (always ? R"(, "once": false)" : "") + "}]";
}

// The port record of a result payload.
KFcInfo portOf(CommandRun const& run)
{
    std::string const payload = run.payload();
    EXPECT_EQ(sizeof(KFcInfo), payload.size());
    return recordOfImage<KFcInfo>(payload);
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

std::string const kRangeText = "Execution Throttle must be in range 16 to 65535";

class PortSan : public CommandsOnSimulatedSan {
protected:
    PortSan() : CommandsOnSimulatedSan(kFabric, "0") {}

    // What the adapter reports for a port now, read by a fresh show fc.
    KFcInfo portNow(char const* port) { return portOf(*ran<CmdFcBasicShow>({{ModifierId::MODIFIER_PORT, port}})); }
};

} // namespace

TEST_F(PortSan, ShowFcOfOnePortShowsItsBlockAndRecord)
{
    auto run = ran<CmdFcBasicShow>({{ModifierId::MODIFIER_PORT, "1"}});
    EXPECT_EQ(kBanner + kPort1 + "\n", run->text);
    EXPECT_EQ(0u, run->resultStatus());
    KFcInfo const port = portOf(*run);
    EXPECT_EQ(0u, port.portIndex);
    EXPECT_EQ(PBase::LINK_UP, port.linkStatus);
}

TEST_F(PortSan, ShowFcOfAllPortsGivesTheLastAsTheRecord)
{
    auto run = ran<CmdFcBasicShow>({});
    std::string const head = kBanner + kPort1 + "\n    Port = FC2\n";
    EXPECT_EQ(head, run->text.substr(0, head.size()));
    EXPECT_NE(std::string::npos, run->text.find("    SFP Type = 4Gb\n"));
    EXPECT_EQ("Auto\n\n\n", run->text.substr(run->text.size() - 7));
    EXPECT_EQ(1u, portOf(*run).portIndex);
}

TEST_F(PortSan, ShowFcOfAPortOutsideTheAdaptersPortsIsAParseFailure)
{
    for (char const* bad : {"0", "3", "abc"}) {
        auto run = ran<CmdFcBasicShow>({{ModifierId::MODIFIER_PORT, bad}}, ZEKCLI_PARSE_FAIL);
        EXPECT_EQ("-port modifier requires a number in the range 1 to 2", run->err) << bad;
        EXPECT_EQ("", run->text);
        EXPECT_FALSE(run->wroteResult());
    }
    auto point = ran<CmdFcBasicShow>({{ModifierId::MODIFIER_PORT, "1.5"}}, ZEKCLI_PARSE_FAIL);
    EXPECT_EQ("-port modifier does not allow decimal point.", point->err);
}

TEST_F(PortSan, ShowFcEndsWhenTheAdapterStopsAnswering)
{
    load(fault("getFcInfo", 1006));
    auto run = ran<CmdFcBasicShow>({}, 1006);
    EXPECT_EQ("", run->text);
    EXPECT_FALSE(run->wroteResult());
}

TEST_F(PortSan, SetFcWritesTheSettingsAndShowsThePortAfterTheChange)
{
    auto run = ran<CmdFcBasicSet>({{ModifierId::MODIFIER_PORT, "1"},
                                   {ModifierId::MODIFIER_FC_LINK_RATE, "4gb"},
                                   {ModifierId::MODIFIER_EXEC_THROTTLE, "128"},
                                   {ModifierId::MODIFIER_LOOP_ONLY, ""}});
    EXPECT_EQ(kBanner + "FC Port 1 basic info successfully configured\n", run->text);
    KFcInfo const written = portOf(*run);
    EXPECT_EQ(PBase::FC_LINK_RATE_4GB, written.programmedLinkRate);
    EXPECT_EQ(KFcInfo::CONNECTION_OPTION_LOOP_ONLY, written.programmedConnectionOption);
    EXPECT_EQ(128u, written.executionThrottle);
    KFcInfo const now = portNow("1");
    EXPECT_EQ(PBase::FC_LINK_RATE_4GB, now.programmedLinkRate);
    EXPECT_EQ(KFcInfo::CONNECTION_MODE_LOOP, now.connectionMode);
}

TEST_F(PortSan, SetFcWithNoSettingWritesBackWhatThePortHas)
{
    auto run = ran<CmdFcBasicSet>({{ModifierId::MODIFIER_PORT, "2"}});
    EXPECT_EQ(kBanner + "FC Port 2 basic info successfully configured\n", run->text);
    KFcInfo const port = portOf(*run);
    EXPECT_EQ(PBase::FC_LINK_RATE_AUTO, port.programmedLinkRate);
    EXPECT_EQ(KFcInfo::CONNECTION_OPTION_AUTO, port.programmedConnectionOption);
    EXPECT_EQ(64u, port.executionThrottle);
}

TEST_F(PortSan, SetFcChangesNothingOnARefusedKeyword)
{
    struct Case {
        ModifierId::MODIFIER_ID keyword;
        char const* value;
        std::string err;
    } const cases[] = {
        {ModifierId::MODIFIER_EXEC_THROTTLE, "15", kRangeText},
        {ModifierId::MODIFIER_EXEC_THROTTLE, "65536", kRangeText},
        {ModifierId::MODIFIER_EXEC_THROTTLE, "16abc", kRangeText},
        {ModifierId::MODIFIER_FC_LINK_RATE, "1", "Ambiguous selection, please choose \"10gb\" or \"16gb\""},
        {ModifierId::MODIFIER_FC_LINK_RATE, "32gb", "\"32gb\" is not recognized\n"},
    };
    for (Case const& c : cases) {
        auto run = ran<CmdFcBasicSet>(
            {{ModifierId::MODIFIER_PORT, "1"}, {ModifierId::MODIFIER_LOOP_ONLY, ""}, {c.keyword, c.value}},
            ZEKCLI_PARSE_FAIL);
        EXPECT_EQ(c.err, run->err);
        EXPECT_EQ("", run->text);
    }
    auto trio = ran<CmdFcBasicSet>(
        {{ModifierId::MODIFIER_PORT, "1"}, {ModifierId::MODIFIER_AUTO, ""}, {ModifierId::MODIFIER_LOOP_ONLY, ""}},
        ZEKCLI_PARSE_FAIL);
    EXPECT_EQ("", trio->err);
    KFcInfo const now = portNow("1");
    EXPECT_EQ(KFcInfo::CONNECTION_OPTION_AUTO, now.programmedConnectionOption);
    EXPECT_EQ(64u, now.executionThrottle);
}

TEST_F(PortSan, SetFcOfARateTheSfpCannotCarryIsTheLibrarysRefusal)
{
    // Port 2 has a 4Gb SFP.
    auto run = ran<CmdFcBasicSet>({{ModifierId::MODIFIER_PORT, "2"},
                                   {ModifierId::MODIFIER_FC_LINK_RATE, "8gb"},
                                   {ModifierId::MODIFIER_EXEC_THROTTLE, "32"}},
                                  1016);
    EXPECT_EQ("", run->text);
    EXPECT_FALSE(run->wroteResult());
    KFcInfo const now = portNow("2");
    EXPECT_EQ(PBase::FC_LINK_RATE_AUTO, now.programmedLinkRate);
    EXPECT_EQ(64u, now.executionThrottle);
}

TEST_F(PortSan, SetFcGivesTheCodeOfAnAdapterThatStopsAnswering)
{
    load(fault("getFcInfo", 1006, true));
    auto run = ran<CmdFcBasicSet>({{ModifierId::MODIFIER_PORT, "1"}}, 1006);
    EXPECT_EQ("", run->text);
    EXPECT_FALSE(run->wroteResult());
}

TEST_F(PortSan, SetFcReturnsTheLibrarysRefusalOfTheSettings)
{
    load(fault("setFcInfo", 1100));
    auto run = ran<CmdFcBasicSet>({{ModifierId::MODIFIER_PORT, "1"}}, 1100);
    EXPECT_EQ("", run->text);
}

TEST_F(PortSan, DisableFcPortTakesTheLinkDownAndEnableBringsItBack)
{
    auto run = ran<CmdFcDisable>({{ModifierId::MODIFIER_PORT, "1"}});
    EXPECT_EQ(kBanner + "FC Port 1 successfully disabled\n", run->text);
    EXPECT_TRUE(run->wroteResult());
    EXPECT_EQ("", run->payload());
    KFcInfo const now = portNow("1");
    EXPECT_EQ(PBase::PORT_DISABLED, now.portStatus);
    EXPECT_EQ(PBase::LINK_DOWN, now.linkStatus);

    auto enable = ran<CmdFcEnable>({{ModifierId::MODIFIER_PORT, "1"}});
    EXPECT_EQ(kBanner + "FC Port 1 successfully enabled\n", enable->text);
    EXPECT_EQ(PBase::LINK_UP, portNow("1").linkStatus);
}

TEST_F(PortSan, DisableFcPortLeavesAPortWithAnFcipLinkEnabled)
{
    auto run = ran<CmdFcDisable>({{ModifierId::MODIFIER_PORT, "2"}}, 1015);
    EXPECT_EQ("Port cannot be disabled because FCIP Link is currently configured", run->err);
    EXPECT_EQ("", run->text);
    EXPECT_EQ(PBase::PORT_ENABLED, portNow("2").portStatus);
}

TEST_F(PortSan, EnableFcPortGivesTheSameTextForTheFcipRefusal)
{
    load(fault("setFcPortEnabled", 1015));
    auto run = ran<CmdFcEnable>({{ModifierId::MODIFIER_PORT, "1"}}, 1015);
    EXPECT_EQ("Port cannot be disabled because FCIP Link is currently configured", run->err);
}

TEST_F(PortSan, EnableFcPortReturnsOtherRefusalsAsTheyStand)
{
    load(fault("setFcPortEnabled", 1006));
    auto run = ran<CmdFcEnable>({{ModifierId::MODIFIER_PORT, "1"}}, 1006);
    EXPECT_EQ("", run->err);
}

TEST_F(PortSan, EnableFcPortSwitchesNothingWithoutAPort)
{
    auto run = ran<CmdFcEnable>({}, ZEKCLI_PARSE_FAIL);
    EXPECT_EQ("-port modifier must be specified", run->err);
    EXPECT_EQ("", run->text);
}
