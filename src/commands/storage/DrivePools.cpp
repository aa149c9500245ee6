#include "commands/storage/DrivePools.h"

#include <algorithm>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "api/MHbaReturnBuffer.h"
#include "records/KDriveInfo.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"

namespace {

std::string driveLine(KDriveID const& id)
{
    return "\n    -drive=" + id.displayText();
}

std::string poolText(HDrivePool& pool, size_t driveCount, DriveDetail const& detail)
{
    HDriveIdList* const ids = pool.getDriveIds();
    uint32_t const members = ids ? ids->count() : 0;
    std::string text = pool.getDrivePoolId()->displayText() + " Drives (" + std::to_string(members) + " of " +
        std::to_string(driveCount) + ")";
    KDriveID id;
    for (bool more = ids && ids->first(id); more; more = ids->next(id)) {
        text += driveLine(id);
        if (detail)
            text += detail(id);
    }
    return text + "\n\n\n";
}

} // namespace

std::string drivesPartlyGatheredText(int firstFailure)
{
    return "getDrives returned partial success.  At least one attempt to get info returned " +
        MHbaReturnBuffer(static_cast<e_MHBA_RETURN>(firstFailure)).displayText();
}

int gatherDrives(HIsaAdapter& adapter, std::string& warning)
{
    adapter.clearDrives();
    MHbaReturnBuffer firstFailure;
    int const rc = adapter.getDrivesWithErrorDetails(&firstFailure);
    if (rc == MHBA_S_PARTIAL_SUCCESS)
        warning = drivesPartlyGatheredText(firstFailure.returnCode);
    return rc;
}

std::string poolListingText(HIsaAdapter& adapter, DriveDetail const& detail)
{
    size_t const driveCount = adapter.getDrives()->items.size();
    std::string text;
    for (HDrivePool* pool : adapter.getDrivePools()->items)
        text += poolText(*pool, driveCount, detail);
    return text;
}

std::vector<KDriveID> driveIdsOf(HIsaAdapter& adapter)
{
    std::vector<KDriveID> ids;
    for (HDrive* drive : adapter.getDrives()->items)
        ids.push_back(*drive->getDriveId());
    return ids;
}

std::vector<KDriveInfo> driveRecordsOf(HIsaAdapter& adapter)
{
    std::vector<KDriveInfo> records;
    for (HDrive* drive : adapter.getDrives()->items)
        records.push_back(*drive->getDriveInfo());
    return records;
}

KDriveID driveIdOfLun(KLunInfo const& lun)
{
    // A length the library got wrong must not reach past the name's bytes.
    size_t const length = std::min<size_t>(lun.ui32WwulnLength, sizeof lun.ui8Wwuln);
    unsigned char name[sizeof lun.ui8Wwuln];
    std::copy(lun.ui8Wwuln, lun.ui8Wwuln + length, name);
    KDriveID id;
    id.initDriveID(PBase::WWULN_CODE_SET_BINARY, static_cast<int>(length), name);
    return id;
}
