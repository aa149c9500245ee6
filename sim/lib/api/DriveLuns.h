// The SSDs of an adapter as the library reports them: found by the
// identifiers a user types, and presented as LUNs of the adapter's internal
// target, so that LUN keywords can name a drive and a drive's paths can be
// shown. The model holds no such LUNs: they are made from the drives each
// time they are asked for, and only the adapter holding the drives sees them.
#pragma once

#include "model/San.h"

#include "records/PUniqueID.h"

#include <string>
#include <vector>

class KLunInfo;

namespace sim {

// Drive LUNs are numbered from here in the order of the drives, clear of the
// numbers that data LUNs take from 0 on the same target.
inline constexpr u32 kFirstDriveLun = 256;

// The drive an identifier names by its name bytes, whatever code set it
// says: the command line builds binary identifiers from a drive's LUN even
// where the drive's name is text. Null when none.
const Drive* driveForId(const Adapter& a, const KUniqueID& id);
// The drive whose name bytes are these; null when none.
const Drive* driveWithName(const Adapter& a, const unsigned char* name, size_t length);
// The drive an SSD identifier (text) names: its serial number, or its name as
// it is shown, in either case and with or without separators.
const Drive* driveForSsdId(const Adapter& a, const KUniqueID& id);

// The drive's LUN as a model LUN, for the records to be filled from.
Lun driveLun(const Drive& d);
// The LUN record of a drive's LUN, as the adapter holding it sees it.
void fillDriveLunInfo(const San& san, const Adapter& a, const Drive& d, KLunInfo& out);

struct DriveLunPath {
    PLunID id;
    const Drive* drive;
};
// The LUN paths of the adapter's drives, in the order of the drives; empty
// for an adapter without drives.
std::vector<DriveLunPath> driveLunPaths(const San& san, const Adapter& a);
// The drive whose LUN the path names, or null.
const Drive* driveAtPath(const San& san, const Adapter& a, const PLunID& path);

} // namespace sim
