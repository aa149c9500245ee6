// A target seen on the fabric, with the names of its Fibre Channel or
// iSCSI side.
#pragma once

#include "records/PBase.h"

class KFcTargetInfo : public PBase {
public:
    KFcTargetInfo();
    KFcTargetInfo(const KFcTargetInfo& other);
    KFcTargetInfo& operator=(const KFcTargetInfo& other);
    ~KFcTargetInfo() override;

    void init() override;
    std::string displayText() const override;
    std::string displayText(const std::string& prefix) const;

    std::string wwpnToString() const { return wwnameToText(wwpn); }
    std::string wwnnToString() const { return wwnameToText(wwnn); }
    std::string portIdToString() const { return portIdToText(portId); }

    unsigned char wwpn[8];
    unsigned char wwnn[8];
    unsigned char portId[3];
};

static_assert(sizeof(KFcTargetInfo) == 40, "KFcTargetInfo image");

class KIscsiTargetInfo : public PBase {
public:
    KIscsiTargetInfo();
    KIscsiTargetInfo(const KIscsiTargetInfo& other);
    KIscsiTargetInfo& operator=(const KIscsiTargetInfo& other);
    ~KIscsiTargetInfo() override;

    void init() override;
    std::string displayText() const override;
    std::string displayText(const std::string& prefix) const;

    bool isChapEnabled() const { return chapEnabled; }

    char iscsiName[256];
    bool chapEnabled;
};

static_assert(sizeof(KIscsiTargetInfo) == 280, "KIscsiTargetInfo image");

class KTargetInfo : public PBase {
public:
    enum KISA_PORTAL_MODE_TYPE : int32_t {
        PORTAL_MODE_FCP = 0,
        PORTAL_MODE_FRAME_SHUTTLE = 1,
        PORTAL_MODE_FCOE = 2,
        PORTAL_MODE_ISCSI_OVER_FCOE = 3,
        // Just outside the table, so that an unfilled record reads "Unknown".
        PORTAL_MODE_UNSET = 4,
    };

    // The bytes of the record that a result payload carries: the names of
    // its iSCSI side are cut short there.
    static constexpr unsigned int PAYLOAD_IMAGE_SIZE = 288;

    KTargetInfo();
    KTargetInfo(const KTargetInfo& other);
    KTargetInfo& operator=(const KTargetInfo& other);
    ~KTargetInfo() override;

    void init() override;
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;
    std::string displayText(const std::string& prefix) const;

    bool isFcTarget() const { return protocol == PROTOCOL_FIBRE_CHANNEL; }
    bool isIscsiTarget() const { return protocol == PROTOCOL_ISCSI; }
    bool isOnline() const { return online; }
    bool isMapped() const { return mapped; }
    bool isDiscoveredOnPort_1() const { return discoveredOnPort1; }
    bool isDiscoveredOnPort_2() const { return discoveredOnPort2; }
    bool isInternal() const { return internal; }

    static std::string portalModeToText(KISA_PORTAL_MODE_TYPE mode);

    PROTOCOL_TYPE protocol;
    bool online;
    bool mapped;
    bool discoveredOnPort1;
    bool discoveredOnPort2;
    bool internal;             // the adapter's own target, hidden from lists
    uint32_t maxOutstandingIo; // 0 when no limit is set
    KISA_PORTAL_MODE_TYPE portalMode;
    KFcTargetInfo fc;
    KIscsiTargetInfo iscsi;

private:
    // Bytes from protocol to the end of portalMode.
    unsigned int scalarBlockSize() const;
    std::string portsText() const;
};

// The natural image; one payload carries only its first 288 bytes.
static_assert(sizeof(KTargetInfo) == 360, "KTargetInfo image");
ZEK_ASSERT_FIELD_OFFSET(KTargetInfo, portalMode, 36)
ZEK_ASSERT_FIELD_OFFSET(KTargetInfo, fc, 40)
ZEK_ASSERT_FIELD_OFFSET(KTargetInfo, iscsi, 80)
