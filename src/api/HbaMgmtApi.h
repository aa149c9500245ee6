// The root object of the management library, reached through g_pHbaMgmtApi.
//
// The library is closed: its objects reach us only as abstract classes that
// are called by position in their virtual tables, never by symbol. The order
// of the virtual functions in this file is therefore part of the contract.
// Operations that this system never calls still hold their places, as the
// "reserved" placeholders; a substitute library need not override them. The
// virtual destructor's two table entries stand in the first two reserved
// places at the head: the system never deletes a library object, so what
// the real library keeps there is never called through them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "api/ApiForward.h"
#include "api/MhbaReturn.h"

// Receives the adapters' asynchronous event notifications.
using AenCallback = void (*)(const KAdapterEventNotificationInfo& event);

class HbaMgmtApi {
public:
    // The codes are known by their full name too, HbaMgmtApi::MHBA_E_...
    using e_MHBA_RETURN = ::e_MHBA_RETURN;
    using enum ::e_MHBA_RETURN;

    virtual ~HbaMgmtApi() = default;
    virtual void reserved_2() {}
    virtual void reserved_3() {}
    virtual void reserved_4() {}
    virtual void reserved_5() {}

    // Shuts the library down, once, just before the destroy entry.
    virtual void uninitialize() = 0;
    // Called once straight after the create entry; the result is passed on
    // by the loader but acted upon by nobody.
    virtual int64_t initialize(HbaMgmtApi* self) = 0;
    virtual void reserved_8() {}
    virtual void reserved_9() {}
    virtual e_MHBA_RETURN getLibraryVersionInfo(KLibraryVersionInfo& out) = 0;
    virtual void reserved_11() {}
    // An empty address means the local host.
    virtual e_MHBA_RETURN getRemoteAgentVersion(PIpAddress& agent, bool* agentFound, KLibraryVersionInfo& out) = 0;
    virtual void registerMsgHandler(HMsgHandler* handler) = 0;
    virtual void unregisterMsgHandler(HMsgHandler* handler) = 0;
    virtual void beginClientSession() = 0;
    virtual void endClientSession() = 0;
    // The only source of code texts, for codes it does not know as well.
    virtual std::string returnCodeToText(int code) = 0;
    virtual void reserved_18() {}
    virtual bool isFailure(int code) = 0;
    virtual void reserved_20() {}
    virtual void reserved_21() {}
    virtual void reserved_22() {}
    virtual bool textToIpAddress(const std::string& text, PIpAddress& out, std::string& error) = 0;
    virtual void reserved_24() {}
    virtual void reserved_25() {}
    virtual void reserved_26() {}
    virtual void reserved_27() {}
    virtual e_MHBA_RETURN testAgentConnection(PIpAddress& agent, std::string& error) = 0;
    virtual e_MHBA_RETURN saveDemonstrationFile(const std::string& file, std::string& error) = 0;
    virtual e_MHBA_RETURN loadDemonstrationFile(const std::string& file, std::string& error) = 0;
    virtual void reserved_31() {}
    virtual void reserved_32() {}

    // Never null; local adapters are present without a scan.
    virtual HIsaAdapterCollection* getAdapters() = 0;
    virtual void clearAdapters() = 0;
    // Never null.
    virtual HClusterCollection* getClusters() = 0;
    virtual void clearClusters() = 0;
    // The list built by scanAdapterGroupLuns.
    virtual HAdapterGroupLunCollection* getAdapterGroupLuns() = 0;
    virtual void clearAdapterGroupLuns() = 0;
    virtual e_MHBA_RETURN scanAdapterGroupLuns(const std::vector<KIsaAdapterPath>& adaptersInScope,
                                               std::string& error) = 0;
    // 0 when the path reaches an adapter; may complete the fields left open
    // (the instance from the identifier, or the reverse).
    virtual e_MHBA_RETURN checkAdapterPath(KIsaAdapterPath& path) = 0;
    // From the local host, or through the agent when its address is set.
    virtual e_MHBA_RETURN scanAdapters(PIpAddress& agent, uint32_t* count) = 0;
    // Also brings in the adapters that this one sees in the SAN.
    virtual e_MHBA_RETURN scanFromAdapter(const KIsaAdapterPath& path, uint32_t* count) = 0;
    virtual e_MHBA_RETURN registerAenCallback(AenCallback callback) = 0;
    virtual void unregisterAenCallback(AenCallback callback) = 0;
    virtual e_MHBA_RETURN pollAenEvents() = 0;
};
