#include "commands/storage/CmdDriveShow.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include <cstdlib>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "api/MHbaReturnBuffer.h"
#include "commands/CommandOutput.h"
#include "commands/CommandPattern.h"
#include "commands/CountedRecordBuffer.h"
#include "commands/LunLookup.h"
#include "commands/storage/DrivePools.h"
#include "core/ZekcliReturn.h"
#include "records/KDriveInfo.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_DRIVE, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_DRIVE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_SMART, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    keywordRow(ModifierId::MODIFIER_VERBOSE, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    keywordRow(ModifierId::MODIFIER_LUN_NUMBER, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_FC_TARGET, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_IS_TARGET, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdDriveShow::CmdDriveShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Drive";
    helpDescription = "Shows the details and paths of one SSD drive, or of all, optionally with SMART data.";
    helpSyntax = "\t[-drive=<drive id>]\n"
                 "\t[-smart]\n"
                 "\t[-verbose]\n"
                 "\t[-lun_number=<number>]\n"
                 "\t[-fc_target=<wwpn>]\n"
                 "\t[-is_target=<iscsi name>]\n" +
        adapterSyntax();
    helpModifiers = "-drive=<drive id>\n"
                    "\tThe SSD drive, by the identifier that \"list drive\" shows.\n"
                    "-smart\n"
                    "\tAlso read the SMART data of the drive.\n"
                    "-verbose\n"
                    "\tShow all SMART attributes.\n"
                    "-lun_number=<number>\n"
                    "\tWith -fc_target or -is_target: the drive presented as this LUN.\n"
                    "-fc_target=<wwpn>\n"
                    "\tWorld-wide port name of a Fibre Channel target.\n"
                    "-is_target=<iscsi name>\n"
                    "\tName of an iSCSI target.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() +
        "-zek=0 -drive=6006-0160-2B10-2D00-8E5A-3A4B-C1D2-E311 -smart -verbose";
    helpResultFile = listResultHelp("KDriveInfo", 5784, "drive record");
    helpNotes = "-lun_number needs -fc_target or -is_target.";
}

namespace {

// The result code of a run: partial success of either gathering tells that
// the output may lack something.
int gatheringCode(int drives, int targets)
{
    return drives == MHBA_S_PARTIAL_SUCCESS || targets == MHBA_S_PARTIAL_SUCCESS ? MHBA_S_PARTIAL_SUCCESS : 0;
}

bool isGathered(int rc)
{
    return rc == 0 || rc == MHBA_S_PARTIAL_SUCCESS;
}

} // namespace

int CmdDriveShow::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    HIsaAdapter& adapter = *addressed.adapter;
    pathsOf = nullptr;

    KDriveID id;
    bool driveGiven = false;
    if (int const rc = readDriveSelection(adapter, id, driveGiven, err))
        return rc;
    err.clear();
    if (!findModifier(ModifierId::MODIFIER_SMART, err) || !findModifier(ModifierId::MODIFIER_VERBOSE, err))
        return ZEKCLI_PARSE_FAIL;

    std::string text;
    int const drives = gatherDrives(adapter, text);
    if (!isGathered(drives))
        return drives;
    if (!text.empty())
        text += "\n";
    MHbaReturnBuffer firstFailure;
    int const targets = adapter.getTargetsAndInitiators(&firstFailure);
    if (!isGathered(targets))
        return targets;

    int const resultCode = gatheringCode(drives, targets);
    if (!driveGiven && id.isEmpty())
        return showAllDrives(adapter, text, resultCode, err);
    return showOneDrive(adapter, id, text, resultCode, err);
}

int CmdDriveShow::readDriveSelection(HIsaAdapter& adapter, KDriveID& id, bool& driveGiven, std::string& err)
{
    PTargetID target;
    bool targetGiven = false;
    if (!getDriveIdFromCommandLineModifiers(id, driveGiven, err) ||
        !getTargetIdFromCommandLineModifiers(false, target, targetGiven, err))
        return ZEKCLI_PARSE_FAIL;
    TokenModifierString const* const number = findModifier(ModifierId::MODIFIER_LUN_NUMBER, err);
    if (!number)
        return ZEKCLI_PARSE_FAIL;
    if (driveGiven)
        return 0;
    if (targetGiven) {
        if (target.isEmpty()) {
            err = "Target not found";
            return MHBA_E_OBJECT_NOT_FOUND;
        }
        long const lunNumber = number->value.empty() ? 0 : std::strtol(number->value.c_str(), nullptr, 10);
        int const rc = findDriveThroughLun(adapter, target, lunNumber, id);
        if (rc == MHBA_E_OBJECT_NOT_FOUND)
            err = "Target \"" + target.displayText() + "\" not found";
        return rc;
    }
    if (keywordGiven(number)) {
        err = "-fc_target has to be issued when using -lun_number";
        return ZEKCLI_PARSE_FAIL;
    }
    return 0;
}

int CmdDriveShow::findDriveThroughLun(HIsaAdapter& adapter, PTargetID const& target, long lunNumber, KDriveID& id)
{
    HTarget* const seen = adapter.getTargets()->find(target);
    if (!seen)
        return MHBA_E_OBJECT_NOT_FOUND;
    MHbaReturnBuffer firstFailure;
    if (int const rc = adapter.getLunsForSpecificTarget(seen, &firstFailure))
        return rc;
    for (PLunID const& lunId : lunPathsOf(seen->getLunIds())) {
        KLunInfo const* const info = readableLunRecord(adapter.getLuns()->find(lunId));
        if (info && lunId.lunNumber() == lunNumber) {
            id = driveIdOfLun(*info);
            return 0;
        }
    }
    // No such LUN: the drive stays unnamed and every drive is shown.
    return 0;
}

int CmdDriveShow::showAllDrives(HIsaAdapter& adapter, std::string text, int resultCode, std::string& err)
{
    int pathCode = 0;
    auto const detail = [&](KDriveID const& listed) {
        KDriveID id = listed;
        HDrive* const drive = adapter.getDrives()->find(id);
        std::string lines = "\n";
        if (drive)
            lines += drive->getDriveInfo()->displayText();
        std::string paths;
        if (int const rc = getDrivePathInfo(&adapter, id, paths, err))
            pathCode = rc;
        return lines + paths;
    };
    text += poolListingText(adapter, detail);
    if (g_pHbaMgmtApi->isFailure(pathCode))
        return pathCode;
    if (pathCode != 0)
        resultCode = pathCode;

    CommandOutput out(*this);
    if (!out.banner(&adapter))
        return out.end(0, err);
    out.line(text);
    writeCountedResult(out, resultCode, driveRecordsOf(adapter));
    return out.end(0, err);
}

int CmdDriveShow::showOneDrive(HIsaAdapter& adapter, KDriveID& id, std::string text, int resultCode, std::string& err)
{
    HDrive* const drive = adapter.getDrives()->contains(id) ? adapter.getDrives()->find(id) : nullptr;
    if (!drive) {
        err = "Drive \"" + id.displayText() + "\" not found";
        return MHBA_E_OBJECT_NOT_FOUND;
    }
    TokenModifierString const* const smart = findModifier(ModifierId::MODIFIER_SMART, err);
    if (keywordGiven(smart)) {
        // Without SMART data the drive is still worth showing.
        if (int const rc = adapter.getSmartDriveInfo(id))
            text += "Error atempting to get SMART data for the drive - " + g_pHbaMgmtApi->returnCodeToText(rc) + "\n";
    }
    std::string paths;
    int const pathCode = getDrivePathInfo(&adapter, id, paths, err);
    if (g_pHbaMgmtApi->isFailure(pathCode))
        return pathCode;
    if (pathCode != 0)
        resultCode = pathCode;
    KDriveInfo const& info = *drive->getDriveInfo();
    bool const verbose = keywordGiven(findModifier(ModifierId::MODIFIER_VERBOSE, err));
    text += getDisplayText_Drive(id) + "\n" + info.displayText() + paths +
        (verbose ? info.displaySmartDriveInfoVerboseText() : info.displaySmartDriveInfoText());

    CommandOutput out(*this);
    if (!out.banner(&adapter))
        return out.end(0, err);
    out.line(text);
    writeOneOfCountedResult(out, resultCode, info, static_cast<uint32_t>(adapter.getDrives()->items.size()));
    return out.end(0, err);
}

int CmdDriveShow::getDrivePathInfo(HIsaAdapter* adapter, KDriveID& id, std::string& text, std::string&)
{
    text = "\n        Drive Path:\n";
    if (!adapter)
        return MHBA_E_INVALID_ARG;
    if (pathsOf != adapter) {
        pathsCode = paths.build(*adapter);
        pathsOf = adapter;
    }
    text += paths.pathLines(id);
    return pathsCode;
}
