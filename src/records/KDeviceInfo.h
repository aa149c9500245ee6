// A device on the fabric, which may be a target, an initiator or both.
#pragma once

#include "records/KInitiatorInfo.h"
#include "records/KTargetInfo.h"
#include "records/PBase.h"

class KDeviceInfo : public PBase {
public:
    KDeviceInfo();
    KDeviceInfo(const KDeviceInfo& other);
    KDeviceInfo& operator=(const KDeviceInfo& other);
    ~KDeviceInfo() override;

    void init() override;
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;

    bool isTarget;    // target is valid
    bool isInitiator; // initiator is valid
    bool isInternal;  // the adapter's own device, hidden from lists
    KTargetInfo target;
    KInitiatorInfo initiator;
};

static_assert(sizeof(KDeviceInfo) == 848, "KDeviceInfo image");
ZEK_ASSERT_FIELD_OFFSET(KDeviceInfo, target, 24)
ZEK_ASSERT_FIELD_OFFSET(KDeviceInfo, initiator, 384)
