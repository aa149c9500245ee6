// The ways an adapter reaches its drives as LUNs, found by one walk over its
// targets and their LUNs. Asking the walk again for every drive would cost
// drives times LUNs; here each drive's lines are one lookup by its name.
#pragma once

#include <string>
#include <unordered_map>

class HIsaAdapter;
class KDriveID;

class DrivePathIndex {
public:
    // Walks every target of the adapter in order and every LUN of each,
    // remembering a line per LUN under its WWULN. A target whose LUNs cannot
    // be gathered ends the walk: its code is returned, and what was found
    // before it stays. A LUN whose record cannot be read is passed over.
    int build(HIsaAdapter& adapter);

    // "            -fc_target=<target>   -lun_number=<n>\n" for each LUN whose
    // WWULN has the drive's name bytes, in the order of the walk.
    std::string pathLines(KDriveID const& drive) const;

private:
    std::unordered_map<std::string, std::string> linesByName;
};
