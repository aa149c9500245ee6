#include "records/KLogEntry.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

KLogEntry entry(const char* source, KLogEntry::RAW_LOG_ENTRY_SEVERITY_TYPE severity, const char* message)
{
    KLogEntry e;
    e.entryNumber = 17;
    strcpy(e.source, source);
    e.severity = severity;
    strcpy(e.message, message);
    e.time.initFromPosixTime(1700000000); // 11/14/2023 22:13:20 GMT
    return e;
}

struct TempFile {
    FILE* file = tmpfile();
    ~TempFile()
    {
        if (file != nullptr)
            fclose(file);
    }
};

} // namespace

TEST(KLogEntry, SeverityTable)
{
    using K = KLogEntry;
    EXPECT_EQ(K::rawLogfileSeverityTypeToText(K::RAW_SEVERITY_UNKNOWN), "UNKN ");
    EXPECT_EQ(K::rawLogfileSeverityTypeToText(K::RAW_SEVERITY_FATAL), "FATAL");
    EXPECT_EQ(K::rawLogfileSeverityTypeToText(K::RAW_SEVERITY_ERROR), "ERROR");
    EXPECT_EQ(K::rawLogfileSeverityTypeToText(K::RAW_SEVERITY_WARNING), "WARN ");
    EXPECT_EQ(K::rawLogfileSeverityTypeToText(K::RAW_SEVERITY_TRACE), "TRACE");
    EXPECT_EQ(K::rawLogfileSeverityTypeToText(K::RAW_SEVERITY_INFO), "INFO ");
    EXPECT_EQ(K::rawLogfileSeverityTypeToText(K::RAW_SEVERITY_DEBUG), "DEBUG");
    EXPECT_EQ(K::rawLogfileSeverityTypeToText(K::RAW_SEVERITY_SYSTEM), "SYSTM");
    EXPECT_EQ(K::rawLogfileSeverityTypeToText(static_cast<K::RAW_LOG_ENTRY_SEVERITY_TYPE>(8)), "Unknown");
    EXPECT_EQ(K::rawLogfileSeverityTypeToText(static_cast<K::RAW_LOG_ENTRY_SEVERITY_TYPE>(-1)), "Unknown");
}

TEST(KLogEntry, SeverityKeywords)
{
    using K = KLogEntry;
    const char* const words[] = {"unknown", "fatal", "error", "warning", "trace", "info", "debug", "system"};
    for (int i = 0; i < K::SEVERITY_COUNT; ++i)
        EXPECT_EQ(K::rawLogfileSeverityTypeToKeyword(static_cast<K::RAW_LOG_ENTRY_SEVERITY_TYPE>(i)), words[i]);
    EXPECT_EQ(K::rawLogfileSeverityTypeToKeyword(static_cast<K::RAW_LOG_ENTRY_SEVERITY_TYPE>(8)), "");
}

TEST(KLogEntry, BlankRecordIsValidAndBeforeTheEpoch)
{
    KLogEntry e;
    EXPECT_TRUE(e.isValid());
    EXPECT_EQ(e.entryNumber, 0);
    EXPECT_EQ(e.severity, KLogEntry::RAW_SEVERITY_UNKNOWN);
    EXPECT_EQ(e.time.getPosixTime(), -1);
    EXPECT_EQ(e.source[0], '\0');
    EXPECT_EQ(e.message[0], '\0');
}

TEST(KLogEntry, TextEndsWithOneNewline)
{
    EXPECT_EQ(entry("cache", KLogEntry::RAW_SEVERITY_ERROR, "Flush failed").displayText(),
              "ERROR 11/14/2023 22:13:20 cache Flush failed\n");
    EXPECT_EQ(entry("cache", KLogEntry::RAW_SEVERITY_INFO, "Flush done\n").displayText(),
              "INFO  11/14/2023 22:13:20 cache Flush done\n");
}

TEST(KLogEntry, DelimitedText)
{
    EXPECT_EQ(entry("fc", KLogEntry::RAW_SEVERITY_WARNING, "Link down").displayDelimitedText(";"),
              "WARN ;11/14/2023 22:13:20;fc;Link down\n");
}

TEST(KLogEntry, UnterminatedTextsStopAtTheirField)
{
    KLogEntry e = entry("x", KLogEntry::RAW_SEVERITY_DEBUG, "y");
    memset(e.source, 'S', sizeof e.source);
    memset(e.message, 'M', sizeof e.message);
    EXPECT_EQ(e.displayDelimitedText("|"),
              "DEBUG|11/14/2023 22:13:20|" + std::string(32, 'S') + "|" + std::string(256, 'M') + "\n");
}

TEST(KLogEntry, MessageSearchIsCaseSensitiveAndStopsAtTheField)
{
    KLogEntry e = entry("fc", KLogEntry::RAW_SEVERITY_WARNING, "Port FC1 link down");
    EXPECT_TRUE(e.messageContains("link down"));
    EXPECT_TRUE(e.messageContains("Port"));
    EXPECT_FALSE(e.messageContains("Link down"));
    EXPECT_FALSE(e.messageContains("fc")); // the source is not searched

    memset(e.message, 'M', sizeof e.message);
    memcpy(e.message + sizeof e.message - 3, "end", 3);
    EXPECT_TRUE(e.messageContains("Mend"));
    EXPECT_FALSE(e.messageContains("endfc"));
}

TEST(KLogEntry, BytesInMemoryAreTheSavedRecord)
{
    KLogEntry e = entry("cachemgr", KLogEntry::RAW_SEVERITY_ERROR, "Flush retried");
    unsigned char bytes[KLogEntry::SAVED_SIZE];
    e.saveTo(bytes);
    TempFile saved;
    ASSERT_EQ(e.save(saved.file), KLogEntry::SAVED_SIZE);
    unsigned char written[KLogEntry::SAVED_SIZE];
    rewind(saved.file);
    ASSERT_EQ(fread(written, 1, sizeof written, saved.file), sizeof written);
    EXPECT_EQ(memcmp(bytes, written, sizeof bytes), 0);

    KLogEntry back;
    back.restoreFrom(bytes);
    EXPECT_TRUE(back == e);
}

TEST(KLogEntry, EqualityIgnoresTheNumber)
{
    KLogEntry a = entry("cache", KLogEntry::RAW_SEVERITY_ERROR, "Flush failed");
    KLogEntry b = a;
    b.entryNumber = 99;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);

    KLogEntry other = a;
    other.time.initFromPosixTime(1700000001);
    EXPECT_FALSE(a == other);
    other = a;
    other.severity = KLogEntry::RAW_SEVERITY_FATAL;
    EXPECT_TRUE(a != other);
    other = a;
    strcpy(other.source, "fc");
    EXPECT_FALSE(a == other);
    other = a;
    strcpy(other.message, "Flush failed!");
    EXPECT_FALSE(a == other);
}

TEST(KLogEntry, BaseRecordHasNothingToCompareOrKeep)
{
    KLogEntryBase a;
    KLogEntryBase b;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
    EXPECT_EQ(a.displayText(), "");
    TempFile tmp;
    ASSERT_NE(tmp.file, nullptr);
    EXPECT_EQ(a.save(tmp.file), 0u);
    EXPECT_EQ(a.restore(tmp.file), 0u);
    EXPECT_EQ(ftell(tmp.file), 0);
}

TEST(KLogEntry, CopyTakesEveryField)
{
    KLogEntry a = entry("cache", KLogEntry::RAW_SEVERITY_ERROR, "Flush failed");
    KLogEntry copy(a);
    EXPECT_EQ(copy.entryNumber, 17);
    EXPECT_EQ(copy.displayText(), a.displayText());
}

TEST(KLogEntry, SavedRecordLayout)
{
    KLogEntry e = entry("cache", KLogEntry::RAW_SEVERITY_TRACE, "Started");
    TempFile tmp;
    ASSERT_NE(tmp.file, nullptr);
    EXPECT_EQ(e.save(tmp.file), 300u);
    EXPECT_EQ(ftell(tmp.file), 300);
    rewind(tmp.file);
    unsigned char record[300];
    ASSERT_EQ(fread(record, 1, sizeof record, tmp.file), 300u);
    int64_t seconds;
    memcpy(&seconds, record, 8);
    EXPECT_EQ(seconds, 1700000000);
    EXPECT_STREQ(reinterpret_cast<const char*>(record + 8), "cache");
    int32_t severity;
    memcpy(&severity, record + 40, 4);
    EXPECT_EQ(severity, 4);
    EXPECT_STREQ(reinterpret_cast<const char*>(record + 44), "Started");
    EXPECT_EQ(record[299], 0);
}

TEST(KLogEntry, RestoreReadsASavedRecord)
{
    KLogEntry first = entry("cache", KLogEntry::RAW_SEVERITY_TRACE, "Started");
    KLogEntry second = entry("fc", KLogEntry::RAW_SEVERITY_FATAL, "Port 2 failed");
    TempFile tmp;
    ASSERT_NE(tmp.file, nullptr);
    first.save(tmp.file);
    second.save(tmp.file);
    rewind(tmp.file);

    KLogEntry back;
    EXPECT_EQ(back.restore(tmp.file), 300u);
    EXPECT_TRUE(back == first);
    EXPECT_EQ(back.entryNumber, 0); // not part of the file form
    EXPECT_EQ(back.restore(tmp.file), 300u);
    EXPECT_TRUE(back == second);
    EXPECT_EQ(back.displayText(), "FATAL 11/14/2023 22:13:20 fc Port 2 failed\n");
}

TEST(KLogEntry, ShortRecordLeavesTheEntryAlone)
{
    KLogEntry kept = entry("cache", KLogEntry::RAW_SEVERITY_ERROR, "Flush failed");
    TempFile tmp;
    ASSERT_NE(tmp.file, nullptr);
    fwrite("abcdef", 1, 6, tmp.file);
    rewind(tmp.file);
    KLogEntry e = kept;
    EXPECT_EQ(e.restore(tmp.file), 6u);
    EXPECT_TRUE(e == kept);
    EXPECT_EQ(e.restore(tmp.file), 0u);
    EXPECT_TRUE(e == kept);
    EXPECT_EQ(e.save(nullptr), 0u);
    EXPECT_EQ(e.restore(nullptr), 0u);
}

TEST(KLogEntry, SerialisedFormIsThreeHundredBytes)
{
    KLogEntry e = entry("cache", KLogEntry::RAW_SEVERITY_ERROR, "Flush failed");
    TempFile tmp;
    ASSERT_NE(tmp.file, nullptr);
    std::string error;
    ASSERT_TRUE(e.serialize(true, tmp.file, error));
    EXPECT_EQ(ftell(tmp.file), 300);

    // Valid word, number, source, severity, message.
    rewind(tmp.file);
    unsigned char bytes[300];
    ASSERT_EQ(fread(bytes, 1, sizeof bytes, tmp.file), 300u);
    uint32_t valid;
    int32_t number;
    memcpy(&valid, bytes, 4);
    memcpy(&number, bytes + 4, 4);
    EXPECT_EQ(valid, 1u);
    EXPECT_EQ(number, 17);
    EXPECT_STREQ(reinterpret_cast<const char*>(bytes + 8), "cache");
    EXPECT_STREQ(reinterpret_cast<const char*>(bytes + 44), "Flush failed");

    rewind(tmp.file);
    KLogEntry back;
    ASSERT_TRUE(back.serialize(false, tmp.file, error));
    EXPECT_EQ(back.entryNumber, 17);
    EXPECT_EQ(back.severity, KLogEntry::RAW_SEVERITY_ERROR);
    EXPECT_STREQ(back.message, "Flush failed");
    EXPECT_EQ(error, "");
}

TEST(KLogEntry, SerialisingFromAnEmptyFileFails)
{
    TempFile tmp;
    ASSERT_NE(tmp.file, nullptr);
    KLogEntry e;
    std::string error;
    EXPECT_FALSE(e.serialize(false, tmp.file, error));
    EXPECT_EQ(error, "Could not read from file");
}
