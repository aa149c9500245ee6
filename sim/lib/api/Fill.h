// Filling the API's records from the model, as one adapter sees the SAN.
#pragma once

#include "model/San.h"

#include <string>

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
void fillLunPathInfo(const San& san, const Target& t, const LunPath& p, KLunPathInfo& out);

// Copies text into a fixed field, always leaving it terminated.
void copyText(char* field, size_t size, const std::string& text);

} // namespace sim
