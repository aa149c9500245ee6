#include "records/PIpAddress.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace {

PIpAddress shortAddress(unsigned char last)
{
    PIpAddress address;
    address.setType(PIpAddress::IPV_SHORT_1);
    unsigned char bytes[4] = {127, 0, 10, last};
    address.setData(bytes, sizeof bytes);
    std::string text = "127.0.10." + std::to_string(last);
    address.setNumericText(text.c_str(), "255.255.255.0");
    return address;
}

TEST(PIpAddress, TwoDefaultAddressesAreNotEqual)
{
    PIpAddress a;
    PIpAddress b;
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
}

TEST(PIpAddress, DefaultAddressShowsInvalid)
{
    EXPECT_EQ("INVALID", PIpAddress().displayText());
    EXPECT_EQ(PIpAddress::IPV_NOT_SET, PIpAddress().getType());
}

TEST(PIpAddress, SetDataWith29BytesChangesNothing)
{
    PIpAddress address = shortAddress(1);
    unsigned char bytes[29];
    memset(bytes, 0xEE, sizeof bytes);
    EXPECT_FALSE(address.setData(bytes, 29));
    EXPECT_EQ(127, address.getData()[0]);
    EXPECT_EQ(0, address.getData()[4]);
    EXPECT_TRUE(address.setData(bytes, 28));
    EXPECT_EQ(0xEE, address.getData()[27]);
}

TEST(PIpAddress, SetSubnetDataLimit16)
{
    PIpAddress address;
    unsigned char bytes[17] = {1, 2, 3};
    EXPECT_FALSE(address.setSubnetData(bytes, 17));
    EXPECT_EQ(0, address.getSubnetData()[0]);
    EXPECT_TRUE(address.setSubnetData(bytes, 16));
    EXPECT_EQ(1, address.getSubnetData()[0]);
}

TEST(PIpAddress, ShortFormsCompareSixteenBytesLongFormsAllTwentyEight)
{
    PIpAddress a = shortAddress(1);
    PIpAddress b = shortAddress(1);
    EXPECT_TRUE(a == b);
    unsigned char tail[28] = {127, 0, 10, 1};
    tail[20] = 9; // beyond the sixteen bytes a short form compares
    b.setData(tail, sizeof tail);
    EXPECT_TRUE(a == b);
    a.setType(PIpAddress::IPV_LONG_1);
    b.setType(PIpAddress::IPV_LONG_1);
    EXPECT_FALSE(a == b);
    a.setData(tail, sizeof tail);
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(shortAddress(1) == shortAddress(2));
}

TEST(PIpAddress, DifferentOrUnknownTypesNeverCompareEqual)
{
    PIpAddress a = shortAddress(1);
    PIpAddress b = shortAddress(1);
    b.setType(PIpAddress::IPV_SHORT_2);
    EXPECT_FALSE(a == b);
    a.setType(static_cast<PIpAddress::IPV_TYPE>(5));
    b.setType(static_cast<PIpAddress::IPV_TYPE>(5));
    EXPECT_FALSE(a == b);
}

TEST(PIpAddress, TextsAndTheirAccessors)
{
    PIpAddress address = shortAddress(7);
    EXPECT_EQ("127.0.10.7", address.displayText());
    // The subnet accessor gives the address text.
    EXPECT_STREQ("127.0.10.7", address.getNumericSubnetText());
    address.setInitText("agent-host", "24");
    address.setLookupText("agent-host.example");
    EXPECT_STREQ("agent-host", address.getInitText());
    EXPECT_STREQ("24", address.getSubnetInitText());
    EXPECT_STREQ("agent-host.example", address.getLookupText());
}

TEST(PIpAddress, OverlongTextIsCutToItsField)
{
    PIpAddress address;
    std::string text(100, '1');
    address.setNumericText(text.c_str(), text.c_str());
    EXPECT_EQ(39u, strlen(address.getNumericText()));
}

TEST(PIpAddress, CopyTakesEveryForm)
{
    PIpAddress source = shortAddress(3);
    source.setInitText("init", "sub");
    PIpAddress copy(source);
    EXPECT_TRUE(copy == source);
    EXPECT_STREQ("127.0.10.3", copy.getNumericText());
    EXPECT_STREQ("init", copy.getInitText());
    PIpAddress assigned = shortAddress(9);
    assigned = source;
    EXPECT_STREQ("sub", assigned.getSubnetInitText());
}

TEST(PIpAddress, SavedAreaRunsFromTheTypeToTheEnd)
{
    PIpAddress address;
    EXPECT_EQ(20u, address.getSerialOffset());
    EXPECT_EQ(1668u, address.getSerialSize());
    FILE* file = tmpfile();
    ASSERT_NE(nullptr, file);
    PIpAddress out = shortAddress(4);
    std::string error;
    ASSERT_TRUE(out.serialize(true, file, error));
    EXPECT_EQ(1668L, ftell(file));
    rewind(file);
    PIpAddress in;
    ASSERT_TRUE(in.serialize(false, file, error));
    EXPECT_TRUE(in == out);
    EXPECT_EQ("127.0.10.4", in.displayText());
    fclose(file);
}

} // namespace
