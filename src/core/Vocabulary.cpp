// Fills the three word tables from their row lists.
#include "core/CmdAction.h"
#include "core/CmdItem.h"
#include "core/ModifierId.h"

CmdAction::CmdAction()
{
#define ZEK_ADD_ROW(id, text) add(id, text);
    ZEK_CMD_ACTIONS(ZEK_ADD_ROW)
#undef ZEK_ADD_ROW
}

CmdAction const& CmdAction::table()
{
    static CmdAction const instance;
    return instance;
}

CmdItem::CmdItem()
{
#define ZEK_ADD_ROW(id, text) add(id, text);
    ZEK_CMD_ITEMS(ZEK_ADD_ROW)
#undef ZEK_ADD_ROW
}

CmdItem const& CmdItem::table()
{
    static CmdItem const instance;
    return instance;
}

ModifierId::ModifierId()
{
#define ZEK_ADD_ROW(id, text) add(id, text);
    ZEK_MODIFIER_IDS(ZEK_ADD_ROW)
#undef ZEK_ADD_ROW
}

ModifierId const& ModifierId::table()
{
    static ModifierId const instance;
    return instance;
}
