// The verbs of the command line.
#pragma once

#include "core/EnumStrList.h"

// One row per word, in value order. The values are stored in files and
// written by every command's declaration, so rows are only ever appended.
#define ZEK_CMD_ACTIONS(X)                                                                                             \
    X(ACTION_NO_ACTION, "no_action")                                                                                   \
    X(ACTION_ADD, "add")                                                                                               \
    X(ACTION_CLEAR, "clear")                                                                                           \
    X(ACTION_CREATE, "create")                                                                                         \
    X(ACTION_DESTROY, "destroy")                                                                                       \
    X(ACTION_DISABLE, "disable")                                                                                       \
    X(ACTION_DUMP, "dump")                                                                                             \
    X(ACTION_ENABLE, "enable")                                                                                         \
    X(ACTION_EXECUTE, "execute")                                                                                       \
    X(ACTION_FACTORY_RESET, "factory_reset")                                                                           \
    X(ACTION_FACTORY_RESET2, "factory_reset2")                                                                         \
    X(ACTION_FLUSH, "flush")                                                                                           \
    X(ACTION_GET, "get")                                                                                               \
    X(ACTION_HELP, "help")                                                                                             \
    X(ACTION_INTERACTIVE, "interactive")                                                                               \
    X(ACTION_INVALIDATE, "invalidate")                                                                                 \
    X(ACTION_LIST, "list")                                                                                             \
    X(ACTION_LOCK, "lock")                                                                                             \
    X(ACTION_MERGE, "merge")                                                                                           \
    X(ACTION_MODIFY, "modify")                                                                                         \
    X(ACTION_PURGE, "purge")                                                                                           \
    X(ACTION_PUT, "put")                                                                                               \
    X(ACTION_QUESTION, "?")                                                                                            \
    X(ACTION_REMOVE, "remove")                                                                                         \
    X(ACTION_REPORT, "report")                                                                                         \
    X(ACTION_RESTART, "restart")                                                                                       \
    X(ACTION_RESTORE, "restore")                                                                                       \
    X(ACTION_RETVAL, "retval")                                                                                         \
    X(ACTION_SAVE, "save")                                                                                             \
    X(ACTION_SCRIPT, "script")                                                                                         \
    X(ACTION_SET, "set")                                                                                               \
    X(ACTION_SHOW, "show")                                                                                             \
    X(ACTION_STOP, "stop")                                                                                             \
    X(ACTION_UNLOCK, "unlock")                                                                                         \
    X(ACTION_UPDATE, "update")                                                                                         \
    X(ACTION_VERSION, "version")                                                                                       \
    X(ACTION_VIEW, "view")                                                                                             \
    X(ACTION_WAIT, "wait")

// The enumeration lives in a base of its own so that the table class can
// name it as its template argument and still offer it as a nested type.
struct CmdActionValues {
#define ZEK_ENUM_ROW(id, text) id,
    enum CMD_ACTION : int { ZEK_CMD_ACTIONS(ZEK_ENUM_ROW) ACTION_COUNT };
#undef ZEK_ENUM_ROW
};

class CmdAction : public CmdActionValues, public EnumStrList<CmdActionValues::CMD_ACTION> {
public:
    CmdAction();
    // One shared read-only table for code that needs no instance of its own.
    static CmdAction const& table();
};
