// Filling the API's records from the model, as one adapter sees the SAN.
#pragma once

#include "model/San.h"

#include <map>
#include <string>
#include <utility>

class KIsaAdapterInfo;
class KLunInfo;
class KTargetInfo;
class KInitiatorInfo;
class KFcInfo;
class KSfpInfo;
class KDriveInfo;
class KPoolInfo;
class KMemoryInfo;
class KAdapterHealthInfo;
class KNvdimmInfo;
class KLunReservationInfo;
class KLunIoStatistics;
class KCacheStatistics;
class KHostPcieInfo;
class KCacheInfoList;
class KLogEntry;
class KLunPathInfo;

namespace sim {

void fillAdapterInfo(const San& san, const Adapter& a, KIsaAdapterInfo& out);
void fillLunInfo(const San& san, const Lun& lun, const Adapter& viewer, KLunInfo& out);
// Only how the LUN stands for this adapter: valid, its state bits, cache and
// mirror state and the caching adapter. Every call writes the same fields, so
// one record can serve a walk over many LUNs that reads no more than these.
void fillLunStanding(const San& san, const Lun& lun, const Adapter& viewer, KLunInfo& out);
void fillTargetInfo(const San& san, const Target& t, const Adapter& viewer, KTargetInfo& out);
void fillInitiatorInfo(const Initiator& i, KInitiatorInfo& out);
void fillFcInfo(const Port& p, unsigned index, KFcInfo& out);
void fillSfpInfo(const Port& p, unsigned index, KSfpInfo& out);
void fillDriveInfo(const Adapter& a, const Drive& d, bool withSmart, KDriveInfo& out);
void fillPoolInfo(const San& san, const Adapter& a, KPoolInfo& out);
void fillMemoryInfo(const Adapter& a, long long now, KMemoryInfo& out);
void fillHealthInfo(const Adapter& a, long long now, KAdapterHealthInfo& out);
void fillNvdimmInfo(const Adapter& a, KNvdimmInfo& out);
void fillReservation(const Lun& lun, KLunReservationInfo& out);
void fillLunIoStatistics(const San& san, const Lun& lun, const Adapter& viewer, bool withCache, long long now,
                         KLunIoStatistics& out);
void fillCacheStatistics(const San& san, const Adapter& a, long long now, KCacheStatistics& out);
void fillHostPcieInfo(const San& san, const Adapter& a, long long now, KHostPcieInfo& out);
void fillCacheInfoList(const San& san, const Adapter& a, long long now, KCacheInfoList& out);
void fillLogEntry(const LogRecord& r, int number, KLogEntry& out);
// One way to a LUN: its target, and the status the path has while the
// target is online.
void fillLunPathInfo(const Target& t, int pathStatus, KLunPathInfo& out);

// The path table's text of a LUN: every way the adapter reaches it. A way's
// text depends only on its target and its status, so over a walk of many
// LUNs through few targets each is made once.
class LunPathTexts {
public:
    LunPathTexts(const San& san, const Adapter& viewer) : san_(san), viewer_(viewer) {}
    std::string tableText(const Lun& lun);

private:
    const Target* reachedTarget(const std::string& name);
    const std::string& wayText(const Target& t, int pathStatus);

    const San& san_;
    const Adapter& viewer_;
    std::map<std::string, const Target*> reached_; // null: not reached
    std::map<std::pair<const Target*, int>, std::string> ways_;
};

// Copies text into a fixed field, always leaving it terminated.
void copyText(char* field, size_t size, const std::string& text);

} // namespace sim
