// The JSON field names of every struct of San.h, listed once. Both ways of
// reading and writing a scenario (the general one through a JSON tree and the
// fast streaming one) are generated from these lists, so a field added to a
// struct is added here and nowhere else.
#pragma once

#include "model/San.h"

// Only the preprocessor helpers are wanted here (they expand a macro once per
// field); the JSON library itself stays out of the streaming codec.
#include <nlohmann/detail/macro_scope.hpp>

#define SIM_FIELDS_Host                                                                                                \
    agent, hostType, systemName, nodeName, osVersion, osBuildDate, machineName, domainName, driverVersion, online,     \
        agentVersion
#define SIM_FIELDS_Sfp vendorName, serialNumber, driverStatus, temperatureC, voltage, txBiasMa, txPowerMw, rxPowerMw
#define SIM_FIELDS_Port                                                                                                \
    enabled, online, fcMode, linkRate, programmedLinkRate, wwnn, wwpn, portId, firmwareRevision, frameSize, sfpState,  \
        executionThrottle, connectionMode, connectionOption, fcipLink, beacon, sfp
#define SIM_FIELDS_SmartAttribute id, name, value, worst, threshold, raw, displayType
#define SIM_FIELDS_Drive                                                                                               \
    id, vendor, product, revision, serial, sizeBytes, configured, owner, online, pcieSsd, securityLocked,              \
        identityConflict, external, smartStatus, smart
#define SIM_FIELDS_LogRecord time, severity, source, message
#define SIM_FIELDS_Health                                                                                              \
    temperatureFront, temperatureRear, temperatureCpu, temperatureNvdimm, temperatureFcChip, driversLoadedMask,        \
        errorMask, dramEccSingleBitErrors, failedPostTest
#define SIM_FIELDS_Nvdimm                                                                                              \
    present, firmwareVersion, serialNumber, partNumber, temperature, status, superCap, superCapCharged
#define SIM_FIELDS_Fault adapter, operation, code, once, firstError
#define SIM_FIELDS_Adapter                                                                                             \
    id, host, device, viaDevice, state, productName, symbolicName, serialNumber, hwVersion, swVersion, ubootVersion,   \
        biosVersion, efiVersion, capabilities, password, autoCluster, ports, drives, cachePoolBytes, health, nvdimm,   \
        files, binaryFiles, log, bootTime, restartUntil, restartPolls, statsClearedAt, needsRestart, memoryScale,      \
        fixedStatistics
#define SIM_FIELDS_Cluster id, hostClusterType, primary, secondary, members
#define SIM_FIELDS_Target                                                                                              \
    name, protocol, wwpn, wwnn, portId, iscsiName, chap, ports, online, mapped, internal, portalMode,                  \
        maxOutstandingIo, seenBy
#define SIM_FIELDS_Initiator protocol, wwpn, wwnn, portId, iscsiName, loggedIn, target, dm, seenBy
#define SIM_FIELDS_LunPath target, lun, vpGroup, status
#define SIM_FIELDS_LockedRange start, size
#define SIM_FIELDS_CacheSettings                                                                                       \
    adapter, mode, profile, maxCacheBytes, minRead, maxRead, minWrite, maxWrite, lockedRanges, mirrored,               \
        mirrorAdapter, mirrorState, mirrorFlag, dirtyBytes, flushStarted, flushPolls, since
#define SIM_FIELDS_LocalLun owner, name, readOnly, mirrorType, mirrorPeer
#define SIM_FIELDS_Reservation type, key
#define SIM_FIELDS_Lun                                                                                                 \
    wwuln, codeSet, type, sizeBytes, vendor, product, revision, serial, page80, online, extraState, paths,             \
        reservation, cached, cache, statsClearedAt, local, localInfo, fixedIoStatistics
#define SIM_FIELDS_PinnedAdapterFigures                                                                                \
    totalCapacity, usedCapacity, readData, writeLoadHits, readLoadHits, usedPercentFirst, usedPercentSecond,           \
        readLoadPercent, writeLoadPercent
#define SIM_FIELDS_FixedStatistics counters, hostPcie, adapter
#define SIM_FIELDS_FixedIoStatistics                                                                                   \
    readCount, writeCount, readBlocks, writeBlocks, readHitPercent, writeHitPercent, totalRead, totalWritten,          \
        writeHitBytes, readHitBytes, cleanBytes, dirtyBytes, lockedBytes
#define SIM_FIELDS_San format, version, name, hosts, adapters, clusters, targets, initiators, luns, faults, nextLocalLun

#define SIM_VISIT_FIELD(field) visit(#field, object.field);
#define SIM_VISIT_FIELD_PAIR(field) visit(#field, first.field, second.field);

// visitFields(visit, object) calls visit("name", object.name) for each field in
// the order of the list; visitFieldPairs does the same for two objects of one
// type side by side (a value and the default it is compared with).
#define SIM_DEFINE_FIELDS(Type, ...)                                                                                   \
    template <class Visit>                                                                                             \
    void visitFields(Visit&& visit, Type& object)                                                                      \
    {                                                                                                                  \
        NLOHMANN_JSON_EXPAND(NLOHMANN_JSON_PASTE(SIM_VISIT_FIELD, __VA_ARGS__))                                        \
    }                                                                                                                  \
    template <class Visit>                                                                                             \
    void visitFields(Visit&& visit, const Type& object)                                                                \
    {                                                                                                                  \
        NLOHMANN_JSON_EXPAND(NLOHMANN_JSON_PASTE(SIM_VISIT_FIELD, __VA_ARGS__))                                        \
    }                                                                                                                  \
    template <class Visit>                                                                                             \
    void visitFieldPairs(Visit&& visit, const Type& first, const Type& second)                                         \
    {                                                                                                                  \
        NLOHMANN_JSON_EXPAND(NLOHMANN_JSON_PASTE(SIM_VISIT_FIELD_PAIR, __VA_ARGS__))                                   \
    }                                                                                                                  \
    inline constexpr bool hasFields(const Type*)                                                                       \
    {                                                                                                                  \
        return true;                                                                                                   \
    }

namespace sim {

SIM_DEFINE_FIELDS(Host, SIM_FIELDS_Host)
SIM_DEFINE_FIELDS(Sfp, SIM_FIELDS_Sfp)
SIM_DEFINE_FIELDS(Port, SIM_FIELDS_Port)
SIM_DEFINE_FIELDS(SmartAttribute, SIM_FIELDS_SmartAttribute)
SIM_DEFINE_FIELDS(Drive, SIM_FIELDS_Drive)
SIM_DEFINE_FIELDS(LogRecord, SIM_FIELDS_LogRecord)
SIM_DEFINE_FIELDS(Health, SIM_FIELDS_Health)
SIM_DEFINE_FIELDS(Nvdimm, SIM_FIELDS_Nvdimm)
SIM_DEFINE_FIELDS(Fault, SIM_FIELDS_Fault)
SIM_DEFINE_FIELDS(Adapter, SIM_FIELDS_Adapter)
SIM_DEFINE_FIELDS(Cluster, SIM_FIELDS_Cluster)
SIM_DEFINE_FIELDS(Target, SIM_FIELDS_Target)
SIM_DEFINE_FIELDS(Initiator, SIM_FIELDS_Initiator)
SIM_DEFINE_FIELDS(LunPath, SIM_FIELDS_LunPath)
SIM_DEFINE_FIELDS(LockedRange, SIM_FIELDS_LockedRange)
SIM_DEFINE_FIELDS(CacheSettings, SIM_FIELDS_CacheSettings)
SIM_DEFINE_FIELDS(LocalLun, SIM_FIELDS_LocalLun)
SIM_DEFINE_FIELDS(Reservation, SIM_FIELDS_Reservation)
SIM_DEFINE_FIELDS(Lun, SIM_FIELDS_Lun)
SIM_DEFINE_FIELDS(PinnedAdapterFigures, SIM_FIELDS_PinnedAdapterFigures)
SIM_DEFINE_FIELDS(FixedStatistics, SIM_FIELDS_FixedStatistics)
SIM_DEFINE_FIELDS(FixedIoStatistics, SIM_FIELDS_FixedIoStatistics)
SIM_DEFINE_FIELDS(San, SIM_FIELDS_San)

// True for the structs listed above, which are written as JSON objects.
template <class T>
concept FieldStruct = requires(const T* p)
{
    hasFields(p);
};

} // namespace sim
