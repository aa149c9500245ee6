// An adapter's own storage as the model sees it: who owns each drive, which
// drives form the cache pool, and the internal target through which the
// adapter presents its drives and data LUNs.
#pragma once

#include "model/San.h"

#include <string>

namespace sim {

// A drive keeps the configuration of the adapter that set it up. One moved
// from another adapter names that one as its owner until the new adapter
// adopts it (restoreDriveConfig); until then it is not the new adapter's to
// use.
u64 driveOwner(const Adapter& a, const Drive& d);
bool ownsDrive(const Adapter& a, const Drive& d);
// A member of the adapter's cache pool: configured, and configured by it.
bool inCachePool(const Adapter& a, const Drive& d);

Drive* findDrive(Adapter& a, const std::string& id);

// The internal target of an adapter is seen by that adapter alone.
bool isInternalTargetOf(const Target& t, const Adapter& a);
const Target* findInternalTarget(const San& san, const Adapter& a);
// The internal target an adapter is given when it first needs one.
Target makeInternalTarget(const Adapter& a);
// The adapter's internal target: the one the SAN holds, or else, for an
// adapter with drives, the one it would be given, made in `made`. Null for
// an adapter with neither.
const Target* presentingTarget(const San& san, const Adapter& a, Target& made);

} // namespace sim
