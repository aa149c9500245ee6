#include "records/RecordImage.h"

#include "records/KAdapterGroupExtendedLunInfo.h"
#include "records/KAdapterHealthInfo.h"
#include "records/KDeviceInfo.h"
#include "records/KDriveInfo.h"
#include "records/KHostInfo.h"
#include "records/KInitiatorInfo.h"
#include "records/KIsaAdapterInfo.h"
#include "records/KIsaAdapterPath.h"
#include "records/KLogEntry.h"
#include "records/KLunCacheInfo.h"
#include "records/KLunInfo.h"
#include "records/KLunIoStatistics.h"
#include "records/KLunPathInfo.h"
#include "records/KSmartDriveInfo.h"
#include "records/KTargetInfo.h"
#include "records/KVitalProductData.h"

namespace {

template <typename Record>
void eraseHeld(CodeAddressEraser& eraser, Record const& record)
{
    eraseCodeAddresses(eraser, record);
}

template <typename Record, std::size_t N>
void eraseHeld(CodeAddressEraser& eraser, Record const (&records)[N])
{
    for (Record const& record : records)
        eraseCodeAddresses(eraser, record);
}

// A record's own slot, then those of each record (or array of records) it holds.
template <typename Record, typename... Held>
void eraseAll(CodeAddressEraser& eraser, Record const& record, Held const&... held)
{
    eraser.erase(&record);
    (eraseHeld(eraser, held), ...);
}

} // namespace

void CodeAddressEraser::erase(void const* object)
{
    std::ptrdiff_t const offset = static_cast<unsigned char const*>(object) - static_cast<unsigned char const*>(record);
    PBase::fastMemsetZero(image + offset, sizeof(void*));
}

void eraseCodeAddresses(CodeAddressEraser& eraser, PBase const& record)
{
    eraser.erase(&record);
}

void eraseCodeAddresses(CodeAddressEraser& eraser, PUniqueID const& id)
{
    eraser.erase(&id);
}

// Which records hold which: one row a record, its held records after it.
#define RECORD_HOLDS(Record, ...)                                                                                      \
    void eraseCodeAddresses(CodeAddressEraser& eraser, Record const& record)                                           \
    {                                                                                                                  \
        eraseAll(eraser, record, __VA_ARGS__);                                                                         \
    }

RECORD_HOLDS(PLunID, record.targetID())
RECORD_HOLDS(PLunMaskID, record.target, record.lun)
RECORD_HOLDS(KAdapterGroupExtendedLunInfo, record.wwulnLunId, record.lunId)
RECORD_HOLDS(KAdapterHealthInfo, record.pciExpressInfo)
RECORD_HOLDS(KDeviceInfo, record.target, record.initiator)
RECORD_HOLDS(KDriveInfo, record.smartInfo)
RECORD_HOLDS(KHostInfo, record.linuxHostInfo, record.windowsHostInfo)
RECORD_HOLDS(KInitiatorInfo, record.fc, record.iscsi)
RECORD_HOLDS(KIsaAdapterInfo, record.hostInfo)
RECORD_HOLDS(KIsaAdapterPath, record.ipAddrRemoteAgentHost())
RECORD_HOLDS(KIscsiLunPathInfo, record.ipAddress)
RECORD_HOLDS(KLogEntry, record.time)
RECORD_HOLDS(KLunCacheInfo, record.lockedRanges)
RECORD_HOLDS(KLunInfo, record.ssdLunInfo, record.cacheInfo)
RECORD_HOLDS(KLunIoStatistics, record.cacheStatistics)
RECORD_HOLDS(KLunPathInfo, record.fcPath, record.iscsiPath)
RECORD_HOLDS(KSmartDriveInfo, record.attributes)
RECORD_HOLDS(KTargetInfo, record.fc, record.iscsi)
RECORD_HOLDS(KVitalProductData, record.adapterPath)

#undef RECORD_HOLDS
