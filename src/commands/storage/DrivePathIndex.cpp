#include "commands/storage/DrivePathIndex.h"

#include <algorithm>

#include "api/HbaMgmtInterfaces.h"
#include "api/MHbaReturnBuffer.h"
#include "commands/LunLookup.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"

namespace {

// Names are compared by length and bytes; the code set does not count.
std::string nameKey(unsigned char const* bytes, size_t length)
{
    return std::string(reinterpret_cast<char const*>(bytes), length);
}

std::string lunNameKey(KLunInfo const& info)
{
    return nameKey(info.ui8Wwuln, std::min<size_t>(info.ui32WwulnLength, sizeof info.ui8Wwuln));
}

} // namespace

int DrivePathIndex::build(HIsaAdapter& adapter)
{
    linesByName.clear();
    for (HTarget* target : adapter.getTargets()->items) {
        MHbaReturnBuffer firstFailure;
        if (int const rc = adapter.getLunsForSpecificTarget(target, &firstFailure))
            return rc;
        std::string const targetText = target->getTargetId()->displayText();
        for (PLunID const& id : lunPathsOf(target->getLunIds()))
            if (KLunInfo const* const info = readableLunRecord(adapter.getLuns()->find(id)))
                linesByName[lunNameKey(*info)] +=
                    "            -fc_target=" + targetText + "   -lun_number=" + std::to_string(id.lunNumber()) + "\n";
    }
    return 0;
}

std::string DrivePathIndex::pathLines(KDriveID const& drive) const
{
    // No LUN name is longer than its record's field, so no such drive matches.
    unsigned char name[sizeof KLunInfo::ui8Wwuln] = {};
    int const length = drive.getWwulnIdLength();
    if (length < 0 || static_cast<size_t>(length) > sizeof name)
        return std::string();
    drive.getWwulnID(name, sizeof name);
    auto const found = linesByName.find(nameKey(name, static_cast<size_t>(length)));
    return found == linesByName.end() ? std::string() : found->second;
}
