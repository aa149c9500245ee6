#include "commands/storage/DrivePoolChange.h"

#include <vector>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandPattern.h"
#include "commands/LunLookup.h"
#include "commands/storage/DrivePools.h"
#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"

namespace {

// The drive that the one LUN of the LUN keywords presents; empty when the
// adapter cannot tell.
KDriveID driveOfLun(HIsaAdapter& adapter, std::vector<PLunID> const& luns)
{
    if (luns.empty())
        return KDriveID();
    // A LUN named in full by its keywords has not been gathered yet.
    KLunInfo const* const info = readableLunRecord(findLunObject(adapter, luns.front(), LunGathering::PathTarget));
    return info ? driveIdOfLun(*info) : KDriveID();
}

} // namespace

int changeDrivePool(TokenCmd& cmd, DrivePoolChange const& change, std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(cmd, addressed, err))
        return rc;
    HIsaAdapter& adapter = *addressed.adapter;
    err.clear();

    KDriveID id;
    bool driveGiven = false;
    if (!cmd.getDriveIdFromCommandLineModifiers(id, driveGiven, err))
        return ZEKCLI_PARSE_FAIL;
    if (!driveGiven) {
        std::vector<PLunID> luns;
        if (!cmd.getLunIdFromCommandLine(&adapter, false, true, luns, err))
            return ZEKCLI_PARSE_FAIL;
        id = driveOfLun(adapter, luns);
    }

    int code = id.isEmpty() ? MHBA_E_INVALID_ARG : (adapter.*change.byDriveId)(id);
    if (code != 0) {
        KWwulnLunID ssdId;
        bool ssdIdGiven = false;
        if (cmd.getAsciiSSDLunIDFromCommandLine(ssdId, ssdIdGiven, err))
            code = (adapter.*change.bySsdId)(ssdId);
    }
    if (g_pHbaMgmtApi->isFailure(code))
        return code;

    CommandReport report;
    report.text = "-drive=" + id.displayText() + "\n\n" + change.doneText;
    report.resultCode = static_cast<e_MHBA_RETURN>(code);
    return finishCommand(cmd, &adapter, report, err);
}
