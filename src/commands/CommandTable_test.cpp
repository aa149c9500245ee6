#include "commands/CommandTable.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "commands/CommandDeclaration.h"
#include "commands/NotAvailable.h"
#include "commands/cache/CmdCacheEnableBase.h"
#include "commands/log/CmdLogBase.h"
#include "core/CmdAction.h"
#include "core/CmdItem.h"
#include "core/TokenCmd.h"
#include "core/TokenRoot.h"
#include "core/ZekcliReturn.h"

namespace {

struct CommandRow {
    char const* action;
    char const* item;
    int group;
};

// The whole table, in the order the tree must hold it.
CommandRow const expectedCommands[] = {
    {"?", "cli", 1},
    {"add", "drive", 2},
    {"add", "member", 1},
    {"clear", "display", 1},
    {"clear", "log", 1},
    {"clear", "lun_statistics", 1},
    {"clear", "reservation", 2},
    {"clear", "statistics", 1},
    {"create", "cluster", 1},
    {"create", "lun", 3},
    {"destroy", "cluster", 1},
    {"disable", "beacon", 1},
    {"disable", "cache", 2},
    {"disable", "fc_port", 1},
    {"dump", "cache", 2},
    {"enable", "beacon", 1},
    {"enable", "cache", 2},
    {"enable", "fc_port", 1},
    {"execute", "nvdimm", 6},
    {"execute", "script", 1},
    {"factory_reset", "adapter", 1},
    {"flush", "cache", 2},
    {"get", "file", 4},
    {"help", "cli", 1},
    {"interactive", "cli", 1},
    {"invalidate", "cache", 2},
    {"list", "adapter", 1},
    {"list", "cluster", 1},
    {"list", "device", 1},
    {"list", "drive", 1},
    {"list", "initiator", 1},
    {"list", "log", 1},
    {"list", "lun", 1},
    {"list", "target", 1},
    {"lock", "cache", 2},
    {"merge", "csv", 1},
    {"modify", "cache", 2},
    {"modify", "lun", 3},
    {"purge", "cache", 1},
    {"put", "file", 4},
    {"remove", "drive", 2},
    {"remove", "lun", 3},
    {"remove", "member", 1},
    {"report", "log", 1},
    {"restart", "adapter", 1},
    {"restore", "drive_config", 1},
    {"restore", "fru_file", 1},
    {"retval", "cli", 1},
    {"save", "capture_file", 1},
    {"save", "demonstration_file", 1},
    {"save", "fru_file", 1},
    {"save", "log", 1},
    {"save", "script", 1},
    {"script", "csv", 1},
    {"set", "adapter", 1},
    {"set", "append", 1},
    {"set", "fc", 1},
    {"set", "password", 1},
    {"set", "pool", 1},
    {"remove", "cache_pool", 1},
    {"set", "target", 1},
    {"show", "adapter", 1},
    {"show", "append", 1},
    {"show", "cache_statistics", 1},
    {"show", "cluster", 1},
    {"show", "device", 1},
    {"show", "drive", 1},
    {"show", "fc", 1},
    {"show", "health", 1},
    {"show", "initiator", 1},
    {"show", "lun", 1},
    {"show", "lun_statistics", 1},
    {"show", "memory", 1},
    {"show", "nvdimm", 6},
    {"show", "pool", 1},
    {"show", "reservation", 2},
    {"show", "sfp", 1},
    {"show", "statistics", 1},
    {"show", "system_capture", 1},
    {"show", "target", 1},
    {"unlock", "cache", 2},
    {"update", "firmware", 1},
    {"version", "adapter", 1},
    {"version", "cli", 1},
    {"view", "log", 1},
    {"wait", "time", 1},
};

struct KeywordRow {
    std::string name;
    int requiredKind;
    int valueKind;
    std::string value;
};

// Shorthands for the rows below: optional with a value is the usual keyword.
KeywordRow opt(std::string const& name, std::string const& value = "")
{
    return {name, 2, 1, value};
}
KeywordRow req(std::string const& name, std::string const& value = "")
{
    return {name, 1, 1, value};
}
KeywordRow flag(std::string const& name, std::string const& value = "")
{
    return {name, 2, 0, value};
}

std::vector<KeywordRow> const lunSelectors = {opt("lun_wwuln"),  opt("lun_any_wwuln"), opt("lun_serial"),
                                              opt("lun_number"), opt("vpgindex"),      opt("fc_target"),
                                              opt("is_target")};

std::vector<KeywordRow> concat(std::vector<std::vector<KeywordRow>> const& parts)
{
    std::vector<KeywordRow> all;
    for (auto const& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

// The eight small CLI commands live with the command-line core; their own
// tests cover what they do.
bool isCoreCliCommand(std::string const& action, std::string const& item)
{
    static std::set<std::pair<std::string, std::string>> const core = {
        {"?", "cli"},         {"help", "cli"},  {"retval", "cli"}, {"version", "cli"},
        {"clear", "display"}, {"wait", "time"}, {"set", "append"}, {"show", "append"}};
    return core.count({action, item}) != 0;
}

class CommandTableTest : public ::testing::Test {
protected:
    void SetUp() override { addAllCommands(root); }

    TokenCmd* command(int index) const { return static_cast<TokenCmd*>(root.children.at(index)); }

    TokenCmd* find(std::string const& action, std::string const& item) const
    {
        std::string err;
        auto const a = CmdAction::table().valFromPartialText(action, err);
        EXPECT_EQ(err, "") << action;
        auto const i = CmdItem::table().valFromPartialText(item, err);
        EXPECT_EQ(err, "") << item;
        TokenCmd* found = root.findCmd(a, i, err);
        EXPECT_NE(found, nullptr) << action << " " << item << ": " << err;
        return found;
    }

    static std::string actionText(TokenCmd const* cmd) { return CmdAction::table().textFromVal(cmd->action); }
    static std::string itemText(TokenCmd const* cmd) { return CmdItem::table().textFromVal(cmd->item); }

    void expectKeywords(std::string const& action, std::string const& item, std::vector<KeywordRow> const& rows)
    {
        TokenCmd const* cmd = find(action, item);
        ASSERT_NE(cmd, nullptr);
        ASSERT_EQ(cmd->children.size(), rows.size()) << action << " " << item;
        for (size_t i = 0; i < rows.size(); ++i) {
            SCOPED_TRACE(action + " " + item + " -" + rows[i].name);
            auto const* keyword = dynamic_cast<TokenModifierString const*>(cmd->children[i]);
            ASSERT_NE(keyword, nullptr);
            EXPECT_EQ(keyword->name, rows[i].name);
            EXPECT_EQ(ModifierId::table().textFromVal(keyword->modifierId), rows[i].name);
            EXPECT_EQ(keyword->tokenType, Token::TOKEN_TYPE_MODIFIER);
            EXPECT_EQ(keyword->requiredKind, rows[i].requiredKind);
            EXPECT_EQ(keyword->valueKind, rows[i].valueKind);
            EXPECT_EQ(keyword->value, rows[i].value);
            EXPECT_TRUE(keyword->children.empty());
            EXPECT_EQ(keyword->parent, cmd);
        }
    }

    TokenRoot root;
};

TEST_F(CommandTableTest, HoldsEveryCommandOnceInTableOrder)
{
    size_t const count = sizeof(expectedCommands) / sizeof(expectedCommands[0]);
    ASSERT_EQ(count, 86u);
    ASSERT_EQ(root.children.size(), count);
    for (size_t i = 0; i < count; ++i) {
        TokenCmd const* cmd = command(static_cast<int>(i));
        SCOPED_TRACE(std::to_string(i) + ": " + expectedCommands[i].action + " " + expectedCommands[i].item);
        EXPECT_EQ(actionText(cmd), expectedCommands[i].action);
        EXPECT_EQ(itemText(cmd), expectedCommands[i].item);
        EXPECT_EQ(cmd->commandGroup, expectedCommands[i].group);
        EXPECT_EQ(cmd->tokenType, Token::TOKEN_TYPE_CMD);
        EXPECT_EQ(cmd->name, expectedCommands[i].action);
        EXPECT_EQ(cmd->parent, &root);
    }
}

TEST_F(CommandTableTest, EveryCommandIsFoundByItsWords)
{
    for (auto const& row : expectedCommands) {
        TokenCmd const* cmd = find(row.action, row.item);
        ASSERT_NE(cmd, nullptr);
        EXPECT_EQ(actionText(cmd), row.action);
        EXPECT_EQ(itemText(cmd), row.item);
    }
}

TEST_F(CommandTableTest, ThereIsNoCommandForWordsWithoutARow)
{
    std::string err;
    EXPECT_EQ(root.findCmd(CmdAction::ACTION_STOP, CmdItem::ITEM_ADAPTER, err), nullptr);
    EXPECT_EQ(root.findCmd(CmdAction::ACTION_CREATE, CmdItem::ITEM_POOL, err), nullptr);
    EXPECT_EQ(root.findCmd(CmdAction::ACTION_SHOW, CmdItem::ITEM_NOTIFICATION, err), nullptr);
    EXPECT_EQ(root.findCmd(CmdAction::ACTION_REMOVE, CmdItem::ITEM_POOL, err), nullptr);
    EXPECT_NE(root.findCmd(CmdAction::ACTION_REMOVE, CmdItem::ITEM_CACHE_POOL, err), nullptr);
    EXPECT_NE(root.findCmd(CmdAction::ACTION_RESTORE, CmdItem::ITEM_DRIVE_CONFIG, err), nullptr);
}

TEST_F(CommandTableTest, LunCommandsDeclareTheSevenSelectorsInOrder)
{
    expectKeywords("show", "lun", concat({lunSelectors, {opt("zek")}}));
    expectKeywords("add", "drive", concat({{opt("drive")}, lunSelectors}));
    expectKeywords("remove", "lun", lunSelectors);
    expectKeywords("show", "reservation", lunSelectors);
    expectKeywords("disable", "cache", concat({lunSelectors, {opt("clusterid")}}));
    expectKeywords("purge", "cache", concat({{flag("accept_risk")}, lunSelectors}));
    expectKeywords("lock", "cache", concat({{req("lun_size_lba"), req("lun_start_lba")}, lunSelectors}));
    expectKeywords("invalidate", "cache", concat({{opt("lun_size_lba"), opt("lun_start_lba")}, lunSelectors}));
    expectKeywords("show", "lun_statistics", concat({{opt("interval")}, lunSelectors, {opt("csv_folder", "~")}}));
    expectKeywords("modify", "lun",
                   concat({{opt("size"), opt("name"), opt("mirror"), flag("remove_mirror")}, lunSelectors}));
}

TEST_F(CommandTableTest, CacheEnableAndModifyDifferInModeAndDefaults)
{
    std::vector<KeywordRow> const limits = {opt("profile"),   opt("max_cache"), opt("max_read"),
                                            opt("max_write"), opt("min_read"),  opt("min_write")};
    expectKeywords("enable", "cache", concat({{req("mode")}, limits, lunSelectors, {opt("mirror")}}));
    expectKeywords("modify", "cache",
                   concat({{opt("mode")}, limits, lunSelectors, {flag("use_default"), opt("mirror")}}));
}

TEST_F(CommandTableTest, AdapterAndClusterKeywords)
{
    expectKeywords("create", "cluster", {req("clusterid"), req("secondary"), opt("host_cluster_type")});
    expectKeywords("remove", "member", {req("clusterid"), req("member"), flag("accept_risk")});
    expectKeywords("list", "cluster", {opt("clusterid"), opt("zek")});
    expectKeywords("version", "adapter", {req("compare")});
    expectKeywords("factory_reset", "adapter", {flag("accept_risk")});
    expectKeywords("restart", "adapter", {});
    expectKeywords(
        "execute", "nvdimm",
        {flag("disarm"), flag("erase"), flag("update"), flag("update_all"), flag("scap_selftest"), flag("scrub")});
    expectKeywords("interactive", "cli", {opt("zek")});
}

TEST_F(CommandTableTest, FileKeywordsCarryTheirDeclaredInitialValue)
{
    expectKeywords("get", "file", {req("filepath", "~"), opt("name", "~"), flag("clear", "~")});
    expectKeywords("execute", "script", {req("filepath", "~"), flag("continue_on_error", "~")});
    expectKeywords("dump", "cache", {opt("folder", "~"), opt("interval")});
    expectKeywords("save", "script", {opt("filepath", "~"), opt("useappend")});
    expectKeywords("show", "system_capture", {opt("filepath")});
}

TEST_F(CommandTableTest, LogKeywords)
{
    expectKeywords("view", "log",
                   {opt("filepath", "~"),
                    opt("basepos", "~"),
                    opt("offset", "~"),
                    opt("time", "~"),
                    opt("find", "~"),
                    opt("severity", "~"),
                    {"previous", 2, 2, "~"},
                    {"next", 2, 2, "~"}});
    expectKeywords("list", "log",
                   {opt("filepath", "~"), opt("find", "~"), opt("severity", "~"), opt("csv_delimiter", "~"),
                    opt("csv_file", "~"), opt("previous", "~")});
    expectKeywords("clear", "log", {});
}

TEST_F(CommandTableTest, StorageAndPortKeywords)
{
    expectKeywords(
        "set", "fc",
        {req("port"), opt("fc_link_rate"), opt("exec_throttle"), flag("loop_only"), flag("p2p_only"), flag("auto")});
    expectKeywords(
        "show", "drive",
        {opt("drive"), flag("smart"), flag("verbose"), opt("lun_number"), opt("fc_target"), opt("is_target")});
    expectKeywords("set", "target", {opt("fc_target"), opt("is_target"), req("max_outstanding_io")});
    expectKeywords("show", "cache_statistics", {opt("interval"), opt("csv_folder"), flag("delta")});
    expectKeywords("restore", "drive_config", {req("owner")});
    expectKeywords("remove", "cache_pool", {});
}

TEST_F(CommandTableTest, ScriptCsvAcceptsEveryKeywordAndNeedsTheCsvFile)
{
    TokenCmd const* cmd = find("script", "csv");
    ASSERT_NE(cmd, nullptr);
    ASSERT_EQ(cmd->children.size(), 103u);
    for (size_t i = 0; i < cmd->children.size(); ++i) {
        auto const* keyword = dynamic_cast<TokenModifierString const*>(cmd->children[i]);
        ASSERT_NE(keyword, nullptr);
        EXPECT_EQ(static_cast<size_t>(keyword->modifierId), i + 1);
        bool const isCsvFile = keyword->modifierId == ModifierId::MODIFIER_CSV_FILE;
        EXPECT_EQ(keyword->requiredKind, isCsvFile ? 1 : 2) << keyword->name;
        EXPECT_EQ(keyword->valueKind, 2) << keyword->name;
        EXPECT_EQ(keyword->value, "") << keyword->name;
    }
}

TEST_F(CommandTableTest, EveryCommandHasTitleDescriptionAndSyntax)
{
    for (Token const* child : root.children) {
        auto const* cmd = static_cast<TokenCmd const*>(child);
        SCOPED_TRACE(actionText(cmd) + " " + itemText(cmd));
        EXPECT_FALSE(cmd->helpTitle.empty());
        EXPECT_FALSE(cmd->helpDescription.empty());
        EXPECT_FALSE(cmd->helpModifiers.empty());
        EXPECT_FALSE(cmd->helpExamples.empty());
        if (!cmd->children.empty()) {
            EXPECT_FALSE(cmd->helpSyntax.empty());
        }
    }
}

TEST_F(CommandTableTest, HelpOfTheCommandsHereFollowsOneLayout)
{
    for (Token const* child : root.children) {
        auto const* cmd = static_cast<TokenCmd const*>(child);
        if (isCoreCliCommand(actionText(cmd), itemText(cmd)))
            continue;
        SCOPED_TRACE(actionText(cmd) + " " + itemText(cmd));
        EXPECT_EQ(cmd->helpExamples.rfind(cmd->ugCommandPrompt(), 0), 0u);
        EXPECT_EQ(cmd->helpSyntax.rfind("\t", 0), 0u);
        // Each declared keyword is explained; the file keyword is written
        // -file in help, which the abbreviation rule accepts.
        for (Token const* keyword : cmd->children) {
            if (cmd->children.size() > 100)
                break;
            std::string const shown = keyword->name == "filepath" ? "file" : keyword->name;
            EXPECT_NE(cmd->helpSyntax.find("-" + shown), std::string::npos) << shown;
            EXPECT_NE(cmd->helpModifiers.find("-" + shown), std::string::npos) << shown;
        }
    }
}

TEST_F(CommandTableTest, AdapterCommandsWithoutTheirOwnZekAskForIt)
{
    TokenCmd const* health = find("show", "health");
    ASSERT_NE(health, nullptr);
    EXPECT_NE(health->helpSyntax.find("\t-zek=<adapter>"), std::string::npos);
    TokenCmd const* lun = find("show", "lun");
    ASSERT_NE(lun, nullptr);
    EXPECT_NE(lun->helpSyntax.find("\t[-zek=<adapter>]"), std::string::npos);
    EXPECT_EQ(lun->helpSyntax.find("\t-zek=<adapter>"), std::string::npos);
}

TEST_F(CommandTableTest, TextsGivenForTheCommandsAreKeptExactly)
{
    EXPECT_EQ(find("show", "cache_statistics")->helpTitle, "Show Cache Statistics");
    EXPECT_EQ(find("show", "cache_statistics")->helpDescription, "Displays cache statistics");
    EXPECT_EQ(find("show", "lun_statistics")->helpTitle, "Show LUN_Statistics");
    EXPECT_EQ(find("show", "lun_statistics")->helpDescription,
              "Displays statistics in a tabular format for either a single LUN or for all LUNs known to the "
              "Fibre Channel Adapter.");
    EXPECT_EQ(find("clear", "lun_statistics")->helpTitle, "Clear LUN_Statistics");
    EXPECT_EQ(find("show", "statistics")->helpTitle, "Show Statistics");
    EXPECT_EQ(find("show", "statistics")->helpDescription, "Displays cache statistics");
    EXPECT_EQ(find("clear", "statistics")->helpTitle, "Clear Statistics");
    EXPECT_EQ(find("clear", "statistics")->helpDescription, "Resets cache statistics to zero");
    EXPECT_EQ(find("save", "script")->helpTitle, "Save Script");
    EXPECT_EQ(find("save", "script")->helpDescription,
              "Saves an editable text file containing the current adapter configuration as a list of Host CLI "
              "commands.");
    EXPECT_EQ(find("show", "system_capture")->helpTitle, "Show System_Capture");
    EXPECT_EQ(find("execute", "script")->helpTitle, "Execute Script");
    EXPECT_EQ(find("execute", "script")->helpDescription, "Executes a list of Host CLI commands read in from a file ");
    EXPECT_EQ(find("merge", "csv")->helpTitle, "Merge CSV");
    EXPECT_EQ(find("script", "csv")->helpTitle, "Script CSV");
    EXPECT_EQ(find("script", "csv")->helpDescription,
              "Creates a script with individual commands for items in one or more columns of a CSV input file.");
    EXPECT_EQ(find("view", "log")->helpTitle, "View Log");
    EXPECT_EQ(find("list", "log")->helpTitle, "List Log");
    EXPECT_EQ(find("save", "log")->helpTitle, "Save Log");
    EXPECT_EQ(find("report", "log")->helpTitle, "Report Log");
    EXPECT_EQ(find("clear", "log")->helpTitle, "Clear Log");
}

// A command whose work is not built declares itself like any other and
// answers with the shared refusal; "stop adapter" has no class of its own, so
// it stands in for one here.
class UnbuiltCommand : public TokenCmd {
public:
    UnbuiltCommand()
    {
        static constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
            commandRow(CmdAction::ACTION_STOP, CmdItem::ITEM_ADAPTER, TokenCmd::GROUP_ORDINARY),
            endRow(),
        };
        declareCommand(*this, rows);
    }

    int execCommand(std::string& err) override { return commandNotAvailableYet(*this, err); }
};

TEST(NotAvailable, CommandsNotBuiltYetSaySoAndFail)
{
    UnbuiltCommand command;
    std::string err = "left over";
    EXPECT_EQ(command.execCommand(err), ZEKCLI_CMD_FAIL);
    EXPECT_EQ(err, "The command \"stop adapter\" is not available in this build yet");
}

TEST_F(CommandTableTest, LogCommandsShareTheirWordTables)
{
    auto const* view = dynamic_cast<CmdLogBase const*>(find("view", "log"));
    ASSERT_NE(view, nullptr);
    EXPECT_NE(dynamic_cast<CmdLogBase const*>(find("clear", "log")), nullptr);
    std::string err;
    EXPECT_EQ(view->basePositionWords.valFromPartialText("e", err), CmdLogBase::BASEPOS_END);
    EXPECT_EQ(err, "");
    EXPECT_EQ(view->basePositionWords.valFromPartialText("start", err), CmdLogBase::BASEPOS_START);
    EXPECT_EQ(view->severityWords.valFromPartialText("err", err), 2);
    EXPECT_EQ(err, "");
    EXPECT_EQ(view->severityWords.valFromPartialText("system", err), 7);
    EXPECT_EQ(view->severityWords.textFromVal(3), "warning");
    EXPECT_EQ(view->severityWords.textFromVal(8), "");
}

TEST_F(CommandTableTest, CacheCommandsShareModeAndProfileWords)
{
    auto const* enable = dynamic_cast<CmdCacheEnableBase const*>(find("enable", "cache"));
    ASSERT_NE(enable, nullptr);
    EXPECT_NE(dynamic_cast<CmdCacheEnableBase const*>(find("modify", "cache")), nullptr);
    std::string err;
    EXPECT_EQ(enable->modeWords.valFromPartialText("read_write_b", err), KLunInfo::CACHE_CONFIG_READ_WRITE_BACK);
    EXPECT_EQ(err, "");
    EXPECT_EQ(enable->modeWords.valFromPartialText("n", err), KLunInfo::CACHE_CONFIG_NONE);
    EXPECT_EQ(err, "");
    enable->modeWords.valFromPartialText("read_w", err);
    EXPECT_EQ(err, "Ambiguous selection, please choose \"read_write_through\" or \"read_write_back\"");
    EXPECT_EQ(enable->modeWords.textFromVal(KLunInfo::CACHE_CONFIG_WRITE_BACK_ONLY), "write_back_only");
    EXPECT_EQ(enable->profileWords.valFromPartialText("media", err), KLunCacheInfo::CACHE_PROFILE_MEDIA_SERVER);
    EXPECT_EQ(enable->profileWords.textFromVal(KLunCacheInfo::CACHE_PROFILE_VENDOR_SPECIFIC), "vendor_specific");
    EXPECT_EQ(enable->profileWords.size(), 7u);
}

} // namespace
