#include "api/SimAdapter.h"

#include "api/DriveLuns.h"
#include "api/FabricGather.h"
#include "api/Fill.h"
#include "api/Ids.h"
#include "api/MHbaReturnBuffer.h"
#include "model/AdapterStorage.h"
#include "model/Codes.h"
#include "model/Rules.h"
#include "model/Scenario.h"
#include "state/StateStore.h"

#include "records/KAdapterHealthInfo.h"
#include "records/KCacheStatistics.h"
#include "records/KFcInfo.h"
#include "records/KHostPcieInfo.h"
#include "records/KLunIoStatistics.h"
#include "records/KLunReservationInfo.h"
#include "records/KMemoryInfo.h"
#include "records/KNvdimmInfo.h"
#include "records/KPoolInfo.h"
#include "records/KSfpInfo.h"
#include "statistics/KCacheInfoList.h"

#include <cstring>
#include <strings.h>

namespace sim {

namespace {

std::string baseName(const std::string& path)
{
    auto slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

// A firmware image names its version on a line "version=..."; an image
// without one gets a version made from its size, as a build number.
std::string firmwareVersion(const std::string& image)
{
    auto at = image.find("version=");
    if (at != std::string::npos && (at == 0 || image[at - 1] == '\n')) {
        std::string v = image.substr(at + 8);
        return v.substr(0, v.find_first_of("\r\n"));
    }
    return "4.3.0." + std::to_string(image.size() % 1000);
}

} // namespace

SimAdapter::SimAdapter(Backend& backend, const San& san, const Adapter& a)
    : backend_(backend), id_(a.id.value), nameIndex_(*this)
{
    refresh(san, a);
}

void SimAdapter::refresh(const San& san, const Adapter& a)
{
    path_ = adapterPath(a);
    fillAdapterInfo(san, a, info_);
    const Cluster* c = clusterOf(san, a.id.value);
    cluster_ = c ? clusterId(c->id) : KClusterID();
}

int SimAdapter::withAdapter(const char* operation, const Reader& read, MHbaReturnBuffer* firstError)
{
    const San* san = backend_.view();
    if (!san)
        return code::StateFileError;
    // Reads come one per LUN in a walk over a large SAN, and hardly any has
    // a fault waiting: the SAN in hand answers that without a second look.
    int injected = code::Ok;
    if (rules::hasFault(*san, id_, operation)) {
        injected = backend_.fault(id_, operation, firstError);
        if (!code::keepsChange(injected))
            return injected;
        san = backend_.view(); // taking the fault changed the SAN
        if (!san)
            return code::StateFileError;
    }
    const Adapter* a = findAdapter(*san, id_);
    if (!a || !adapterAnswers(*a, backend_.now()))
        return code::AdapterNotResponding;
    return code::withInjected(injected, read(*san, *a));
}

int SimAdapter::apply(const char* operation, const Rule& rule, bool keepAlways)
{
    int injected = backend_.fault(id_, operation);
    if (!code::keepsChange(injected))
        return injected;
    return code::withInjected(injected, backend_.change(rule, keepAlways));
}

int SimAdapter::applyToLun(const char* operation, const PLunID& lun, const LunRule& rule, bool keepAlways)
{
    if (presentsDrive(lun))
        return refuseDriveLun(operation);
    const San* san = backend_.view();
    if (!san)
        return code::StateFileError;
    PathRef path;
    if (!pathFor(*san, lun, path))
        return code::ObjectNotFound;
    return apply(
        operation, [&](San& s, long long now) { return rule(s, now, path); }, keepAlways);
}

int SimAdapter::applyToWwuln(const char* operation, const KWwulnLunID& id, bool viaPrimary)
{
    const San* san = backend_.view();
    if (!san)
        return code::StateFileError;
    const Lun* lun = lunForWwulnId(*san, id);
    if (!lun) {
        const Adapter* a = findAdapter(*san, id_);
        return a && driveForId(*a, id) ? refuseDriveLun(operation) : code::ObjectNotFound;
    }
    std::string wwuln = lun->wwuln;
    return apply(operation,
                 [&](San& s, long long now) { return rules::disableCacheByWwuln(s, id_, wwuln, viaPrimary, now); });
}

bool SimAdapter::presentsDrive(const PLunID& lun)
{
    const San* san = backend_.view();
    const Adapter* a = san ? findAdapter(*san, id_) : nullptr;
    return a && driveAtPath(*san, *a, lun);
}

int SimAdapter::refuseDriveLun(const char* operation)
{
    // The adapter answers first; only then does it look at what is asked.
    return withAdapter(operation, [](const San&, const Adapter&) { return code::NotSanDataLun; });
}

// ---- collections --------------------------------------------------------------

e_MHBA_RETURN SimAdapter::setTargetMaxOutstandingIo(const PTargetID& target, uint32_t count)
{
    const San* san = backend_.view();
    if (!san)
        return asReturn(code::StateFileError);
    const Target* t = targetFor(*san, target);
    if (!t)
        return asReturn(code::ObjectNotFound);
    std::string name = t->name;
    int rc = apply("setTargetMaxOutstandingIo",
                   [&](San& s, long long now) { return rules::setTargetMaxOutstandingIo(s, id_, name, count, now); });
    // The records held from the last gathering show the new limit at once.
    if (rc == code::Ok)
        noteTargetLimit(target, count, targets_, devices_);
    return asReturn(rc);
}

void SimAdapter::clearDrives()
{
    drives_.clear();
    pools_.clear();
}

void SimAdapter::clearLuns()
{
    luns_.clear();
    pathTable_.clear();
    nameIndex_.clear();
}

void SimAdapter::discoverOnce()
{
    if (discovered_)
        return;
    discovered_ = true;
    const San* san = backend_.view();
    const Adapter* a = san ? findAdapter(*san, id_) : nullptr;
    if (!a || !adapterAnswers(*a, backend_.now()) || gatherFabric(*san, *a) != code::Ok)
        return;
    for (HTarget* t : targets_.items)
        gatherLunsOf(*san, *a, *static_cast<SimTarget*>(t));
}

e_MHBA_RETURN SimAdapter::getTargetsAndInitiators(MHbaReturnBuffer* firstError)
{
    discovered_ = true;
    return asReturn(withAdapter(
        "getTargetsAndInitiators", [&](const San& san, const Adapter& a) { return gatherFabric(san, a); }, firstError));
}

const Target* SimAdapter::targetNamed(const San& san, const Adapter& a, const std::string& name)
{
    if (const Target* t = findTarget(san, name))
        return t;
    const Target* own = presentingTarget(san, a, madeInternal_);
    return own && own->name == name ? own : nullptr;
}

int SimAdapter::gatherFabric(const San& san, const Adapter& a)
{
    // An adapter with drives presents them through its internal target, also
    // before the SAN holds one for data LUNs.
    const Target* own = presentingTarget(san, a, madeInternal_);
    gatherFabricObjects(san, a, own == &madeInternal_ ? own : nullptr, targets_, initiators_, devices_);
    return code::Ok;
}

void SimAdapter::fillLun(SimLun& lun, const San& san, const Adapter& a, const VisiblePath& p)
{
    fillLunInfo(san, *p.lun, a, lun.info);
    lun.changes = backend_.changeCount();
    lun.filledAt = *lun.changes;
    if (!p.target->online)
        lun.info.ui32LunState &= ~1u; // no way to reach it through this target
    if (backend_.inDemonstration()) {
        // A saved image does not carry the firmware's default sizes.
        lun.info.ui32DefaultMaxRead = lun.info.ui32DefaultMinRead = 0;
        lun.info.ui32DefaultMaxWrite = lun.info.ui32DefaultMinWrite = 0;
    }
}

e_MHBA_RETURN SimAdapter::refreshLun(SimLun& lun)
{
    return asReturn(withAdapter("refreshLunInfo", [&](const San& san, const Adapter& a) {
        if (const Drive* d = driveAtPath(san, a, lun.id)) {
            fillDriveLun(lun, san, a, *d);
            return code::Ok;
        }
        PathRef ref;
        if (!pathFor(san, lun.id, ref) || !findLun(san, ref))
            return code::LunGone;
        for (const VisiblePath& p : visiblePaths(san, a, *findTarget(san, ref.target)))
            if (p.path->lun == ref.lun && p.path->vpGroup == ref.vpGroup) {
                fillLun(lun, san, a, p);
                return code::Ok;
            }
        return code::LunGone;
    }));
}

SimLun* SimAdapter::holdLun(const PLunID& id)
{
    if (SimLun* held = static_cast<SimLun*>(luns_.find(id)))
        return held;
    auto fresh = std::make_unique<SimLun>();
    fresh->id = id;
    fresh->refresh = [this](SimLun& l) { return refreshLun(l); };
    return luns_.add(std::move(fresh));
}

int SimAdapter::gatherLunsOf(const San& san, const Adapter& a, SimTarget& target)
{
    const Target* t = targetNamed(san, a, target.name);
    if (!t)
        return code::ObjectNotFound;
    std::vector<VisiblePath> paths = visiblePaths(san, a, *t);
    LunPathTexts pathTexts(san, a);
    for (const VisiblePath& p : paths) {
        PLunID id = lunId(target.id, *p.path);
        target.luns.addUnique(id);
        fillLun(*holdLun(id), san, a, p);
        SimLunPathEntry* entry = static_cast<SimLunPathEntry*>(pathTable_.find(id));
        if (!entry) {
            auto fresh = std::make_unique<SimLunPathEntry>();
            fresh->id = id;
            entry = pathTable_.add(std::move(fresh));
        }
        // The path table tells every way this adapter reaches the LUN.
        entry->text = pathTexts.tableText(*p.lun);
    }
    if (isInternalTargetOf(*t, a) && adapterSeesTarget(san, a, *t))
        gatherDriveLuns(san, a, target);
    return code::Ok;
}

void SimAdapter::gatherDriveLuns(const San& san, const Adapter& a, SimTarget& target)
{
    for (const DriveLunPath& p : driveLunPaths(san, a)) {
        target.luns.addUnique(p.id);
        fillDriveLun(*holdLun(p.id), san, a, *p.drive);
    }
}

void SimAdapter::fillDriveLun(SimLun& lun, const San& san, const Adapter& a, const Drive& d)
{
    fillDriveLunInfo(san, a, d, lun.info);
    lun.changes = backend_.changeCount();
    lun.filledAt = *lun.changes;
}

e_MHBA_RETURN SimAdapter::getLunsForSpecificTarget(HTarget* target, MHbaReturnBuffer* firstError)
{
    if (!target)
        return MHBA_E_INVALID_ARG;
    SimTarget* held = targets_.byName(static_cast<SimTarget*>(target)->name);
    if (held != target)
        return MHBA_E_OBJECT_NOT_FOUND;
    return asReturn(withAdapter(
        "getLunsForSpecificTarget", [&](const San& san, const Adapter& a) { return gatherLunsOf(san, a, *held); },
        firstError));
}

e_MHBA_RETURN SimAdapter::getLunIoStatistics(const uint8_t* wwuln, uint32_t wwulnLength, bool withCacheStatistics,
                                             KLunIoStatistics& out)
{
    return asReturn(withAdapter("getLunIoStatistics", [&](const San& san, const Adapter& a) {
        const Lun* lun = wwulnIndex_.find(san, wwuln, wwulnLength);
        if (!lun)
            return code::ObjectNotFound;
        // A LUN that is gone has no traffic to count.
        if (!lun->online)
            return code::LunGone;
        fillLunIoStatistics(san, *lun, a, withCacheStatistics, backend_.now(), out);
        return code::Ok;
    }));
}

e_MHBA_RETURN SimAdapter::getDrivesWithErrorDetails(MHbaReturnBuffer* firstError)
{
    return asReturn(withAdapter(
        "getDrivesWithErrorDetails",
        [&](const San&, const Adapter& a) {
            // Pools are named by the state of their drives: the members of
            // the cache pool, then the drives free for it.
            auto configured = std::make_unique<SimDrivePool>();
            auto unconfigured = std::make_unique<SimDrivePool>();
            unsigned char configuredName[] = "Configured";
            unsigned char unconfiguredName[] = "Unconfigured";
            configured->id.initDrivePoolID(configuredName);
            unconfigured->id.initDrivePoolID(unconfiguredName);
            for (const Drive& d : a.drives) {
                KDriveID id = driveId(d);
                SimDrive* held = static_cast<SimDrive*>(drives_.find(id));
                if (!held) {
                    auto fresh = std::make_unique<SimDrive>();
                    fresh->id = id;
                    held = drives_.add(std::move(fresh));
                }
                fillDriveInfo(a, d, false, held->info);
                (inCachePool(a, d) ? configured : unconfigured)->drives.ids.push_back(id);
            }
            pools_.clear();
            for (auto* pool : {&configured, &unconfigured})
                if (!(*pool)->drives.ids.empty())
                    pools_.add(std::move(*pool));
            return code::Ok;
        },
        firstError));
}

int SimAdapter::changePool(const char* operation, const KUniqueID& drive, bool bySsdId, bool add)
{
    const San* san = backend_.view();
    if (!san)
        return code::StateFileError;
    const Adapter* a = findAdapter(*san, id_);
    const Drive* named = !a ? nullptr : bySsdId ? driveForSsdId(*a, drive) : driveForId(*a, drive);
    // An unknown drive is told only by an adapter that answers.
    std::string name = named ? named->id : std::string();
    return apply(operation, [&](San& s, long long now) {
        return add ? rules::addDriveToPool(s, id_, name, now) : rules::removeDriveFromPool(s, id_, name, now);
    });
}

e_MHBA_RETURN SimAdapter::addDriveToPoolBySsdId(const KWwulnLunID& ssdId)
{
    return asReturn(changePool("addDriveToPoolBySsdId", ssdId, true, true));
}

e_MHBA_RETURN SimAdapter::addDriveToPool(const KDriveID& drive)
{
    return asReturn(changePool("addDriveToPool", drive, false, true));
}

e_MHBA_RETURN SimAdapter::removeDriveFromPool(const KDriveID& drive)
{
    return asReturn(changePool("removeDriveFromPool", drive, false, false));
}

e_MHBA_RETURN SimAdapter::removeDriveFromPoolBySsdId(const KWwulnLunID& ssdId)
{
    return asReturn(changePool("removeDriveFromPoolBySsdId", ssdId, true, false));
}

e_MHBA_RETURN SimAdapter::getSmartDriveInfo(const KDriveID& drive)
{
    SimDrive* held = static_cast<SimDrive*>(drives_.find(drive));
    if (!held)
        return MHBA_E_OBJECT_NOT_FOUND;
    return asReturn(withAdapter("getSmartDriveInfo", [&](const San&, const Adapter& a) {
        const Drive* d = driveForId(a, drive);
        if (!d)
            return code::ObjectNotFound;
        if (!d->online)
            return code::DriveNotUsable;
        fillDriveInfo(a, *d, true, held->info);
        return code::Ok;
    }));
}

// ---- maintenance ----------------------------------------------------------------

e_MHBA_RETURN SimAdapter::factoryReset(int)
{
    return asReturn(apply("factoryReset", [&](San& s, long long now) { return rules::factoryReset(s, id_, now); }));
}

e_MHBA_RETURN SimAdapter::setPassword(const char* account, const char* oldPassword, const char* newPassword)
{
    if (!account || std::strcmp(account, "admin") != 0)
        return MHBA_E_INVALID_ARG;
    std::string oldText = oldPassword ? oldPassword : "", newText = newPassword ? newPassword : "";
    return asReturn(
        apply("setPassword", [&](San& s, long long now) { return rules::setPassword(s, id_, oldText, newText, now); }));
}

e_MHBA_RETURN SimAdapter::restart(int)
{
    return asReturn(apply("restart", [&](San& s, long long now) { return rules::restart(s, id_, now); }));
}

std::string SimAdapter::capture(const San& san, const Adapter& a) const
{
    std::string text = "ZEK system capture\n";
    text += "Adapter ID:      " + adapterIdText(a.id.value) + "\n";
    text += "Symbolic name:   " + a.symbolicName + "\n";
    text += "Serial number:   " + a.serialNumber + "\n";
    text += "Firmware:        " + a.swVersion + "\n";
    text += "Cache pool:      " + std::to_string(a.cachePoolBytes >> 20) + " MB\n";
    text += "FC ports:        " + std::to_string(a.ports.size()) + "\n";
    for (size_t i = 0; i < a.ports.size(); ++i)
        text += "  FC" + std::to_string(i + 1) + ": " + (a.ports[i].enabled ? "enabled" : "disabled") + ", WWPN " +
            a.ports[i].wwpn + "\n";
    int cached = 0;
    for (const Lun& l : san.luns)
        cached += l.cached && l.cache.adapter == a.id;
    text += "Cached LUNs:     " + std::to_string(cached) + "\n";
    text += "Log records:     " + std::to_string(a.log.size()) + "\n";
    return text;
}

int SimAdapter::writeFile(const std::string& file, const std::string& text)
{
    std::string error;
    if (writeTextFileAtomically(file, text, error))
        return code::Ok;
    backend_.warning(error);
    return code::FileError;
}

e_MHBA_RETURN SimAdapter::saveCaptureFile(const std::string& file)
{
    return asReturn(withAdapter("saveCaptureFile",
                                [&](const San& san, const Adapter& a) { return writeFile(file, capture(san, a)); }));
}

e_MHBA_RETURN SimAdapter::saveFruFile(const std::string& file)
{
    return asReturn(withAdapter("saveFruFile", [&](const San&, const Adapter& a) {
        std::string text = "serial=" + a.serialNumber + "\nproduct=" + a.productName + "\nhw=" + a.hwVersion + "\n";
        return writeFile(file, text);
    }));
}

e_MHBA_RETURN SimAdapter::restoreFruFile(const std::string& file)
{
    std::string text, error;
    if (!readTextFile(file, text, error)) {
        backend_.warning(error);
        return MHBA_E_INVALID_ARG;
    }
    if (text.rfind("serial=", 0) != 0) {
        backend_.warning("\"" + file + "\" is not a FRU file of this adapter family");
        return MHBA_E_INVALID_ARG;
    }
    int rc = withAdapter("restoreFruFile", [&](const San&, const Adapter&) { return code::Ok; });
    return asReturn(rc == code::Ok ? code::OkRestartRequired : rc);
}

e_MHBA_RETURN SimAdapter::getSystemCapture(std::string& text)
{
    return asReturn(withAdapter("getSystemCapture", [&](const San& san, const Adapter& a) {
        text = capture(san, a);
        return code::Ok;
    }));
}

e_MHBA_RETURN SimAdapter::restoreDriveConfig(uint64_t ownerId)
{
    return asReturn(apply("restoreDriveConfig",
                          [&](San& s, long long now) { return rules::restoreDriveConfig(s, id_, ownerId, now); }));
}

e_MHBA_RETURN SimAdapter::saveCacheDump(int, const std::string& path)
{
    return asReturn(withAdapter("saveCacheDump", [&](const San& san, const Adapter& a) {
        std::string text = "Cache dump of adapter " + adapterIdText(a.id.value) + "\n";
        text += "Cache pool bytes: " + std::to_string(a.cachePoolBytes) + "\n";
        for (const Lun& l : san.luns) {
            if (!l.cached || l.cache.adapter != a.id)
                continue;
            text += "LUN " + l.wwuln + ": mode " + std::to_string(l.cache.mode) + ", dirty " +
                std::to_string(l.cache.dirtyBytes) + " bytes, locked ranges " +
                std::to_string(l.cache.lockedRanges.size()) + "\n";
        }
        return writeFile(path, text);
    }));
}

e_MHBA_RETURN SimAdapter::updateFirmware(const char* file)
{
    std::string image, error;
    if (!file || !readTextFile(file, image, error) || image.empty()) {
        backend_.warning(file ? (image.empty() && error.empty() ? std::string("\"") + file + "\" is empty" : error)
                              : "No firmware file was given");
        return asReturn(code::FileError);
    }
    std::string version = firmwareVersion(image);
    int checked = withAdapter("updateFirmware", [&](const San&, const Adapter&) { return code::Ok; });
    if (!code::keepsChange(checked))
        return asReturn(checked);
    for (int percent = 0; percent < 100; percent += 25)
        backend_.progress(percent);
    int rc = code::withInjected(checked, apply("installFirmware", [&](San& s, long long now) {
                                    return rules::installFirmware(s, id_, version, now);
                                }));
    if (code::keepsChange(rc)) {
        backend_.progress(100);
        backend_.info("Firmware " + version + " written to the adapter flash");
    }
    return asReturn(rc);
}

e_MHBA_RETURN SimAdapter::getFile(const char* localFile, const char* name, bool clearAfter)
{
    if (!localFile || !*localFile)
        return MHBA_E_INVALID_ARG;
    // Without a name the adapter hands over its support capture.
    std::string wanted = name ? name : "";
    std::string content;
    int rc;
    if (wanted.empty()) {
        rc = withAdapter("getFile", [&](const San& san, const Adapter& a) {
            content = capture(san, a);
            return code::Ok;
        });
    } else {
        rc = apply("getFile",
                   [&](San& s, long long now) { return rules::fetchFile(s, id_, wanted, clearAfter, content, now); });
    }
    if (!code::keepsChange(rc))
        return asReturn(rc);
    return asReturn(code::withInjected(rc, writeFile(localFile, content)));
}

e_MHBA_RETURN SimAdapter::putFile(const char* localFile, const char* name, bool clearFirst)
{
    std::string content, error;
    if (!localFile || !readTextFile(localFile, content, error)) {
        backend_.warning(localFile ? error : "No local file was given");
        return asReturn(code::FileError);
    }
    std::string target = name ? name : baseName(localFile);
    return asReturn(apply(
        "putFile", [&](San& s, long long now) { return rules::storeFile(s, id_, target, content, clearFirst, now); }));
}

// ---- adapter, pool, ports and health ------------------------------------------------

e_MHBA_RETURN SimAdapter::getAdapterInfo(KIsaAdapterInfo& out)
{
    const San* san = backend_.view();
    if (!san)
        return asReturn(code::StateFileError);
    const Adapter* a = findAdapter(*san, id_);
    if (a && a->state == AdapterOnline && !adapterAnswers(*a, backend_.now())) {
        // Each question during a restart counts, so a pinned clock still ends it.
        int rc = backend_.change([&](San& s, long long now) { return rules::pollWhileRestarting(s, id_, now); }, true);
        if (rc != code::Ok)
            return asReturn(rc);
    }
    if (a && a->state != AdapterOnline) {
        // The library knows an offline adapter, and says so in its description.
        fillAdapterInfo(*san, *a, out);
        refresh(*san, *a);
        return MHBA_S_OK;
    }
    return asReturn(withAdapter("getAdapterInfo", [&](const San& s, const Adapter& adapter) {
        fillAdapterInfo(s, adapter, out);
        refresh(s, adapter);
        return code::Ok;
    }));
}

e_MHBA_RETURN SimAdapter::setSymbolicName(const char* name, size_t length)
{
    std::string text = name ? std::string(name, strnlen(name, length)) : "";
    return asReturn(
        apply("setSymbolicName", [&](San& s, long long now) { return rules::setSymbolicName(s, id_, text, now); }));
}

e_MHBA_RETURN SimAdapter::getMemoryInfo(KMemoryInfo& out)
{
    return asReturn(withAdapter("getMemoryInfo", [&](const San&, const Adapter& a) {
        fillMemoryInfo(a, backend_.now(), out);
        return code::Ok;
    }));
}

e_MHBA_RETURN SimAdapter::getAdapterStatistics(KCacheStatistics& out)
{
    return asReturn(withAdapter("getAdapterStatistics", [&](const San& san, const Adapter& a) {
        fillCacheStatistics(san, a, backend_.now(), out);
        return code::Ok;
    }));
}

e_MHBA_RETURN SimAdapter::clearAdapterStatistics()
{
    return asReturn(
        apply("clearAdapterStatistics", [&](San& s, long long now) { return rules::clearStatistics(s, id_, now); }));
}

e_MHBA_RETURN SimAdapter::getPoolInfo(KPoolInfo& out)
{
    return asReturn(withAdapter("getPoolInfo", [&](const San& san, const Adapter& a) {
        fillPoolInfo(san, a, out);
        return code::Ok;
    }));
}

e_MHBA_RETURN SimAdapter::setPoolSize(uint32_t megabytes)
{
    return asReturn(
        apply("setPoolSize", [&](San& s, long long now) { return rules::setPoolSize(s, id_, megabytes, now); }));
}

e_MHBA_RETURN SimAdapter::removePool()
{
    return asReturn(apply("removePool", [&](San& s, long long now) { return rules::removePool(s, id_, now); }));
}

e_MHBA_RETURN SimAdapter::setFcPortEnabled(uint32_t portIndex, bool enable)
{
    return asReturn(apply("setFcPortEnabled", [&](San& s, long long now) {
        return rules::setPortEnabled(s, id_, portIndex, enable, now);
    }));
}

e_MHBA_RETURN SimAdapter::getFcInfo(uint32_t portIndex, KFcInfo& out)
{
    return asReturn(withAdapter("getFcInfo", [&](const San&, const Adapter& a) {
        if (portIndex >= a.ports.size())
            return code::InvalidArgument;
        fillFcInfo(a.ports[portIndex], portIndex, out);
        return code::Ok;
    }));
}

e_MHBA_RETURN SimAdapter::setFcInfo(uint32_t portIndex, int32_t linkRate, int32_t connectionOption,
                                    uint32_t executionThrottle)
{
    return asReturn(apply("setFcInfo", [&](San& s, long long now) {
        return rules::setPortSettings(s, id_, portIndex, linkRate, connectionOption, executionThrottle, now);
    }));
}

e_MHBA_RETURN SimAdapter::getSfpInfo(uint32_t portIndex, KSfpInfo& out)
{
    return asReturn(withAdapter("getSfpInfo", [&](const San&, const Adapter& a) {
        if (portIndex >= a.ports.size())
            return code::InvalidArgument;
        fillSfpInfo(a.ports[portIndex], portIndex, out);
        return code::Ok;
    }));
}

e_MHBA_RETURN SimAdapter::getAdapterHealth(KAdapterHealthInfo& out)
{
    return asReturn(withAdapter("getAdapterHealth", [&](const San&, const Adapter& a) {
        fillHealthInfo(a, backend_.now(), out);
        return code::Ok;
    }));
}

e_MHBA_RETURN SimAdapter::setBeacon(uint32_t portIndex, bool enable)
{
    return asReturn(
        apply("setBeacon", [&](San& s, long long now) { return rules::setBeacon(s, id_, portIndex, enable, now); }));
}

e_MHBA_RETURN SimAdapter::executeNvdimmCommand(int command)
{
    return asReturn(apply("executeNvdimmCommand",
                          [&](San& s, long long now) { return rules::runNvdimmCommand(s, id_, command, now); }));
}

e_MHBA_RETURN SimAdapter::getNvdimmInfo(KNvdimmInfo& out)
{
    return asReturn(withAdapter("getNvdimmInfo", [&](const San&, const Adapter& a) {
        if (!a.nvdimm.present)
            return code::NotSupported;
        fillNvdimmInfo(a, out);
        return code::Ok;
    }));
}

// ---- LUNs and their cache ----------------------------------------------------------

e_MHBA_RETURN SimAdapter::createLun(uint64_t sizeBytes, const std::string& name, int mirrorType, uint64_t mirrorAdapter,
                                    KWwulnLunID& newLun)
{
    std::string wwuln;
    int rc = apply("createLun", [&](San& s, long long now) {
        return rules::createLun(s, id_, sizeBytes, name, mirrorType, mirrorAdapter, wwuln, now);
    });
    if (!code::keepsChange(rc) || wwuln.empty())
        return asReturn(rc);
    const San* san = backend_.view();
    const Lun* lun = nullptr;
    if (san)
        for (const Lun& l : san->luns)
            if (l.wwuln == wwuln)
                lun = &l;
    if (!lun)
        return asReturn(code::StateFileError);
    newLun = wwulnId(*lun);
    return asReturn(rc);
}

e_MHBA_RETURN SimAdapter::modifyLun(const PLunID& lun, uint64_t sizeBytes, const std::string& name)
{
    return asReturn(applyToLun("modifyLun", lun, [&](San& s, long long now, const PathRef& p) {
        return rules::modifyLun(s, id_, p, sizeBytes, name, now);
    }));
}

e_MHBA_RETURN SimAdapter::setLunMirror(const PLunID& lun, int mirrorType, uint64_t mirrorAdapter)
{
    return asReturn(applyToLun("setLunMirror", lun, [&](San& s, long long now, const PathRef& p) {
        return rules::setLunMirror(s, id_, p, mirrorType, mirrorAdapter, now);
    }));
}

e_MHBA_RETURN SimAdapter::removeLun(const PLunID& lun, std::string& text)
{
    return asReturn(applyToLun("removeLun", lun, [&](San& s, long long now, const PathRef& p) {
        return rules::removeLun(s, id_, p, text, now);
    }));
}

e_MHBA_RETURN SimAdapter::clearLunStatistics(const uint8_t* wwuln, uint32_t wwulnLength, bool)
{
    const San* san = backend_.view();
    if (!san)
        return asReturn(code::StateFileError);
    const Lun* lun = wwulnIndex_.find(*san, wwuln, wwulnLength);
    if (!lun)
        return clearDriveLunStatistics(wwuln, wwulnLength);
    std::string name = lun->wwuln;
    return asReturn(apply("clearLunStatistics",
                          [&](San& s, long long now) { return rules::clearLunStatistics(s, id_, name, now); }));
}

// An SSD of the adapter is also one of its LUNs. The simulator keeps no
// counters for it, so a clear only needs the drive to be there and answer.
e_MHBA_RETURN SimAdapter::clearDriveLunStatistics(const uint8_t* wwuln, uint32_t wwulnLength)
{
    return asReturn(withAdapter("clearLunStatistics", [&](const San&, const Adapter& a) {
        const Drive* d = driveWithName(a, wwuln, wwulnLength);
        if (!d)
            return code::ObjectNotFound;
        return d->online ? code::Ok : code::LunGone;
    }));
}

e_MHBA_RETURN SimAdapter::enableCache(const PLunID& lun, int mode, int profile, uint32_t maxCache, uint32_t minRead,
                                      uint32_t maxRead, uint32_t minWrite, uint32_t maxWrite, uint64_t mirrorAdapter)
{
    rules::CacheRequest req{mode, profile, maxCache, minRead, maxRead, minWrite, maxWrite, mirrorAdapter};
    return asReturn(applyToLun("enableCache", lun, [&](San& s, long long now, const PathRef& p) {
        return rules::enableCache(s, id_, p, req, now);
    }));
}

e_MHBA_RETURN SimAdapter::modifyCache(const PLunID& lun, int mode, int profile, uint32_t maxCache, uint32_t minRead,
                                      uint32_t maxRead, uint32_t minWrite, uint32_t maxWrite, uint64_t mirrorAdapter,
                                      bool useDefaults)
{
    rules::CacheRequest req{mode, profile, maxCache, minRead, maxRead, minWrite, maxWrite, mirrorAdapter};
    return asReturn(applyToLun("modifyCache", lun, [&](San& s, long long now, const PathRef& p) {
        return rules::modifyCache(s, id_, p, req, useDefaults, now);
    }));
}

e_MHBA_RETURN SimAdapter::disableCache(const KWwulnLunID& lun)
{
    return asReturn(applyToWwuln("disableCache", lun, false));
}

e_MHBA_RETURN SimAdapter::disableCacheByWwuln(const KWwulnLunID& lun)
{
    return asReturn(applyToWwuln("disableCacheByWwuln", lun, true));
}

e_MHBA_RETURN SimAdapter::startCacheFlush(const PLunID& lun)
{
    return asReturn(applyToLun("startCacheFlush", lun, [&](San& s, long long now, const PathRef& p) {
        return rules::startFlush(s, id_, p, now);
    }));
}

e_MHBA_RETURN SimAdapter::getCacheFlushProgress(const PLunID& lun, uint32_t* inProgress)
{
    bool running = false;
    int rc = applyToLun(
        "getCacheFlushProgress", lun,
        [&](San& s, long long now, const PathRef& p) { return rules::flushProgress(s, id_, p, running, now); }, true);
    if (inProgress)
        *inProgress = code::keepsChange(rc) && running ? 1 : 0;
    // No progress message here: the command line shows a dot per poll, and a
    // percentage from us would break its line.
    return asReturn(rc);
}

e_MHBA_RETURN SimAdapter::lockCache(const PLunID& lun, uint64_t startLba, uint64_t sizeLba)
{
    return asReturn(applyToLun("lockCache", lun, [&](San& s, long long now, const PathRef& p) {
        return rules::lockRange(s, id_, p, startLba, sizeLba, now);
    }));
}

e_MHBA_RETURN SimAdapter::unlockCache(const PLunID& lun, uint64_t startLba, uint64_t sizeLba)
{
    return asReturn(applyToLun("unlockCache", lun, [&](San& s, long long now, const PathRef& p) {
        return rules::unlockRange(s, id_, p, startLba, sizeLba, now);
    }));
}

e_MHBA_RETURN SimAdapter::invalidateCache(const PLunID& lun, uint64_t startLba, uint64_t endLba)
{
    return asReturn(applyToLun("invalidateCache", lun, [&](San& s, long long now, const PathRef& p) {
        return rules::invalidateRange(s, id_, p, startLba, endLba, now);
    }));
}

e_MHBA_RETURN SimAdapter::getReservations(const PLunID& lun, KLunReservationInfo& out)
{
    return asReturn(withAdapter("getReservations", [&](const San& san, const Adapter& a) {
        if (driveAtPath(san, a, lun))
            return code::NotSanDataLun;
        PathRef p;
        if (!pathFor(san, lun, p) || !adapterSeesPath(san, a, p))
            return code::ObjectNotFound;
        const Lun* l = findLun(san, p);
        if (!l->online)
            return code::LunGone;
        fillReservation(*l, out);
        return code::Ok;
    }));
}

e_MHBA_RETURN SimAdapter::clearReservation(const PLunID& lun)
{
    return asReturn(applyToLun("clearReservation", lun, [&](San& s, long long now, const PathRef& p) {
        return rules::clearReservation(s, id_, p, now);
    }));
}

e_MHBA_RETURN SimAdapter::getCacheStatistics(KCacheInfoList& out)
{
    return asReturn(withAdapter("getCacheStatistics", [&](const San& san, const Adapter& a) {
        fillCacheInfoList(san, a, backend_.now(), out);
        return code::Ok;
    }));
}

e_MHBA_RETURN SimAdapter::getStatistics(KHostPcieInfo& out)
{
    return asReturn(withAdapter("getStatistics", [&](const San& san, const Adapter& a) {
        fillHostPcieInfo(san, a, backend_.now(), out);
        return code::Ok;
    }));
}

// ---- clusters -----------------------------------------------------------------------

e_MHBA_RETURN SimAdapter::createCluster(const KIsaAdapterPath& primary, const KIsaAdapterPath& secondary,
                                        const KClusterID& id, int hostClusterType)
{
    const San* san = backend_.view();
    if (!san)
        return asReturn(code::StateFileError);
    const Adapter* p = adapterForPath(*san, primary);
    const Adapter* s = adapterForPath(*san, secondary);
    if (!p || !s)
        return MHBA_E_OBJECT_NOT_FOUND;
    u64 pid = p->id.value, sid = s->id.value;
    std::string name = clusterName(id);
    return asReturn(apply("createCluster", [&](San& san2, long long now) {
        return rules::createCluster(san2, id_, pid, sid, name, hostClusterType, now);
    }));
}

e_MHBA_RETURN SimAdapter::destroyCluster(const KClusterID& id)
{
    std::string name = clusterName(id);
    return asReturn(
        apply("destroyCluster", [&](San& s, long long now) { return rules::destroyCluster(s, id_, name, now); }));
}

e_MHBA_RETURN SimAdapter::addClusterMember(const KIsaAdapterPath& member, const KClusterID& id)
{
    const San* san = backend_.view();
    if (!san)
        return asReturn(code::StateFileError);
    const Adapter* m = adapterForPath(*san, member);
    if (!m)
        return MHBA_E_ADAPTER_NOT_IN_COLLECTION;
    u64 mid = m->id.value;
    std::string name = clusterName(id);
    return asReturn(apply("addClusterMember",
                          [&](San& s, long long now) { return rules::addClusterMember(s, id_, mid, name, now); }));
}

e_MHBA_RETURN SimAdapter::removeClusterMember(const KIsaAdapterPath& member, const KClusterID& id)
{
    const San* san = backend_.view();
    if (!san)
        return asReturn(code::StateFileError);
    const Adapter* m = adapterForPath(*san, member);
    if (!m)
        return MHBA_E_ADAPTER_NOT_IN_COLLECTION;
    u64 mid = m->id.value;
    std::string name = clusterName(id);
    return asReturn(apply("removeClusterMember",
                          [&](San& s, long long now) { return rules::removeClusterMember(s, id_, mid, name, now); }));
}

// ---- log ---------------------------------------------------------------------------

e_MHBA_RETURN SimAdapter::clearLog()
{
    return asReturn(apply("clearLog", [&](San& s, long long now) { return rules::clearLog(s, id_, now); }));
}

// Only the newest file view of an adapter keeps its file open; the one
// before it is emptied, so that a long script of log commands does not run
// out of file descriptors. The objects themselves stay valid.
HLogView* SimAdapter::getLogViewFromFile(const std::string& file)
{
    std::unique_ptr<SimLogView> view;
    int const rc = withAdapter("getLogViewFromFile", [&](const San&, const Adapter&) {
        std::string error;
        view = SimLogView::fromFile(file, error);
        if (!view)
            backend_.warning(error);
        return view ? code::Ok : code::FileError;
    });
    if (!view || code::isFailure(rc))
        return nullptr;
    if (fileView_) {
        fileView_->close();
        retire(std::shared_ptr<SimLogView>(std::move(fileView_)));
    }
    fileView_ = std::move(view);
    return fileView_.get();
}

// A file that cannot be written makes no message: the answer is false.
bool SimAdapter::saveLogFile(const std::string& file)
{
    int const rc = withAdapter("saveLogFile", [&](const San&, const Adapter& a) {
        std::unique_ptr<SimLogView> fresh;
        SimLogView* view = logView_.get();
        if (!view) {
            fresh = SimLogView::fromRecords(a.log);
            view = fresh.get();
        }
        std::string error;
        return view->save(file, error) ? code::Ok : code::FileError;
    });
    return !code::isFailure(rc);
}

e_MHBA_RETURN SimAdapter::loadLog(int)
{
    return asReturn(withAdapter("loadLog", [&](const San&, const Adapter& a) {
        if (logView_)
            retire(std::shared_ptr<SimLogView>(std::move(logView_)));
        logView_ = SimLogView::fromRecords(a.log);
        return code::Ok;
    }));
}

// ---- name index ----------------------------------------------------------------------

void SimLunNameIndex::clear()
{
    for (auto& e : entries_)
        retire(std::shared_ptr<SimLunIdList>(std::move(e.second)));
    entries_.clear();
    scannedTargets_.clear();
    scannedAll_[0] = scannedAll_[1] = scannedAll_[2] = false;
}

HLunIdList* SimLunNameIndex::findLuns(const PLunsForOneNameID& name)
{
    for (auto& e : entries_)
        if (e.first == name)
            return e.second.get();
    return nullptr;
}

bool SimLunNameIndex::lookup(PBase::LUN_NAME_TYPE type, const PTargetID& target)
{
    if (type < 1 || type > 2)
        return false;
    if (scannedAll_[type])
        return true;
    for (const auto& t : scannedTargets_)
        if (t.first == type && t.second == target)
            return true;
    return false;
}

void SimLunNameIndex::add(const PLunsForOneNameID& key, const PLunID& id)
{
    SimLunIdList* list = static_cast<SimLunIdList*>(findLuns(key));
    if (!list) {
        entries_.emplace_back(key, std::make_unique<SimLunIdList>());
        list = entries_.back().second.get();
    }
    list->addUnique(id);
}

namespace {

// The key under which a LUN is found by a name of this type; false when the
// LUN has no such name.
bool nameKeyOf(const Lun& lun, PBase::LUN_NAME_TYPE type, PLunsForOneNameID& key)
{
    if (type == PBase::LUN_NAME_SERIAL_NUMBER) {
        if (lun.page80.empty())
            return false;
        key.initLunsForOneNameID(type, lun.page80);
    } else if (lun.codeSet == 1) {
        std::vector<unsigned char> bytes = wwulnBytes(lun);
        key.initLunsForOneNameIDFromBinaryData(type, bytes.data(), static_cast<int>(bytes.size()));
    } else {
        key.initLunsForOneNameID(type, lun.wwuln);
    }
    return true;
}

} // namespace

e_MHBA_RETURN SimLunNameIndex::scan(PBase::LUN_NAME_TYPE type, const PTargetID* target)
{
    if (type != PBase::LUN_NAME_WWULN && type != PBase::LUN_NAME_SERIAL_NUMBER)
        return MHBA_E_NOT_SUPPORTED;
    return asReturn(adapter_.withAdapter(target ? "scanTarget" : "scanAll", [&](const San& san, const Adapter& a) {
        PLunsForOneNameID key;
        for (const VisiblePath& p : visiblePaths(san, a)) {
            PLunID id = lunId(*p.target, *p.path);
            if ((!target || id.targetID() == *target) && nameKeyOf(*p.lun, type, key))
                add(key, id);
        }
        // The adapter's drives are named like LUNs, by their world-wide name
        // and their serial number.
        for (const DriveLunPath& p : driveLunPaths(san, a))
            if ((!target || p.id.targetID() == *target) && nameKeyOf(driveLun(*p.drive), type, key))
                add(key, p.id);
        if (target)
            scannedTargets_.emplace_back(type, *target);
        else
            scannedAll_[type] = true;
        return code::Ok;
    }));
}

e_MHBA_RETURN SimLunNameIndex::scanAll(PBase::LUN_NAME_TYPE type)
{
    return scan(type, nullptr);
}

e_MHBA_RETURN SimLunNameIndex::scanTarget(PBase::LUN_NAME_TYPE type, const PTargetID& target, uint32_t, uint32_t)
{
    return scan(type, &target);
}

} // namespace sim
