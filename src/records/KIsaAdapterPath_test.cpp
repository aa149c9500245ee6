#include "records/KIsaAdapterPath.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace {

PIpAddress agentAddress(unsigned char last)
{
    PIpAddress address;
    address.setType(PIpAddress::IPV_SHORT_1);
    unsigned char bytes[4] = {127, 0, 10, last};
    address.setData(bytes, sizeof bytes);
    std::string text = "127.0.10." + std::to_string(last);
    address.setNumericText(text.c_str(), "");
    return address;
}

KIsaAdapterPath path(unsigned long long id, int instance, bool local, const PIpAddress& agent = PIpAddress())
{
    KIsaAdapterPath result;
    result.init(id, instance, local, agent, KIsaAdapterPath::ADAPTER_TYPE_1);
    return result;
}

TEST(KIsaAdapterPath, DefaultPathHasAllOnesIdAndNoInstance)
{
    KIsaAdapterPath empty;
    EXPECT_EQ(~0ULL, empty.isaHbaId());
    EXPECT_EQ(-1, empty.deviceInstanceForAccess());
    EXPECT_FALSE(empty.isLocalDevice());
    EXPECT_EQ(KIsaAdapterPath::SELECT_ADAPTER_PATH_NOT_SET, empty.selectAdapterPath());
    EXPECT_EQ("FFFFFFFFFFFFFFFF", empty.hbaIDText());
}

TEST(KIsaAdapterPath, InitChoosesDirectOrAgentPath)
{
    EXPECT_EQ(KIsaAdapterPath::SELECT_ADAPTER_PATH_DIRECT, path(1, 0, true).selectAdapterPath());
    KIsaAdapterPath remote = path(1, 0, true, agentAddress(1));
    EXPECT_EQ(KIsaAdapterPath::SELECT_ADAPTER_PATH_REMOTE_AGENT, remote.selectAdapterPath());
    EXPECT_TRUE(remote.ipAddrRemoteAgentHost() == agentAddress(1));
    EXPECT_EQ(KIsaAdapterPath::ADAPTER_TYPE_1, remote.adapterType());
}

TEST(KIsaAdapterPath, SanPathsThroughOneDeviceDifferingInIdAreDifferent)
{
    EXPECT_FALSE(path(0x1111, 0, false) == path(0x2222, 0, false));
    EXPECT_TRUE(path(0x1111, 0, false) == path(0x1111, 0, false));
}

TEST(KIsaAdapterPath, LocalPathsDifferingOnlyInIdAreEqual)
{
    EXPECT_TRUE(path(0x1111, 0, true) == path(0x2222, 0, true));
}

TEST(KIsaAdapterPath, InstanceLocalityAndAgentMustAgree)
{
    EXPECT_FALSE(path(1, 0, true) == path(1, 1, true));
    EXPECT_FALSE(path(1, 0, true) == path(1, 0, false));
    EXPECT_FALSE(path(1, 0, true) == path(1, 0, true, agentAddress(1)));
    EXPECT_FALSE(path(1, 0, true, agentAddress(1)) == path(1, 0, true, agentAddress(2)));
    EXPECT_TRUE(path(1, 0, true, agentAddress(1)) == path(5, 0, true, agentAddress(1)));
    EXPECT_TRUE(path(1, 0, true) != path(1, 1, true));
    // Paths that were never set have no agent to agree on.
    EXPECT_FALSE(KIsaAdapterPath() == KIsaAdapterPath());
}

TEST(KIsaAdapterPath, RpcProgramsByAdapterType)
{
    EXPECT_EQ(351523, KIsaAdapterPath::rpcType(KIsaAdapterPath::ADAPTER_TYPE_1));
    EXPECT_EQ(351524, KIsaAdapterPath::rpcType(KIsaAdapterPath::ADAPTER_TYPE_2));
    EXPECT_EQ(-1, KIsaAdapterPath::rpcType(KIsaAdapterPath::ADAPTER_TYPE_NOT_SET));
    EXPECT_EQ(-1, KIsaAdapterPath::rpcType(static_cast<KIsaAdapterPath::ADAPTER_TYPE>(3)));
    KIsaAdapterPath second;
    second.init(1, 0, true, PIpAddress(), KIsaAdapterPath::ADAPTER_TYPE_2);
    EXPECT_EQ(351524, second.agentType());
    EXPECT_EQ(351523, path(1, 0, true).agentType());
    EXPECT_EQ(0, KIsaAdapterPath().agentType());
}

TEST(KIsaAdapterPath, NearerPathIsPreferredAndATieKeepsThePathInHand)
{
    KIsaAdapterPath localDevice = path(1, 0, true);
    KIsaAdapterPath localSan = path(1, 0, false);
    KIsaAdapterPath remoteDevice = path(1, 0, true, agentAddress(1));
    KIsaAdapterPath remoteSan = path(1, 0, false, agentAddress(1));
    EXPECT_TRUE(localDevice.isPreferredPathComparedTo(localSan));
    EXPECT_FALSE(localSan.isPreferredPathComparedTo(localDevice));
    EXPECT_TRUE(localSan.isPreferredPathComparedTo(remoteDevice));
    EXPECT_FALSE(remoteDevice.isPreferredPathComparedTo(localSan));
    EXPECT_TRUE(remoteDevice.isPreferredPathComparedTo(remoteSan));
    EXPECT_FALSE(remoteSan.isPreferredPathComparedTo(remoteDevice));
    EXPECT_TRUE(remoteSan.isPreferredPathComparedTo(path(2, 3, false, agentAddress(2))));
}

TEST(KIsaAdapterPath, TextForEveryKindOfPath)
{
    EXPECT_EQ("Adapter ID          = 12AB, (Local device 0)", path(0x12AB, 0, true).displayText());
    EXPECT_EQ("Adapter ID          = 12AB, (SAN access via local device 1)", path(0x12AB, 1, false).displayText());
    EXPECT_EQ("Adapter ID          = 12AB, (Device 2 on remote host 127.0.10.5)",
              path(0x12AB, 2, true, agentAddress(5)).displayText());
    EXPECT_EQ("Adapter ID          = 12AB, (SAN access via device 3 on remote host 127.0.10.5)",
              path(0x12AB, 3, false, agentAddress(5)).displayText());
}

TEST(KIsaAdapterPath, HexTextIsUpperCase)
{
    EXPECT_EQ("200000E08B0A0B0C", KIsaAdapterPath::ui64numberToHexText(0x200000e08b0a0b0cULL));
}

TEST(KIsaAdapterPath, SerializeWritesThePlainFieldsThenTheAgent)
{
    FILE* file = tmpfile();
    ASSERT_NE(nullptr, file);
    KIsaAdapterPath out = path(0x0102030405060708ULL, 6, false, agentAddress(9));
    std::string error;
    ASSERT_TRUE(out.serialize(true, file, error));
    EXPECT_EQ(24L + 1668L, ftell(file));
    rewind(file);
    unsigned char head[24];
    ASSERT_EQ(24u, fread(head, 1, 24, file));
    EXPECT_EQ(0x08, head[0]); // identifier, low byte first
    EXPECT_EQ(6, head[8]);    // device instance
    EXPECT_EQ(0, head[12]);   // not a local device
    EXPECT_EQ(2, head[16]);   // reached through an agent
    EXPECT_EQ(1, head[20]);   // adapter type
    rewind(file);
    KIsaAdapterPath in;
    ASSERT_TRUE(in.serialize(false, file, error));
    EXPECT_TRUE(in == out);
    EXPECT_EQ(out.displayText(), in.displayText());
    fclose(file);
}

TEST(KIsaAdapterPath, CopyKeepsEverything)
{
    KIsaAdapterPath source = path(0xABC, 4, true, agentAddress(3));
    KIsaAdapterPath copy(source);
    EXPECT_EQ(0xABCu, copy.isaHbaId());
    EXPECT_TRUE(copy == source);
    EXPECT_EQ(source.displayText(), copy.displayText());
}

} // namespace
