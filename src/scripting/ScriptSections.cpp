#include "scripting/ScriptSections.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/LunLookup.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"

std::string scriptCommandWords(CmdAction::CMD_ACTION action, CmdItem::CMD_ITEM item)
{
    return CmdAction::table().textFromVal(action) + " " + CmdItem::table().textFromVal(item);
}

int readScriptLuns(HIsaAdapter& adapter, std::vector<HLun*>& luns)
{
    if (adapter.getLuns()->items.empty())
        if (int const rc = gatherLunsOfEveryTarget(adapter))
            return rc;
    for (HLun* lun : adapter.getLuns()->items) {
        if (!lun->getLunInfo()->isLunInfoValid())
            if (int const rc = lun->refreshLunInfo())
                return rc;
        luns.push_back(lun);
    }
    return 0;
}

std::string scriptTargetText(PLunID const& lun, std::string const& iscsiKeyword)
{
    PTargetID const& target = lun.targetID();
    if (target.isFcTargetId())
        return " -fc_target=" + target.displayText();
    if (target.isIscsiTargetId())
        return " " + iscsiKeyword + "=" + target.displayText();
    return std::string();
}
