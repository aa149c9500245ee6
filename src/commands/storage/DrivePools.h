// What the drive commands share: gathering the adapter's drives, the
// listing of its pools with their drives, and the drive that a LUN presents.
#pragma once

#include <functional>
#include <string>
#include <vector>

class HIsaAdapter;
class KDriveID;
class KDriveInfo;
class KLunInfo;

// The words that open the output when only some drives could be read.
std::string drivesPartlyGatheredText(int firstFailure);

// Gathers the adapter's drives and pools afresh. Returns 0, 2 when some
// drive could not be read (`warning` then says why, with no line end), or
// the library's failing code.
int gatherDrives(HIsaAdapter& adapter, std::string& warning);

// What follows a drive's line in a pool listing; empty for a bare list.
using DriveDetail = std::function<std::string(KDriveID const&)>;

// Every pool of the adapter in its order: "<pool> Drives (<in pool> of
// <all>)", then per drive "\n    -drive=<id>" and its detail, then three line
// ends.
std::string poolListingText(HIsaAdapter& adapter, DriveDetail const& detail);

// The identifiers and the records of every drive the adapter holds, in its
// order, for the result record.
std::vector<KDriveID> driveIdsOf(HIsaAdapter& adapter);
std::vector<KDriveInfo> driveRecordsOf(HIsaAdapter& adapter);

// The drive that a LUN presents: the LUN's WWULN bytes as a binary drive
// identifier.
KDriveID driveIdOfLun(KLunInfo const& lun);
