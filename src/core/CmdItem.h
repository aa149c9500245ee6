// The nouns of the command line; value 0 means no item.
#pragma once

#include "core/EnumStrList.h"

// One row per word, in value order. The values are stored in files and
// written by every command's declaration, so rows are only ever appended.
#define ZEK_CMD_ITEMS(X)                                                                                               \
    X(ITEM_NONE, "")                                                                                                   \
    X(ITEM_ADAPTER, "adapter")                                                                                         \
    X(ITEM_APPEND, "append")                                                                                           \
    X(ITEM_AUTO_CLUSTER, "auto_cluster")                                                                               \
    X(ITEM_BEACON, "beacon")                                                                                           \
    X(ITEM_CACHE, "cache")                                                                                             \
    X(ITEM_CACHE_POOL, "cache_pool")                                                                                   \
    X(ITEM_CACHE_STATISTICS, "cache_statistics")                                                                       \
    X(ITEM_CAPTURE_FILE, "capture_file")                                                                               \
    X(ITEM_CLI, "cli")                                                                                                 \
    X(ITEM_CLUSTER, "cluster")                                                                                         \
    X(ITEM_CSV, "csv")                                                                                                 \
    X(ITEM_DEMONSTRATION_FILE, "demonstration_file")                                                                   \
    X(ITEM_DEVICE, "device")                                                                                           \
    X(ITEM_DISPLAY, "display")                                                                                         \
    X(ITEM_DRIVE, "drive")                                                                                             \
    X(ITEM_DRIVE_CONFIG, "drive_config")                                                                               \
    X(ITEM_FC, "fc")                                                                                                   \
    X(ITEM_FC_PORT, "fc_port")                                                                                         \
    X(ITEM_FILE, "file")                                                                                               \
    X(ITEM_FIRMWARE, "firmware")                                                                                       \
    X(ITEM_FRU_FILE, "fru_file")                                                                                       \
    X(ITEM_HEALTH, "health")                                                                                           \
    X(ITEM_INITIATOR, "initiator")                                                                                     \
    X(ITEM_LOG, "log")                                                                                                 \
    X(ITEM_LUN, "lun")                                                                                                 \
    X(ITEM_LUN_STATISTICS, "lun_statistics")                                                                           \
    X(ITEM_MEMBER, "member")                                                                                           \
    X(ITEM_MEMORY, "memory")                                                                                           \
    X(ITEM_NOTIFICATION, "notification")                                                                               \
    X(ITEM_NVDIMM, "nvdimm")                                                                                           \
    X(ITEM_PASSWORD, "password")                                                                                       \
    X(ITEM_POOL, "pool")                                                                                               \
    X(ITEM_RESERVATION, "reservation")                                                                                 \
    X(ITEM_SCRIPT, "script")                                                                                           \
    X(ITEM_SFP, "sfp")                                                                                                 \
    X(ITEM_STATISTICS, "statistics")                                                                                   \
    X(ITEM_SYSTEM_CAPTURE, "system_capture")                                                                           \
    X(ITEM_TARGET, "target")                                                                                           \
    X(ITEM_TIME, "time")

// The enumeration lives in a base of its own so that the table class can
// name it as its template argument and still offer it as a nested type.
struct CmdItemValues {
#define ZEK_ENUM_ROW(id, text) id,
    enum CMD_ITEM : int { ZEK_CMD_ITEMS(ZEK_ENUM_ROW) ITEM_COUNT };
#undef ZEK_ENUM_ROW
};

class CmdItem : public CmdItemValues, public EnumStrList<CmdItemValues::CMD_ITEM> {
public:
    CmdItem();
    // One shared read-only table for code that needs no instance of its own.
    static CmdItem const& table();
};
