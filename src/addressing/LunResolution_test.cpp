// LUN keywords resolved against a simulated adapter: what is asked of the
// adapter, what comes back, and the exact words of every refusal.
#include <gtest/gtest.h>

#include "records/PUniqueID.h"
#include "support/AddressingFixture.h"

using addressing_test::SimulatedSan;
using addressing_test::TestCommand;

namespace {

constexpr unsigned long long kAdapter = 0xA0;
std::string const kT1 = "50:00:00:00:00:00:00:01";
std::string const kT1Text = "5000-0000-0000-0001";
std::string const kT2 = "50:00:00:00:00:00:00:02";
std::string const kT2Text = "5000-0000-0000-0002";
std::string const kIscsi = "iqn.2020-01.com.sim:array";
std::string const kBinaryNamed = "600A0B80000000000000000000000A05"; // t1 LUN 5, serial SERIAL-A05
std::string const kTextNamed = "SIMTEXT-LUN-0002";                   // t2 LUN 2
std::string const kOneOnlineOneOffline = "600A0B80000000000000000000000A07";
std::string const kOnT1AndT2 = "600A0B80000000000000000000000D08";

std::string const kGatherAlwaysFails =
    R"([{"adapter": "A0", "operation": "getTargetsAndInitiators", "code": 1000, "once": false}])";

struct Resolved {
    bool ok;
    std::vector<PLunID> luns;
    std::string err;
};

Resolved resolve(TestCommand& command, SimulatedSan const& san, bool destination, bool oneLunRequired)
{
    Resolved result{false, {}, ""};
    HIsaAdapter* const adapter = san.adapter(kAdapter);
    EXPECT_NE(nullptr, adapter);
    if (adapter)
        result.ok = command.getLunIdFromCommandLine(adapter, destination, oneLunRequired, result.luns, result.err);
    return result;
}

using Given = std::vector<std::pair<ModifierId::MODIFIER_ID, std::string>>;

// A fresh command with these keywords typed, resolved on the adapter.
Resolved resolveGiven(SimulatedSan const& san, Given const& given, bool destination, bool oneLunRequired)
{
    TestCommand command;
    for (auto const& [id, value] : given)
        command.give(id, value);
    return resolve(command, san, destination, oneLunRequired);
}

PTargetID fcTarget(std::string const& text)
{
    PTargetID target;
    target.initFcTargetIDFromString(text);
    return target;
}

PLunID lunOn(std::string const& targetText, int number, PBase::VPGROUP_INDEX index = PBase::VPGROUP_1)
{
    PLunID lun;
    lun.initLunID(fcTarget(targetText), number, index);
    return lun;
}

// The paths as "<target text>:<number>", easy to compare whole.
std::vector<std::string> describe(std::vector<PLunID> const& luns)
{
    std::vector<std::string> texts;
    for (PLunID const& lun : luns)
        texts.push_back(lun.targetID().displayText() + ":" + std::to_string(lun.lunNumber()));
    return texts;
}

using Paths = std::vector<std::string>;

} // namespace

TEST(LunResolution, ANumberAloneListsItOnEveryTarget)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Resolved const found = resolveGiven(san, {{ModifierId::MODIFIER_LUN_NUMBER, "3"}}, false, false);
    EXPECT_TRUE(found.ok) << found.err;
    EXPECT_EQ("", found.err);
    EXPECT_EQ((Paths{kT1Text + ":3", kT2Text + ":3"}), describe(found.luns));
}

TEST(LunResolution, NoKeywordsListEveryLunOfEveryTarget)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    TestCommand command;
    Resolved const found = resolve(command, san, false, false);
    EXPECT_TRUE(found.ok);
    EXPECT_EQ("", found.err);
    EXPECT_EQ((Paths{"5000-0000-0000-000F:7", kT1Text + ":0", kT1Text + ":3", kT1Text + ":5", kT1Text + ":7",
                     kT1Text + ":8", kT2Text + ":2", kT2Text + ":3", kT2Text + ":8", kIscsi + ":2"}),
              describe(found.luns));
}

TEST(LunResolution, NothingFoundIsStillASuccessWithANote)
{
    SimulatedSan san("one-device");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    TestCommand command;
    Resolved result{false, {}, ""};
    result.ok = command.getLunIdFromCommandLine(san.adapter(kAdapter), false, false, result.luns, result.err);
    EXPECT_TRUE(result.ok);
    EXPECT_TRUE(result.luns.empty());
    EXPECT_EQ("No LUNs found\n", result.err);

    command.give(ModifierId::MODIFIER_LUN_NUMBER, "4");
    result.err.clear();
    result.ok = command.getLunIdFromCommandLine(san.adapter(kAdapter), false, false, result.luns, result.err);
    EXPECT_TRUE(result.ok);
    EXPECT_EQ("No LUNs found for  -lun_number=4\n", result.err);
}

TEST(LunResolution, ANameAndANumberThatDisagree)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Resolved const found = resolveGiven(
        san, {{ModifierId::MODIFIER_LUN_WWULN, kBinaryNamed}, {ModifierId::MODIFIER_LUN_NUMBER, "4"}}, false, true);
    EXPECT_FALSE(found.ok);
    EXPECT_EQ("-lun_number=4 conflicts with other LUN Identifiers in the input", found.err);
}

TEST(LunResolution, ANameAndADisagreeingIndexOfTheDestination)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Resolved const found = resolveGiven(
        san, {{ModifierId::MODIFIER_DMDEST_LUN_WWULN, kBinaryNamed}, {ModifierId::MODIFIER_DMDEST_VPGINDEX, "2"}}, true,
        true);
    EXPECT_FALSE(found.ok);
    EXPECT_EQ("-dmdest_vpgindex=2 conflicts with other LUN Identifiers in the input", found.err);
}

TEST(LunResolution, TwoKindsOfNameAreRefusedBeforeAnyQuestion)
{
    SimulatedSan san("luns", kGatherAlwaysFails);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Resolved const found =
        resolveGiven(san, {{ModifierId::MODIFIER_DMDEST_LUN_WWULN, "X"}, {ModifierId::MODIFIER_DMDEST_LUN_SERIAL, "Y"}},
                     true, false);
    EXPECT_FALSE(found.ok);
    EXPECT_EQ("Cannot use more than one of -lun_wwuln, -lun_serial, or -lun_any_wwuln", found.err);
}

TEST(LunResolution, ATargetAloneIsNotOneLun)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Resolved const found = resolveGiven(san, {{ModifierId::MODIFIER_FC_TARGET, kT1}}, false, true);
    EXPECT_FALSE(found.ok);
    EXPECT_EQ(" LUN number is required for LUN:  \" -fc_target=" + kT1Text + "\"", found.err);
    Resolved const destination = resolveGiven(
        san, {{ModifierId::MODIFIER_DMDEST_FC_TARGET, kT1}, {ModifierId::MODIFIER_DMDEST_VPGINDEX, "1"}}, true, true);
    EXPECT_FALSE(destination.ok);
    EXPECT_EQ("Destination LUN:  \" -dmdest_fc_target=" + kT1Text + " -dmdest_vpgindex=1\"", destination.err);
}

TEST(LunResolution, AnIscsiTargetAndNumberNeedNoQuestion)
{
    SimulatedSan san("luns", kGatherAlwaysFails);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Resolved const found = resolveGiven(
        san, {{ModifierId::MODIFIER_IS_TARGET, kIscsi}, {ModifierId::MODIFIER_LUN_NUMBER, "2"}}, false, true);
    EXPECT_TRUE(found.ok) << found.err;
    ASSERT_EQ(1u, found.luns.size());
    EXPECT_EQ(PBase::VPGROUP_1, found.luns[0].vpgIndex());
    EXPECT_EQ(kIscsi + ":2", describe(found.luns)[0]);
}

TEST(LunResolution, AFibreChannelTargetAndNumberAskTheAdapter)
{
    SimulatedSan san("luns", kGatherAlwaysFails);
    ADDRESSING_REQUIRE_SIMULATOR(san);
    TestCommand command;
    command.give(ModifierId::MODIFIER_FC_TARGET, kT1);
    command.give(ModifierId::MODIFIER_LUN_NUMBER, "2");
    Resolved const asked = resolve(command, san, false, true);
    EXPECT_FALSE(asked.ok);
    EXPECT_EQ("getTargetsAndInitiators returned:  " + g_pHbaMgmtApi->returnCodeToText(1000), asked.err);

    command.give(ModifierId::MODIFIER_VPGINDEX, "1");
    Resolved const known = resolve(command, san, false, true);
    EXPECT_TRUE(known.ok) << known.err;
    EXPECT_EQ((Paths{kT1Text + ":2"}), describe(known.luns));
}

TEST(LunResolution, PartialGatheringKeepsItsNoteAndGoesOn)
{
    SimulatedSan san("luns",
                     R"([{"adapter": "A0", "operation": "getTargetsAndInitiators", "code": 2, "firstError": 1004,)"
                     R"( "once": false}])");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    TestCommand command;
    command.give(ModifierId::MODIFIER_LUN_NUMBER, "5");
    Resolved const found = resolve(command, san, false, true);
    EXPECT_TRUE(found.ok) << found.err;
    EXPECT_EQ((Paths{kT1Text + ":5"}), describe(found.luns));
    EXPECT_EQ("getTargetsAndInitiators() returned partial success.  At least one attempt to get info returned " +
                  g_pHbaMgmtApi->returnCodeToText(1004) + "\n",
              found.err);
}

TEST(LunResolution, ANameRegisteredOnlyInBinaryFormOrAsText)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Resolved const binary = resolveGiven(san, {{ModifierId::MODIFIER_LUN_WWULN, kBinaryNamed}}, false, true);
    EXPECT_TRUE(binary.ok) << binary.err;
    EXPECT_EQ((Paths{kT1Text + ":5"}), describe(binary.luns));
    Resolved const text = resolveGiven(san, {{ModifierId::MODIFIER_LUN_WWULN, kTextNamed}}, false, true);
    EXPECT_TRUE(text.ok) << text.err;
    EXPECT_EQ((Paths{kT2Text + ":2"}), describe(text.luns));
    Resolved const serial = resolveGiven(san, {{ModifierId::MODIFIER_LUN_SERIAL, "SERIAL-A05"}}, false, true);
    EXPECT_TRUE(serial.ok) << serial.err;
    EXPECT_EQ((Paths{kT1Text + ":5"}), describe(serial.luns));
}

TEST(LunResolution, AnUnknownName)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Resolved const found = resolveGiven(san, {{ModifierId::MODIFIER_LUN_SERIAL, "NO-SUCH-SERIAL"}}, false, true);
    EXPECT_FALSE(found.ok);
    PLunsForOneNameID key;
    key.initLunsForOneNameID(PBase::LUN_NAME_SERIAL_NUMBER, "NO-SUCH-SERIAL");
    EXPECT_EQ("LUN not found for \"" + key.displayText() + "\"", found.err);
}

TEST(LunResolution, NamesLongerThanTheIndexHolds)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    std::string const longName(300, 'N');
    Resolved const wwuln = resolveGiven(san, {{ModifierId::MODIFIER_LUN_WWULN, longName}}, false, true);
    EXPECT_FALSE(wwuln.ok);
    EXPECT_EQ("Supplied WWULN is too long:  \"" + longName + "\"", wwuln.err);
    Resolved const serial = resolveGiven(san, {{ModifierId::MODIFIER_LUN_SERIAL, longName}}, false, true);
    EXPECT_FALSE(serial.ok);
    EXPECT_EQ("Supplied serial number is too long:  \"" + longName + "\"", serial.err);
}

TEST(LunResolution, AnAdapterThatCannotLookUpSerialNumbers)
{
    SimulatedSan san("luns", R"([{"adapter": "A0", "operation": "scanAll", "code": 1003, "once": false}])");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Resolved const found = resolveGiven(san, {{ModifierId::MODIFIER_LUN_SERIAL, "SERIAL-A05"}}, false, true);
    EXPECT_FALSE(found.ok);
    EXPECT_EQ("Use of serial number to identify LUNs is not supported on this ZEK", found.err);
}

TEST(LunResolution, AFailedNameScanGivesItsCode)
{
    SimulatedSan san("luns", R"([{"adapter": "A0", "operation": "scanTarget", "code": 1206, "once": false}])");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Resolved const found = resolveGiven(
        san, {{ModifierId::MODIFIER_LUN_WWULN, kBinaryNamed}, {ModifierId::MODIFIER_FC_TARGET, kT1}}, false, true);
    EXPECT_FALSE(found.ok);
    EXPECT_EQ("Error attempting to find LUN using WWULN, (1206)", found.err);
}

TEST(LunResolution, EitherKindOfName)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    TestCommand command;
    command.give(ModifierId::MODIFIER_LUN_ANY_WWULN, "SERIAL-A05");
    Resolved const bySerial = resolve(command, san, false, true);
    EXPECT_TRUE(bySerial.ok) << bySerial.err;
    EXPECT_EQ((Paths{kT1Text + ":5"}), describe(bySerial.luns));

    command.give(ModifierId::MODIFIER_LUN_ANY_WWULN, kTextNamed);
    Resolved const byWwuln = resolve(command, san, false, true);
    EXPECT_EQ((Paths{kT2Text + ":2"}), describe(byWwuln.luns));

    command.give(ModifierId::MODIFIER_LUN_ANY_WWULN, "nothing");
    Resolved const none = resolve(command, san, false, true);
    EXPECT_FALSE(none.ok);
    EXPECT_EQ("No LUN found for name \"nothing\"", none.err);
}

TEST(LunResolution, PathsOfOneWwulnCollapseToAnOnlinePath)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    TestCommand command;
    command.give(ModifierId::MODIFIER_LUN_WWULN, kOneOnlineOneOffline);
    Resolved const all = resolve(command, san, false, false);
    EXPECT_EQ((Paths{"5000-0000-0000-000F:7", kT1Text + ":7"}), describe(all.luns));
    Resolved const one = resolve(command, san, false, true);
    EXPECT_TRUE(one.ok) << one.err;
    EXPECT_EQ((Paths{kT1Text + ":7"}), describe(one.luns));
}

TEST(LunResolution, ATargetNarrowsTheNamedPaths)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    TestCommand everywhere;
    everywhere.give(ModifierId::MODIFIER_LUN_WWULN, kOnT1AndT2);
    EXPECT_EQ((Paths{kT1Text + ":8", kT2Text + ":8"}), describe(resolve(everywhere, san, false, false).luns));

    // The name index already knows both paths; the target picks one.
    TestCommand throughT2;
    throughT2.give(ModifierId::MODIFIER_LUN_WWULN, kOnT1AndT2);
    throughT2.give(ModifierId::MODIFIER_FC_TARGET, kT2);
    Resolved const found = resolve(throughT2, san, false, true);
    EXPECT_TRUE(found.ok) << found.err;
    EXPECT_EQ((Paths{kT2Text + ":8"}), describe(found.luns));
}

TEST(LunResolution, SeveralLunsWhereOneIsWanted)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Resolved const found = resolveGiven(san, {{ModifierId::MODIFIER_LUN_NUMBER, "3"}}, false, true);
    EXPECT_FALSE(found.ok);
    EXPECT_EQ("Multiple Luns found for  -lun_number=3\n"
              "    -lun_number=3 -fc_target=" +
                  kT1Text +
                  "\n"
                  "    -lun_number=3 -fc_target=" +
                  kT2Text + "\n",
              found.err);
}

TEST(LunResolution, NoLunWhereOneIsWanted)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    TestCommand command;
    command.give(ModifierId::MODIFIER_FC_TARGET, kT2);
    command.give(ModifierId::MODIFIER_LUN_NUMBER, "99");
    Resolved const found = resolve(command, san, false, true);
    EXPECT_FALSE(found.ok);
    EXPECT_EQ(" LUN not found for \" -fc_target=" + kT2Text + " -lun_number=99\"", found.err);

    command.give(ModifierId::MODIFIER_DMDEST_FC_TARGET, kT2);
    command.give(ModifierId::MODIFIER_DMDEST_LUN_NUMBER, "99");
    Resolved const destination = resolve(command, san, true, true);
    EXPECT_FALSE(destination.ok);
    EXPECT_EQ("Destination LUN not found for \" -dmdest_fc_target=" + kT2Text + " -dmdest_lun_number=99\"",
              destination.err);
}

TEST(LunResolution, AKeywordTheCommandLacks)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    addressing_test::Row const rows[] = {
        {1, Token::TOKEN_TYPE_CMD, "", "", CmdAction::ACTION_SHOW, CmdItem::ITEM_LUN, 1},
        {2, addressing_test::kKey, "", "", ModifierId::MODIFIER_LUN_NUMBER, addressing_test::kOpt,
         addressing_test::kVal},
        {0, 0, "", "", 0, 0, 0},
    };
    TestCommand command(rows);
    Resolved const found = resolve(command, san, false, false);
    EXPECT_FALSE(found.ok);
    EXPECT_EQ("\"vpgindex\" is not a valid modifier", found.err);
}

namespace {

struct Filtered {
    bool ok;
    std::vector<PLunID> luns;
    std::string err;
};

// The adapter's LUN objects exist once its LUNs have been listed.
Filtered filter(SimulatedSan const& san, std::vector<PLunID> luns)
{
    TestCommand lister;
    std::vector<PLunID> all;
    std::string ignored;
    HIsaAdapter* const adapter = san.adapter(kAdapter);
    lister.getLunIdFromCommandLine(adapter, false, false, all, ignored);
    Filtered result{false, std::move(luns), ""};
    result.ok = lister.filterLunIdListToOnePerMulipathLun(adapter, result.luns, result.err);
    return result;
}

} // namespace

TEST(OneLunPerMultipathLun, AnEmptyList)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Filtered const result = filter(san, {});
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(" One LUN must be specified.", result.err);
}

TEST(OneLunPerMultipathLun, OneEntryIsNeverLookedUp)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    TestCommand command;
    std::vector<PLunID> luns{lunOn("50:00:00:00:00:00:00:99", 42)};
    std::string err;
    EXPECT_TRUE(command.filterLunIdListToOnePerMulipathLun(san.adapter(kAdapter), luns, err));
    EXPECT_EQ(1u, luns.size());
    EXPECT_EQ("", err);
}

TEST(OneLunPerMultipathLun, TwoPathsOfOneLunKeepTheFirst)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Filtered const result = filter(san, {lunOn(kT2, 8), lunOn(kT1, 8)});
    EXPECT_TRUE(result.ok) << result.err;
    EXPECT_EQ((Paths{kT2Text + ":8"}), describe(result.luns));
}

TEST(OneLunPerMultipathLun, TwoPathsEachOfTwoLuns)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Filtered const result =
        filter(san, {lunOn(kT1, 8), lunOn(kT2, 8), lunOn("50:00:00:00:00:00:00:0f", 7), lunOn(kT1, 7)});
    EXPECT_FALSE(result.ok);
    EXPECT_EQ("Multiple SAN LUNs specified, but this command can only be applied to one LUN.\n"
              "-lun_wwuln=600A-0B80-0000-0000-0000-0000-0000-0D08\n"
              "-lun_wwuln=600A-0B80-0000-0000-0000-0000-0000-0A07\n",
              result.err);
}

TEST(OneLunPerMultipathLun, AControllerLunIsNoSecondLun)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    Filtered const result = filter(san, {lunOn(kT1, 5), lunOn(kT1, 0)});
    EXPECT_FALSE(result.ok);
    EXPECT_EQ("No SAN data LUN specified", result.err);
}

TEST(OneLunPerMultipathLun, AnUnknownPath)
{
    SimulatedSan san("luns");
    ADDRESSING_REQUIRE_SIMULATOR(san);
    PLunID const unknown = lunOn(kT1, 42);
    Filtered const result = filter(san, {lunOn(kT1, 5), unknown});
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(" Specified LUN not found --> " + unknown.displayText(), result.err);
}
