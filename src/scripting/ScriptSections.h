// What the writers of a configuration script share: the command words of a
// line, the LUNs of an adapter read afresh, and a LUN's target keyword.
#pragma once

#include <string>
#include <vector>

#include "core/CmdAction.h"
#include "core/CmdItem.h"

class HIsaAdapter;
class HLun;
class PLunID;

// "<action> <item>" from the tables by value; a value past a table's end
// gives an empty word.
std::string scriptCommandWords(CmdAction::CMD_ACTION action, CmdItem::CMD_ITEM item);

// The adapter's LUN objects with readable records: gathered first when the
// collection is empty, each stale record refreshed. Returns 0 or the code of
// the gathering or of the first refresh that failed.
int readScriptLuns(HIsaAdapter& adapter, std::vector<HLun*>& luns);

// " -fc_target=<id>" or " <iscsiKeyword>=<id>" by the kind of the LUN's
// target; empty for any other kind.
std::string scriptTargetText(PLunID const& lun, std::string const& iscsiKeyword);
