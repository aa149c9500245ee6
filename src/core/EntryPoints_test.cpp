// The entry points' own pieces: recognising vectors meant for the tool and
// the bounded string routines with their deliberately different contracts.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <unistd.h>
#include <vector>

#include "core/zekcli.h"
#include "support/TempDirectory.h"

namespace {

int isZek(std::vector<char const*> args)
{
    return zekcli_isZekCommandLine(static_cast<int>(args.size()), args.data());
}

} // namespace

TEST(EntryPoints, ProgramSelectorInFrontIsRecognised)
{
    EXPECT_EQ(isZek({"host", "-pr", "zek", "show", "lun"}), 1);
    EXPECT_EQ(isZek({"host", "-PR", "ZEK", "show", "lun"}), 1);
    EXPECT_EQ(isZek({"host", "-pr", "zek"}), 1);
    EXPECT_EQ(isZek({"host", "-pr", "zeke", "show"}), 0);
    EXPECT_EQ(isZek({"host", "show", "-pr", "zek"}), 0);
}

TEST(EntryPoints, ZekKeywordAnywhereIsRecognised)
{
    EXPECT_EQ(isZek({"host", "-zek"}), 1);
    EXPECT_EQ(isZek({"host", "show", "lun", "-zek=0"}), 1);
    EXPECT_EQ(isZek({"host", "-zek=0", "show", "lun"}), 1);
    EXPECT_EQ(isZek({"host", "/ZEK", "show"}), 1);
    EXPECT_EQ(isZek({"host", "show", "-Zek:0"}), 0);
    EXPECT_EQ(isZek({"host", "show", "-zekx=1"}), 0);
    EXPECT_EQ(isZek({"host", "show", "lun"}), 0);
}

TEST(EntryPoints, ShortVectorsAreNotOurs)
{
    EXPECT_EQ(isZek({"host"}), 0);
    EXPECT_EQ(isZek({}), 0);
    EXPECT_EQ(zekcli_isZekCommandLine(3, nullptr), 0);
}

TEST(EntryPoints, StrnlenIsBounded)
{
    EXPECT_EQ(zekcli_safe_strnlen("abc", 10), 3u);
    EXPECT_EQ(zekcli_safe_strnlen("abcdef", 4), 4u);
    EXPECT_EQ(zekcli_safe_strnlen("", 4), 0u);
    EXPECT_EQ(zekcli_safe_strnlen(nullptr, 4), 0u);
}

TEST(EntryPoints, StrequalComparesBoundedLengthsThenCharacters)
{
    EXPECT_TRUE(zekcli_safe_strequal("ZeK", 10, "zek", 10));
    EXPECT_TRUE(zekcli_safe_strequal("", 10, "", 10));
    EXPECT_FALSE(zekcli_safe_strequal("zek", 10, "zeke", 10));
    // Only the bounded parts are compared.
    EXPECT_TRUE(zekcli_safe_strequal("zekXYZ", 3, "ZEK", 10));
    EXPECT_FALSE(zekcli_safe_strequal("zek", 2, "zek", 3));
}

TEST(EntryPoints, StrcpyRefusesShortSourcesAndOverflow)
{
    char dst[8] = {};
    zekcli_safe_strcpy(dst, sizeof dst, "abc", 3);
    EXPECT_STREQ(dst, "abc");

    char shorter[8] = {};
    zekcli_safe_strcpy(shorter, sizeof shorter, "ab", 3);
    EXPECT_STREQ(shorter, "");

    char tight[4] = {};
    zekcli_safe_strcpy(tight, sizeof tight, "abcd", 4);
    EXPECT_STREQ(tight, "");
    zekcli_safe_strcpy(tight, sizeof tight, "abc", 3);
    EXPECT_STREQ(tight, "abc");
}

TEST(EntryPoints, StrcatAcceptsShortSourcesButNotOverflow)
{
    char dst[8] = "ab";
    zekcli_safe_strcat(dst, sizeof dst, "cd", 5);
    EXPECT_STREQ(dst, "abcd");
    zekcli_safe_strcat(dst, sizeof dst, "efgh", 4);
    EXPECT_STREQ(dst, "abcd");
    zekcli_safe_strcat(dst, sizeof dst, "efg", 3);
    EXPECT_STREQ(dst, "abcdefg");
}

TEST(EntryPoints, StrcpyWritesAfterExistingTextCountsTowardsTheBound)
{
    // The destination's current length counts against its size even for a
    // copy, which overwrites it.
    char dst[6] = "abcd";
    zekcli_safe_strcpy(dst, sizeof dst, "xy", 2);
    EXPECT_STREQ(dst, "abcd");
    zekcli_safe_strcpy(dst, sizeof dst, "x", 1);
    EXPECT_STREQ(dst, "xbcd");
}

// ---- one command line through the parser -------------------------------------------

namespace {

// Runs the tool on `args` with a fresh home directory and no management
// library, returning what it printed and its code.
struct ToolRun {
    std::string out;
    int rc;
};

ToolRun runTool(std::vector<std::string> args)
{
    TempDirectory const home{"zek-entry-test"};
    ScopedEnvironmentVariable const homeVariable("HOME", home.path);

    std::vector<char*> argv;
    for (std::string& arg : args)
        argv.push_back(arg.data());
    std::vector<char*> const before = argv;
    testing::internal::CaptureStdout();
    ToolRun run;
    run.rc = zekcli_runCommandLineInterface(static_cast<int>(argv.size()), argv.data());
    run.out = testing::internal::GetCapturedStdout();
    EXPECT_EQ(argv, before) << "the caller's vector must stay unchanged";

    EXPECT_NE(access(home.file("zekcli.ini").c_str(), F_OK), 0) << "nothing may be saved";
    return run;
}

} // namespace

TEST(EntryPointsRun, NoCommandAsksForHelpAndSucceeds)
{
    ToolRun const run = runTool({"host"});
    EXPECT_EQ(run.rc, 0);
    EXPECT_EQ(run.out, "Use \"-?\" on the command line for help\n");
    EXPECT_EQ(zekcli_runCommandLineInterface(0, nullptr), 0);
}

TEST(EntryPointsRun, KeywordBeforeTheActionFailsToParse)
{
    for (char const* first : {"-zek=0", "/zek", "-ZEK=1"}) {
        ToolRun const run = runTool({"host", first, "show", "lun"});
        EXPECT_EQ(run.rc, 52) << first;
        EXPECT_EQ(run.out, "*** ZEKCLI_PARSE_FAIL\n    \n") << first;
    }
}

TEST(EntryPointsRun, ParsingFailurePrintsTheReason)
{
    ToolRun const run = runTool({"host", "-pr", "zek", "frob"});
    EXPECT_EQ(run.rc, 52);
    EXPECT_EQ(run.out, "*** ZEKCLI_PARSE_FAIL\n    \"frob\" is not recognized\n\n");
}

TEST(EntryPointsRun, MissingRequiredKeywordEndsWithZero)
{
    ToolRun const run = runTool({"host", "-zek", "version", "adapter"});
    EXPECT_EQ(run.rc, 0);
    EXPECT_EQ(run.out.rfind("Error:  -compare modifier must be specified\n", 0), 0u) << run.out;
    std::string const tail = "Use \"-?\" on the command line for help\n";
    ASSERT_GE(run.out.size(), tail.size());
    EXPECT_EQ(run.out.substr(run.out.size() - tail.size()), tail);
}
