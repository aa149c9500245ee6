// The token tree: building from rows, keyword and command lookup, required
// keywords, value choices, and the small helpers that commands share.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "core/TokenCmd.h"
#include "core/TokenRoot.h"
#include "support/TempDirectory.h"
#include "support/TokenTreeFixture.h"

using namespace testtree;

namespace {

std::string readAll(FILE* file)
{
    std::rewind(file);
    std::string out;
    for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file))
        out.push_back(static_cast<char>(c));
    return out;
}

FILE* fileHolding(std::string const& bytes)
{
    FILE* file = std::tmpfile();
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::rewind(file);
    return file;
}

} // namespace

// ---- declaration rows --------------------------------------------------------------

TEST(TokenTree, CommandRowNamesTheCommandAfterItsAction)
{
    FakeCmd cmd(kCreateLun, "");
    EXPECT_EQ(cmd.tokenType, Token::TOKEN_TYPE_CMD);
    EXPECT_EQ(cmd.name, "create");
    EXPECT_EQ(cmd.action, CmdAction::ACTION_CREATE);
    EXPECT_EQ(cmd.item, CmdItem::ITEM_LUN);
    EXPECT_EQ(cmd.commandGroup, 3);
    EXPECT_TRUE(cmd.isDefault);
    ASSERT_EQ(cmd.children.size(), 3u);
    auto* size = static_cast<TokenModifierString*>(cmd.children[0]);
    EXPECT_EQ(size->name, "size");
    EXPECT_EQ(size->tokenType, Token::TOKEN_TYPE_MODIFIER);
    EXPECT_EQ(size->modifierId, ModifierId::MODIFIER_SIZE);
    EXPECT_EQ(size->requiredKind, TokenModifier::REQUIRED);
    EXPECT_EQ(size->valueKind, TokenModifier::VALUE_REQUIRED);
    EXPECT_EQ(size->parent, &cmd);
    EXPECT_EQ(size->modifierText, "");
}

TEST(TokenTree, InitialValuesComeFromTheRows)
{
    FakeCmd cmd(kHelpCli, "");
    ASSERT_EQ(cmd.children.size(), 2u);
    EXPECT_EQ(cmd.children[0]->value, "~");
    EXPECT_EQ(cmd.children[0]->name, "genhelpdoc");
}

TEST(TokenTree, LevelsBuildNestedChildren)
{
    Row const rows[] = {
        {1, kCmd, "", "", CmdAction::ACTION_LIST, CmdItem::ITEM_LOG, 1},
        {2, kKey, "", "", ModifierId::MODIFIER_SEVERITY, kOpt, kVal},
        {3, kStr, "info", "1", 0, 0, 0},
        {3, kStr, "error", "3", 0, 0, 0},
        {2, kKey, "", "", ModifierId::MODIFIER_FIND, kOpt, kVal},
        {2, kKey, "", "", ModifierId::MODIFIER_BASEPOS, kOpt, kVal},
        {3, kStr, "begin", "0", 0, 0, 0},
        {0, 0, "", "", 0, 0, 0},
    };
    FakeCmd cmd(rows, "");
    ASSERT_EQ(cmd.children.size(), 3u);
    Token* severity = cmd.children[0];
    ASSERT_EQ(severity->children.size(), 2u);
    EXPECT_EQ(severity->children[0]->name, "info");
    EXPECT_EQ(severity->children[0]->value, "1");
    EXPECT_EQ(severity->children[0]->tokenType, Token::TOKEN_TYPE_STRING);
    EXPECT_EQ(severity->children[1]->parent, severity);
    EXPECT_EQ(cmd.children[1]->name, "find");
    EXPECT_TRUE(cmd.children[1]->children.empty());
    ASSERT_EQ(cmd.children[2]->children.size(), 1u);
    EXPECT_EQ(cmd.children[2]->children[0]->name, "begin");
}

TEST(TokenTree, RowsThatEndAtOnceDeclareNoKeywords)
{
    FakeCmd cmd(kShowHealth, "");
    EXPECT_TRUE(cmd.children.empty());
}

TEST(TokenTree, UnknownRowTypesAndIdsDoNotBreakTheTree)
{
    Row const rows[] = {
        {1, kCmd, "", "", CmdAction::ACTION_SHOW, CmdItem::ITEM_POOL, 1},
        {2, 7, "", "", ModifierId::MODIFIER_NAME, kOpt, kVal},
        {2, kKey, "", "", 500, kOpt, kVal},
        {0, 0, "", "", 0, 0, 0},
    };
    FakeCmd cmd(rows, "");
    ASSERT_EQ(cmd.children.size(), 1u);
    EXPECT_EQ(cmd.children[0]->name, "");
}

TEST(TokenTree, CommonKeywordsAreDeclaredInOrder)
{
    Tree tree;
    TokenCmd const& common = tree.parser.root.commonCommand;
    EXPECT_EQ(common.tokenType, Token::TOKEN_TYPE_CMD);
    EXPECT_EQ(common.action, CmdAction::ACTION_NO_ACTION);
    EXPECT_EQ(common.item, CmdItem::ITEM_NONE);
    EXPECT_EQ(common.parent, nullptr);
    struct Expected {
        char const* name;
        int required;
        int valueKind;
    };
    Expected const expected[] = {
        {"zek", 1, 1},
        {"agent", 2, 1},
        {"help", 2, 2},
        {"?", 0, 0},
        {"echo", 2, 2},
        {"quiet", 2, 2},
        {"show_only_error", 2, 2},
        {"textfile", 2, 2},
        {"result", 2, 2},
        {"append", 2, 1},
        {"pw", 2, 1},
        {"demonstration_file", 2, 1},
    };
    ASSERT_EQ(common.children.size(), std::size(expected));
    for (size_t i = 0; i < std::size(expected); ++i) {
        auto* keyword = static_cast<TokenModifierString*>(common.children[i]);
        EXPECT_EQ(keyword->name, expected[i].name) << i;
        EXPECT_EQ(keyword->requiredKind, expected[i].required) << i;
        EXPECT_EQ(keyword->valueKind, expected[i].valueKind) << i;
    }
}

TEST(TokenTree, AppendKeywordCanListItsSets)
{
    Tree tree;
    EXPECT_NE(dynamic_cast<TokenModifierAppend*>(tree.common(ModifierId::MODIFIER_APPEND)), nullptr);
    EXPECT_EQ(dynamic_cast<TokenModifierAppend*>(tree.common(ModifierId::MODIFIER_PW)), nullptr);
}

TEST(TokenTree, BaseCommandDoesNothingAndAnswersOne)
{
    TokenCmd cmd;
    std::string err;
    EXPECT_EQ(cmd.execCommand(err), 1);
    EXPECT_EQ(err, "");
}

TEST(TokenTree, SetValueMarksTheTokenAsGiven)
{
    StringToken token;
    EXPECT_TRUE(token.isDefault);
    EXPECT_TRUE(token.setValue("x"));
    EXPECT_FALSE(token.isDefault);
    EXPECT_EQ(token.value, "x");
    EXPECT_TRUE(token.setName("n"));
    EXPECT_EQ(token.name, "n");
}

TEST(TokenTree, DefaultFlagIsResetThroughTheWholeSubtree)
{
    FakeCmd cmd(kCreateLun, "");
    cmd.setValue("a");
    cmd.children[1]->setValue("b");
    cmd.initDefaultFlag();
    EXPECT_TRUE(cmd.isDefault);
    EXPECT_TRUE(cmd.children[1]->isDefault);
    EXPECT_EQ(cmd.children[1]->value, "b");
}

// ---- keyword lookup ------------------------------------------------------------------

TEST(TokenTreeLookup, IdZeroFindsNothingAndSaysNothing)
{
    Tree tree;
    std::string err = "left over";
    EXPECT_EQ(tree.showLun->findModifier(ModifierId::MODIFIER_NONE, err), nullptr);
    EXPECT_EQ(err, "");
}

TEST(TokenTreeLookup, UndeclaredKeywordIsNotAValidModifier)
{
    Tree tree;
    std::string err;
    EXPECT_EQ(tree.showHealth->findModifier(ModifierId::MODIFIER_SIZE, err), nullptr);
    EXPECT_EQ(err, "\"size\" is not a valid modifier");
}

TEST(TokenTreeLookup, CommonKeywordsAreFoundFromEveryCommand)
{
    Tree tree;
    std::string err;
    TokenModifierString* quiet = tree.showHealth->findModifier(ModifierId::MODIFIER_QUIET, err);
    EXPECT_EQ(err, "");
    EXPECT_EQ(quiet, tree.common(ModifierId::MODIFIER_QUIET));
    EXPECT_EQ(tree.showHealth->findCommonModifier(ModifierId::MODIFIER_QUIET, err), quiet);
}

TEST(TokenTreeLookup, OwnDeclarationWins)
{
    Tree tree;
    std::string err;
    TokenModifierString* zek = tree.showLun->findModifier(ModifierId::MODIFIER_ZEK, err);
    ASSERT_NE(zek, nullptr);
    EXPECT_EQ(zek->parent, tree.showLun);
    EXPECT_EQ(tree.showHealth->findModifier(ModifierId::MODIFIER_ZEK, err)->parent, &tree.parser.root.commonCommand);
}

TEST(TokenTreeLookup, CommandOutsideATreeFindsOnlyItsOwnKeywords)
{
    FakeCmd cmd(kCreateLun, "");
    std::string err;
    EXPECT_NE(cmd.findModifier(ModifierId::MODIFIER_SIZE, err), nullptr);
    EXPECT_EQ(cmd.findModifier(ModifierId::MODIFIER_QUIET, err), nullptr);
    EXPECT_EQ(err, "\"quiet\" is not a valid modifier");
}

TEST(TokenTreeLookup, RelatedKeywordFamilies)
{
    auto keyword = [](ModifierId::MODIFIER_ID id) {
        TokenModifierString token;
        token.modifierId = id;
        return std::string(token.isTargetRelated() ? "T" : "") + (token.isLunRelated() ? "L" : "") +
            (token.isInitiatorRelated() ? "I" : "") + (token.isDeviceRelated() ? "D" : "");
    };
    EXPECT_EQ(keyword(ModifierId::MODIFIER_FC_TARGET), "TL");
    EXPECT_EQ(keyword(ModifierId::MODIFIER_IS_TARGET), "TL");
    EXPECT_EQ(keyword(ModifierId::MODIFIER_LUN_WWULN), "L");
    EXPECT_EQ(keyword(ModifierId::MODIFIER_LUN_ANY_WWULN), "L");
    EXPECT_EQ(keyword(ModifierId::MODIFIER_LUN_SERIAL), "L");
    EXPECT_EQ(keyword(ModifierId::MODIFIER_LUN_NUMBER), "L");
    EXPECT_EQ(keyword(ModifierId::MODIFIER_VPGINDEX), "L");
    EXPECT_EQ(keyword(ModifierId::MODIFIER_FC_INITIATOR), "I");
    EXPECT_EQ(keyword(ModifierId::MODIFIER_IS_INITIATOR), "I");
    EXPECT_EQ(keyword(ModifierId::MODIFIER_FC_DEVICE), "D");
    EXPECT_EQ(keyword(ModifierId::MODIFIER_IS_DEVICE), "D");
    EXPECT_EQ(keyword(ModifierId::MODIFIER_DMDEST_FC_TARGET), "");
    EXPECT_EQ(keyword(ModifierId::MODIFIER_NAME), "");
}

// ---- value choices ---------------------------------------------------------------------

TEST(TokenTreeChoice, EmptyTextNeedsExactlyOneChoice)
{
    std::string err;
    TokenModifierString none;
    EXPECT_EQ(none.findChild("", err), nullptr);
    EXPECT_EQ(err, "No default selection");

    TokenModifierString keyword;
    auto* only = new StringToken;
    only->name = "x";
    keyword.addChild(only);
    EXPECT_EQ(keyword.findChild("", err), only);
    EXPECT_EQ(err, "");

    auto* second = new StringToken;
    second->name = "y";
    keyword.addChild(second);
    EXPECT_EQ(keyword.findChild("", err), nullptr);
    EXPECT_EQ(err, "No default selection");
}

TEST(TokenTreeChoice, PrefixMatchWithoutExactPreference)
{
    TokenModifierString keyword;
    for (auto [name, value] : {std::pair{"a", "-quiet"}, std::pair{"ab", "-echo"}, std::pair{"b", "-zek=1"}}) {
        auto* child = new StringToken;
        child->name = name;
        child->value = value;
        keyword.addChild(child);
    }
    std::string err;
    EXPECT_EQ(keyword.findChild("a", err), nullptr);
    EXPECT_EQ(err, "Ambiguous selection, please choose \"-quiet\" or \"-echo\"");
    EXPECT_EQ(keyword.findChild("AB", err), keyword.children[1]);
    EXPECT_EQ(err, "");
    EXPECT_EQ(keyword.findChild("B", err), keyword.children[2]);
    EXPECT_EQ(keyword.findChild("Zz", err), nullptr);
    EXPECT_EQ(err, "Zz is not recognized");
}

// ---- commands in the root ------------------------------------------------------------------

TEST(TokenTreeRoot, FindCmdNeedsActionAndItem)
{
    Tree tree;
    std::string err = "left over";
    EXPECT_EQ(tree.parser.root.findCmd(CmdAction::ACTION_SHOW, CmdItem::ITEM_LUN, err), tree.showLun);
    EXPECT_EQ(err, "");
    EXPECT_EQ(tree.parser.root.findCmd(CmdAction::ACTION_NO_ACTION, CmdItem::ITEM_LUN, err), nullptr);
    EXPECT_EQ(err, "");
    EXPECT_EQ(tree.parser.root.findCmd(CmdAction::ACTION_SHOW, CmdItem::ITEM_NONE, err), nullptr);
    EXPECT_EQ(err, "");
    EXPECT_EQ(tree.parser.root.findCmd(CmdAction::ACTION_CREATE, CmdItem::ITEM_POOL, err), nullptr);
    EXPECT_EQ(err, "\"create pool\" is not a valid command");
}

TEST(TokenTreeRoot, AvailableActionsAndItemsSkipHiddenGroups)
{
    Tree tree;
    TokenRoot& root = tree.parser.root;
    root.hiddenGroups[0] = 3;
    std::vector<CmdAction::CMD_ACTION> actions;
    root.getListOfAvailableActions(actions);
    EXPECT_EQ(actions,
              (std::vector<CmdAction::CMD_ACTION>{CmdAction::ACTION_SHOW, CmdAction::ACTION_VERSION,
                                                  CmdAction::ACTION_HELP, CmdAction::ACTION_INTERACTIVE,
                                                  CmdAction::ACTION_SET, CmdAction::ACTION_VIEW}));
    root.hiddenGroups[0] = 0;
    actions.clear();
    root.getListOfAvailableActions(actions);
    EXPECT_EQ(actions[1], CmdAction::ACTION_CREATE);

    std::vector<CmdItem::CMD_ITEM> items;
    root.getListOfAvailableItemsForSpecificAction(CmdAction::ACTION_SHOW, items);
    EXPECT_EQ(items, (std::vector<CmdItem::CMD_ITEM>{CmdItem::ITEM_LUN, CmdItem::ITEM_HEALTH}));
}

TEST(TokenTreeRoot, CacheStatisticsNeverShowAmongItems)
{
    Tree tree;
    Row const rows[] = {
        {1, kCmd, "", "", CmdAction::ACTION_SHOW, CmdItem::ITEM_CACHE_STATISTICS, 1},
        {0, 0, "", "", 0, 0, 0},
    };
    tree.parser.root.addChild(new FakeCmd(rows, ""));
    std::vector<CmdItem::CMD_ITEM> items;
    tree.parser.root.getListOfAvailableItemsForSpecificAction(CmdAction::ACTION_SHOW, items);
    EXPECT_EQ(items, (std::vector<CmdItem::CMD_ITEM>{CmdItem::ITEM_LUN, CmdItem::ITEM_HEALTH}));
}

TEST(TokenTreeRoot, GroupTables)
{
    TokenRoot root;
    EXPECT_TRUE(root.isGroupDisabled(0));
    EXPECT_FALSE(root.isGroupDisabled(1));
    root.hiddenGroups[13] = 6;
    EXPECT_TRUE(root.isGroupHidden(6));
    EXPECT_FALSE(root.isGroupHidden(5));
}

// ---- required keywords --------------------------------------------------------------------

TEST(TokenTreeRequired, OnlyTheFirstMissingKeywordIsReported)
{
    Row const rows[] = {
        {1, kCmd, "", "", CmdAction::ACTION_ADD, CmdItem::ITEM_MEMBER, 1},
        {2, kKey, "", "", ModifierId::MODIFIER_CLUSTERID, kReq, kVal},
        {2, kKey, "", "", ModifierId::MODIFIER_MEMBER, kReq, kVal},
        {0, 0, "", "", 0, 0, 0},
    };
    Tree tree;
    auto* cmd = new FakeCmd(rows, "\t-clusterid=<id>\n\t-member=<id>");
    tree.parser.root.addChild(cmd);
    testing::internal::CaptureStdout();
    EXPECT_FALSE(cmd->verifyRequiredModifiersAreSet());
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Error:  -clusterid modifier must be specified\n"
              "  Command syntax:\n    add member\n\t-clusterid=<id>\n\t-member=<id>\n\n");

    cmd->children[0]->setValue("5");
    testing::internal::CaptureStdout();
    EXPECT_FALSE(cmd->verifyRequiredModifiersAreSet());
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Error:  -member modifier must be specified\n"
              "  Command syntax:\n    add member\n\t-clusterid=<id>\n\t-member=<id>\n\n");

    cmd->children[1]->setValue("");
    testing::internal::CaptureStdout();
    EXPECT_FALSE(cmd->verifyRequiredModifiersAreSet());
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Error:  -member modifier requires a value\n"
              "  Command syntax:\n    add member\n\t-clusterid=<id>\n\t-member=<id>\n\n");

    cmd->children[1]->setValue("6");
    EXPECT_TRUE(cmd->verifyRequiredModifiersAreSet());
}

TEST(TokenTreeRequired, CommonKeywordsDoNotCount)
{
    Tree tree;
    EXPECT_TRUE(tree.showHealth->verifyRequiredModifiersAreSet());
}

TEST(TokenTreeRequired, EmptySyntaxShowsAsABlank)
{
    Tree tree;
    EXPECT_EQ(tree.showHealth->cmdHelpText(), "  Command syntax:\n    show health\n ");
    EXPECT_EQ(tree.showLun->cmdHelpText(), "  Command syntax:\n    show lun\n\t[-lun_number=<n>]");
}

TEST(TokenTreeRequired, ResetClearsOnlyRequiredValues)
{
    FakeCmd cmd(kCreateLun, "");
    cmd.children[0]->setValue("100");
    cmd.children[1]->setValue("name");
    cmd.resetModifierRequiredParamValues();
    EXPECT_EQ(cmd.children[0]->value, "");
    EXPECT_FALSE(cmd.children[0]->isDefault);
    EXPECT_EQ(cmd.children[1]->value, "name");
}

// ---- helpers -----------------------------------------------------------------------------

TEST(TokenHelpers, HexDigits)
{
    EXPECT_TRUE(TokenCmd::isAllHexDigits("0123456789abcdefABCDEF"));
    EXPECT_TRUE(TokenCmd::isAllHexDigits(""));
    EXPECT_FALSE(TokenCmd::isAllHexDigits("12g"));
    EXPECT_FALSE(TokenCmd::isAllHexDigits("0x12"));
    EXPECT_FALSE(TokenCmd::isAllHexDigits(" 1"));
}

TEST(TokenHelpers, RemoveLeadingWhitespace)
{
    std::string text = " \t\r\n x y ";
    TokenCmd::removeLeadingWhitespace(text);
    EXPECT_EQ(text, "x y ");
    text = " \t ";
    TokenCmd::removeLeadingWhitespace(text);
    EXPECT_EQ(text, "");
}

TEST(TokenHelpers, ReadLineKeepsAtMostItsLimitAndSaysSo)
{
    FILE* file = fileHolding("abcdefgh\nabc\r\nlast\n");
    std::string line;
    bool tooLong = false;
    EXPECT_TRUE(TokenCmd::readLineFromFilePointer(file, line, 3, tooLong));
    EXPECT_EQ(line, "abc");
    EXPECT_TRUE(tooLong);
    EXPECT_TRUE(TokenCmd::readLineFromFilePointer(file, line, 3, tooLong));
    EXPECT_EQ(line, "abc");
    EXPECT_FALSE(tooLong);
    EXPECT_TRUE(TokenCmd::readLineFromFilePointer(file, line, 3, tooLong));
    EXPECT_EQ(line, "las");
    EXPECT_TRUE(tooLong);
    EXPECT_FALSE(TokenCmd::readLineFromFilePointer(file, line, 3, tooLong));
    std::fclose(file);
}

TEST(TokenHelpers, ReadLineEndsAtLineFeedOrCarriageReturn)
{
    FILE* file = fileHolding("one\ntwo\r\nthree\rXfour\n\nlast");
    std::string line;
    EXPECT_TRUE(TokenCmd::readLineFromFilePointer(file, line));
    EXPECT_EQ(line, "one");
    EXPECT_TRUE(TokenCmd::readLineFromFilePointer(file, line));
    EXPECT_EQ(line, "two");
    EXPECT_TRUE(TokenCmd::readLineFromFilePointer(file, line));
    EXPECT_EQ(line, "three");
    EXPECT_TRUE(TokenCmd::readLineFromFilePointer(file, line));
    EXPECT_EQ(line, "four");
    EXPECT_TRUE(TokenCmd::readLineFromFilePointer(file, line));
    EXPECT_EQ(line, "");
    // A last line without its end is not returned.
    EXPECT_FALSE(TokenCmd::readLineFromFilePointer(file, line));
    std::fclose(file);
}

TEST(TokenHelpers, BareCarriageReturnSwallowsTheNextByte)
{
    FILE* file = fileHolding("a\rb\n");
    std::string line;
    EXPECT_TRUE(TokenCmd::readLineFromFilePointer(file, line));
    EXPECT_EQ(line, "a");
    EXPECT_TRUE(TokenCmd::readLineFromFilePointer(file, line));
    EXPECT_EQ(line, "");
    EXPECT_FALSE(TokenCmd::readLineFromFilePointer(file, line));
    std::fclose(file);

    file = fileHolding("end\r");
    EXPECT_FALSE(TokenCmd::readLineFromFilePointer(file, line));
    std::fclose(file);
    EXPECT_FALSE(TokenCmd::readLineFromFilePointer(nullptr, line));
}

TEST(TokenHelpers, CreateDirectory)
{
    TempDirectory scratch{"zek-token-test"};
    ASSERT_TRUE(scratch.made());
    std::string const& base = scratch.path;
    std::string err;
    std::string existing = base;
    EXPECT_TRUE(TokenCmd::createDirectoryIfItDoesNotExist(existing, err));
    std::string fresh = base + "/new";
    EXPECT_TRUE(TokenCmd::createDirectoryIfItDoesNotExist(fresh, err));
    struct stat info {};
    ASSERT_EQ(stat(fresh.c_str(), &info), 0);
    EXPECT_TRUE(S_ISDIR(info.st_mode));
    std::string impossible = base + "/missing/deeper";
    EXPECT_FALSE(TokenCmd::createDirectoryIfItDoesNotExist(impossible, err));
    EXPECT_EQ(err, "Directory create failed");
}

TEST(TokenHelpers, EmptyDirectoryMeansHome)
{
    TempDirectory scratch{"zek-token-test"};
    ASSERT_TRUE(scratch.made());
    std::string const& home = scratch.path;
    ScopedEnvironmentVariable const homeVariable("HOME", home);
    std::string path;
    std::string err;
    EXPECT_TRUE(TokenCmd::createDirectoryIfItDoesNotExist(path, err));
    EXPECT_EQ(path, home);
}

TEST(TokenHelpers, SafeOpenReportsWhy)
{
    FILE* file = nullptr;
    std::string err;
    EXPECT_FALSE(Token::safe_fopen(&file, "/nonexistent-dir/x", "r", err));
    EXPECT_EQ(err, "Unable to open file \"/nonexistent-dir/x\", (No such file or directory)");
    EXPECT_TRUE(Token::safe_fopen(&file, "/dev/null", "w", err));
    ASSERT_NE(file, nullptr);
    std::fclose(file);
}

// Nothing is read from a file whose end may never come.
TEST(TokenHelpers, SafeOpenReadsOnlyRegularFiles)
{
    FILE* file = nullptr;
    std::string err;
    EXPECT_FALSE(Token::safe_fopen(&file, "/dev/zero", "r", err));
    EXPECT_EQ(err, "Unable to open file \"/dev/zero\", (Not a regular file)");
    EXPECT_FALSE(Token::safe_fopen(&file, "/", "rb", err));
    EXPECT_EQ(err, "Unable to open file \"/\", (Is a directory)");
    EXPECT_FALSE(Token::safe_fopen(&file, "/dev/zero", "r+", err));
    EXPECT_EQ(file, nullptr);
}

TEST(TokenHelpers, DisplayMemoryDumpsHexAndText)
{
    char const data[] = {'A', 'b', 0x01, static_cast<char>(0x80), 0x7f, ' '};
    FILE* out = std::tmpfile();
    Token::displayMemory(data, 6, 4, out);
    char head[32];
    std::snprintf(head, sizeof head, "0x%08llx ", static_cast<unsigned long long>(reinterpret_cast<uintptr_t>(data)));
    char head2[32];
    std::snprintf(head2, sizeof head2, "0x%08llx ",
                  static_cast<unsigned long long>(reinterpret_cast<uintptr_t>(data + 4)));
    EXPECT_EQ(readAll(out), std::string(head) + "41 62 01 80 Ab..\n" + head2 + "7F 20       \x7f \n");
    std::fclose(out);
}

TEST(TokenHelpers, DisplayMemoryDefaultsToSixteenPerLine)
{
    char data[17] = {};
    FILE* out = std::tmpfile();
    Token::displayMemory(data, 17, 0, out);
    std::string const text = readAll(out);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2);
    size_t const firstLine = text.find('\n');
    EXPECT_EQ(text.substr(firstLine - 16, 16), std::string(16, '.'));
    std::fclose(out);
}
