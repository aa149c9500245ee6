// "show drive": shows the details and paths of one SSD drive, or of all, optionally with SMART
// data.
#pragma once

#include <string>

#include "commands/storage/DrivePathIndex.h"
#include "core/TokenCmd.h"

class HIsaAdapter;
class KDriveID;
class PTargetID;

class CmdDriveShow : public TokenCmd {
public:
    CmdDriveShow();

    int execCommand(std::string& err) override;

    // The "Drive Path:" heading and a line for each way the adapter reaches
    // the drive as a LUN. Returns 0, or the code of a target whose LUNs could
    // not be gathered.
    int getDrivePathInfo(HIsaAdapter* adapter, KDriveID& id, std::string& text, std::string& err);

private:
    // The drive the keywords name: by -drive, or as the LUN that -fc_target
    // (or -is_target) and -lun_number name. `id` stays empty when they name
    // none, and all drives are shown.
    int readDriveSelection(HIsaAdapter& adapter, KDriveID& id, bool& driveGiven, std::string& err);
    int findDriveThroughLun(HIsaAdapter& adapter, PTargetID const& target, long lunNumber, KDriveID& id);
    int showAllDrives(HIsaAdapter& adapter, std::string text, int resultCode, std::string& err);
    int showOneDrive(HIsaAdapter& adapter, KDriveID& id, std::string text, int resultCode, std::string& err);

    // Built once per run for the adapter that `pathsOf` names.
    DrivePathIndex paths;
    HIsaAdapter* pathsOf = nullptr;
    int pathsCode = 0;
};
