#include "api/FabricGather.h"

#include <gtest/gtest.h>

using namespace sim;

namespace {

Target fcTarget(const std::string& name, const std::string& wwpn, std::vector<int> ports)
{
    Target t;
    t.name = name;
    t.wwpn = wwpn;
    t.ports = std::move(ports);
    return t;
}

Initiator fcInitiator(const std::string& wwpn)
{
    Initiator i;
    i.wwpn = wwpn;
    return i;
}

// One adapter with two ports, two targets (one on each port), and an
// initiator that shares its port name with the second target.
class FabricGatherTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        Adapter a;
        a.id.value = 0xA0;
        a.ports.resize(2);
        san.adapters.push_back(a);
        san.targets = {fcTarget("one", "5000000000000001", {1}), fcTarget("two", "5000000000000002", {2})};
        san.initiators = {fcInitiator("5000000000000002"), fcInitiator("1000000000000001")};
    }
    void gather() { gatherFabricObjects(san, san.adapters[0], nullptr, targets, initiators, devices); }
    SimDevice* device(const std::string& wwpn)
    {
        KDeviceID id;
        id.initFcDeviceIDFromString(wwpn);
        return devices.lookup(id);
    }

    San san;
    SimTargetCollection targets;
    SimInitiatorCollection initiators;
    SimDeviceCollection devices;
};

} // namespace

TEST_F(FabricGatherTest, APortNameThatIsTargetAndInitiatorIsOneDeviceWithBothParts)
{
    gather();
    EXPECT_EQ(targets.items.size(), 2u);
    EXPECT_EQ(initiators.items.size(), 2u);
    ASSERT_EQ(devices.items.size(), 3u);
    SimDevice* both = device("5000000000000002");
    ASSERT_NE(both, nullptr);
    EXPECT_TRUE(both->info.isTarget);
    EXPECT_TRUE(both->info.isInitiator);
    EXPECT_TRUE(both->info.target.isDiscoveredOnPort_2());
    EXPECT_TRUE(both->info.initiator.isFcInitiator());
    SimDevice* initiatorOnly = device("1000000000000001");
    ASSERT_NE(initiatorOnly, nullptr);
    EXPECT_FALSE(initiatorOnly->info.isTarget);
    EXPECT_TRUE(initiatorOnly->info.isInitiator);
}

TEST_F(FabricGatherTest, AGatheringDropsWhatIsNoLongerSeenAndKeepsTheRest)
{
    gather();
    HTarget* two = targets.items[1];
    SimDevice* both = device("5000000000000002");
    san.adapters[0].ports[0].enabled = false;
    san.initiators.pop_back();
    gather();
    ASSERT_EQ(targets.items.size(), 1u);
    EXPECT_EQ(targets.items[0], two);
    EXPECT_EQ(targets.byName("one"), nullptr);
    KTargetInfo const* info = two->getTargetInfo();
    EXPECT_NE(info, nullptr);
    EXPECT_EQ(initiators.items.size(), 1u);
    ASSERT_EQ(devices.items.size(), 1u);
    EXPECT_EQ(devices.items[0], both);
    EXPECT_EQ(device("5000000000000001"), nullptr);

    san.adapters[0].ports[0].enabled = true;
    gather();
    EXPECT_EQ(targets.items.size(), 2u);
    EXPECT_NE(targets.byName("one"), nullptr);
}

TEST_F(FabricGatherTest, EveryGatheringRefreshesTheRecords)
{
    gather();
    SimDevice* both = device("5000000000000002");
    EXPECT_TRUE(both->info.initiator.isLoggedIn());
    san.targets[1].maxOutstandingIo = 300;
    san.initiators[0].loggedIn = false;
    gather();
    EXPECT_EQ(both->info.target.maxOutstandingIo, 300u);
    EXPECT_FALSE(both->info.initiator.isLoggedIn());
    EXPECT_EQ(targets.byName("two")->info.maxOutstandingIo, 300u);

    // A part that is gone is gone from the device too.
    san.initiators.erase(san.initiators.begin());
    gather();
    EXPECT_TRUE(both->info.isTarget);
    EXPECT_FALSE(both->info.isInitiator);
}

TEST_F(FabricGatherTest, ANewLimitReachesTheHeldTargetAndItsDevice)
{
    gather();
    PTargetID two;
    two.initFcTargetIDFromString("5000000000000002");
    noteTargetLimit(two, 64, targets, devices);
    EXPECT_EQ(targets.byName("two")->info.maxOutstandingIo, 64u);
    EXPECT_EQ(device("5000000000000002")->info.target.maxOutstandingIo, 64u);
    EXPECT_EQ(targets.byName("one")->info.maxOutstandingIo, 0u);
}
