#include "api/Ids.h"

#include "model/DefaultSan.h"

#include <gtest/gtest.h>

using namespace sim;

namespace {

const Lun* findByName(WwulnIndex& index, const San& san, const Lun& named)
{
    std::vector<unsigned char> bytes = wwulnBytes(named);
    return index.find(san, bytes.data(), bytes.size());
}

class WwulnIndexTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        setenv("HBASIM_TIME", "1795000000", 1);
        san = defaultSan();
        ASSERT_GE(san.luns.size(), 3u);
    }
    San san;
    WwulnIndex index;
};

} // namespace

TEST_F(WwulnIndexTest, FindsEveryLunByTheBytesOfItsName)
{
    for (const Lun& l : san.luns)
        EXPECT_EQ(findByName(index, san, l), &l) << l.wwuln;
    Lun text;
    text.wwuln = "a text name";
    text.codeSet = 2;
    san.luns.push_back(text);
    EXPECT_EQ(findByName(index, san, text), &san.luns.back());
}

TEST_F(WwulnIndexTest, UnknownOrMissingNamesFindNothing)
{
    const unsigned char unknown[] = {0x60, 0x01, 0x02};
    EXPECT_EQ(index.find(san, unknown, sizeof unknown), nullptr);
    EXPECT_EQ(index.find(san, nullptr, 4), nullptr);
    std::vector<unsigned char> first = wwulnBytes(san.luns[0]);
    EXPECT_EQ(index.find(san, first.data(), first.size() - 1), nullptr);
    San empty;
    EXPECT_EQ(index.find(empty, first.data(), first.size()), nullptr);
}

TEST_F(WwulnIndexTest, AnswersFromTheSanAsItIsNowAfterLunsMove)
{
    Lun third = san.luns[2];
    ASSERT_EQ(findByName(index, san, third), &san.luns[2]);
    san.luns.erase(san.luns.begin());
    EXPECT_EQ(findByName(index, san, third), &san.luns[1]);
    Lun gone = san.luns[1];
    san.luns.erase(san.luns.begin() + 1);
    EXPECT_EQ(findByName(index, san, gone), nullptr);
}

TEST_F(WwulnIndexTest, ARenamedLunIsFoundOnlyByItsNewName)
{
    Lun before = san.luns[0];
    ASSERT_EQ(findByName(index, san, before), &san.luns[0]);
    san.luns[0].wwuln = "600A0B80000000000000000000000099";
    san.luns[0].codeSet = 1;
    EXPECT_EQ(findByName(index, san, before), nullptr);
    EXPECT_EQ(findByName(index, san, san.luns[0]), &san.luns[0]);
}

TEST_F(WwulnIndexTest, TheFirstOfTwoEqualNamesIsFound)
{
    san.luns.push_back(san.luns[1]);
    EXPECT_EQ(findByName(index, san, san.luns[1]), &san.luns[1]);
}

TEST(HexToBytesTest, DigitsOfEitherCaseMakeBytes)
{
    std::vector<unsigned char> out = {9};
    EXPECT_TRUE(hexToBytes("0aFF10", out));
    EXPECT_EQ(out, (std::vector<unsigned char>{0x0A, 0xFF, 0x10}));
    EXPECT_TRUE(hexToBytes("", out));
    EXPECT_TRUE(out.empty());
}

TEST(HexToBytesTest, ABadDigitKeepsTheBytesBeforeItAndAnOddCountNone)
{
    std::vector<unsigned char> out;
    EXPECT_FALSE(hexToBytes("0a1Z22", out));
    EXPECT_EQ(out, (std::vector<unsigned char>{0x0A}));
    EXPECT_FALSE(hexToBytes("Z0", out));
    EXPECT_TRUE(out.empty());
    out = {1, 2};
    EXPECT_FALSE(hexToBytes("0a1", out));
    EXPECT_TRUE(out.empty());
}

namespace {

// A WWULN as the command line passes it when it retries by name: text, in the
// form the user typed.
KWwulnLunID typedWwuln(const std::string& text)
{
    std::vector<unsigned char> bytes(text.begin(), text.end());
    KWwulnLunID id;
    id.initWwulnLunID(PBase::WWULN_CODE_SET_TEXT, static_cast<int>(bytes.size()), bytes.data());
    return id;
}

} // namespace

TEST_F(WwulnIndexTest, ABinaryWwulnTypedAsTheToolPrintsItNamesTheSameLun)
{
    const Lun* lun = findLunByWwuln(san, std::string("600A0B80002A1C3D0000000052B2A001"));
    ASSERT_NE(lun, nullptr);
    EXPECT_EQ(lunForWwulnId(san, wwulnId(*lun)), lun);
    EXPECT_EQ(lunForWwulnId(san, typedWwuln("600A0B80002A1C3D0000000052B2A001")), lun);
    EXPECT_EQ(lunForWwulnId(san, typedWwuln("600a0b80002a1c3d0000000052b2a001")), lun);
    EXPECT_EQ(lunForWwulnId(san, typedWwuln("600A-0B80-002A-1C3D-0000-0000-52B2-A001")), lun);
    EXPECT_EQ(lunForWwulnId(san, typedWwuln("600a-0b80-002a-1c3d-0000-0000-52b2-a001")), lun);
    EXPECT_EQ(findLunByWwuln(san, std::string("600A-0B80-002A-1C3D-0000-0000-52B2-A001")), lun);
}

TEST_F(WwulnIndexTest, OnlyDashesBetweenDigitsAreLeftOutOfATypedWwuln)
{
    for (const char* text : {"-600A0B80002A1C3D0000000052B2A001", "600A0B80002A1C3D0000000052B2A001-",
                             "600A--0B80002A1C3D0000000052B2A001", "600A:0B80:002A:1C3D:0000:0000:52B2:A001"})
        EXPECT_EQ(lunForWwulnId(san, typedWwuln(text)), nullptr) << text;
    // A text WWULN keeps its dashes: it is found as it is written.
    const Lun* text = findLunByWwuln(san, std::string("vault.example:lun-archive-07"));
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(lunForWwulnId(san, typedWwuln("vault.example:lun-archive-07")), text);
    EXPECT_EQ(lunForWwulnId(san, typedWwuln("vault.example:lunarchive07")), nullptr);
}
