// What an adapter is: its place in a cluster, its names and versions, what it
// can do, whether it answers, and the host it sits in.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

#include "records/KHostInfo.h"
#include "records/PBase.h"

class KIsaAdapterInfo : public PBase {
public:
    // Index into `capabilities`.
    enum ZEK_CAPABILITY_TYPE : int32_t {
        ZEK_CAPABILITY_RESERVED_0 = 0,
        WRITE_BACK_CACHE = 1,
        WRITE_THROUGH_CACHE = 2,
        LOCAL_SSD_DATA_LUN = 3,
        NVDIMM_DATA_LUN = 4,
        ZEK_CAPABILITY_RESERVED_5 = 5,
    };

    static constexpr int32_t ADAPTER_STATE_ONLINE = 1;
    static constexpr int32_t ADAPTER_STATE_OFFLINE = 2;

    static constexpr unsigned int PRODUCT_NAME_SIZE = 257;
    static constexpr unsigned int SYMBOLIC_NAME_SIZE = 129;
    static constexpr unsigned int VERSION_SIZE = 33;
    static constexpr unsigned int CAPABILITY_COUNT = 6;

    KIsaAdapterInfo();
    KIsaAdapterInfo(const KIsaAdapterInfo& other);
    KIsaAdapterInfo& operator=(const KIsaAdapterInfo& other);
    ~KIsaAdapterInfo() override;

    void init() override;
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;

    bool isClusterMember() const { return bClusterMember; }
    bool isClusterPrimary() const { return bClusterPrimary; }
    bool isClusterSecondary() const { return bClusterSecondary; }
    bool isAutoClusterEnabled() const { return bAutoClusterEnabled; }
    bool isCapable(ZEK_CAPABILITY_TYPE type) const;
    static std::string zekCapabilityToText(ZEK_CAPABILITY_TYPE type);

    bool bClusterMember;
    bool bClusterPrimary;
    bool bClusterSecondary;
    bool bAutoClusterEnabled;
    // Set only when they disagree with the cluster's own primary/secondary.
    uint64_t primaryAdapterId;
    uint64_t secondaryAdapterId;
    char productName[PRODUCT_NAME_SIZE];
    char symbolicName[SYMBOLIC_NAME_SIZE];
    char serialNumber[VERSION_SIZE];
    char hwVersion[VERSION_SIZE];
    char swVersion[VERSION_SIZE]; // firmware; may end in a newline
    char ubootBiosVersion[VERSION_SIZE];
    char biosVersion[VERSION_SIZE];
    char efiVersion[VERSION_SIZE];
    uint32_t fcPortCount;
    uint32_t reserved;
    unsigned char capabilities[CAPABILITY_COUNT];
    int32_t adapterState;
    KHostInfo hostInfo;

private:
    std::string clusterRoleText() const;
    std::string mismatchedIdText(const char* role, uint64_t id) const;
    std::string offlineText() const;
    std::string productText() const;
    void copyPlainFieldsFrom(const void* image);
};

static_assert(sizeof(KIsaAdapterInfo) == 1496, "adapter description image");
