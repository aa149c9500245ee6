// An initiator seen on the fabric, with the names of its Fibre Channel or
// iSCSI side.
#pragma once

#include "records/KFcInfo.h"
#include "records/PBase.h"

class KFcInitiatorInfo : public PBase {
public:
    KFcInitiatorInfo();
    KFcInitiatorInfo(const KFcInitiatorInfo& other);
    KFcInitiatorInfo& operator=(const KFcInitiatorInfo& other);
    ~KFcInitiatorInfo() override;

    void init() override;
    std::string displayText() const override;
    std::string displayText(const std::string& prefix) const;

    std::string wwpnToString() const { return wwnameToText(wwpn); }
    std::string wwnnToString() const { return wwnameToText(wwnn); }
    std::string portIdToString() const { return portIdToText(portId); }

    KFcInfo::FC_MODE fcMode;
    unsigned char wwpn[8];
    unsigned char wwnn[8];
    unsigned char portId[3];
};

static_assert(sizeof(KFcInitiatorInfo) == 48, "KFcInitiatorInfo image");

class KIscsiInitiatorInfo : public PBase {
public:
    KIscsiInitiatorInfo();
    KIscsiInitiatorInfo(const KIscsiInitiatorInfo& other);
    KIscsiInitiatorInfo& operator=(const KIscsiInitiatorInfo& other);
    ~KIscsiInitiatorInfo() override;

    void init() override;
    std::string displayText() const override;
    std::string displayText(const std::string& prefix) const;

    bool isChapEnabled() const { return chapEnabled; }

    char iscsiName[256];
    bool chapEnabled;
    char chapSecret[100];
};

static_assert(sizeof(KIscsiInitiatorInfo) == 384, "KIscsiInitiatorInfo image");

class KInitiatorInfo : public PBase {
public:
    KInitiatorInfo();
    KInitiatorInfo(const KInitiatorInfo& other);
    KInitiatorInfo& operator=(const KInitiatorInfo& other);
    ~KInitiatorInfo() override;

    void init() override;
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;
    std::string displayText(const std::string& prefix) const;

    bool isFcInitiator() const { return protocol == PROTOCOL_FIBRE_CHANNEL; }
    bool isIscsiInitiator() const { return protocol == PROTOCOL_ISCSI; }
    bool isLoggedIn() const { return loggedIn; }
    bool isTargetInitiator() const { return targetInitiator; }
    bool isDmInitiator() const { return dmInitiator; }
    bool isFcoeInitiator() const { return fcoeInitiator; }

    PROTOCOL_TYPE protocol;
    bool loggedIn;
    bool targetInitiator;
    bool dmInitiator;
    bool fcoeInitiator;
    KFcInitiatorInfo fc;
    KIscsiInitiatorInfo iscsi;

private:
    // Bytes from protocol to the end of fcoeInitiator.
    unsigned int scalarBlockSize() const;
};

static_assert(sizeof(KInitiatorInfo) == 464, "KInitiatorInfo image");
ZEK_ASSERT_FIELD_OFFSET(KInitiatorInfo, fc, 32)
ZEK_ASSERT_FIELD_OFFSET(KInitiatorInfo, iscsi, 80)
