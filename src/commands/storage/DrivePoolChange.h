// Adding a drive to the cache pool and taking one out are one algorithm with
// two sets of library operations and two closing words.
#pragma once

#include <string>

#include "api/MhbaReturn.h"

class HIsaAdapter;
class KDriveID;
class KWwulnLunID;
class TokenCmd;

struct DrivePoolChange {
    // By the drive's identifier, and by its SSD identifier as text.
    e_MHBA_RETURN (HIsaAdapter::*byDriveId)(KDriveID const&);
    e_MHBA_RETURN (HIsaAdapter::*bySsdId)(KWwulnLunID const&);
    char const* doneText; // "Drive successfully added." and the like
};

// Names the drive by -drive or by the LUN keywords, asks the adapter to make
// the change, and on success shows "-drive=<id>" and the closing words. A
// -drive value the adapter does not know as a drive identifier gets a second
// chance as an SSD identifier in text.
int changeDrivePool(TokenCmd& cmd, DrivePoolChange const& change, std::string& err);
