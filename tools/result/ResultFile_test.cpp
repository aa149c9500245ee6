#include "ResultFile.h"

#include <gtest/gtest.h>

namespace {

void appendWord(std::vector<unsigned char>& bytes, uint32_t value)
{
    for (int i = 0; i < 4; ++i)
        bytes.push_back(static_cast<unsigned char>(value >> (8 * i)));
}

// One record as -result writes it: header, optional section, terminator.
std::vector<unsigned char> record(int32_t action, int32_t item, int32_t status,
                                  std::vector<unsigned char> const& payload)
{
    std::vector<unsigned char> bytes;
    appendWord(bytes, 32);
    appendWord(bytes, 0xdeadbeef); // the undefined word
    for (uint32_t part : {2u, 103u, 6u, 4u})
        appendWord(bytes, part);
    appendWord(bytes, static_cast<uint32_t>(action));
    appendWord(bytes, static_cast<uint32_t>(item));
    appendWord(bytes, static_cast<uint32_t>(status));
    if (!payload.empty()) {
        appendWord(bytes, static_cast<uint32_t>(payload.size() + 4));
        bytes.insert(bytes.end(), payload.begin(), payload.end());
    }
    appendWord(bytes, 0);
    return bytes;
}

TEST(ResultFile, RecordsWithAndWithoutPayload)
{
    std::vector<unsigned char> bytes = record(31, 25, 0, {});
    EXPECT_EQ(40u, bytes.size());
    std::vector<unsigned char> const second = record(31, 25, 1206, {1, 2, 3});
    EXPECT_EQ(47u, second.size());
    bytes.insert(bytes.end(), second.begin(), second.end());
    std::vector<ResultRecord> records;
    std::string err;
    ASSERT_TRUE(parseResultFile(bytes, records, err)) << err;
    ASSERT_EQ(2u, records.size());
    EXPECT_EQ(31, records[0].action);
    EXPECT_EQ(25, records[0].item);
    EXPECT_TRUE(records[0].payload.empty());
    EXPECT_EQ(40u, records[1].offset);
    EXPECT_EQ(1206, records[1].status);
    EXPECT_EQ(103u, records[1].apiVersion[1]);
    EXPECT_EQ((std::vector<unsigned char>{1, 2, 3}), records[1].payload);
}

struct Damage {
    std::vector<unsigned char> bytes;
    std::string message;
};

TEST(ResultFile, DamagedFilesAreRefusedWithTheOffset)
{
    std::vector<unsigned char> const good = record(31, 25, 0, {9, 9, 9, 9});
    ASSERT_EQ(48u, good.size());
    std::vector<unsigned char> badHeader = good;
    badHeader.at(0) = 33;
    std::vector<unsigned char> hugeSection = good;
    hugeSection.at(39) = 0x7f;
    // The terminator is the last word, 44 to 47.
    std::vector<unsigned char> noTerminator = good;
    noTerminator.at(44) = 1;
    std::vector<unsigned char> trailing = good;
    trailing.push_back(0);
    Damage const cases[] = {
        {{}, "the file is empty"},
        {badHeader, "not a result record at byte 0: header size 33"},
        {std::vector<unsigned char>(good.begin(), good.end() - 1), "runs past the end of the file"},
        {hugeSection, "payload section of 2130706440 bytes at byte 36"},
        {noTerminator, "record not terminated by a zero word at byte 44"},
        {trailing, "record cut short at byte 48: 1 bytes left"},
    };
    for (Damage const& damage : cases) {
        std::vector<ResultRecord> records;
        std::string err;
        EXPECT_FALSE(parseResultFile(damage.bytes, records, err)) << damage.message;
        EXPECT_NE(std::string::npos, err.find(damage.message)) << err;
    }
}

} // namespace
