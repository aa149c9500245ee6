// How an adapter is reached: its identifier, the device through which it is
// seen on a host, and the remote agent of that host when it is not this one.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

#include "records/PBase.h"
#include "records/PIpAddress.h"

class KIsaAdapterPath : public PBase {
public:
    enum SELECT_ADAPTER_PATH : int32_t {
        SELECT_ADAPTER_PATH_NOT_SET = 0,
        SELECT_ADAPTER_PATH_DIRECT = 1,
        SELECT_ADAPTER_PATH_REMOTE_AGENT = 2,
    };

    // Chooses the RPC program by which the remote agent is spoken to.
    enum ADAPTER_TYPE : int32_t {
        ADAPTER_TYPE_NOT_SET = 0,
        ADAPTER_TYPE_1 = 1,
        ADAPTER_TYPE_2 = 2,
    };

    static constexpr int RPC_PROGRAM_ADAPTER_TYPE_1 = 351523;
    static constexpr int RPC_PROGRAM_ADAPTER_TYPE_2 = 351524;
    static constexpr unsigned long long NO_ADAPTER_ID = ~0ULL;
    static constexpr int NO_DEVICE_INSTANCE = -1;

    KIsaAdapterPath();
    KIsaAdapterPath(const KIsaAdapterPath& other);
    KIsaAdapterPath& operator=(const KIsaAdapterPath& other);
    ~KIsaAdapterPath() override;

    void init() override;
    void init(const unsigned long long& id, int instance, bool local, const PIpAddress& agent, ADAPTER_TYPE type);
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;

    bool operator==(const KIsaAdapterPath& other) const;
    bool operator!=(const KIsaAdapterPath& other) const { return !(*this == other); }

    unsigned long long isaHbaId() const { return ui64IsaHbaId; }
    int deviceInstanceForAccess() const { return iDeviceInstanceForAccess; }
    bool isLocalDevice() const { return bIsLocalDevice; }
    SELECT_ADAPTER_PATH selectAdapterPath() const { return eSelectAdapterPath; }
    ADAPTER_TYPE adapterType() const { return eAdapterType; }
    const PIpAddress& ipAddrRemoteAgentHost() const { return ipAddrRemoteAgent; }

    static int rpcType(ADAPTER_TYPE type);
    int agentType() const;
    // Which of two ways to one adapter the library keeps: the nearer one,
    // and on a tie the one it already has.
    bool isPreferredPathComparedTo(const KIsaAdapterPath& other) const;

    static std::string ui64numberToHexText(unsigned long long value);
    std::string hbaIDText() const;

private:
    bool hasRemoteAgent() const;
    int pathScore() const;

    uint64_t ui64IsaHbaId;
    int32_t iDeviceInstanceForAccess;
    bool bIsLocalDevice;
    SELECT_ADAPTER_PATH eSelectAdapterPath;
    ADAPTER_TYPE eAdapterType;
    PIpAddress ipAddrRemoteAgent;
};

static_assert(sizeof(KIsaAdapterPath) == 1736, "adapter path image");
