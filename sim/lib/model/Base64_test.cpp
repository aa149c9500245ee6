#include "model/Base64.h"

#include <gtest/gtest.h>

using namespace sim;

namespace {

std::string decoded(std::string_view text)
{
    std::string bytes = "left over";
    EXPECT_TRUE(base64::decode(text, bytes)) << text;
    return bytes;
}

} // namespace

TEST(Base64Test, EmptyIsEmpty)
{
    EXPECT_EQ(base64::encode(""), "");
    EXPECT_TRUE(base64::isValid(""));
    EXPECT_EQ(decoded(""), "");
}

TEST(Base64Test, TailsOfOneTwoAndThreeBytes)
{
    EXPECT_EQ(base64::encode("f"), "Zg==");
    EXPECT_EQ(base64::encode("fo"), "Zm8=");
    EXPECT_EQ(base64::encode("foo"), "Zm9v");
    EXPECT_EQ(base64::encode("foob"), "Zm9vYg==");
    EXPECT_EQ(base64::encode("fooba"), "Zm9vYmE=");
    EXPECT_EQ(base64::encode("foobar"), "Zm9vYmFy");
    EXPECT_EQ(decoded("Zg=="), "f");
    EXPECT_EQ(decoded("Zm8="), "fo");
    EXPECT_EQ(decoded("Zm9v"), "foo");
    EXPECT_EQ(decoded("Zm9vYg=="), "foob");
    EXPECT_EQ(decoded("Zm9vYmE="), "fooba");
    EXPECT_EQ(decoded("Zm9vYmFy"), "foobar");
}

TEST(Base64Test, HighBytesUseTheWholeAlphabet)
{
    EXPECT_EQ(base64::encode("\xff\xff\xff"), "////");
    EXPECT_EQ(base64::encode("\xfb\xef\xbe"), "++++");
    EXPECT_EQ(base64::encode(std::string("\0\0\0\0", 4)), "AAAAAA==");
    EXPECT_EQ(decoded("AAAAAA=="), std::string("\0\0\0\0", 4));
}

TEST(Base64Test, EveryByteValueRoundTrips)
{
    std::string all;
    for (int b = 0; b < 256; ++b)
        all += static_cast<char>(b);
    // Every offset, so that each value falls in each place of a group and
    // each tail length is met.
    for (size_t start = 0; start < 3; ++start)
        for (size_t length = 0; length + start <= all.size(); length += 37) {
            std::string bytes = all.substr(start, length);
            std::string text = base64::encode(bytes);
            EXPECT_EQ(text.size(), (bytes.size() + 2) / 3 * 4);
            EXPECT_TRUE(base64::isValid(text)) << text;
            EXPECT_EQ(decoded(text), bytes) << text;
        }
    EXPECT_EQ(decoded(base64::encode(all)), all);
}

TEST(Base64Test, RefusesDamagedText)
{
    for (const char* bad : {"Z", "Zg", "Zg=", "Zm9vY", "Zg==Zg==", "Z===", "====", "=Zm8", "Zm=8", "Zm9v\n", " Zm9v",
                            "Zm9v YmFy", "Zm-v", "Zm_v", "Zm9v*mFy", "Zh==", "Zm9=", "Zm8=====", "\xc3\xa9\xc3\xa9"}) {
        std::string bytes = "untouched";
        EXPECT_FALSE(base64::isValid(bad)) << bad;
        EXPECT_FALSE(base64::decode(bad, bytes)) << bad;
    }
    EXPECT_FALSE(base64::isValid(std::string_view("Zm\0v", 4)));
}
