#include "commands/cache/CacheCommandSupport.h"

#include <vector>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"
#include "records/KLunInfo.h"

namespace {

constexpr long long kLargestLba = 0x7FFFFFFFFFFFFFFFll;

// Fills the adapter's LUN collection from all its targets. A target that
// cannot list its LUNs is passed over: the lookup that follows simply does
// not find what it would have held.
void gatherAllLuns(HIsaAdapter& adapter)
{
    MHbaReturnBuffer firstError;
    e_MHBA_RETURN const gathered = adapter.getTargetsAndInitiators(&firstError);
    if (gathered != MHBA_S_OK && gathered != MHBA_S_PARTIAL_SUCCESS)
        return;
    for (HTarget* target : adapter.getTargets()->items) {
        MHbaReturnBuffer lunError;
        adapter.getLunsForSpecificTarget(target, &lunError);
    }
}

} // namespace

HLun* findLunObject(HIsaAdapter& adapter, PLunID const& lun)
{
    if (HLun* const held = adapter.getLuns()->find(lun))
        return held;
    gatherAllLuns(adapter);
    return adapter.getLuns()->find(lun);
}

int readLunRecord(HLun& lun)
{
    if (lun.getLunInfo()->isLunInfoValid())
        return 0;
    return lun.refreshLunInfo();
}

std::string targetKeyword(bool iscsi)
{
    return iscsi ? " -is_target=" : " -fc_target=";
}

std::string lunKeywordText(PLunID const& lun)
{
    return targetKeyword(lun.targetID().isIscsiTargetId()) + lun.targetID().displayText() +
        " -lun_number=" + PBase::numberToText(lun.lunNumber());
}

int readLbaRangeRequest(TokenCmd& cmd, LbaRangeRequest& request, std::string& err)
{
    if (int const rc = findAddressedAdapter(cmd, request.addressed, err))
        return rc;
    err.clear();
    bool found = false;
    if (!cmd.getI64NumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_LUN_START_LBA, 0, kLargestLba,
                                                        request.start, found, err))
        return ZEKCLI_PARSE_FAIL;
    if (!found)
        request.start = 0;
    if (!cmd.getI64NumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_LUN_SIZE_LBA, 0, kLargestLba, request.size,
                                                        found, err))
        return ZEKCLI_PARSE_FAIL;
    if (!found)
        request.size = 0;
    std::vector<PLunID> ids;
    if (!cmd.getLunIdFromCommandLine(request.addressed.adapter, false, true, ids, err))
        return ZEKCLI_PARSE_FAIL;
    request.lun = ids.front();
    return 0;
}

int finishLbaRangeCommand(TokenCmd const& cmd, LbaRangeRequest const& request, e_MHBA_RETURN code,
                          std::string const& message, std::string& err)
{
    if (g_pHbaMgmtApi->isFailure(code))
        return code;
    CommandReport report;
    report.text = message + "," + lunKeywordText(request.lun) + "\n";
    report.resultCode = code;
    return finishCommand(cmd, request.addressed.adapter, report, err);
}
