// The word tables are stored in files by number: every entry is pinned here
// by its position, independently of how the tables are built.
#include <gtest/gtest.h>

#include "core/CmdAction.h"
#include "core/CmdItem.h"
#include "core/ModifierId.h"

namespace {

char const* const kActions[] = {
    "no_action", "add",           "clear",          "create",  "destroy", "disable", "dump",        "enable",
    "execute",   "factory_reset", "factory_reset2", "flush",   "get",     "help",    "interactive", "invalidate",
    "list",      "lock",          "merge",          "modify",  "purge",   "put",     "?",           "remove",
    "report",    "restart",       "restore",        "retval",  "save",    "script",  "set",         "show",
    "stop",      "unlock",        "update",         "version", "view",    "wait",
};

char const* const kItems[] = {
    "",
    "adapter",
    "append",
    "auto_cluster",
    "beacon",
    "cache",
    "cache_pool",
    "cache_statistics",
    "capture_file",
    "cli",
    "cluster",
    "csv",
    "demonstration_file",
    "device",
    "display",
    "drive",
    "drive_config",
    "fc",
    "fc_port",
    "file",
    "firmware",
    "fru_file",
    "health",
    "initiator",
    "log",
    "lun",
    "lun_statistics",
    "member",
    "memory",
    "notification",
    "nvdimm",
    "password",
    "pool",
    "reservation",
    "script",
    "sfp",
    "statistics",
    "system_capture",
    "target",
    "time",
};

char const* const kModifiers[] = {
    "",
    "append",
    "echo",
    "help",
    "zek",
    "agent",
    "?",
    "quiet",
    "result",
    "show_only_error",
    "textfile",
    "loop_only",
    "auto",
    "p2p_only",
    "accept_risk",
    "accept_risk2",
    "basepos",
    "cache",
    "chap_enable",
    "chap_secret",
    "clear",
    "clusterid",
    "cmd",
    "compare",
    "constraint",
    "continue_on_error",
    "csv_delimiter",
    "csv_file",
    "csv_folder",
    "delta",
    "demonstration_file",
    "drive",
    "dmdest_fc_target",
    "dmdest_is_target",
    "dmdest_lun_any_wwuln",
    "dmdest_lun_number",
    "dmdest_lun_serial",
    "dmdest_lun_wwuln",
    "dmdest_vpgindex",
    "exec_throttle",
    "fc_device",
    "fc_initiator",
    "fc_link_rate",
    "fc_port",
    "fc_target",
    "fcoe",
    "filepath",
    "find",
    "folder",
    "genhelpdoc",
    "host_cluster_type",
    "interval",
    "is_device",
    "is_initiator",
    "is_target",
    "iscsi_name",
    "lun_any_wwuln",
    "lun_number",
    "lun_serial",
    "lun_size_lba",
    "lun_start_lba",
    "lun_wwuln",
    "max_cache",
    "max_outstanding_io",
    "max_read",
    "max_write",
    "member",
    "min_read",
    "min_write",
    "mirror",
    "mode",
    "name",
    "next",
    "offset",
    "old_password",
    "owner",
    "port",
    "previous",
    "primary",
    "profile",
    "pw",
    "remove_mirror",
    "reset_type",
    "rpc_password",
    "rv",
    "secondary",
    "seconds",
    "severity",
    "size",
    "smart",
    "sync",
    "time",
    "use_default",
    "useappend",
    "verbose",
    "vpgindex",
    "wwnn",
    "wwpn",
    "disarm",
    "erase",
    "update",
    "update_all",
    "scap_selftest",
    "scrub",
};

template <typename Table, size_t N>
void expectTable(Table const& table, char const* const (&expected)[N])
{
    using Value = decltype(table.valFromPartialText(std::string(), std::declval<std::string&>()));
    ASSERT_EQ(table.size(), N);
    for (size_t i = 0; i < N; ++i)
        EXPECT_EQ(table.textFromVal(static_cast<Value>(i)), expected[i]) << "entry " << i;
}

} // namespace

TEST(Vocabulary, ActionTableHasEveryWordAtItsNumber)
{
    EXPECT_EQ(CmdAction::ACTION_COUNT, 38);
    expectTable(CmdAction::table(), kActions);
}

TEST(Vocabulary, ItemTableHasEveryWordAtItsNumber)
{
    EXPECT_EQ(CmdItem::ITEM_COUNT, 40);
    expectTable(CmdItem::table(), kItems);
}

TEST(Vocabulary, ModifierTableHasEveryWordAtItsNumber)
{
    EXPECT_EQ(ModifierId::MODIFIER_COUNT, 104);
    expectTable(ModifierId::table(), kModifiers);
}

TEST(Vocabulary, NamedValuesMatchTheirWords)
{
    EXPECT_EQ(CmdAction::ACTION_QUESTION, 22);
    EXPECT_EQ(CmdAction::ACTION_SET, 30);
    EXPECT_EQ(CmdAction::ACTION_SHOW, 31);
    EXPECT_EQ(CmdAction::ACTION_VERSION, 35);
    EXPECT_EQ(CmdItem::ITEM_APPEND, 2);
    EXPECT_EQ(CmdItem::ITEM_CACHE_STATISTICS, 7);
    EXPECT_EQ(CmdItem::ITEM_CLI, 9);
    EXPECT_EQ(CmdItem::ITEM_LUN, 25);
    EXPECT_EQ(CmdItem::ITEM_TIME, 39);
    EXPECT_EQ(ModifierId::MODIFIER_APPEND, 1);
    EXPECT_EQ(ModifierId::MODIFIER_ZEK, 4);
    EXPECT_EQ(ModifierId::MODIFIER_QUESTION, 6);
    EXPECT_EQ(ModifierId::MODIFIER_LUN_NUMBER, 57);
    EXPECT_EQ(ModifierId::MODIFIER_WWPN, 97);
    EXPECT_EQ(ModifierId::MODIFIER_SCRUB, 103);
}

TEST(Vocabulary, ReadingBackwardOutsideTheTableGivesEmptyText)
{
    EXPECT_EQ(CmdAction::table().textFromVal(static_cast<CmdAction::CMD_ACTION>(38)), "");
    EXPECT_EQ(CmdAction::table().textFromVal(static_cast<CmdAction::CMD_ACTION>(-1)), "");
    EXPECT_EQ(ModifierId::table().textFromVal(static_cast<ModifierId::MODIFIER_ID>(104)), "");
}
