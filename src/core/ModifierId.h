// The keywords of the command line; value 0 means no keyword.
#pragma once

#include "core/EnumStrList.h"

// One row per word, in value order. The values are stored in files and
// written by every command's declaration, so rows are only ever appended.
#define ZEK_MODIFIER_IDS(X)                                                                                            \
    X(MODIFIER_NONE, "")                                                                                               \
    X(MODIFIER_APPEND, "append")                                                                                       \
    X(MODIFIER_ECHO, "echo")                                                                                           \
    X(MODIFIER_HELP, "help")                                                                                           \
    X(MODIFIER_ZEK, "zek")                                                                                             \
    X(MODIFIER_AGENT, "agent")                                                                                         \
    X(MODIFIER_QUESTION, "?")                                                                                          \
    X(MODIFIER_QUIET, "quiet")                                                                                         \
    X(MODIFIER_RESULT, "result")                                                                                       \
    X(MODIFIER_SHOW_ONLY_ERROR, "show_only_error")                                                                     \
    X(MODIFIER_TEXTFILE, "textfile")                                                                                   \
    X(MODIFIER_LOOP_ONLY, "loop_only")                                                                                 \
    X(MODIFIER_AUTO, "auto")                                                                                           \
    X(MODIFIER_P2P_ONLY, "p2p_only")                                                                                   \
    X(MODIFIER_ACCEPT_RISK, "accept_risk")                                                                             \
    X(MODIFIER_ACCEPT_RISK2, "accept_risk2")                                                                           \
    X(MODIFIER_BASEPOS, "basepos")                                                                                     \
    X(MODIFIER_CACHE, "cache")                                                                                         \
    X(MODIFIER_CHAP_ENABLE, "chap_enable")                                                                             \
    X(MODIFIER_CHAP_SECRET, "chap_secret")                                                                             \
    X(MODIFIER_CLEAR, "clear")                                                                                         \
    X(MODIFIER_CLUSTERID, "clusterid")                                                                                 \
    X(MODIFIER_CMD, "cmd")                                                                                             \
    X(MODIFIER_COMPARE, "compare")                                                                                     \
    X(MODIFIER_CONSTRAINT, "constraint")                                                                               \
    X(MODIFIER_CONTINUE_ON_ERROR, "continue_on_error")                                                                 \
    X(MODIFIER_CSV_DELIMITER, "csv_delimiter")                                                                         \
    X(MODIFIER_CSV_FILE, "csv_file")                                                                                   \
    X(MODIFIER_CSV_FOLDER, "csv_folder")                                                                               \
    X(MODIFIER_DELTA, "delta")                                                                                         \
    X(MODIFIER_DEMONSTRATION_FILE, "demonstration_file")                                                               \
    X(MODIFIER_DRIVE, "drive")                                                                                         \
    X(MODIFIER_DMDEST_FC_TARGET, "dmdest_fc_target")                                                                   \
    X(MODIFIER_DMDEST_IS_TARGET, "dmdest_is_target")                                                                   \
    X(MODIFIER_DMDEST_LUN_ANY_WWULN, "dmdest_lun_any_wwuln")                                                           \
    X(MODIFIER_DMDEST_LUN_NUMBER, "dmdest_lun_number")                                                                 \
    X(MODIFIER_DMDEST_LUN_SERIAL, "dmdest_lun_serial")                                                                 \
    X(MODIFIER_DMDEST_LUN_WWULN, "dmdest_lun_wwuln")                                                                   \
    X(MODIFIER_DMDEST_VPGINDEX, "dmdest_vpgindex")                                                                     \
    X(MODIFIER_EXEC_THROTTLE, "exec_throttle")                                                                         \
    X(MODIFIER_FC_DEVICE, "fc_device")                                                                                 \
    X(MODIFIER_FC_INITIATOR, "fc_initiator")                                                                           \
    X(MODIFIER_FC_LINK_RATE, "fc_link_rate")                                                                           \
    X(MODIFIER_FC_PORT, "fc_port")                                                                                     \
    X(MODIFIER_FC_TARGET, "fc_target")                                                                                 \
    X(MODIFIER_FCOE, "fcoe")                                                                                           \
    X(MODIFIER_FILEPATH, "filepath")                                                                                   \
    X(MODIFIER_FIND, "find")                                                                                           \
    X(MODIFIER_FOLDER, "folder")                                                                                       \
    X(MODIFIER_GENHELPDOC, "genhelpdoc")                                                                               \
    X(MODIFIER_HOST_CLUSTER_TYPE, "host_cluster_type")                                                                 \
    X(MODIFIER_INTERVAL, "interval")                                                                                   \
    X(MODIFIER_IS_DEVICE, "is_device")                                                                                 \
    X(MODIFIER_IS_INITIATOR, "is_initiator")                                                                           \
    X(MODIFIER_IS_TARGET, "is_target")                                                                                 \
    X(MODIFIER_ISCSI_NAME, "iscsi_name")                                                                               \
    X(MODIFIER_LUN_ANY_WWULN, "lun_any_wwuln")                                                                         \
    X(MODIFIER_LUN_NUMBER, "lun_number")                                                                               \
    X(MODIFIER_LUN_SERIAL, "lun_serial")                                                                               \
    X(MODIFIER_LUN_SIZE_LBA, "lun_size_lba")                                                                           \
    X(MODIFIER_LUN_START_LBA, "lun_start_lba")                                                                         \
    X(MODIFIER_LUN_WWULN, "lun_wwuln")                                                                                 \
    X(MODIFIER_MAX_CACHE, "max_cache")                                                                                 \
    X(MODIFIER_MAX_OUTSTANDING_IO, "max_outstanding_io")                                                               \
    X(MODIFIER_MAX_READ, "max_read")                                                                                   \
    X(MODIFIER_MAX_WRITE, "max_write")                                                                                 \
    X(MODIFIER_MEMBER, "member")                                                                                       \
    X(MODIFIER_MIN_READ, "min_read")                                                                                   \
    X(MODIFIER_MIN_WRITE, "min_write")                                                                                 \
    X(MODIFIER_MIRROR, "mirror")                                                                                       \
    X(MODIFIER_MODE, "mode")                                                                                           \
    X(MODIFIER_NAME, "name")                                                                                           \
    X(MODIFIER_NEXT, "next")                                                                                           \
    X(MODIFIER_OFFSET, "offset")                                                                                       \
    X(MODIFIER_OLD_PASSWORD, "old_password")                                                                           \
    X(MODIFIER_OWNER, "owner")                                                                                         \
    X(MODIFIER_PORT, "port")                                                                                           \
    X(MODIFIER_PREVIOUS, "previous")                                                                                   \
    X(MODIFIER_PRIMARY, "primary")                                                                                     \
    X(MODIFIER_PROFILE, "profile")                                                                                     \
    X(MODIFIER_PW, "pw")                                                                                               \
    X(MODIFIER_REMOVE_MIRROR, "remove_mirror")                                                                         \
    X(MODIFIER_RESET_TYPE, "reset_type")                                                                               \
    X(MODIFIER_RPC_PASSWORD, "rpc_password")                                                                           \
    X(MODIFIER_RV, "rv")                                                                                               \
    X(MODIFIER_SECONDARY, "secondary")                                                                                 \
    X(MODIFIER_SECONDS, "seconds")                                                                                     \
    X(MODIFIER_SEVERITY, "severity")                                                                                   \
    X(MODIFIER_SIZE, "size")                                                                                           \
    X(MODIFIER_SMART, "smart")                                                                                         \
    X(MODIFIER_SYNC, "sync")                                                                                           \
    X(MODIFIER_TIME, "time")                                                                                           \
    X(MODIFIER_USE_DEFAULT, "use_default")                                                                             \
    X(MODIFIER_USEAPPEND, "useappend")                                                                                 \
    X(MODIFIER_VERBOSE, "verbose")                                                                                     \
    X(MODIFIER_VPGINDEX, "vpgindex")                                                                                   \
    X(MODIFIER_WWNN, "wwnn")                                                                                           \
    X(MODIFIER_WWPN, "wwpn")                                                                                           \
    X(MODIFIER_DISARM, "disarm")                                                                                       \
    X(MODIFIER_ERASE, "erase")                                                                                         \
    X(MODIFIER_UPDATE, "update")                                                                                       \
    X(MODIFIER_UPDATE_ALL, "update_all")                                                                               \
    X(MODIFIER_SCAP_SELFTEST, "scap_selftest")                                                                         \
    X(MODIFIER_SCRUB, "scrub")

// The enumeration lives in a base of its own so that the table class can
// name it as its template argument and still offer it as a nested type.
struct ModifierIdValues {
#define ZEK_ENUM_ROW(id, text) id,
    enum MODIFIER_ID : int { ZEK_MODIFIER_IDS(ZEK_ENUM_ROW) MODIFIER_COUNT };
#undef ZEK_ENUM_ROW
};

class ModifierId : public ModifierIdValues, public EnumStrList<ModifierIdValues::MODIFIER_ID> {
public:
    ModifierId();
    // One shared read-only table for code that needs no instance of its own.
    static ModifierId const& table();
};
