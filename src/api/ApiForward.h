// Forward declarations of the records that the management library's
// interfaces take or hand out. The interfaces pass them by reference or
// pointer only, so most of them need not see the full classes.
#pragma once

#include "api/MhbaReturn.h"

class PIpAddress;
class PTime;
class PTargetID;
class PInitiatorID;
class PLunID;
class PLunsForOneNameID;
class KClusterID;
class KDeviceID;
class KDriveID;
class KDrivePoolID;
class KWwulnLunID;

class KLibraryVersionInfo;
class KIsaAdapterPath;
class KIsaAdapterInfo;
class KClusterInfo;
class KLunInfo;
class KLunIoStatistics;
class KLunReservationInfo;
class KAdapterGroupExtendedLunInfo;
class KFcInfo;
class KSfpInfo;
class KTargetInfo;
class KInitiatorInfo;
class KDeviceInfo;
class KDriveInfo;
class KPoolInfo;
class KMemoryInfo;
class KAdapterHealthInfo;
class KNvdimmInfo;
class KHostPcieInfo;
class KCacheStatistics;
class KCacheInfoList;
class KLogEntry;

class MHbaReturnBuffer;
class HMsgHandler;

class HbaMgmtApi;
class HIsaAdapterCollection;
class HIsaAdapter;
class HClusterCollection;
class HCluster;
class HTargetCollection;
class HTarget;
class HLunIdList;
class HInitiatorCollection;
class HInitiator;
class HDeviceCollection;
class HDevice;
class HDriveCollection;
class HDrive;
class HDrivePoolCollection;
class HDrivePool;
class HDriveIdList;
class HLunCollection;
class HLun;
class HLunNameIndex;
class HLunPathTable;
class HLunPathEntry;
class HLogView;
class HAdapterGroupLunCollection;
class KAdapterEventNotificationInfo;
