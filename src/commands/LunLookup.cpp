#include "commands/LunLookup.h"

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "api/MHbaReturnBuffer.h"
#include "commands/CommandPattern.h"
#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterPath.h"
#include "records/KLunInfo.h"
#include "records/PIpAddress.h"
#include "records/PUniqueID.h"

namespace {

// Partial success still brings in the targets that answered.
bool gatherTargets(HIsaAdapter& adapter)
{
    MHbaReturnBuffer firstFailure;
    int const rc = adapter.getTargetsAndInitiators(&firstFailure);
    return rc == MHBA_S_OK || rc == MHBA_S_PARTIAL_SUCCESS;
}

// False when the path's target, or its LUNs, could not be gathered.
bool gatherPathTarget(HIsaAdapter& adapter, PLunID const& lun)
{
    HTarget* target = adapter.getTargets()->find(lun.targetID());
    if (!target) {
        if (!gatherTargets(adapter))
            return false;
        target = adapter.getTargets()->find(lun.targetID());
    }
    if (!target)
        return false;
    MHbaReturnBuffer firstFailure;
    return adapter.getLunsForSpecificTarget(target, &firstFailure) == MHBA_S_OK;
}

void gatherEveryTarget(HIsaAdapter& adapter)
{
    if (!gatherTargets(adapter))
        return;
    for (HTarget* target : adapter.getTargets()->items) {
        MHbaReturnBuffer lunError;
        adapter.getLunsForSpecificTarget(target, &lunError);
    }
}

} // namespace

int gatherLunsOfEveryTarget(HIsaAdapter& adapter)
{
    MHbaReturnBuffer firstFailure;
    int const rc = adapter.getTargetsAndInitiators(&firstFailure);
    if (rc != MHBA_S_OK && rc != MHBA_S_PARTIAL_SUCCESS)
        return rc;
    for (HTarget* target : adapter.getTargets()->items) {
        MHbaReturnBuffer lunFailure;
        if (int const lunRc = adapter.getLunsForSpecificTarget(target, &lunFailure))
            return lunRc;
    }
    return 0;
}

int findAdapterAndLuns(TokenCmd& cmd, AddressedAdapter& addressed, bool oneLunRequired, std::vector<PLunID>& luns,
                       std::string& err)
{
    if (int const rc = findAddressedAdapter(cmd, addressed, err))
        return rc;
    err.clear();
    if (!cmd.getLunIdFromCommandLine(addressed.adapter, false, oneLunRequired, luns, err))
        return ZEKCLI_PARSE_FAIL;
    return 0;
}

int checkLunTargetKeywords(TokenCmd& cmd, std::string& err)
{
    // Only their presence in the command's table matters here.
    if (!cmd.findModifier(ModifierId::MODIFIER_LUN_NUMBER, err) ||
        !cmd.findModifier(ModifierId::MODIFIER_VPGINDEX, err))
        return ZEKCLI_PARSE_FAIL;
    PTargetID target;
    bool given = false;
    if (!cmd.getTargetIdFromCommandLineModifiers(false, target, given, err))
        return ZEKCLI_PARSE_FAIL;
    if (target.isEmpty()) {
        err = "Target not found";
        return MHBA_E_OBJECT_NOT_FOUND;
    }
    return 0;
}

int scanAdapterGroupLuns(TokenCmd& cmd, PIpAddress& agent, std::string& err)
{
    if (!readAgentAddress(cmd, agent, err))
        return MHBA_E_BAD_AGENT_ADDRESS;
    bool noneFound = false;
    if (int const rc = rescanAdapters(agent, noneFound))
        return rc;
    if (noneFound)
        return MHBA_E_NO_ADAPTER_FOUND;
    std::vector<KIsaAdapterPath> paths;
    for (HIsaAdapter* adapter : g_pHbaMgmtApi->getAdapters()->items)
        paths.push_back(*adapter->getAdapterPath());
    g_pHbaMgmtApi->clearAdapterGroupLuns();
    return g_pHbaMgmtApi->scanAdapterGroupLuns(paths, err);
}

HIsaAdapter* findAdapterById(unsigned long long id)
{
    for (HIsaAdapter* adapter : g_pHbaMgmtApi->getAdapters()->items)
        if (adapter->getAdapterPath()->isaHbaId() == id)
            return adapter;
    return nullptr;
}

HLun* findLunObject(HIsaAdapter& adapter, PLunID const& lun, LunGathering gathering)
{
    if (HLun* const held = adapter.getLuns()->find(lun))
        return held;
    if (gathering == LunGathering::EveryTarget)
        gatherEveryTarget(adapter);
    else if (!gatherPathTarget(adapter, lun))
        return nullptr;
    return adapter.getLuns()->find(lun);
}

int readLunRecord(HLun& lun)
{
    if (lun.getLunInfo()->isLunInfoValid())
        return 0;
    return lun.refreshLunInfo();
}

KLunInfo const* readableLunRecord(HLun* lun)
{
    if (!lun || readLunRecord(*lun) != 0 || !lun->getLunInfo()->isLunInfoValid())
        return nullptr;
    return lun->getLunInfo();
}

std::vector<PLunID> lunPathsOf(HLunIdList* list)
{
    std::vector<PLunID> paths;
    uint32_t const count = list ? list->count() : 0;
    for (uint32_t i = 0; i < count; ++i) {
        PLunID const* const at = list->at(i);
        if (!at)
            break; // past the end of what the library holds
        paths.push_back(*at);
    }
    return paths;
}
