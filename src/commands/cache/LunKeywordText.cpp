#include "commands/cache/LunKeywordText.h"

#include "records/PBase.h"
#include "records/PUniqueID.h"

std::string targetKeyword(bool iscsi)
{
    return iscsi ? " -is_target=" : " -fc_target=";
}

std::string lunKeywordText(PLunID const& lun)
{
    return targetKeyword(lun.targetID().isIscsiTargetId()) + lun.targetID().displayText() +
        " -lun_number=" + PBase::numberToText(lun.lunNumber());
}
