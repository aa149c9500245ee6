#include "commands/storage/CmdDriveAdd.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/LunLookup.h"
#include "commands/storage/DrivePools.h"
#include "core/ZekcliReturn.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"
#include "scripting/ScriptSections.h"
#include <vector>

#include "api/HIsaAdapter.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/storage/DrivePoolChange.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_ADD, CmdItem::ITEM_DRIVE, TokenCmd::GROUP_CACHE),
    keywordRow(ModifierId::MODIFIER_DRIVE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    LUN_SELECTOR_ROWS,
    endRow(),
};

} // namespace

CmdDriveAdd::CmdDriveAdd()
{
    declareCommand(*this, rows);
    helpTitle = "Add Drive";
    helpDescription = "Adds an SSD drive to the storage cache pool of the adapter. The drive is named with -drive, or "
                      "as the LUN through which the adapter presents it.";
    helpSyntax = "\t[-drive=<drive id>]\n" + lunSelectorSyntax() + "\n" + adapterSyntax();
    helpModifiers = "-drive=<drive id>\n"
                    "\tThe SSD drive to add, by the identifier that \"list drive\" shows.\n" +
        lunSelectorHelp() + "\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -drive=6006-0160-2B10-2D00-8E5A-3A4B-C1D2-E311" + ugCommandPrompt() +
        "-zek=0 -lun_number=3 -fc_target=5006-0160-3BE0-1234";
    helpNotes = "Name the drive either with -drive or with the LUN keywords.";
}

int CmdDriveAdd::execCommand(std::string& err)
{
    DrivePoolChange const change{&HIsaAdapter::addDriveToPool, &HIsaAdapter::addDriveToPoolBySsdId,
                                 "Drive successfully added."};
    return changeDrivePool(*this, change, err);
}

namespace {

// The drives that the adapter's LUNs present as caching drives.
std::vector<KDriveID> cachingDrivesOf(HIsaAdapter& adapter)
{
    std::vector<KDriveID> drives;
    for (HLun* lun : adapter.getLuns()->items) {
        KLunInfo const& info = *lun->getLunInfo();
        if (info.isLunState(KLunInfo::LUN_STATE_NON_ROTATING_MEDIUM))
            drives.push_back(driveIdOfLun(info));
    }
    return drives;
}

// The last pool named "Configured": the one whose drives cache.
HDrivePool* configuredPoolOf(HIsaAdapter& adapter)
{
    HDrivePool* configured = nullptr;
    for (HDrivePool* pool : adapter.getDrivePools()->items)
        if (pool->getDrivePoolId()->displayText() == "Configured")
            configured = pool;
    return configured;
}

bool poolHoldsDrive(HDrivePool& pool, KDriveID const& drive)
{
    HDriveIdList* const ids = pool.getDriveIds();
    KDriveID id;
    for (bool more = ids && ids->first(id); more; more = ids->next(id))
        if (id == drive)
            return true;
    return false;
}

} // namespace

int CmdDriveAdd::saveScript(HIsaAdapter* adapter, FILE* file, std::string const&, std::string const&, std::string& err)
{
    if (int const rc = gatherLunsOfEveryTarget(*adapter))
        return rc;
    std::vector<KDriveID> const drives = cachingDrivesOf(*adapter);
    if (drives.empty())
        return 0;
    std::string warning;
    int const rc = gatherDrives(*adapter, warning);
    if (rc != MHBA_S_OK && rc != MHBA_S_PARTIAL_SUCCESS)
        return rc;
    HDrivePool* const pool = configuredPoolOf(*adapter);
    std::string lines;
    for (KDriveID const& drive : drives)
        if (pool && poolHoldsDrive(*pool, drive))
            lines += scriptCommandWords(CmdAction::ACTION_ADD, CmdItem::ITEM_DRIVE) +
                " -lun_wwuln=" + drive.displayText() + "\n";
    return outScript(file, lines, err) ? 0 : ZEKCLI_OUTPUT_FAIL;
}
