// Choosing the adapter from -zek against a simulated SAN: device instance,
// identifier, symbolic name and scan, in that order.
#include <gtest/gtest.h>

#include "records/KIsaAdapterPath.h"
#include "records/PIpAddress.h"
#include "support/AddressingFixture.h"

using addressing_test::CountingApi;
using addressing_test::Row;
using addressing_test::SimulatedSan;
using addressing_test::TestCommand;

namespace {

struct Selection {
    e_MHBA_RETURN code;
    KIsaAdapterPath path;
    std::string err;
};

Selection select(TestCommand& command)
{
    Selection result{MHBA_S_OK, KIsaAdapterPath(), "stale text"};
    result.code = command.selectAdapter(result.path, result.err);
    return result;
}

Selection selectZek(std::string const& value)
{
    TestCommand command;
    command.give(ModifierId::MODIFIER_ZEK, value);
    return select(command);
}

} // namespace

TEST(AdapterSelection, WithoutZekDeviceZeroOfTheHost)
{
    SimulatedSan san("two-devices");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    TestCommand command;
    Selection const chosen = select(command);
    EXPECT_EQ(MHBA_S_OK, chosen.code);
    EXPECT_EQ("", chosen.err);
    EXPECT_EQ(0, chosen.path.deviceInstanceForAccess());
    EXPECT_TRUE(chosen.path.isLocalDevice());
    HIsaAdapter* const adapter = g_pHbaMgmtApi->getAdapters()->find(chosen.path);
    ASSERT_NE(nullptr, adapter);
    EXPECT_EQ(0x10A0ULL, adapter->getAdapterPath()->isaHbaId());
}

TEST(AdapterSelection, AnEmptyValueAlsoMeansDeviceZero)
{
    SimulatedSan san("two-devices");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Selection const chosen = selectZek("");
    EXPECT_EQ(MHBA_S_OK, chosen.code);
    EXPECT_EQ(0, chosen.path.deviceInstanceForAccess());
}

TEST(AdapterSelection, OneDigitIsADeviceInstance)
{
    SimulatedSan san("two-devices");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Selection const chosen = selectZek("1");
    EXPECT_EQ(MHBA_S_OK, chosen.code);
    EXPECT_EQ(1, chosen.path.deviceInstanceForAccess());
    EXPECT_EQ(0x10B1ULL, g_pHbaMgmtApi->getAdapters()->find(chosen.path)->getAdapterPath()->isaHbaId());
}

TEST(AdapterSelection, MissingDeviceGoesOnToTheIdentifier)
{
    SimulatedSan san("one-device");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CountingApi counting(g_pHbaMgmtApi);
    Selection const chosen = selectZek("1");
    EXPECT_EQ(MHBA_S_OK, chosen.code);
    EXPECT_EQ(1ULL, chosen.path.isaHbaId());
    EXPECT_EQ(0, counting.scans);
    EXPECT_EQ(2, counting.checks);
}

TEST(AdapterSelection, MissingDeviceAndIdentifierGoOnToTheName)
{
    SimulatedSan san("one-device-named-1");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CountingApi counting(g_pHbaMgmtApi);
    Selection const chosen = selectZek("1");
    EXPECT_EQ(MHBA_S_OK, chosen.code);
    EXPECT_EQ("", chosen.err);
    EXPECT_EQ(0x5EULL, chosen.path.isaHbaId());
    EXPECT_EQ(1, counting.scans);
}

TEST(AdapterSelection, TwoDigitsAreAHexadecimalIdentifier)
{
    SimulatedSan san("two-devices");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CountingApi counting(g_pHbaMgmtApi);
    Selection const chosen = selectZek("12");
    EXPECT_EQ(MHBA_S_OK, chosen.code);
    EXPECT_EQ(0x12ULL, chosen.path.isaHbaId());
    EXPECT_EQ(0, counting.scans);
}

TEST(AdapterSelection, ANameCostsOneScanAndOnlyWhileUnknown)
{
    SimulatedSan san("two-devices");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CountingApi counting(g_pHbaMgmtApi);
    Selection const first = selectZek("mydevice");
    EXPECT_EQ(MHBA_S_OK, first.code);
    EXPECT_EQ(0x12ULL, first.path.isaHbaId());
    EXPECT_EQ(1, counting.scans);
    Selection const again = selectZek("mydevice");
    EXPECT_EQ(MHBA_S_OK, again.code);
    EXPECT_EQ(0x12ULL, again.path.isaHbaId());
    EXPECT_EQ(1, counting.scans);
}

TEST(AdapterSelection, ALocalNameNeedsNoScan)
{
    SimulatedSan san("two-devices");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CountingApi counting(g_pHbaMgmtApi);
    Selection const chosen = selectZek("beta");
    EXPECT_EQ(MHBA_S_OK, chosen.code);
    EXPECT_EQ(0x10B1ULL, chosen.path.isaHbaId());
    EXPECT_EQ(0, counting.scans);
}

TEST(AdapterSelection, ANameThatNoLongerAnswersDoesNotMatch)
{
    SimulatedSan san("two-devices");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Selection const chosen = selectZek("gone");
    EXPECT_NE(MHBA_S_OK, chosen.code);
    EXPECT_EQ("-zek=gone does not match any locally connected ZEK or any ZEK found in the SAN", chosen.err);
    // The code is the library's own answer for that adapter.
    HIsaAdapter* const gone = g_pHbaMgmtApi->getAdapters()->findBySymbolicName("gone");
    ASSERT_NE(nullptr, gone);
    KIsaAdapterPath path = *gone->getAdapterPath();
    EXPECT_EQ(g_pHbaMgmtApi->checkAdapterPath(path), chosen.code);
}

TEST(AdapterSelection, AnUnknownNameGivesTheLastCheckWithoutWords)
{
    SimulatedSan san("two-devices");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CountingApi counting(g_pHbaMgmtApi);
    Selection const chosen = selectZek("nosuchname");
    EXPECT_EQ(MHBA_E_OBJECT_NOT_FOUND, chosen.code);
    EXPECT_EQ("", chosen.err);
    EXPECT_EQ(1, counting.scans);
}

TEST(AdapterSelection, AnUnreadableAgentComesFirst)
{
    SimulatedSan san("two-devices");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    CountingApi counting(g_pHbaMgmtApi);
    TestCommand command;
    command.give(ModifierId::MODIFIER_AGENT, "not an address");
    command.give(ModifierId::MODIFIER_ZEK, "mydevice");
    Selection const chosen = select(command);
    EXPECT_EQ(MHBA_E_BAD_AGENT_ADDRESS, chosen.code);
    EXPECT_NE("", chosen.err);
    EXPECT_EQ(0, counting.checks);
    EXPECT_EQ(0, counting.scans);
}

namespace {

Row const kRequiredZek[] = {
    {1, Token::TOKEN_TYPE_CMD, "", "", CmdAction::ACTION_SHOW, CmdItem::ITEM_LUN, 1},
    {2, addressing_test::kKey, "", "", ModifierId::MODIFIER_ZEK, addressing_test::kReq, addressing_test::kVal},
    {2, addressing_test::kKey, "", "", ModifierId::MODIFIER_AGENT, addressing_test::kOpt, addressing_test::kVal},
    {0, 0, "", "", 0, 0, 0},
};

Row const kNoZek[] = {
    {1, Token::TOKEN_TYPE_CMD, "", "", CmdAction::ACTION_SHOW, CmdItem::ITEM_LUN, 1},
    {2, addressing_test::kKey, "", "", ModifierId::MODIFIER_AGENT, addressing_test::kOpt, addressing_test::kVal},
    {0, 0, "", "", 0, 0, 0},
};

} // namespace

TEST(AdapterSelection, ARequiredZekMustBeGiven)
{
    SimulatedSan san("two-devices");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    TestCommand command(kRequiredZek);
    Selection const chosen = select(command);
    EXPECT_EQ(MHBA_E_INVALID_ARG, chosen.code);
    EXPECT_EQ("-zek must be used to specify a locally connected ZEK or an ZEK in the SAN", chosen.err);
}

TEST(AdapterSelection, ACommandWithoutTheKeyword)
{
    SimulatedSan san("two-devices");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    TestCommand command(kNoZek);
    Selection const chosen = select(command);
    EXPECT_EQ(MHBA_E_FAILURE, chosen.code);
    EXPECT_EQ("\"zek\" is not a valid modifier", chosen.err);
}

TEST(AdapterSelection, AnotherKeywordCanNameTheAdapter)
{
    SimulatedSan san("two-devices");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    TestCommand command;
    command.give(ModifierId::MODIFIER_ZEK, "0");
    command.give(ModifierId::MODIFIER_SECONDARY, "beta");
    KIsaAdapterPath path;
    std::string err;
    EXPECT_EQ(MHBA_S_OK, command.selectAdapterFromKeyword(ModifierId::MODIFIER_SECONDARY, path, err));
    EXPECT_EQ(0x10B1ULL, path.isaHbaId());
}

TEST(AdapterSelection, TheDeviceOfARemoteHost)
{
    SimulatedSan san("two-devices");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    TestCommand command;
    command.give(ModifierId::MODIFIER_AGENT, "127.0.10.1");
    command.give(ModifierId::MODIFIER_ZEK, "0");
    Selection const chosen = select(command);
    EXPECT_EQ(MHBA_S_OK, chosen.code) << chosen.err;
    EXPECT_EQ(0x7E1ULL, chosen.path.isaHbaId());
}

namespace {

struct AgentTest {
    e_MHBA_RETURN code;
    std::string err;
};

AgentTest testAgent(char const* agent)
{
    TestCommand command;
    if (agent)
        command.give(ModifierId::MODIFIER_AGENT, agent);
    PIpAddress address;
    AgentTest result{MHBA_S_OK, ""};
    result.code = command.testAgentConnectionIfAny(address, result.err);
    return result;
}

} // namespace

TEST(AgentConnection, OnlyANamedAgentIsAsked)
{
    SimulatedSan san("two-devices");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    EXPECT_EQ(MHBA_S_OK, testAgent(nullptr).code);
    EXPECT_EQ(MHBA_S_OK, testAgent("127.0.10.1").code);
    AgentTest const silent = testAgent("127.0.10.9");
    EXPECT_EQ(MHBA_E_AGENT_NOT_RESPONDING, silent.code);
    EXPECT_NE("", silent.err);
    EXPECT_EQ(MHBA_E_BAD_AGENT_ADDRESS, testAgent("not an address").code);
}
