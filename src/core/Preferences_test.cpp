#include <csignal>
#include <cstring>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "support/CoreTestTree.h"

namespace {

int32_t int32At(std::string const& bytes, size_t offset)
{
    int32_t value = 0;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

std::string saveTree(TokenRoot& root)
{
    FILE* file = tmpfile();
    EXPECT_TRUE(root.saveToPrefFile(file));
    long const size = ftell(file);
    rewind(file);
    std::string bytes(static_cast<size_t>(size), '\0');
    EXPECT_EQ(bytes.size(), fread(bytes.data(), 1, bytes.size(), file));
    fclose(file);
    return bytes;
}

FILE* fileWith(std::string const& bytes)
{
    FILE* file = tmpfile();
    fwrite(bytes.data(), 1, bytes.size(), file);
    rewind(file);
    return file;
}

TokenModifierString* keywordOf(TokenCmd* cmd, ModifierId::MODIFIER_ID id)
{
    std::string err;
    return cmd->findModifier(id, err);
}

constexpr size_t kTables = 2 * 14 * 4;
constexpr size_t kRecord = 108;

} // namespace

class Preferences : public CoreTreeTest {
protected:
    // A second tree of the same build, as the next run would have it.
    void loadInto(Parser& next, std::string const& bytes, bool expected)
    {
        build(next);
        FILE* file = fileWith(bytes);
        EXPECT_EQ(expected, next.root.initFromPrefFile(file));
        fclose(file);
    }
};

TEST_F(Preferences, RoundTripKeepsValuesAppendSetsAndLastChoice)
{
    ASSERT_EQ(0, run("show lun -lun_number=5 -zek=2"));
    parser.root.updateAppendSet("Site", "-quiet ");
    parser.root.lastInteractiveAction = 31;
    parser.root.lastInteractiveItem = 25;
    std::string const bytes = saveTree(parser.root);

    Parser next;
    loadInto(next, bytes, true);
    TokenCmd* const loadedShowLun = showLun;
    EXPECT_EQ("5", keywordOf(loadedShowLun, ModifierId::MODIFIER_LUN_NUMBER)->value);
    EXPECT_EQ("2", keywordOf(loadedShowLun, ModifierId::MODIFIER_ZEK)->value);
    EXPECT_FALSE(keywordOf(loadedShowLun, ModifierId::MODIFIER_LUN_NUMBER)->isDefault);
    std::string err;
    EXPECT_EQ("-quiet ", next.root.getAppendSet("site", err));
    EXPECT_EQ("", err);
    EXPECT_EQ(31, next.root.lastInteractiveAction);
    EXPECT_EQ(25, next.root.lastInteractiveItem);
    // A second generation reads back to the same bytes.
    std::string const nextBytes = saveTree(next.root);
    Parser third;
    loadInto(third, nextBytes, true);
    EXPECT_TRUE(nextBytes == saveTree(third.root));
}

TEST_F(Preferences, LayoutOfTablesAndRecords)
{
    std::string const bytes = saveTree(parser.root);
    EXPECT_EQ(0, int32At(bytes, 0));
    EXPECT_EQ(4, int32At(bytes, 14 * 4));
    EXPECT_EQ(7, int32At(bytes, 17 * 4));
    EXPECT_EQ(0, int32At(bytes, 18 * 4));
    // The root: type 0, one child per command, no texts.
    size_t at = kTables;
    EXPECT_EQ(0, int32At(bytes, at));
    EXPECT_EQ(10, int32At(bytes, at + 4));
    EXPECT_EQ(0, int32At(bytes, at + 8));
    EXPECT_EQ(0, int32At(bytes, at + 12));
    EXPECT_EQ(std::string(40, '\0'), bytes.substr(at + 16, 40));
    EXPECT_EQ(std::string(52, '\0'), bytes.substr(at + 56, 52));
    // The holder of the common keywords: a command with action, item, group 0.
    at += kRecord;
    EXPECT_EQ(4, int32At(bytes, at));
    EXPECT_EQ(12, int32At(bytes, at + 4));
    EXPECT_EQ(0, int32At(bytes, at + 56));
    // Its first keyword, -zek: name "zek", required and needing a value.
    at += kRecord;
    EXPECT_EQ(3, int32At(bytes, at));
    EXPECT_EQ(0, int32At(bytes, at + 4));
    EXPECT_EQ(0, int32At(bytes, at + 8));
    EXPECT_EQ(3, int32At(bytes, at + 12));
    EXPECT_EQ(ModifierId::MODIFIER_ZEK, int32At(bytes, at + 56));
    EXPECT_EQ(1, int32At(bytes, at + 60));
    EXPECT_EQ(1, int32At(bytes, at + 64));
    EXPECT_EQ("zek", bytes.substr(at + kRecord, 3));
    // The last eight bytes are the last interactive choice.
    EXPECT_EQ(std::string(8, '\0'), bytes.substr(bytes.size() - 8));
}

TEST_F(Preferences, ValueBytesStandBeforeTheName)
{
    ASSERT_EQ(0, run("show lun -lun_number=42"));
    std::string const bytes = saveTree(parser.root);
    EXPECT_NE(std::string::npos, bytes.find("42lun_number"));
}

TEST_F(Preferences, GroupTablesAreFixedWhateverTheFileSays)
{
    EXPECT_EQ(4, parser.root.hiddenGroups[0]);
    EXPECT_EQ(0, parser.root.hiddenGroups[4]);
    std::string bytes = saveTree(parser.root);
    int32_t const odd = 9;
    std::memcpy(bytes.data(), &odd, sizeof odd);
    std::memcpy(bytes.data() + 14 * 4 + 8, &odd, sizeof odd);
    Parser next;
    loadInto(next, bytes, true);
    int32_t const hidden[14] = {3, 4, 5, 6, 7};
    EXPECT_EQ(0, std::memcmp(hidden, next.root.hiddenGroups, sizeof hidden));
    int32_t const none[14] = {};
    EXPECT_EQ(0, std::memcmp(none, next.root.disabledGroups, sizeof none));
}

TEST_F(Preferences, CutAnywhereKeepsWhatWasReadAndNeverFails)
{
    ASSERT_EQ(0, run("clear display -zek=9"));
    ASSERT_EQ(0, run("show lun -lun_number=5"));
    std::string const bytes = saveTree(parser.root);
    // Only the last interactive choice may be missing without complaint.
    for (size_t cut = 0; cut < bytes.size(); cut += 7) {
        Parser next;
        loadInto(next, bytes.substr(0, cut), cut >= bytes.size() - 8);
        int32_t const hidden[14] = {3, 4, 5, 6, 7};
        EXPECT_EQ(0, std::memcmp(hidden, next.root.hiddenGroups, sizeof hidden)) << cut;
    }
}

TEST_F(Preferences, CutAfterOneCommandKeepsItsValuesOnly)
{
    ASSERT_EQ(0, run("show lun -lun_number=5"));
    std::string const bytes = saveTree(parser.root);
    size_t const showLunStart = bytes.find("5lun_number");
    ASSERT_NE(std::string::npos, showLunStart);
    Parser next;
    loadInto(next, bytes.substr(0, showLunStart + 11), false);
    EXPECT_EQ("5", keywordOf(showLun, ModifierId::MODIFIER_LUN_NUMBER)->value);
    EXPECT_EQ("", keywordOf(showLun, ModifierId::MODIFIER_ZEK)->value);
    EXPECT_TRUE(keywordOf(showLun, ModifierId::MODIFIER_ZEK)->isDefault);
}

TEST_F(Preferences, FileOfAnotherCommandSetIsGivenUp)
{
    ASSERT_EQ(0, run("show lun -lun_number=5"));
    std::string bytes = saveTree(parser.root);
    int32_t const otherCount = 11;
    std::memcpy(bytes.data() + kTables + 4, &otherCount, sizeof otherCount);
    Parser next;
    loadInto(next, bytes, false);
    EXPECT_EQ("", keywordOf(showLun, ModifierId::MODIFIER_LUN_NUMBER)->value);
}

TEST_F(Preferences, DifferentCommandStopsTheRead)
{
    std::string bytes = saveTree(parser.root);
    // The first command's record, found by its action, item and group.
    int32_t const firstCommand[3] = {CmdAction::ACTION_QUESTION, CmdItem::ITEM_CLI, 1};
    size_t const first = bytes.find(std::string(reinterpret_cast<char const*>(firstCommand), sizeof firstCommand)) - 56;
    ASSERT_EQ(Token::TOKEN_TYPE_CMD, int32At(bytes, first));
    int32_t const otherItem = CmdItem::ITEM_LUN;
    std::memcpy(bytes.data() + first + 60, &otherItem, sizeof otherItem);
    Parser next;
    loadInto(next, bytes, false);
}

TEST_F(Preferences, HugeLengthInADamagedFileDoesNotCrash)
{
    std::string bytes = saveTree(parser.root);
    int32_t const huge = 0x7fffffff;
    std::memcpy(bytes.data() + kTables + kRecord + 8, &huge, sizeof huge);
    Parser next;
    loadInto(next, bytes, false);
}

TEST_F(Preferences, ForeignBytesAreRejected)
{
    Parser next;
    loadInto(next, std::string(4096, 'x'), false);
    EXPECT_EQ(3, next.root.hiddenGroups[0]);
}

TEST_F(Preferences, NamelessTokenLosesItsValue)
{
    StringToken token;
    token.value = "kept";
    FILE* file = tmpfile();
    ASSERT_TRUE(token.baseSaveToPrefFile(file, 1, 2, 3));
    rewind(file);
    StringToken loaded;
    unsigned int children = 9;
    int a = 0, b = 0, c = 0;
    EXPECT_TRUE(loaded.baseInitFromPrefFile(file, children, a, b, c));
    fclose(file);
    EXPECT_EQ("", loaded.value);
    EXPECT_EQ(0u, children);
    EXPECT_EQ(1, a);
    EXPECT_EQ(2, b);
    EXPECT_EQ(3, c);
    EXPECT_FALSE(loaded.isDefault);
}

TEST_F(Preferences, RecordOfAnotherTypeIsRefused)
{
    TokenModifierString keyword;
    keyword.name = "zek";
    FILE* file = tmpfile();
    ASSERT_TRUE(keyword.baseSaveToPrefFile(file, 0, 0, 0));
    rewind(file);
    StringToken other;
    unsigned int children = 0;
    int a = 0, b = 0, c = 0;
    EXPECT_FALSE(other.baseInitFromPrefFile(file, children, a, b, c));
    fclose(file);
}

TEST_F(Preferences, NoFileMeansFirstRunGroups)
{
    EXPECT_TRUE(parser.root.initFromPrefFile(nullptr));
    int32_t const hidden[14] = {4, 5, 6, 7};
    EXPECT_EQ(0, std::memcmp(hidden, parser.root.hiddenGroups, sizeof hidden));
}

// The whole file through the parser, with the real command table.
class PreferencesFile : public CoreTreeTest {};

TEST_F(PreferencesFile, SaveWritesAPrivateFileThatTheNextRunReads)
{
    Parser first;
    first.init();
    first.commandLine = "set append -append=mine -quiet";
    ASSERT_EQ(0, first.parseCommandLine(err));
    first.save();
    std::string const path = dir.file("zekcli.ini");
    struct stat info {};
    ASSERT_EQ(0, stat(path.c_str(), &info));
    EXPECT_EQ(0600u, info.st_mode & 0777);
    std::string const bytes = readWholeFile(path);
    EXPECT_EQ(2, int32At(bytes, 0));
    EXPECT_EQ(103, int32At(bytes, 4));
    EXPECT_EQ(6, int32At(bytes, 8));
    EXPECT_EQ(4, int32At(bytes, 12));
    // Nothing but the file itself is left behind.
    EXPECT_EQ(1, std::distance(std::filesystem::directory_iterator(dir.path), {}));

    Parser second;
    second.init();
    EXPECT_EQ(3, second.root.hiddenGroups[0]);
    EXPECT_EQ("-quiet", second.root.getAppendSet("mine", err));
}

// Replacing the file is the dearest part of a short command, so identical
// preferences stay in the file that holds them; a change still replaces it.
TEST_F(PreferencesFile, OnlyChangedPreferencesReplaceTheFile)
{
    std::string const path = dir.file("zekcli.ini");
    auto const saveAfter = [&](char const* line) {
        Parser p;
        p.init();
        p.commandLine = line;
        EXPECT_EQ(0, p.parseCommandLine(err));
        p.save();
        struct stat info {};
        EXPECT_EQ(0, stat(path.c_str(), &info));
        return info.st_ino;
    };
    // A first run saves other group tables than the runs after it.
    saveAfter("set append -append=mine -quiet");
    ino_t const first = saveAfter("set append -append=mine -quiet");
    std::string const bytes = readWholeFile(path);
    EXPECT_EQ(first, saveAfter("set append -append=mine -quiet"));
    EXPECT_EQ(bytes, readWholeFile(path));
    EXPECT_NE(first, saveAfter("set append -append=mine -echo"));
    EXPECT_NE(bytes, readWholeFile(path));

    Parser reader;
    reader.init();
    EXPECT_EQ("-echo", reader.root.getAppendSet("mine", err));
}

// A write cut short by a file size limit must leave the old preferences
// and no temporary file behind.
TEST_F(PreferencesFile, FailedSaveKeepsTheOldFile)
{
    std::string const path = dir.file("zekcli.ini");
    {
        std::ofstream(path) << "old";
    }
    auto const saveWithTooSmallLimit = [&] {
        signal(SIGXFSZ, SIG_IGN);
        struct rlimit const limit = {1000, 1000};
        setrlimit(RLIMIT_FSIZE, &limit);
        Parser p;
        p.init();
        p.save();
        bool const kept = readWholeFile(path) == "old";
        bool const alone = std::distance(std::filesystem::directory_iterator(dir.path), {}) == 1;
        std::exit(kept && alone ? 0 : 1);
    };
    EXPECT_EXIT(saveWithTooSmallLimit(), ::testing::ExitedWithCode(0), "");
}

TEST_F(PreferencesFile, MissingHomeDirectoryIsNoFailure)
{
    setenv("HOME", dir.file("missing").c_str(), 1);
    Parser p;
    p.init();
    EXPECT_EQ(4, p.root.hiddenGroups[0]);
    p.save();
    EXPECT_FALSE(std::filesystem::exists(dir.file("missing")));
}

TEST_F(PreferencesFile, FirstRunHidesOneGroupLessThanLaterRuns)
{
    Parser p;
    p.init();
    EXPECT_EQ(4, p.root.hiddenGroups[0]);
}
