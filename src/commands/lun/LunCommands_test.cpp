// The per-LUN steps of list lun and show lun against a simulated adapter:
// the lines of a target, the refusals, and a record that cannot be read.
#include <gtest/gtest.h>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "api/MHbaReturnBuffer.h"
#include "commands/lun/CmdLunList.h"
#include "commands/lun/CmdLunShow.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"
#include "support/AddressingFixture.h"

using addressing_test::SimulatedSan;

namespace {

constexpr unsigned long long kAdapter = 0xA0;
std::string const kT1 = "5000-0000-0000-0001";
std::string const kT2 = "5000-0000-0000-0002";

std::string const kRefreshFails = R"([{"adapter": "A0", "operation": "refreshLunInfo", "code": 1000, "once": false}])";

PTargetID fcTarget(std::string const& text)
{
    PTargetID target;
    target.initFcTargetIDFromString(text);
    return target;
}

PLunID lunOn(std::string const& target, int number)
{
    PLunID lun;
    lun.initLunID(fcTarget(target), number, PBase::VPGROUP_1);
    return lun;
}

// Gathers the adapter's targets and the LUNs of one, as a command would.
HIsaAdapter* gathered(SimulatedSan const& san, std::string const& target)
{
    HIsaAdapter* const adapter = san.adapter(kAdapter);
    if (!adapter)
        return nullptr;
    MHbaReturnBuffer firstFailure;
    EXPECT_EQ(0, adapter->getTargetsAndInitiators(&firstFailure));
    HTarget* const seen = adapter->getTargets()->find(fcTarget(target));
    EXPECT_NE(nullptr, seen);
    if (seen) {
        EXPECT_EQ(0, adapter->getLunsForSpecificTarget(seen, &firstFailure));
    }
    return adapter;
}

// What showOneLun gives for one LUN path.
struct Shown {
    int code;
    std::string text;
    std::vector<KLunInfo> infos;
    std::string err;
};

Shown showOne(HIsaAdapter* adapter, PLunID const& lun)
{
    CmdLunShow command;
    Shown shown{0, "", {}, ""};
    shown.code = command.showOneLun(adapter, lun, shown.text, shown.infos, shown.err);
    return shown;
}

} // namespace

TEST(CmdLunList, OneTargetGivesALinePerLunAndListsThem)
{
    SimulatedSan san("luns");
    ASSERT_TRUE(san.loaded);
    HIsaAdapter* const adapter = gathered(san, kT2);
    ASSERT_NE(nullptr, adapter);
    CmdLunList command;
    std::string text = "before";
    std::vector<PLunID> luns;
    std::string err;
    EXPECT_EQ(0, command.listLunsForOneTarget(adapter, fcTarget(kT2), text, luns, err));
    EXPECT_EQ("before\n\nTarget \"" + kT2 +
                  "\"\n"
                  "        -lun_number=2 -fc_target=" +
                  kT2 +
                  "\n"
                  "        -lun_number=3 -fc_target=" +
                  kT2 +
                  "\n"
                  "        -lun_number=8 -fc_target=" +
                  kT2 + "\n",
              text);
    ASSERT_EQ(3u, luns.size());
    EXPECT_TRUE(luns[1] == lunOn(kT2, 3));
}

TEST(CmdLunList, ATargetTheAdapterDoesNotSeeIsNotFound)
{
    SimulatedSan san("luns");
    ASSERT_TRUE(san.loaded);
    HIsaAdapter* const adapter = gathered(san, kT1);
    ASSERT_NE(nullptr, adapter);
    CmdLunList command;
    std::string text;
    std::vector<PLunID> luns;
    std::string err;
    EXPECT_EQ(1206, command.listLunsForOneTarget(adapter, fcTarget("5000-0000-0000-00FF"), text, luns, err));
    EXPECT_EQ("Target \"5000-0000-0000-00FF\" not found", err);
    EXPECT_EQ("", text);
    EXPECT_TRUE(luns.empty());
}

TEST(CmdLunShow, ALunTheAdapterDoesNotHoldIsNotFound)
{
    SimulatedSan san("luns");
    ASSERT_TRUE(san.loaded);
    HIsaAdapter* const adapter = gathered(san, kT1);
    ASSERT_NE(nullptr, adapter);
    PLunID const missing = lunOn(kT1, 42);
    Shown const shown = showOne(adapter, missing);
    EXPECT_EQ(1206, shown.code);
    EXPECT_EQ("LUN \"" + missing.displayText() + "\" not found", shown.err);
    EXPECT_EQ("", shown.text);
    EXPECT_TRUE(shown.infos.empty());
}

TEST(CmdLunShow, ARecordThatCannotBeReadIsShownAsSuchAndStillGiven)
{
    SimulatedSan san("luns", kRefreshFails);
    ASSERT_TRUE(san.loaded);
    HIsaAdapter* const adapter = gathered(san, kT1);
    ASSERT_NE(nullptr, adapter);
    PLunID const lun = lunOn(kT1, 5);
    HLun* const held = adapter->getLuns()->find(lun);
    ASSERT_NE(nullptr, held);
    held->getLunInfo()->bValid = false;

    Shown const shown = showOne(adapter, lun);
    EXPECT_EQ(0, shown.code);
    EXPECT_EQ("-lun_number=5 -fc_target=" + kT1 + "  (" + g_pHbaMgmtApi->returnCodeToText(1000) +
                  ")\n"
                  "    ****** LUN info not available ******\n"
                  "\n",
              shown.text);
    ASSERT_EQ(1u, shown.infos.size());
    EXPECT_FALSE(shown.infos[0].isLunInfoValid());
}

TEST(CmdLunShow, AReadableSanLunShowsItsNamesAndPlace)
{
    SimulatedSan san("luns");
    ASSERT_TRUE(san.loaded);
    HIsaAdapter* const adapter = gathered(san, kT1);
    ASSERT_NE(nullptr, adapter);
    Shown const shown = showOne(adapter, lunOn(kT1, 5));
    EXPECT_EQ(0, shown.code);
    std::string const& text = shown.text;
    std::string const head = "-lun_number=5 -fc_target=" + kT1 +
        "\n"
        "-lun_wwuln=600A-0B80-0000-0000-0000-0000-0000-0A05\n"
        "-lun_serial=\"SERIAL-A05\"\n"
        "    Target     = " +
        kT1 +
        "\n"
        "    LUN Number = 5\n";
    EXPECT_EQ(head, text.substr(0, head.size()));
    EXPECT_NE(std::string::npos, text.find("    (LUN is not cached)\n"));
    EXPECT_EQ("\n\n", text.substr(text.size() - 2));
    ASSERT_EQ(1u, shown.infos.size());
    EXPECT_TRUE(shown.infos[0].isLunInfoValid());
}
