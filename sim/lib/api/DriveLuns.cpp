#include "api/DriveLuns.h"

#include "api/Fill.h"
#include "api/Ids.h"
#include "model/AdapterStorage.h"

#include "records/KLunInfo.h"

#include <cctype>
#include <cstring>

namespace sim {

namespace {

// The name inside a drive or SSD identifier: code set, length, then the bytes.
std::string nameInside(const KUniqueID& id)
{
    const unsigned char* data = id.getData();
    int32_t length;
    std::memcpy(&length, data + 4, sizeof length);
    if (length < 0 || length > PUniqueID::DATA_SIZE - 8)
        return {};
    return std::string(reinterpret_cast<const char*>(data + 8), static_cast<size_t>(length));
}

// A name as a user may type it: separators dropped, letters in capitals.
std::string plainName(const std::string& name)
{
    std::string plain;
    for (char c : name)
        if (c != '-' && c != ':' && c != ' ')
            plain += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return plain;
}

// State bits of a drive's LUN: online, storage media SSD, cache store (the
// drive holds cache data, which keeps it out of LUN listings) and
// non-rotating medium.
u32 driveLunState(const Drive& d)
{
    constexpr u32 kOnline = 1u << 0;
    constexpr u32 kStorageMediaSsd = 1u << 18;
    constexpr u32 kCacheStore = 1u << 19;
    constexpr u32 kNonRotatingMedium = 1u << 28;
    return (d.online ? kOnline : 0) | kStorageMediaSsd | kCacheStore | kNonRotatingMedium;
}

} // namespace

const Drive* driveForId(const Adapter& a, const KUniqueID& id)
{
    std::string wanted = nameInside(id);
    return driveWithName(a, reinterpret_cast<const unsigned char*>(wanted.data()), wanted.size());
}

const Drive* driveWithName(const Adapter& a, const unsigned char* name, size_t length)
{
    for (const Drive& d : a.drives) {
        std::vector<unsigned char> bytes = driveNameBytes(d);
        if (length == bytes.size() && std::memcmp(name, bytes.data(), length) == 0)
            return &d;
    }
    return nullptr;
}

const Drive* driveForSsdId(const Adapter& a, const KUniqueID& id)
{
    std::string wanted = nameInside(id);
    for (const Drive& d : a.drives)
        if (!wanted.empty() && (d.serial == wanted || plainName(d.id) == plainName(wanted)))
            return &d;
    return nullptr;
}

Lun driveLun(const Drive& d)
{
    Lun lun;
    lun.wwuln = d.id;
    lun.codeSet = driveNameIsBinary(d) ? 1 : 2;
    lun.type = 1;
    lun.sizeBytes = d.sizeBytes;
    lun.vendor = d.vendor;
    lun.product = d.product;
    lun.revision = d.revision;
    lun.page80 = d.serial;
    lun.online = d.online;
    return lun;
}

void fillDriveLunInfo(const San& san, const Adapter& a, const Drive& d, KLunInfo& out)
{
    fillLunInfo(san, driveLun(d), a, out);
    out.ui32LunState = driveLunState(d);
}

std::vector<DriveLunPath> driveLunPaths(const San& san, const Adapter& a)
{
    std::vector<DriveLunPath> paths;
    Target made;
    const Target* target = presentingTarget(san, a, made);
    if (!target || a.drives.empty())
        return paths;
    PTargetID targetIdentity = targetId(*target);
    for (size_t i = 0; i < a.drives.size(); ++i) {
        LunPath path{target->name, kFirstDriveLun + static_cast<u32>(i), 1, 3};
        paths.push_back({lunId(targetIdentity, path), &a.drives[i]});
    }
    return paths;
}

const Drive* driveAtPath(const San& san, const Adapter& a, const PLunID& path)
{
    int number = path.lunNumber();
    if (number < static_cast<int>(kFirstDriveLun) || static_cast<size_t>(number - kFirstDriveLun) >= a.drives.size())
        return nullptr;
    Target made;
    const Target* target = presentingTarget(san, a, made);
    if (!target)
        return nullptr;
    LunPath expected{target->name, static_cast<u32>(number), 1, 3};
    if (!(lunId(targetId(*target), expected) == path))
        return nullptr;
    return &a.drives[static_cast<size_t>(number) - kFirstDriveLun];
}

} // namespace sim
