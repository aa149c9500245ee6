// What an adapter sees on the fabric, gathered into the collections that
// it hands out: the targets found on its enabled ports with a link, the
// initiators, and one device per port name, which is a target, an
// initiator or both.
#pragma once

#include "api/Objects.h"
#include "model/San.h"

namespace sim {

// Brings the three collections up to what `a` sees in `san` now. Objects
// that are still seen keep their place in memory and get fresh records;
// objects no longer seen leave the collections (and stay alive, as the
// command line may still hold them). `ownInternal`, when not null, is the
// adapter's internal target that the SAN does not hold (yet), seen after
// the SAN's own.
void gatherFabricObjects(const San& san, const Adapter& a, const Target* ownInternal, SimTargetCollection& targets,
                         SimInitiatorCollection& initiators, SimDeviceCollection& devices);

// Puts a target's new limit of outstanding I/O into the records held for it.
void noteTargetLimit(const PTargetID& target, u32 count, SimTargetCollection& targets, SimDeviceCollection& devices);

} // namespace sim
