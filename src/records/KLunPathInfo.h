// One path to a LUN: by a Fibre Channel port or by an iSCSI portal, with
// the path's status.
#pragma once

#include "records/PBase.h"
#include "records/PIpAddress.h"

class KFcLunPathInfo : public PBase {
public:
    KFcLunPathInfo();
    KFcLunPathInfo(const KFcLunPathInfo& other);
    KFcLunPathInfo& operator=(const KFcLunPathInfo& other);
    ~KFcLunPathInfo() override;

    void init() override;
    std::string displayText() const override;

    uint8_t ui8Wwpn[8];
    uint8_t ui8Wwnn[8];
    uint8_t ui8PortId[4];
};

static_assert(sizeof(KFcLunPathInfo) == 40, "KFcLunPathInfo image");

class KIscsiLunPathInfo : public PBase {
public:
    KIscsiLunPathInfo();
    KIscsiLunPathInfo(const KIscsiLunPathInfo& other);
    KIscsiLunPathInfo& operator=(const KIscsiLunPathInfo& other);
    ~KIscsiLunPathInfo() override;

    void init() override;
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;

    char szTargetName[256];
    uint32_t ui32TcpPort;
    PIpAddress ipAddress;

private:
    // Bytes from szTargetName to the end of ui32TcpPort.
    unsigned int scalarBlockSize() const;
};

class KLunPathInfo : public PBase {
public:
    enum TARGET_TYPE : int32_t {
        TARGET_TYPE_NONE = 0,
        TARGET_TYPE_FC = 1,
        TARGET_TYPE_ISCSI = 2,
    };

    enum LUNPATH_STATUS_TYPE : int32_t {
        LUNPATH_STATUS_UNKNOWN = 0,
        LUNPATH_STATUS_OFFLINE = 1,
        LUNPATH_STATUS_ACTIVE = 2,
        LUNPATH_STATUS_ACTIVE_CURRENT_OPTIMIZED = 3,
        LUNPATH_STATUS_ACTIVE_OPTIMIZED = 4,
        LUNPATH_STATUS_ACTIVE_CURRENT = 5,
        LUNPATH_STATUS_PASSIVE = 6,
        LUNPATH_STATUS_PASSIVE_CURRENT_OPTIMIZED = 7,
        LUNPATH_STATUS_PASSIVE_OPTIMIZED = 8,
        LUNPATH_STATUS_PASSIVE_CURRENT = 9,
        LUNPATH_STATUS_OPTIMIZED = 10,
        LUNPATH_STATUS_CURRENT_OPTIMIZED = 11,
        LUNPATH_STATUS_CURRENT = 12,
    };

    KLunPathInfo();
    KLunPathInfo(const KLunPathInfo& other);
    KLunPathInfo& operator=(const KLunPathInfo& other);
    ~KLunPathInfo() override;

    void init() override;
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;

    bool isFcTarget() const { return eTargetType == TARGET_TYPE_FC; }
    bool isIscsiTarget() const { return eTargetType == TARGET_TYPE_ISCSI; }

    static std::string lunPathStatusToText(LUNPATH_STATUS_TYPE status);

    uint32_t ui32PathReserved;
    TARGET_TYPE eTargetType;
    LUNPATH_STATUS_TYPE ePathStatus;
    KFcLunPathInfo fcPath;
    KIscsiLunPathInfo iscsiPath;

private:
    // Bytes from ui32PathReserved to the end of ePathStatus.
    unsigned int scalarBlockSize() const;
};

static_assert(sizeof(KIscsiLunPathInfo) == 1968, "KIscsiLunPathInfo image");
static_assert(sizeof(KLunPathInfo) == 2040, "KLunPathInfo image");
ZEK_ASSERT_FIELD_OFFSET(KLunPathInfo, fcPath, 32)
ZEK_ASSERT_FIELD_OFFSET(KLunPathInfo, iscsiPath, 72)
