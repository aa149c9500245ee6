// The parser: folding the argument vector, tokens, action and item, keywords
// and their values, append sets, and the exact texts of every failure.
#include <gtest/gtest.h>

#include "core/Parser.h"
#include "core/ZekcliReturn.h"
#include "support/TokenTreeFixture.h"

using testtree::Tree;

namespace {

std::string const kShowLunPlain = "\n    Syntax: show lun\n\t[-lun_number=<n>]\n";
std::string const kShowLunArrow = "\n-->Syntax: show lun\n\t[-lun_number=<n>]\n";
std::string const kCreateLunPlain = "\n    Syntax: create lun\n\t-size=<MB>\n\t[-name=<name>]\n";
std::string const kCreateLunArrow = "\n-->Syntax: create lun\n\t-size=<MB>\n\t[-name=<name>]\n";

struct TokenResult {
    bool ok;
    std::string token;
    char prefix;
    std::string rest;
};

TokenResult takeToken(std::string line)
{
    Tree tree;
    TokenResult r{};
    r.ok = tree.parser.parseToken(line, r.token, r.prefix);
    r.rest = line;
    return r;
}

} // namespace

// ---- folding the argument vector ------------------------------------------

TEST(ParserCommandLine, JoinsArgumentsWithATrailingBlank)
{
    Tree tree;
    char a0[] = "host", a1[] = "show", a2[] = "lun", a3[] = "-lun_number=2";
    char* argv[] = {a0, a1, a2, a3};
    tree.parser.getCommandLine(4, argv);
    EXPECT_EQ(tree.parser.commandLine, "show lun -lun_number=2 ");
}

TEST(ParserCommandLine, NothingAfterTheProgramGivesEmptyText)
{
    Tree tree;
    tree.parser.commandLine = "stale";
    char a0[] = "host";
    char* argv[] = {a0};
    tree.parser.getCommandLine(1, argv);
    EXPECT_EQ(tree.parser.commandLine, "");
    tree.parser.getCommandLine(0, nullptr);
    EXPECT_EQ(tree.parser.commandLine, "");
}

TEST(ParserCommandLine, RequotesValuesThatTheShellUnquoted)
{
    Tree tree;
    char a0[] = "host", a1[] = "-name=a b", a2[] = "-x=\ttab", a3[] = "-name=  lead";
    char* argv[] = {a0, a1, a2, a3};
    tree.parser.getCommandLine(4, argv);
    EXPECT_EQ(tree.parser.commandLine, "-name=\"a b\" -x=\ttab -name=  lead ");
}

TEST(ParserCommandLine, QuotesKeywordLikeValuesOnlyWhenTheyHoldASlash)
{
    Tree tree;
    char a0[] = "host", a1[] = "-lun_number=-1", a2[] = "-name=-x", a3[] = "-filepath=/tmp/x", a4[] = "-f=-a/b";
    char* argv[] = {a0, a1, a2, a3, a4};
    tree.parser.getCommandLine(5, argv);
    EXPECT_EQ(tree.parser.commandLine, "-lun_number=-1 -name=-x -filepath=\"/tmp/x\" -f=\"-a/b\" ");
}

TEST(ParserCommandLine, ArgumentsWithoutEqualsAreNeverQuoted)
{
    Tree tree;
    char a0[] = "host", a1[] = "show lun", a2[] = "-name=";
    char* argv[] = {a0, a1, a2};
    tree.parser.getCommandLine(3, argv);
    EXPECT_EQ(tree.parser.commandLine, "show lun -name= ");
}

TEST(ParserCommandLine, BlankOnlyValueFoldsWithoutFailing)
{
    Tree tree;
    char a0[] = "host", a1[] = "-name=   ", a2[] = "-name=\t";
    char* argv[] = {a0, a1, a2};
    tree.parser.getCommandLine(3, argv);
    EXPECT_EQ(tree.parser.commandLine, "-name=    -name=\t ");
}

TEST(ParserCommandLine, AddQuotesIfNeeded)
{
    EXPECT_EQ(Parser::addQuotesIfNeeded("a b"), "\"a b\"");
    EXPECT_EQ(Parser::addQuotesIfNeeded("a\tb"), "\"a\tb\"");
    EXPECT_EQ(Parser::addQuotesIfNeeded("ab"), "ab");
    EXPECT_EQ(Parser::addQuotesIfNeeded(""), "");
    EXPECT_EQ(Parser::addQuotesIfNeeded("say \"x\""), "\"say \"x\"\"");
}

// ---- tokens ------------------------------------------------------------------

TEST(ParserToken, PlainWordStopsAtKeywordCharacters)
{
    TokenResult r = takeToken("  show-lun");
    EXPECT_TRUE(r.ok);
    EXPECT_EQ(r.token, "show");
    EXPECT_EQ(r.prefix, 0);
    EXPECT_EQ(r.rest, "-lun");
}

TEST(ParserToken, KeywordPrefixIsTakenAndWhitespaceBehindItDropped)
{
    TokenResult r = takeToken("- \tlun_number=2 ");
    EXPECT_TRUE(r.ok);
    EXPECT_EQ(r.token, "lun_number");
    EXPECT_EQ(r.prefix, '-');
    EXPECT_EQ(r.rest, "=2 ");
}

TEST(ParserToken, ValueAfterEqualsMayHoldSlashDashAndEquals)
{
    TokenResult r = takeToken("=a/b-c=d  next");
    EXPECT_TRUE(r.ok);
    EXPECT_EQ(r.token, "a/b-c=d");
    EXPECT_EQ(r.prefix, '=');
    EXPECT_EQ(r.rest, "next");
}

TEST(ParserToken, QuotesHoldTheOtherQuoteAndNoEscapes)
{
    TokenResult r = takeToken(":'it\"s' rest");
    EXPECT_TRUE(r.ok);
    EXPECT_EQ(r.token, "it\"s");
    EXPECT_EQ(r.prefix, ':');
    EXPECT_EQ(r.rest, "rest");
    r = takeToken("\"a\\\" b");
    EXPECT_TRUE(r.ok);
    EXPECT_EQ(r.token, "a\\");
    EXPECT_EQ(r.rest, "b");
}

TEST(ParserToken, UnclosedQuoteFails)
{
    EXPECT_FALSE(takeToken("=\"abc").ok);
    EXPECT_FALSE(takeToken("'abc").ok);
}

TEST(ParserToken, PrefixWithNothingBehindItFails)
{
    EXPECT_FALSE(takeToken("  -  ").ok);
    EXPECT_FALSE(takeToken("=").ok);
}

TEST(ParserToken, EmptyLineGivesEmptyToken)
{
    TokenResult r = takeToken(" \t\r\n");
    EXPECT_TRUE(r.ok);
    EXPECT_EQ(r.token, "");
    EXPECT_EQ(r.rest, "");
}

// ---- action and item ----------------------------------------------------------

TEST(ParserLine, KeywordsMatchInEitherSpelling)
{
    Tree tree;
    ASSERT_EQ(tree.parse("show lun -lun_number=1"), ZEKCLI_OK) << tree.err;
    EXPECT_EQ(tree.parser.currentCmd, tree.showLun);
    EXPECT_EQ(tree.keyword(tree.showLun, ModifierId::MODIFIER_LUN_NUMBER)->value, "1");

    Tree other;
    ASSERT_EQ(other.parse("SHOW LUN /LUN_NUMBER:1"), ZEKCLI_OK) << other.err;
    EXPECT_EQ(other.parser.currentCmd, other.showLun);
    TokenModifierString* lun = other.keyword(other.showLun, ModifierId::MODIFIER_LUN_NUMBER);
    EXPECT_EQ(lun->value, "1");
    EXPECT_FALSE(lun->isDefault);
}

TEST(ParserLine, BlanksAroundEqualsAreAllowed)
{
    Tree tree;
    ASSERT_EQ(tree.parse("show lun -lun_number = 1"), ZEKCLI_OK) << tree.err;
    EXPECT_EQ(tree.keyword(tree.showLun, ModifierId::MODIFIER_LUN_NUMBER)->value, "1");
}

TEST(ParserLine, AbbreviationsWorkOnAllThreeLevels)
{
    Tree tree;
    ASSERT_EQ(tree.parse("ver ad -comp=1"), ZEKCLI_OK) << tree.err;
    EXPECT_EQ(tree.parser.currentCmd, tree.versionAdapter);
    EXPECT_EQ(tree.keyword(tree.versionAdapter, ModifierId::MODIFIER_COMPARE)->value, "1");
}

TEST(ParserLine, ActionAloneMeansItsCliCommand)
{
    Tree tree;
    ASSERT_EQ(tree.parse("version"), ZEKCLI_OK) << tree.err;
    EXPECT_EQ(tree.parser.currentCmd, tree.versionCli);
    ASSERT_EQ(tree.parse("help -genhelpdoc=x"), ZEKCLI_OK) << tree.err;
    EXPECT_EQ(tree.parser.currentCmd, tree.helpCli);
    EXPECT_EQ(tree.keyword(tree.helpCli, ModifierId::MODIFIER_GENHELPDOC)->value, "x");
}

TEST(ParserLine, QuestionAndHelpKeywordsAloneMeanTheHelpCommand)
{
    for (char const* line : {"-?", "/?", "-help", "/help", "-HELP"}) {
        Tree tree;
        EXPECT_EQ(tree.parse(line), ZEKCLI_OK) << line << ": " << tree.err;
        EXPECT_EQ(tree.parser.currentCmd, tree.helpCli) << line;
        EXPECT_FALSE(tree.parser.isHelpModifierOnCommandLine()) << line;
    }
}

TEST(ParserLine, QuestionKeywordOnACommandAsksForHelp)
{
    Tree tree;
    ASSERT_EQ(tree.parse("show lun -?"), ZEKCLI_OK) << tree.err;
    EXPECT_TRUE(tree.parser.isHelpModifierOnCommandLine());
    ASSERT_EQ(tree.parse("show lun -help"), ZEKCLI_OK) << tree.err;
    EXPECT_TRUE(tree.parser.isHelpModifierOnCommandLine());
    ASSERT_EQ(tree.parse("show lun"), ZEKCLI_OK) << tree.err;
    EXPECT_FALSE(tree.parser.isHelpModifierOnCommandLine());
}

TEST(ParserLine, EmptyAndBlankLinesParseToNothing)
{
    for (char const* line : {"", "   ", " \t\r\n"}) {
        Tree tree;
        EXPECT_EQ(tree.parse(line), ZEKCLI_OK) << "[" << line << "]";
        EXPECT_EQ(tree.err, "");
        EXPECT_EQ(tree.parser.currentCmd, nullptr);
        EXPECT_FALSE(tree.parser.isReadyToExec());
    }
}

TEST(ParserLine, ALineCannotStartWithAKeyword)
{
    for (char const* line : {"-quiet show lun", "-zek=0 show lun", "/zek show lun", "=x show"}) {
        Tree tree;
        EXPECT_EQ(tree.parse(line), ZEKCLI_PARSE_FAIL) << line;
        EXPECT_EQ(tree.err, "") << line;
    }
}

TEST(ParserLine, UnclosedQuoteInPlaceOfTheActionFails)
{
    Tree tree;
    EXPECT_EQ(tree.parse("\"show lun"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "");
}

TEST(ParserLine, UnknownActionOrItemKeepsTheTableText)
{
    Tree tree;
    EXPECT_EQ(tree.parse("Frob lun"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "\"Frob\" is not recognized\n");
    EXPECT_EQ(tree.parse("show Gizmo"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "\"Gizmo\" is not recognized\n");
}

TEST(ParserLine, AmbiguousActionOrItemKeepsTheTableText)
{
    Tree tree;
    EXPECT_EQ(tree.parse("s lun"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "Ambiguous selection, please choose \"save\" \"script\" \"set\" \"show\" or \"stop\"");
    EXPECT_EQ(tree.parse("show c"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err.rfind("Ambiguous selection, please choose \"cache\" \"cache_pool\" ", 0), 0u) << tree.err;
}

TEST(ParserLine, KnownWordsWithoutACommandAreNotAValidCommand)
{
    Tree tree;
    testing::internal::CaptureStdout();
    int const rc = tree.parse("stop notification");
    std::string const shown = testing::internal::GetCapturedStdout();
    EXPECT_EQ(rc, ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "\"stop notification\" is not a valid command");
    EXPECT_EQ(shown, "\"stop notification\" is not a valid command\n");
    EXPECT_EQ(tree.parser.currentCmd, nullptr);
}

// ---- keywords -------------------------------------------------------------------

TEST(ParserKeyword, UnattachedWordIsAParsingError)
{
    Tree tree;
    EXPECT_EQ(tree.parse("show lun -textfile out.log -quiet"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "Parsing error near -quiet" + kShowLunArrow);
}

TEST(ParserKeyword, ValueWithoutEqualsLeavesTheKeywordEmpty)
{
    // The value must be joined by "=" or ":"; a required value is then missing.
    Tree tree;
    EXPECT_EQ(tree.parse("sh lun -lun_num 1"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "\n    lun_number modifier requires a value" + kShowLunPlain);
}

TEST(ParserKeyword, QuotedValuesKeepTheirBlanksAndOtherQuotes)
{
    Tree tree;
    ASSERT_EQ(tree.parse("create lun -size=1 -name='it\"s'"), ZEKCLI_OK) << tree.err;
    EXPECT_EQ(tree.keyword(tree.createLun, ModifierId::MODIFIER_NAME)->value, "it\"s");
    ASSERT_EQ(tree.parseArgs({"host", "create", "lun", "-size=1", "-name=a b"}), ZEKCLI_OK) << tree.err;
    EXPECT_EQ(tree.keyword(tree.createLun, ModifierId::MODIFIER_NAME)->value, "a b");
}

TEST(ParserKeyword, UnclosedQuoteInAValueCannotBeParsed)
{
    Tree tree;
    EXPECT_EQ(tree.parse("create lun -size=1 -name=\"abc -mirror=2"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "Could not parse parameter near abc -mirror=2" + kCreateLunArrow);
}

TEST(ParserKeyword, UnknownAndAmbiguousKeywordsReadAlike)
{
    Tree tree;
    EXPECT_EQ(tree.parse("show lun -frob=1 -quiet"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "Could not parse modifier near =1 -quiet" + kShowLunArrow);
    EXPECT_EQ(tree.parse("show lun -h"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "Could not parse modifier near " + kShowLunArrow);
}

TEST(ParserKeyword, AKeywordWithoutANameSaysWhereParsingStopped)
{
    Tree tree;
    EXPECT_EQ(tree.parse("show lun --quiet"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "Could not parse modifier near -quiet" + kShowLunArrow);
    EXPECT_EQ(tree.parse("show lun -=1"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "Could not parse modifier near =1" + kShowLunArrow);
    EXPECT_EQ(tree.parse("show lun -\"\" -quiet"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "Could not parse modifier near -quiet" + kShowLunArrow);
}

TEST(ParserKeyword, KeywordNotOnTheCommand)
{
    Tree tree;
    EXPECT_EQ(tree.parse("show health -lun_number=1"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "\"lun_number\" is not a valid modifier\n    Syntax: show health\n \n");
}

TEST(ParserKeyword, MissingRequiredValue)
{
    Tree tree;
    EXPECT_EQ(tree.parse("version adapter -compare"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "\n    compare modifier requires a value\n    Syntax: version adapter\n\t-compare=<version>\n");
    EXPECT_EQ(tree.parse("create lun -size="), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "\n    size modifier requires a value" + kCreateLunPlain);
}

TEST(ParserKeyword, BlankOnlyValueCountsAsEmpty)
{
    Tree tree;
    EXPECT_EQ(tree.parseArgs({"host", "create", "lun", "-size=1", "-name=   "}), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "\n    name modifier requires a value" + kCreateLunPlain);
    EXPECT_EQ(tree.parseArgs({"host", "create", "lun", "-size=1", "-name=  ", "-mirror=2"}), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "\n    name modifier requires a value" + kCreateLunPlain);
    EXPECT_EQ(tree.parseArgs({"host", "view", "log", "-previous=\t "}), ZEKCLI_OK) << tree.err;
    TokenModifierString* previous = tree.keyword(tree.viewLog, ModifierId::MODIFIER_PREVIOUS);
    EXPECT_FALSE(previous->isDefault);
    EXPECT_EQ(previous->value, "");
}

TEST(ParserKeyword, OptionalValuesMayBeLeftOutOrLookLikeKeywords)
{
    Tree tree;
    ASSERT_EQ(tree.parse("show lun -textfile"), ZEKCLI_OK) << tree.err;
    EXPECT_FALSE(tree.common(ModifierId::MODIFIER_TEXTFILE)->isDefault);
    EXPECT_EQ(tree.common(ModifierId::MODIFIER_TEXTFILE)->value, "");

    ASSERT_EQ(tree.parse("show lun -textfile=-quiet"), ZEKCLI_OK) << tree.err;
    EXPECT_FALSE(tree.common(ModifierId::MODIFIER_TEXTFILE)->isDefault);
    EXPECT_EQ(tree.common(ModifierId::MODIFIER_TEXTFILE)->value, "");
    EXPECT_FALSE(tree.common(ModifierId::MODIFIER_QUIET)->isDefault);

    ASSERT_EQ(tree.parseArgs({"host", "show", "lun", "-textfile=/tmp/x"}), ZEKCLI_OK) << tree.err;
    EXPECT_EQ(tree.common(ModifierId::MODIFIER_TEXTFILE)->value, "/tmp/x");
}

TEST(ParserKeyword, UnquotedSlashValueInAScriptLineIsReadAsAKeyword)
{
    Tree tree;
    EXPECT_EQ(tree.parse("show lun -textfile=/tmp/x"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "Could not parse modifier near /x" + kShowLunArrow);
}

TEST(ParserKeyword, NegativeNumbersAreValues)
{
    Tree tree;
    ASSERT_EQ(tree.parse("show lun -lun_number=-1"), ZEKCLI_OK) << tree.err;
    EXPECT_EQ(tree.keyword(tree.showLun, ModifierId::MODIFIER_LUN_NUMBER)->value, "-1");
}

TEST(ParserKeyword, CommandOwnDeclarationWinsOverCommonKeyword)
{
    Tree tree;
    ASSERT_EQ(tree.parse("show lun -zek=1"), ZEKCLI_OK) << tree.err;
    EXPECT_EQ(tree.keyword(tree.showLun, ModifierId::MODIFIER_ZEK)->value, "1");
    EXPECT_NE(tree.keyword(tree.showLun, ModifierId::MODIFIER_ZEK), tree.common(ModifierId::MODIFIER_ZEK));
    EXPECT_TRUE(tree.common(ModifierId::MODIFIER_ZEK)->isDefault);

    ASSERT_EQ(tree.parse("show health -zek=1"), ZEKCLI_OK) << tree.err;
    EXPECT_EQ(tree.common(ModifierId::MODIFIER_ZEK)->value, "1");
    EXPECT_FALSE(tree.common(ModifierId::MODIFIER_ZEK)->isDefault);
}

TEST(ParserKeyword, FlagsNeedNoValue)
{
    Tree tree;
    ASSERT_EQ(tree.parse("version cli -name"), ZEKCLI_OK) << tree.err;
    EXPECT_FALSE(tree.keyword(tree.versionCli, ModifierId::MODIFIER_NAME)->isDefault);
}

TEST(ParserKeyword, TrailingPrefixIsAParsingError)
{
    Tree tree;
    EXPECT_EQ(tree.parse("show lun -"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "Parsing error near " + kShowLunArrow);
    EXPECT_EQ(tree.parse("show lun -lun_number=-"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "\n    lun_number modifier requires a value" + kShowLunPlain);
}

TEST(ParserKeyword, ValuesFromAnEarlierParseAreReset)
{
    Tree tree;
    ASSERT_EQ(tree.parse("version adapter -compare=7"), ZEKCLI_OK) << tree.err;
    ASSERT_EQ(tree.parse("show lun -lun_number=3"), ZEKCLI_OK) << tree.err;
    TokenModifierString* compare = tree.keyword(tree.versionAdapter, ModifierId::MODIFIER_COMPARE);
    EXPECT_EQ(compare->value, "");
    EXPECT_TRUE(compare->isDefault);
    // Optional values stay, but no longer count as given.
    ASSERT_EQ(tree.parse("show lun"), ZEKCLI_OK) << tree.err;
    TokenModifierString* lun = tree.keyword(tree.showLun, ModifierId::MODIFIER_LUN_NUMBER);
    EXPECT_EQ(lun->value, "3");
    EXPECT_TRUE(lun->isDefault);
}

// ---- hostile input -------------------------------------------------------------

TEST(ParserHostile, LongLinesParse)
{
    Tree tree;
    std::string const wwuln(9000, 'a');
    ASSERT_EQ(tree.parse("show lun -lun_wwuln=" + wwuln), ZEKCLI_OK) << tree.err.substr(0, 80);
    EXPECT_EQ(tree.keyword(tree.showLun, ModifierId::MODIFIER_LUN_WWULN)->value, wwuln);
    std::string const junk(9000, 'x');
    EXPECT_EQ(tree.parse("show lun " + junk), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "Parsing error near " + kShowLunArrow);
}

TEST(ParserHostile, BytesAboveAsciiAreOrdinaryText)
{
    Tree tree;
    std::string const value = "\xe9\xff\x80z";
    ASSERT_EQ(tree.parse("show lun -lun_serial=" + value), ZEKCLI_OK) << tree.err;
    EXPECT_EQ(tree.keyword(tree.showLun, ModifierId::MODIFIER_LUN_SERIAL)->value, value);
    EXPECT_EQ(tree.parse("sh\xe9 lun"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "\"sh\xe9\" is not recognized\n");
    EXPECT_EQ(tree.parse("show lun -\xff=1"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "Could not parse modifier near =1" + kShowLunArrow);
}

TEST(ParserHostile, ControlCharactersAndStrayQuotes)
{
    Tree tree;
    EXPECT_EQ(tree.parse("show lun -lun_serial=a\x01"
                         "b"),
              ZEKCLI_OK)
        << tree.err;
    EXPECT_EQ(tree.parse("show lun 'x"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "Parsing error near x" + kShowLunArrow);
    EXPECT_EQ(tree.parse("show lun -'lun_number'=5"), ZEKCLI_OK) << tree.err;
    EXPECT_EQ(tree.keyword(tree.showLun, ModifierId::MODIFIER_LUN_NUMBER)->value, "5");
}

// ---- required keywords ------------------------------------------------------------

TEST(ParserReady, MissingRequiredKeywordIsReportedWithTheCommandSyntax)
{
    Tree tree;
    ASSERT_EQ(tree.parse("version adapter"), ZEKCLI_OK) << tree.err;
    testing::internal::CaptureStdout();
    bool const ready = tree.parser.isReadyToExec();
    std::string const shown = testing::internal::GetCapturedStdout();
    EXPECT_FALSE(ready);
    EXPECT_EQ(shown,
              "Error:  -compare modifier must be specified\n"
              "  Command syntax:\n    version adapter\n\t-compare=<version>\n\n");
}

TEST(ParserReady, CommandWithItsRequiredKeywordsIsReady)
{
    Tree tree;
    ASSERT_EQ(tree.parse("version adapter -compare=1"), ZEKCLI_OK) << tree.err;
    EXPECT_TRUE(tree.parser.isReadyToExec());
}

TEST(ParserToken, ColonEndsAKeywordName)
{
    TokenResult r = takeToken("/lun_number:1");
    EXPECT_TRUE(r.ok);
    EXPECT_EQ(r.token, "lun_number");
    EXPECT_EQ(r.prefix, '/');
    EXPECT_EQ(r.rest, ":1");
}

// ---- append sets -------------------------------------------------------------------

namespace {

std::string const kAppendTooLong =
    "Command line got too long, most likely because -append=<name> expanded to a command line that included "
    "\"-append=<same set name>\", causing an infinite recursion";

std::string savedSet(Tree& tree, std::string const& name)
{
    std::string err;
    std::string const text = tree.parser.root.getAppendSet(name, err);
    return err.empty() ? text : "<" + err + ">";
}

} // namespace

TEST(ParserAppend, SetAppendStoresTheRestOfTheLine)
{
    Tree tree;
    ASSERT_EQ(tree.parseArgs({"host", "set", "append", "-append=x", "-quiet", "-zek=1"}), ZEKCLI_OK) << tree.err;
    EXPECT_EQ(tree.parser.currentCmd, tree.setAppend);
    TokenModifierString* own = tree.keyword(tree.setAppend, ModifierId::MODIFIER_APPEND);
    EXPECT_EQ(own->value, "x");
    EXPECT_FALSE(own->isDefault);
    EXPECT_TRUE(tree.common(ModifierId::MODIFIER_QUIET)->isDefault);
    EXPECT_EQ(savedSet(tree, "x"), "-quiet -zek=1 ");
}

TEST(ParserAppend, SetIsExpandedInPlaceOfTheKeyword)
{
    Tree tree;
    tree.parser.root.updateAppendSet("x", "-quiet -zek=1 ");
    ASSERT_EQ(tree.parse("show lun -append=x -lun_number=4"), ZEKCLI_OK) << tree.err;
    EXPECT_FALSE(tree.common(ModifierId::MODIFIER_QUIET)->isDefault);
    EXPECT_EQ(tree.keyword(tree.showLun, ModifierId::MODIFIER_ZEK)->value, "1");
    EXPECT_EQ(tree.keyword(tree.showLun, ModifierId::MODIFIER_LUN_NUMBER)->value, "4");
    EXPECT_EQ(tree.common(ModifierId::MODIFIER_APPEND)->value, "x");
}

TEST(ParserAppend, LaterAppendAlsoExpands)
{
    Tree tree;
    tree.parser.root.updateAppendSet("q", "-quiet ");
    ASSERT_EQ(tree.parse("show lun -lun_number=4 -append=q"), ZEKCLI_OK) << tree.err;
    EXPECT_FALSE(tree.common(ModifierId::MODIFIER_QUIET)->isDefault);
}

TEST(ParserAppend, UnknownSetIsNotRecognized)
{
    Tree tree;
    EXPECT_EQ(tree.parse("show lun -append=nosuch"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, "nosuch is not recognized" + kShowLunArrow);
}

TEST(ParserAppend, SetIncludingItselfInSecondPlaceStops)
{
    Tree tree;
    tree.parser.root.updateAppendSet("y", "-quiet -append=y ");
    EXPECT_EQ(tree.parse("show lun -append=y -lun_number=1"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, kAppendTooLong + kShowLunArrow);
}

TEST(ParserAppend, SetEndingInItselfStopsToo)
{
    // Such a set replaces itself without the line ever growing.
    Tree tree;
    tree.parser.root.updateAppendSet("w", "-quiet -append=w ");
    EXPECT_EQ(tree.parse("show lun -append=w"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, kAppendTooLong + kShowLunArrow);
    tree.parser.root.updateAppendSet("u", "-echo -append=v ");
    tree.parser.root.updateAppendSet("v", "-quiet -append=u ");
    EXPECT_EQ(tree.parse("show lun -append=u"), ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(tree.err, kAppendTooLong + kShowLunArrow);
}

TEST(ParserAppend, ManyExpansionsOfALongSetPassWhileTheLineStaysShort)
{
    // 42 expansions of 197 characters add up past the bound, yet each is
    // read before the next one comes, so the line never passes it.
    Tree tree;
    std::string quietTimes28;
    for (int i = 0; i < 28; ++i)
        quietTimes28 += (i ? " " : "") + std::string("-quiet");
    ASSERT_EQ(quietTimes28.size(), 195u);
    tree.parser.root.updateAppendSet("x", quietTimes28 + "  ");
    std::string line = "show lun";
    for (int i = 0; i < 42; ++i)
        line += " -append=x";
    EXPECT_EQ(tree.parse(line), ZEKCLI_OK) << tree.err;
    EXPECT_FALSE(tree.common(ModifierId::MODIFIER_QUIET)->isDefault);
}

// The parse of `line` stops with the "Command line got too long" text.
static ::testing::AssertionResult stopsAsTooLong(Tree& tree, std::string const& line)
{
    int const rc = tree.parse(line);
    if (rc == ZEKCLI_PARSE_FAIL && tree.err == kAppendTooLong + kShowLunArrow)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "code " << rc << ", message " << tree.err;
}

TEST(ParserAppend, ALineLongerThanTheBoundAfterAnExpansionIsRefused)
{
    Tree tree;
    std::string big;
    while (big.size() <= Parser::MAX_EXPANDED_LINE)
        big += "-quiet ";
    tree.parser.root.updateAppendSet("big", big);
    EXPECT_TRUE(stopsAsTooLong(tree, "show lun -append=big"));
}

TEST(ParserAppend, ASetReachedAgainThroughAnotherWhileOpenStops)
{
    Tree tree;
    tree.parser.root.updateAppendSet("a", "-quiet -append=b -echo ");
    tree.parser.root.updateAppendSet("b", "-echo -append=a ");
    EXPECT_TRUE(stopsAsTooLong(tree, "show lun -append=a -lun_number=1"));
}

TEST(ParserAppend, ASetUsedTwiceInsideAnotherIsNoRecursion)
{
    Tree tree;
    tree.parser.root.updateAppendSet("q", "-quiet ");
    tree.parser.root.updateAppendSet("both", "-echo -append=q -append=q ");
    EXPECT_EQ(tree.parse("show lun -append=both -append=both -lun_number=1"), ZEKCLI_OK) << tree.err;
}

TEST(ParserAppend, SetIncludingItselfInFirstPlaceDoesNotRecur)
{
    Tree tree;
    tree.parser.root.updateAppendSet("z", "-append=z -quiet ");
    ASSERT_EQ(tree.parse("show lun -append=z"), ZEKCLI_OK) << tree.err;
    EXPECT_FALSE(tree.common(ModifierId::MODIFIER_QUIET)->isDefault);
    EXPECT_EQ(tree.common(ModifierId::MODIFIER_APPEND)->value, "-append=z -quiet ");
}

// ---- a further line in the same tree ----------------------------------------------------

TEST(ParserScriptLine, RunsTheCommandOfTheLine)
{
    Tree tree;
    tree.helpCli->answer = ZEKCLI_CMD_FAIL;
    tree.helpCli->answerText = "why";
    std::string err;
    testing::internal::CaptureStdout();
    int const rc = tree.parser.root.execOneCommandLine("help -quiet", err, 3);
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(rc, ZEKCLI_CMD_FAIL);
    EXPECT_EQ(err, "why");
    EXPECT_EQ(tree.helpCli->runs, 1);
    EXPECT_EQ(tree.parser.commandLine, "help -quiet");
}

TEST(ParserScriptLine, BlankLineDoesNotRunThePreviousCommandAgain)
{
    Tree tree;
    std::string err;
    testing::internal::CaptureStdout();
    tree.parser.root.execOneCommandLine("help -quiet", err, 1);
    int const blank = tree.parser.root.execOneCommandLine("   ", err, 2);
    int const dash = tree.parser.root.execOneCommandLine("-", err, 3);
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(blank, ZEKCLI_OK);
    EXPECT_EQ(dash, ZEKCLI_OK);
    EXPECT_EQ(tree.helpCli->runs, 1);
}

TEST(ParserScriptLine, ParsingFailureIsReturnedNotPrinted)
{
    Tree tree;
    std::string err;
    testing::internal::CaptureStdout();
    int const rc = tree.parser.root.execOneCommandLine("show lun -frob", err, 1);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(rc, ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(err, "Could not parse modifier near " + kShowLunArrow);
}

TEST(ParserScriptLine, MissingRequiredKeywordRunsNothingAndAnswersZero)
{
    Tree tree;
    std::string err;
    testing::internal::CaptureStdout();
    int const rc = tree.parser.root.execOneCommandLine("version adapter", err, 1);
    std::string const shown = testing::internal::GetCapturedStdout();
    EXPECT_EQ(rc, ZEKCLI_OK);
    EXPECT_EQ(tree.versionAdapter->runs, 0);
    EXPECT_EQ(shown.rfind("Error:  -compare modifier must be specified\n", 0), 0u) << shown;
}

TEST(ParserScriptLine, HelpKeywordShowsHelpInsteadOfRunning)
{
    Tree tree;
    std::string err;
    testing::internal::CaptureStdout();
    int const rc = tree.parser.root.execOneCommandLine("show lun -?", err, 1);
    std::string const shown = testing::internal::GetCapturedStdout();
    EXPECT_EQ(rc, ZEKCLI_OK);
    EXPECT_EQ(tree.showLun->runs, 0);
    EXPECT_NE(shown.find("Syntax: show lun\n"), std::string::npos) << shown;
}

// ---- one line, as the entry point and scripts run it --------------------------------------

static Parser::LineOutcome runLine(Tree& tree, std::string const& line, std::string& err)
{
    tree.parser.commandLine = line;
    testing::internal::CaptureStdout();
    Parser::LineOutcome const outcome = tree.parser.runCommandLine(err, 1);
    testing::internal::GetCapturedStdout();
    return outcome;
}

TEST(ParserRunLine, SaysWhichStepTheLineReached)
{
    Tree tree;
    std::string err;
    EXPECT_EQ(runLine(tree, "show lun -frob", err).step, Parser::LineStep::ParseFailed);
    EXPECT_EQ(runLine(tree, "show lun -?", err).step, Parser::LineStep::HelpShown);
    EXPECT_EQ(runLine(tree, "version adapter", err).step, Parser::LineStep::NotReady);
    EXPECT_EQ(runLine(tree, "help -quiet", err).step, Parser::LineStep::Executed);
}

TEST(ParserRunLine, CarriesTheCodeOfTheStepItReached)
{
    Tree tree;
    tree.helpCli->answer = ZEKCLI_CMD_FAIL;
    std::string err;
    EXPECT_EQ(runLine(tree, "show lun -frob", err).rc, ZEKCLI_PARSE_FAIL);
    EXPECT_EQ(runLine(tree, "version adapter", err).rc, ZEKCLI_OK);
    EXPECT_EQ(runLine(tree, "help -quiet", err).rc, ZEKCLI_CMD_FAIL);
}

TEST(ParserRunLine, ALineWithoutCommandForgetsThePreviousOne)
{
    Tree tree;
    std::string err;
    runLine(tree, "help -quiet", err);
    EXPECT_EQ(runLine(tree, "   ", err).step, Parser::LineStep::NotReady);
    EXPECT_EQ(tree.parser.currentCmd, nullptr);
}
