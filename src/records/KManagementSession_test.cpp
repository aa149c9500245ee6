#include "records/KManagementSession.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

class KManagementSessionFile : public ::testing::Test {
protected:
    void SetUp() override
    {
        char pattern[] = "/tmp/zek_session_XXXXXX";
        int fd = mkstemp(pattern);
        ASSERT_GE(fd, 0);
        close(fd);
        path = pattern;
    }
    void TearDown() override { remove(path.c_str()); }

    std::vector<unsigned char> fileBytes() const
    {
        std::vector<unsigned char> bytes;
        FILE* file = fopen(path.c_str(), "rb");
        if (file != nullptr) {
            int c;
            while ((c = fgetc(file)) != EOF) {
                bytes.push_back(static_cast<unsigned char>(c));
            }
            fclose(file);
        }
        return bytes;
    }

    std::string path;
};

KManagementSession session()
{
    KManagementSession result;
    memcpy(result.sessionId, "ID-1", 4);
    result.sessionIdLength = 4;
    memcpy(result.sessionKey, "secret", 6);
    result.sessionKeyLength = 6;
    return result;
}

TEST_F(KManagementSessionFile, SaveWritesLengthsAndUsedBytesOnly)
{
    ASSERT_TRUE(session().saveToFile(path));
    std::vector<unsigned char> expected = {4, 0, 0, 0, 'I', 'D', '-', '1', 6, 0, 0, 0, 's', 'e', 'c', 'r', 'e', 't'};
    EXPECT_EQ(expected, fileBytes());
}

TEST_F(KManagementSessionFile, RestoreReadsWhatWasSaved)
{
    ASSERT_TRUE(session().saveToFile(path));
    KManagementSession restored;
    ASSERT_TRUE(restored.restoreFromFile(path));
    EXPECT_EQ(4u, restored.sessionIdLength);
    EXPECT_EQ(0, memcmp("ID-1", restored.sessionId, 4));
    EXPECT_EQ(6u, restored.sessionKeyLength);
    EXPECT_EQ(0, memcmp("secret", restored.sessionKey, 6));
}

TEST_F(KManagementSessionFile, ShortFileStillRestoresWhatItHolds)
{
    FILE* file = fopen(path.c_str(), "wb");
    ASSERT_NE(nullptr, file);
    const unsigned char bytes[] = {4, 0, 0, 0, 'I', 'D'};
    fwrite(bytes, 1, sizeof bytes, file);
    fclose(file);
    KManagementSession restored;
    EXPECT_TRUE(restored.restoreFromFile(path));
    EXPECT_EQ(0, memcmp("ID", restored.sessionId, 2));
    EXPECT_EQ(0u, restored.sessionKeyLength);
}

TEST_F(KManagementSessionFile, ClaimedLengthsBeyondTheFieldsAreCut)
{
    FILE* file = fopen(path.c_str(), "wb");
    ASSERT_NE(nullptr, file);
    const unsigned char bytes[] = {0xFF, 0xFF, 0xFF, 0x7F};
    fwrite(bytes, 1, sizeof bytes, file);
    fwrite(std::string(400, 'z').data(), 1, 400, file);
    fclose(file);
    KManagementSession restored;
    EXPECT_TRUE(restored.restoreFromFile(path));
    EXPECT_EQ(KManagementSession::SESSION_ID_SIZE, restored.sessionIdLength);
    EXPECT_LE(restored.sessionKeyLength, KManagementSession::SESSION_KEY_SIZE);
}

TEST(KManagementSession, FilesThatCannotBeOpenedGiveFalse)
{
    EXPECT_FALSE(session().saveToFile("/nonexistent-dir/zek/session"));
    KManagementSession restored;
    EXPECT_FALSE(restored.restoreFromFile("/nonexistent-dir/zek/session"));
}

TEST(KManagementSession, HasNoText)
{
    EXPECT_EQ("", session().displayText());
}

} // namespace
