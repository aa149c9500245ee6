// An adapter's index of LUNs by name (WWULN or Page 0x80 serial number).
// The adapter must have scanned a name type before its names can be found.
// Slot order matters; see HTargetCollection.h.
#pragma once

#include <cstdint>

#include "api/ApiForward.h"
#include "api/MhbaReturn.h"
#include "records/PBase.h"

class HLunNameIndex {
public:
    virtual ~HLunNameIndex() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    // The LUN paths registered under this name, or null.
    virtual HLunIdList* findLuns(const PLunsForOneNameID& name) = 0;
    // True when names of this type have been scanned for the target.
    virtual bool lookup(PBase::LUN_NAME_TYPE type, const PTargetID& target) = 0;
    // 1003 when the adapter cannot look LUNs up by this type of name.
    virtual e_MHBA_RETURN scanAll(PBase::LUN_NAME_TYPE type) = 0;
    // The meaning of the last two arguments is the library's; callers pass
    // 0 and 100.
    virtual e_MHBA_RETURN scanTarget(PBase::LUN_NAME_TYPE type, const PTargetID& target, uint32_t first,
                                     uint32_t last) = 0;
};
