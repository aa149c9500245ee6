// The layouts of the record images, one per record class, fields in image
// order. Only public fields are listed; a record's remaining bytes (its
// code-address slot, padding, private bookkeeping) carry no data for a reader.
// Records with private fields only are decoded by their class (ValueLayouts).
// A new record class gets its ZEK_KNOWN_LAYOUT line, its layout and its entry
// in allLayouts; the compiler checks every field name and type against it.
#include "RecordLayout.h"
#include "ValueLayouts.h"

#include "records/KAdapterGroupExtendedLunInfo.h"
#include "records/KAdapterHealthInfo.h"
#include "records/KCacheStatistics.h"
#include "records/KClusterInfo.h"
#include "records/KDeviceInfo.h"
#include "records/KDriveInfo.h"
#include "records/KFcInfo.h"
#include "records/KHostInfo.h"
#include "records/KHostPcieInfo.h"
#include "records/KInitiatorInfo.h"
#include "records/KIsaAdapterInfo.h"
#include "records/KLibraryVersionInfo.h"
#include "records/KLogEntry.h"
#include "records/KLogicalBlockRange.h"
#include "records/KLunCacheInfo.h"
#include "records/KLunCacheStatistics.h"
#include "records/KLunInfo.h"
#include "records/KLunIoStatistics.h"
#include "records/KLunPathInfo.h"
#include "records/KLunReservationInfo.h"
#include "records/KManagementSession.h"
#include "records/KMemoryInfo.h"
#include "records/KNvdimmInfo.h"
#include "records/KPoolInfo.h"
#include "records/KSfpInfo.h"
#include "records/KSmartDriveInfo.h"
#include "records/KSsdLunInfo.h"
#include "records/KTargetInfo.h"
#include "records/KVitalProductData.h"

#define ZEK_KNOWN_LAYOUT(Record)                                                                                       \
    template <>                                                                                                        \
    struct KnownLayout<Record> {                                                                                       \
        static constexpr bool known = true;                                                                            \
        static RecordLayout const& layout();                                                                           \
    };

ZEK_KNOWN_LAYOUT(KAdapterGroupExtendedLunInfo)
ZEK_KNOWN_LAYOUT(KAdapterHealthPciExpressInfo)
ZEK_KNOWN_LAYOUT(KAdapterHealthInfo)
ZEK_KNOWN_LAYOUT(KCacheStatistics)
ZEK_KNOWN_LAYOUT(KClusterInfo)
ZEK_KNOWN_LAYOUT(KDeviceInfo)
ZEK_KNOWN_LAYOUT(KDriveInfo)
ZEK_KNOWN_LAYOUT(KFcInfo)
ZEK_KNOWN_LAYOUT(KLinuxHostInfo)
ZEK_KNOWN_LAYOUT(KWindowsHostInfo)
ZEK_KNOWN_LAYOUT(KHostInfo)
ZEK_KNOWN_LAYOUT(KHostPcieInfo)
ZEK_KNOWN_LAYOUT(KFcInitiatorInfo)
ZEK_KNOWN_LAYOUT(KIscsiInitiatorInfo)
ZEK_KNOWN_LAYOUT(KInitiatorInfo)
ZEK_KNOWN_LAYOUT(KIsaAdapterInfo)
ZEK_KNOWN_LAYOUT(KLibraryVersionInfo)
ZEK_KNOWN_LAYOUT(KLogEntry)
ZEK_KNOWN_LAYOUT(KLogicalBlockRange)
ZEK_KNOWN_LAYOUT(KLunCacheInfo)
ZEK_KNOWN_LAYOUT(KLunCacheStatistics)
ZEK_KNOWN_LAYOUT(KLunInfo)
ZEK_KNOWN_LAYOUT(KLunIoStatistics)
ZEK_KNOWN_LAYOUT(KFcLunPathInfo)
ZEK_KNOWN_LAYOUT(KIscsiLunPathInfo)
ZEK_KNOWN_LAYOUT(KLunPathInfo)
ZEK_KNOWN_LAYOUT(KLunReservationInfo)
ZEK_KNOWN_LAYOUT(KManagementSession)
ZEK_KNOWN_LAYOUT(KMemoryInfo)
ZEK_KNOWN_LAYOUT(KNvdimmInfo)
ZEK_KNOWN_LAYOUT(KPoolInfo)
ZEK_KNOWN_LAYOUT(KSfpInfo)
ZEK_KNOWN_LAYOUT(KSmartDriveAttribute)
ZEK_KNOWN_LAYOUT(KSmartDriveInfo)
ZEK_KNOWN_LAYOUT(KSsdLunInfo)
ZEK_KNOWN_LAYOUT(KFcTargetInfo)
ZEK_KNOWN_LAYOUT(KIscsiTargetInfo)
ZEK_KNOWN_LAYOUT(KTargetInfo)
ZEK_KNOWN_LAYOUT(KVitalProductData)

#define ZEK_FIELD(Record, member) fieldOf<Record>(#member, &Record::member)

RecordLayout const& KnownLayout<KAdapterGroupExtendedLunInfo>::layout()
{
    static RecordLayout const layout{"KAdapterGroupExtendedLunInfo",
                                     sizeof(KAdapterGroupExtendedLunInfo),
                                     {
                                         ZEK_FIELD(KAdapterGroupExtendedLunInfo, wwulnLunId),
                                         ZEK_FIELD(KAdapterGroupExtendedLunInfo, lunId),
                                         ZEK_FIELD(KAdapterGroupExtendedLunInfo, ui32NonCachedAdapterCount),
                                         ZEK_FIELD(KAdapterGroupExtendedLunInfo, ui64NonCachedAdapters),
                                         ZEK_FIELD(KAdapterGroupExtendedLunInfo, bCached),
                                         ZEK_FIELD(KAdapterGroupExtendedLunInfo, ui64CachingAdapter),
                                         ZEK_FIELD(KAdapterGroupExtendedLunInfo, ui64PreferredAdapter),
                                         ZEK_FIELD(KAdapterGroupExtendedLunInfo, ePreferredAdapterRank),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KAdapterHealthPciExpressInfo>::layout()
{
    static RecordLayout const layout{"KAdapterHealthPciExpressInfo",
                                     sizeof(KAdapterHealthPciExpressInfo),
                                     {
                                         ZEK_FIELD(KAdapterHealthPciExpressInfo, portNumber),
                                         ZEK_FIELD(KAdapterHealthPciExpressInfo, vendorId),
                                         ZEK_FIELD(KAdapterHealthPciExpressInfo, deviceId),
                                         ZEK_FIELD(KAdapterHealthPciExpressInfo, linkStatus),
                                         ZEK_FIELD(KAdapterHealthPciExpressInfo, linkSpeed),
                                         ZEK_FIELD(KAdapterHealthPciExpressInfo, linkWidth),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KAdapterHealthInfo>::layout()
{
    static RecordLayout const layout{"KAdapterHealthInfo",
                                     sizeof(KAdapterHealthInfo),
                                     {
                                         ZEK_FIELD(KAdapterHealthInfo, pciExpressInfo),
                                         ZEK_FIELD(KAdapterHealthInfo, temperatureFront),
                                         ZEK_FIELD(KAdapterHealthInfo, temperatureRear),
                                         ZEK_FIELD(KAdapterHealthInfo, temperatureCpu),
                                         ZEK_FIELD(KAdapterHealthInfo, beaconPortMask),
                                         ZEK_FIELD(KAdapterHealthInfo, dramEccSingleBitErrorCount),
                                         ZEK_FIELD(KAdapterHealthInfo, dramEccDoubleBitErrorCount),
                                         ZEK_FIELD(KAdapterHealthInfo, l2CacheUncorrectableErrorCount),
                                         ZEK_FIELD(KAdapterHealthInfo, l2CacheCorrectableErrorCount),
                                         ZEK_FIELD(KAdapterHealthInfo, driversLoadedMask),
                                         ZEK_FIELD(KAdapterHealthInfo, bridgeParityMask),
                                         ZEK_FIELD(KAdapterHealthInfo, errorMask),
                                         ZEK_FIELD(KAdapterHealthInfo, snoopFilterParityError),
                                         ZEK_FIELD(KAdapterHealthInfo, l2CacheTagParityError),
                                         ZEK_FIELD(KAdapterHealthInfo, bootedFromSecondaryImage),
                                         ZEK_FIELD(KAdapterHealthInfo, failedPostTest),
                                         ZEK_FIELD(KAdapterHealthInfo, temperatureNvdimm),
                                         ZEK_FIELD(KAdapterHealthInfo, temperatureFcChip),
                                         ZEK_FIELD(KAdapterHealthInfo, systemUptimeSeconds),
                                         ZEK_FIELD(KAdapterHealthInfo, fsPartitionResetCount),
                                         ZEK_FIELD(KAdapterHealthInfo, reserved),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KCacheStatistics>::layout()
{
    static RecordLayout const layout{"KCacheStatistics",
                                     sizeof(KCacheStatistics),
                                     {
                                         ZEK_FIELD(KCacheStatistics, totalCapacity),
                                         ZEK_FIELD(KCacheStatistics, usedCapacity),
                                         ZEK_FIELD(KCacheStatistics, readData),
                                         ZEK_FIELD(KCacheStatistics, writeLoadHits),
                                         ZEK_FIELD(KCacheStatistics, readLoadHits),
                                         ZEK_FIELD(KCacheStatistics, usedPercentFirst),
                                         ZEK_FIELD(KCacheStatistics, usedPercentSecond),
                                         ZEK_FIELD(KCacheStatistics, readLoadPercent),
                                         ZEK_FIELD(KCacheStatistics, writeLoadPercent),
                                         ZEK_FIELD(KCacheStatistics, reserved),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KClusterInfo>::layout()
{
    static RecordLayout const layout{"KClusterInfo",
                                     sizeof(KClusterInfo),
                                     {
                                         ZEK_FIELD(KClusterInfo, primaryAdapterId),
                                         ZEK_FIELD(KClusterInfo, secondaryAdapterId),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KDeviceInfo>::layout()
{
    static RecordLayout const layout{"KDeviceInfo",
                                     sizeof(KDeviceInfo),
                                     {
                                         ZEK_FIELD(KDeviceInfo, isTarget),
                                         ZEK_FIELD(KDeviceInfo, isInitiator),
                                         ZEK_FIELD(KDeviceInfo, isInternal),
                                         ZEK_FIELD(KDeviceInfo, target),
                                         ZEK_FIELD(KDeviceInfo, initiator),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KDriveInfo>::layout()
{
    static RecordLayout const layout{"KDriveInfo",
                                     sizeof(KDriveInfo),
                                     {
                                         ZEK_FIELD(KDriveInfo, vendorId),
                                         ZEK_FIELD(KDriveInfo, productId),
                                         ZEK_FIELD(KDriveInfo, revision),
                                         ZEK_FIELD(KDriveInfo, serialNumber),
                                         ZEK_FIELD(KDriveInfo, sizeBytes),
                                         ZEK_FIELD(KDriveInfo, ownerId),
                                         ZEK_FIELD(KDriveInfo, driveStatus),
                                         ZEK_FIELD(KDriveInfo, isOnline),
                                         ZEK_FIELD(KDriveInfo, isPcieSsd),
                                         ZEK_FIELD(KDriveInfo, isSecurityLocked),
                                         ZEK_FIELD(KDriveInfo, isIdentityConflict),
                                         ZEK_FIELD(KDriveInfo, isExternal),
                                         ZEK_FIELD(KDriveInfo, smartInfo),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KFcInfo>::layout()
{
    static RecordLayout const layout{"KFcInfo",
                                     sizeof(KFcInfo),
                                     {
                                         ZEK_FIELD(KFcInfo, portIndex),
                                         ZEK_FIELD(KFcInfo, portStatus),
                                         ZEK_FIELD(KFcInfo, linkStatus),
                                         ZEK_FIELD(KFcInfo, fcMode),
                                         ZEK_FIELD(KFcInfo, currentLinkRate),
                                         ZEK_FIELD(KFcInfo, programmedLinkRate),
                                         ZEK_FIELD(KFcInfo, frameSize),
                                         ZEK_FIELD(KFcInfo, sfpState),
                                         ZEK_FIELD(KFcInfo, executionThrottle),
                                         ZEK_FIELD(KFcInfo, connectionMode),
                                         ZEK_FIELD(KFcInfo, programmedConnectionOption),
                                         ZEK_FIELD(KFcInfo, wwnn),
                                         ZEK_FIELD(KFcInfo, wwpn),
                                         ZEK_FIELD(KFcInfo, portId),
                                         ZEK_FIELD(KFcInfo, firmwareRevision),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KLinuxHostInfo>::layout()
{
    static RecordLayout const layout{"KLinuxHostInfo",
                                     sizeof(KLinuxHostInfo),
                                     {
                                         ZEK_FIELD(KLinuxHostInfo, systemName),
                                         ZEK_FIELD(KLinuxHostInfo, nodeName),
                                         ZEK_FIELD(KLinuxHostInfo, osVersion),
                                         ZEK_FIELD(KLinuxHostInfo, osBuildDate),
                                         ZEK_FIELD(KLinuxHostInfo, machineName),
                                         ZEK_FIELD(KLinuxHostInfo, domainName),
                                         ZEK_FIELD(KLinuxHostInfo, driverVersion),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KWindowsHostInfo>::layout()
{
    static RecordLayout const layout{"KWindowsHostInfo",
                                     sizeof(KWindowsHostInfo),
                                     {
                                         ZEK_FIELD(KWindowsHostInfo, systemInfo),
                                         ZEK_FIELD(KWindowsHostInfo, hostName),
                                         ZEK_FIELD(KWindowsHostInfo, driverVersion),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KHostInfo>::layout()
{
    static RecordLayout const layout{"KHostInfo",
                                     sizeof(KHostInfo),
                                     {
                                         ZEK_FIELD(KHostInfo, hostType),
                                         ZEK_FIELD(KHostInfo, linuxHostInfo),
                                         ZEK_FIELD(KHostInfo, windowsHostInfo),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KHostPcieInfo>::layout()
{
    static RecordLayout const layout{
        "KHostPcieInfo",
        sizeof(KHostPcieInfo),
        {
            ZEK_FIELD(KHostPcieInfo, readDiffTime),      ZEK_FIELD(KHostPcieInfo, writeDiffTime),
            ZEK_FIELD(KHostPcieInfo, readIoCount),       ZEK_FIELD(KHostPcieInfo, readBytesCount),
            ZEK_FIELD(KHostPcieInfo, writeIoCount),      ZEK_FIELD(KHostPcieInfo, writeBytesCount),
            ZEK_FIELD(KHostPcieInfo, avgReadIosPerSec),  ZEK_FIELD(KHostPcieInfo, minReadIoSize),
            ZEK_FIELD(KHostPcieInfo, maxReadIoSize),     ZEK_FIELD(KHostPcieInfo, avgReadIoSize),
            ZEK_FIELD(KHostPcieInfo, avgReadBandwidth),  ZEK_FIELD(KHostPcieInfo, readIoDelay),
            ZEK_FIELD(KHostPcieInfo, minReadLatency),    ZEK_FIELD(KHostPcieInfo, maxReadLatency),
            ZEK_FIELD(KHostPcieInfo, avgReadLatency),    ZEK_FIELD(KHostPcieInfo, readIoOutstanding),
            ZEK_FIELD(KHostPcieInfo, avgWriteIosPerSec), ZEK_FIELD(KHostPcieInfo, minWriteIoSize),
            ZEK_FIELD(KHostPcieInfo, maxWriteIoSize),    ZEK_FIELD(KHostPcieInfo, avgWriteIoSize),
            ZEK_FIELD(KHostPcieInfo, avgWriteBandwidth), ZEK_FIELD(KHostPcieInfo, writeIoDelay),
            ZEK_FIELD(KHostPcieInfo, minWriteLatency),   ZEK_FIELD(KHostPcieInfo, maxWriteLatency),
            ZEK_FIELD(KHostPcieInfo, avgWriteLatency),   ZEK_FIELD(KHostPcieInfo, writeIoOutstanding),
        }};
    return layout;
}

RecordLayout const& KnownLayout<KFcInitiatorInfo>::layout()
{
    static RecordLayout const layout{"KFcInitiatorInfo",
                                     sizeof(KFcInitiatorInfo),
                                     {
                                         ZEK_FIELD(KFcInitiatorInfo, fcMode),
                                         ZEK_FIELD(KFcInitiatorInfo, wwpn),
                                         ZEK_FIELD(KFcInitiatorInfo, wwnn),
                                         ZEK_FIELD(KFcInitiatorInfo, portId),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KIscsiInitiatorInfo>::layout()
{
    static RecordLayout const layout{"KIscsiInitiatorInfo",
                                     sizeof(KIscsiInitiatorInfo),
                                     {
                                         ZEK_FIELD(KIscsiInitiatorInfo, iscsiName),
                                         ZEK_FIELD(KIscsiInitiatorInfo, chapEnabled),
                                         ZEK_FIELD(KIscsiInitiatorInfo, chapSecret),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KInitiatorInfo>::layout()
{
    static RecordLayout const layout{"KInitiatorInfo",
                                     sizeof(KInitiatorInfo),
                                     {
                                         ZEK_FIELD(KInitiatorInfo, protocol),
                                         ZEK_FIELD(KInitiatorInfo, loggedIn),
                                         ZEK_FIELD(KInitiatorInfo, targetInitiator),
                                         ZEK_FIELD(KInitiatorInfo, dmInitiator),
                                         ZEK_FIELD(KInitiatorInfo, fcoeInitiator),
                                         ZEK_FIELD(KInitiatorInfo, fc),
                                         ZEK_FIELD(KInitiatorInfo, iscsi),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KIsaAdapterInfo>::layout()
{
    static RecordLayout const layout{
        "KIsaAdapterInfo",
        sizeof(KIsaAdapterInfo),
        {
            ZEK_FIELD(KIsaAdapterInfo, bClusterMember),    ZEK_FIELD(KIsaAdapterInfo, bClusterPrimary),
            ZEK_FIELD(KIsaAdapterInfo, bClusterSecondary), ZEK_FIELD(KIsaAdapterInfo, bAutoClusterEnabled),
            ZEK_FIELD(KIsaAdapterInfo, primaryAdapterId),  ZEK_FIELD(KIsaAdapterInfo, secondaryAdapterId),
            ZEK_FIELD(KIsaAdapterInfo, productName),       ZEK_FIELD(KIsaAdapterInfo, symbolicName),
            ZEK_FIELD(KIsaAdapterInfo, serialNumber),      ZEK_FIELD(KIsaAdapterInfo, hwVersion),
            ZEK_FIELD(KIsaAdapterInfo, swVersion),         ZEK_FIELD(KIsaAdapterInfo, ubootBiosVersion),
            ZEK_FIELD(KIsaAdapterInfo, biosVersion),       ZEK_FIELD(KIsaAdapterInfo, efiVersion),
            ZEK_FIELD(KIsaAdapterInfo, fcPortCount),       ZEK_FIELD(KIsaAdapterInfo, reserved),
            ZEK_FIELD(KIsaAdapterInfo, capabilities),      ZEK_FIELD(KIsaAdapterInfo, adapterState),
            ZEK_FIELD(KIsaAdapterInfo, hostInfo),
        }};
    return layout;
}

RecordLayout const& KnownLayout<KLibraryVersionInfo>::layout()
{
    static RecordLayout const layout{"KLibraryVersionInfo",
                                     sizeof(KLibraryVersionInfo),
                                     {
                                         ZEK_FIELD(KLibraryVersionInfo, versionMajor),
                                         ZEK_FIELD(KLibraryVersionInfo, versionMinor),
                                         ZEK_FIELD(KLibraryVersionInfo, versionPatch),
                                         ZEK_FIELD(KLibraryVersionInfo, versionBuild),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KLogEntry>::layout()
{
    static RecordLayout const layout{"KLogEntry",
                                     sizeof(KLogEntry),
                                     {
                                         ZEK_FIELD(KLogEntry, entryNumber),
                                         ZEK_FIELD(KLogEntry, source),
                                         ZEK_FIELD(KLogEntry, severity),
                                         ZEK_FIELD(KLogEntry, message),
                                         ZEK_FIELD(KLogEntry, time),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KLogicalBlockRange>::layout()
{
    static RecordLayout const layout{"KLogicalBlockRange",
                                     sizeof(KLogicalBlockRange),
                                     {
                                         ZEK_FIELD(KLogicalBlockRange, ui64StartLba),
                                         ZEK_FIELD(KLogicalBlockRange, ui32Size),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KLunCacheInfo>::layout()
{
    static RecordLayout const layout{"KLunCacheInfo",
                                     sizeof(KLunCacheInfo),
                                     {
                                         ZEK_FIELD(KLunCacheInfo, bValid),
                                         ZEK_FIELD(KLunCacheInfo, eProfileType),
                                         ZEK_FIELD(KLunCacheInfo, eCacheMode),
                                         ZEK_FIELD(KLunCacheInfo, eMirrorFlag),
                                         ZEK_FIELD(KLunCacheInfo, ui64MaxCacheBytes),
                                         ZEK_FIELD(KLunCacheInfo, ui32MaxRead),
                                         ZEK_FIELD(KLunCacheInfo, ui32MinRead),
                                         ZEK_FIELD(KLunCacheInfo, ui32MaxWrite),
                                         ZEK_FIELD(KLunCacheInfo, ui32MinWrite),
                                         ZEK_FIELD(KLunCacheInfo, ui32LockedRangeCount),
                                         ZEK_FIELD(KLunCacheInfo, bMirrored),
                                         ZEK_FIELD(KLunCacheInfo, ui64MirrorAdapter),
                                         ZEK_FIELD(KLunCacheInfo, ui16MirrorState),
                                         ZEK_FIELD(KLunCacheInfo, ui64MirrorDirtyCacheBytes),
                                         ZEK_FIELD(KLunCacheInfo, lockedRanges),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KLunCacheStatistics>::layout()
{
    static RecordLayout const layout{"KLunCacheStatistics",
                                     sizeof(KLunCacheStatistics),
                                     {
                                         ZEK_FIELD(KLunCacheStatistics, bValid),
                                         ZEK_FIELD(KLunCacheStatistics, ui32ReadHitPercent),
                                         ZEK_FIELD(KLunCacheStatistics, ui32WriteHitPercent),
                                         ZEK_FIELD(KLunCacheStatistics, ui64TotalRead),
                                         ZEK_FIELD(KLunCacheStatistics, ui64TotalWritten),
                                         ZEK_FIELD(KLunCacheStatistics, ui64WriteHitBytes),
                                         ZEK_FIELD(KLunCacheStatistics, ui64ReadHitBytes),
                                         ZEK_FIELD(KLunCacheStatistics, ui64CleanBytes),
                                         ZEK_FIELD(KLunCacheStatistics, ui64DirtyBytes),
                                         ZEK_FIELD(KLunCacheStatistics, ui64LockedBytes),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KLunInfo>::layout()
{
    static RecordLayout const layout{"KLunInfo",
                                     sizeof(KLunInfo),
                                     {
                                         ZEK_FIELD(KLunInfo, bValid),
                                         ZEK_FIELD(KLunInfo, ui64LunSizeBytes),
                                         ZEK_FIELD(KLunInfo, m_eLunType),
                                         ZEK_FIELD(KLunInfo, m_eCacheState),
                                         ZEK_FIELD(KLunInfo, m_ui64ClusterCacheAdapterPrimary),
                                         ZEK_FIELD(KLunInfo, m_eMirrorState),
                                         ZEK_FIELD(KLunInfo, bCacheSynchronizing),
                                         ZEK_FIELD(KLunInfo, szVendorId),
                                         ZEK_FIELD(KLunInfo, szProductId),
                                         ZEK_FIELD(KLunInfo, szRevisionLevel),
                                         ZEK_FIELD(KLunInfo, ui8SerialNumber),
                                         ZEK_FIELD(KLunInfo, szPage80Serial),
                                         ZEK_FIELD(KLunInfo, ui32Page80SerialLength),
                                         ZEK_FIELD(KLunInfo, ui8Wwuln),
                                         ZEK_FIELD(KLunInfo, eWwulnCodeSet),
                                         ZEK_FIELD(KLunInfo, ui32WwulnLength),
                                         ZEK_FIELD(KLunInfo, ui32LunState),
                                         ZEK_FIELD(KLunInfo, ui32LunStateReserved),
                                         ZEK_FIELD(KLunInfo, ssdLunInfo),
                                         ZEK_FIELD(KLunInfo, cacheInfo),
                                         ZEK_FIELD(KLunInfo, ui32DefaultMaxRead),
                                         ZEK_FIELD(KLunInfo, ui32DefaultMinRead),
                                         ZEK_FIELD(KLunInfo, ui32DefaultMaxWrite),
                                         ZEK_FIELD(KLunInfo, ui32DefaultMinWrite),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KLunIoStatistics>::layout()
{
    static RecordLayout const layout{"KLunIoStatistics",
                                     sizeof(KLunIoStatistics),
                                     {
                                         ZEK_FIELD(KLunIoStatistics, ui64ReadCount),
                                         ZEK_FIELD(KLunIoStatistics, ui64WriteCount),
                                         ZEK_FIELD(KLunIoStatistics, ui64ReadBlocks),
                                         ZEK_FIELD(KLunIoStatistics, ui64WriteBlocks),
                                         ZEK_FIELD(KLunIoStatistics, cacheStatistics),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KFcLunPathInfo>::layout()
{
    static RecordLayout const layout{"KFcLunPathInfo",
                                     sizeof(KFcLunPathInfo),
                                     {
                                         ZEK_FIELD(KFcLunPathInfo, ui8Wwpn),
                                         ZEK_FIELD(KFcLunPathInfo, ui8Wwnn),
                                         ZEK_FIELD(KFcLunPathInfo, ui8PortId),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KIscsiLunPathInfo>::layout()
{
    static RecordLayout const layout{"KIscsiLunPathInfo",
                                     sizeof(KIscsiLunPathInfo),
                                     {
                                         ZEK_FIELD(KIscsiLunPathInfo, szTargetName),
                                         ZEK_FIELD(KIscsiLunPathInfo, ui32TcpPort),
                                         ZEK_FIELD(KIscsiLunPathInfo, ipAddress),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KLunPathInfo>::layout()
{
    static RecordLayout const layout{"KLunPathInfo",
                                     sizeof(KLunPathInfo),
                                     {
                                         ZEK_FIELD(KLunPathInfo, ui32PathReserved),
                                         ZEK_FIELD(KLunPathInfo, eTargetType),
                                         ZEK_FIELD(KLunPathInfo, ePathStatus),
                                         ZEK_FIELD(KLunPathInfo, fcPath),
                                         ZEK_FIELD(KLunPathInfo, iscsiPath),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KLunReservationInfo>::layout()
{
    static RecordLayout const layout{"KLunReservationInfo",
                                     sizeof(KLunReservationInfo),
                                     {
                                         ZEK_FIELD(KLunReservationInfo, eReservationType),
                                         ZEK_FIELD(KLunReservationInfo, ui8ReservationKey),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KManagementSession>::layout()
{
    static RecordLayout const layout{"KManagementSession",
                                     sizeof(KManagementSession),
                                     {
                                         ZEK_FIELD(KManagementSession, sessionId),
                                         ZEK_FIELD(KManagementSession, sessionIdLength),
                                         ZEK_FIELD(KManagementSession, sessionKey),
                                         ZEK_FIELD(KManagementSession, sessionKeyLength),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KMemoryInfo>::layout()
{
    static RecordLayout const layout{"KMemoryInfo",
                                     sizeof(KMemoryInfo),
                                     {
                                         ZEK_FIELD(KMemoryInfo, physicalTotal),
                                         ZEK_FIELD(KMemoryInfo, physicalFree),
                                         ZEK_FIELD(KMemoryInfo, bufferPoolTotal),
                                         ZEK_FIELD(KMemoryInfo, bufferPoolFree),
                                         ZEK_FIELD(KMemoryInfo, processBlocksTotal),
                                         ZEK_FIELD(KMemoryInfo, processBlocksFree),
                                         ZEK_FIELD(KMemoryInfo, requestBlocksTotal),
                                         ZEK_FIELD(KMemoryInfo, requestBlocksFree),
                                         ZEK_FIELD(KMemoryInfo, eventBlocksTotal),
                                         ZEK_FIELD(KMemoryInfo, eventBlocksFree),
                                         ZEK_FIELD(KMemoryInfo, controlBlocksTotal),
                                         ZEK_FIELD(KMemoryInfo, controlBlocksFree),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KNvdimmInfo>::layout()
{
    static RecordLayout const layout{"KNvdimmInfo",
                                     sizeof(KNvdimmInfo),
                                     {
                                         ZEK_FIELD(KNvdimmInfo, firmwareVersion),
                                         ZEK_FIELD(KNvdimmInfo, packagedVersion),
                                         ZEK_FIELD(KNvdimmInfo, temperature),
                                         ZEK_FIELD(KNvdimmInfo, serialNumber),
                                         ZEK_FIELD(KNvdimmInfo, partNumber),
                                         ZEK_FIELD(KNvdimmInfo, nvdimmStatus),
                                         ZEK_FIELD(KNvdimmInfo, nvdimmAdditionalStatus),
                                         ZEK_FIELD(KNvdimmInfo, superCapDetected),
                                         ZEK_FIELD(KNvdimmInfo, superCapPartNumber),
                                         ZEK_FIELD(KNvdimmInfo, superCapSerialNumber),
                                         ZEK_FIELD(KNvdimmInfo, superCapFirmwareRevision),
                                         ZEK_FIELD(KNvdimmInfo, superCapPackagedRevision),
                                         ZEK_FIELD(KNvdimmInfo, superCapPowerState),
                                         ZEK_FIELD(KNvdimmInfo, superCapHealth),
                                         ZEK_FIELD(KNvdimmInfo, superCapStatus),
                                         ZEK_FIELD(KNvdimmInfo, superCapWarning),
                                         ZEK_FIELD(KNvdimmInfo, superCapChargedPercent),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KPoolInfo>::layout()
{
    static RecordLayout const layout{"KPoolInfo",
                                     sizeof(KPoolInfo),
                                     {
                                         ZEK_FIELD(KPoolInfo, totalSsdStorage),
                                         ZEK_FIELD(KPoolInfo, configuredForCachePool),
                                         ZEK_FIELD(KPoolInfo, usedForCachePool),
                                         ZEK_FIELD(KPoolInfo, freeSsdStorage),
                                         ZEK_FIELD(KPoolInfo, usedForDataLuns),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KSfpInfo>::layout()
{
    static RecordLayout const layout{"KSfpInfo",
                                     sizeof(KSfpInfo),
                                     {
                                         ZEK_FIELD(KSfpInfo, portIndex),
                                         ZEK_FIELD(KSfpInfo, vendorName),
                                         ZEK_FIELD(KSfpInfo, serialNumber),
                                         ZEK_FIELD(KSfpInfo, driverStatus),
                                         ZEK_FIELD(KSfpInfo, sfpData),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KSmartDriveAttribute>::layout()
{
    static RecordLayout const layout{"KSmartDriveAttribute",
                                     sizeof(KSmartDriveAttribute),
                                     {
                                         ZEK_FIELD(KSmartDriveAttribute, attributeId),
                                         ZEK_FIELD(KSmartDriveAttribute, value),
                                         ZEK_FIELD(KSmartDriveAttribute, worst),
                                         ZEK_FIELD(KSmartDriveAttribute, threshold),
                                         ZEK_FIELD(KSmartDriveAttribute, name),
                                         ZEK_FIELD(KSmartDriveAttribute, rawValue),
                                         ZEK_FIELD(KSmartDriveAttribute, reserved),
                                         ZEK_FIELD(KSmartDriveAttribute, displayType),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KSmartDriveInfo>::layout()
{
    static RecordLayout const layout{"KSmartDriveInfo",
                                     sizeof(KSmartDriveInfo),
                                     {
                                         ZEK_FIELD(KSmartDriveInfo, isSmartDataValid),
                                         ZEK_FIELD(KSmartDriveInfo, smartStatus),
                                         ZEK_FIELD(KSmartDriveInfo, attributeCount),
                                         ZEK_FIELD(KSmartDriveInfo, attributes),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KSsdLunInfo>::layout()
{
    static RecordLayout const layout{"KSsdLunInfo",
                                     sizeof(KSsdLunInfo),
                                     {
                                         ZEK_FIELD(KSsdLunInfo, bValid),
                                         ZEK_FIELD(KSsdLunInfo, ui64SizeBytes),
                                         ZEK_FIELD(KSsdLunInfo, bReadOnly),
                                         ZEK_FIELD(KSsdLunInfo, bDeleteInProgress),
                                         ZEK_FIELD(KSsdLunInfo, eSsdMirrorType),
                                         ZEK_FIELD(KSsdLunInfo, ui64MirrorPeerAdapter),
                                         ZEK_FIELD(KSsdLunInfo, szSymbolicName),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KFcTargetInfo>::layout()
{
    static RecordLayout const layout{"KFcTargetInfo",
                                     sizeof(KFcTargetInfo),
                                     {
                                         ZEK_FIELD(KFcTargetInfo, wwpn),
                                         ZEK_FIELD(KFcTargetInfo, wwnn),
                                         ZEK_FIELD(KFcTargetInfo, portId),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KIscsiTargetInfo>::layout()
{
    static RecordLayout const layout{"KIscsiTargetInfo",
                                     sizeof(KIscsiTargetInfo),
                                     {
                                         ZEK_FIELD(KIscsiTargetInfo, iscsiName),
                                         ZEK_FIELD(KIscsiTargetInfo, chapEnabled),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KTargetInfo>::layout()
{
    static RecordLayout const layout{"KTargetInfo",
                                     sizeof(KTargetInfo),
                                     {
                                         ZEK_FIELD(KTargetInfo, protocol),
                                         ZEK_FIELD(KTargetInfo, online),
                                         ZEK_FIELD(KTargetInfo, mapped),
                                         ZEK_FIELD(KTargetInfo, discoveredOnPort1),
                                         ZEK_FIELD(KTargetInfo, discoveredOnPort2),
                                         ZEK_FIELD(KTargetInfo, internal),
                                         ZEK_FIELD(KTargetInfo, maxOutstandingIo),
                                         ZEK_FIELD(KTargetInfo, portalMode),
                                         ZEK_FIELD(KTargetInfo, fc),
                                         ZEK_FIELD(KTargetInfo, iscsi),
                                     }};
    return layout;
}

RecordLayout const& KnownLayout<KVitalProductData>::layout()
{
    static RecordLayout const layout{"KVitalProductData",
                                     sizeof(KVitalProductData),
                                     {
                                         ZEK_FIELD(KVitalProductData, serialNumber),
                                         ZEK_FIELD(KVitalProductData, partNumber),
                                         ZEK_FIELD(KVitalProductData, firmwareVersion),
                                         ZEK_FIELD(KVitalProductData, efiDriverVersion),
                                         ZEK_FIELD(KVitalProductData, biosVersion),
                                         ZEK_FIELD(KVitalProductData, fcodeVersion),
                                         ZEK_FIELD(KVitalProductData, productIdentifier),
                                         ZEK_FIELD(KVitalProductData, miscInformation),
                                         ZEK_FIELD(KVitalProductData, manufacturingId),
                                         ZEK_FIELD(KVitalProductData, adapterPath),
                                     }};
    return layout;
}

std::vector<RecordLayout const*> const& allLayouts()
{
    static std::vector<RecordLayout const*> const all = [] {
        std::vector<RecordLayout const*> layouts{
            &KnownLayout<KAdapterGroupExtendedLunInfo>::layout(),
            &KnownLayout<KAdapterHealthPciExpressInfo>::layout(),
            &KnownLayout<KAdapterHealthInfo>::layout(),
            &KnownLayout<KCacheStatistics>::layout(),
            &KnownLayout<KClusterInfo>::layout(),
            &KnownLayout<KDeviceInfo>::layout(),
            &KnownLayout<KDriveInfo>::layout(),
            &KnownLayout<KFcInfo>::layout(),
            &KnownLayout<KLinuxHostInfo>::layout(),
            &KnownLayout<KWindowsHostInfo>::layout(),
            &KnownLayout<KHostInfo>::layout(),
            &KnownLayout<KHostPcieInfo>::layout(),
            &KnownLayout<KFcInitiatorInfo>::layout(),
            &KnownLayout<KIscsiInitiatorInfo>::layout(),
            &KnownLayout<KInitiatorInfo>::layout(),
            &KnownLayout<KIsaAdapterInfo>::layout(),
            &KnownLayout<KLibraryVersionInfo>::layout(),
            &KnownLayout<KLogEntry>::layout(),
            &KnownLayout<KLogicalBlockRange>::layout(),
            &KnownLayout<KLunCacheInfo>::layout(),
            &KnownLayout<KLunCacheStatistics>::layout(),
            &KnownLayout<KLunInfo>::layout(),
            &KnownLayout<KLunIoStatistics>::layout(),
            &KnownLayout<KFcLunPathInfo>::layout(),
            &KnownLayout<KIscsiLunPathInfo>::layout(),
            &KnownLayout<KLunPathInfo>::layout(),
            &KnownLayout<KLunReservationInfo>::layout(),
            &KnownLayout<KManagementSession>::layout(),
            &KnownLayout<KMemoryInfo>::layout(),
            &KnownLayout<KNvdimmInfo>::layout(),
            &KnownLayout<KPoolInfo>::layout(),
            &KnownLayout<KSfpInfo>::layout(),
            &KnownLayout<KSmartDriveAttribute>::layout(),
            &KnownLayout<KSmartDriveInfo>::layout(),
            &KnownLayout<KSsdLunInfo>::layout(),
            &KnownLayout<KFcTargetInfo>::layout(),
            &KnownLayout<KIscsiTargetInfo>::layout(),
            &KnownLayout<KTargetInfo>::layout(),
            &KnownLayout<KVitalProductData>::layout(),
        };
        layouts.insert(layouts.end(), valueLayouts().begin(), valueLayouts().end());
        return layouts;
    }();
    return all;
}
