// One drive of an adapter: identity, size, owner, state and SMART data.
#pragma once

#include "records/KSmartDriveInfo.h"
#include "records/PBase.h"

class KDriveInfo : public PBase {
public:
    enum DRIVE_STATUS_TYPE : int32_t {
        DRIVE_STATUS_UNKNOWN = 0,
        DRIVE_STATUS_UNCONFIGURED = 1,
        DRIVE_STATUS_CONFIGURED = 2,
    };

    KDriveInfo();
    KDriveInfo(const KDriveInfo& other);
    KDriveInfo& operator=(const KDriveInfo& other);
    ~KDriveInfo() override;

    void init() override;
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;
    std::string displaySmartDriveInfoText() const;
    std::string displaySmartDriveInfoVerboseText() const;

    static std::string driveStateToText(DRIVE_STATUS_TYPE state);

    char vendorId[9];
    char productId[17];
    char revision[5];
    char serialNumber[33];
    uint64_t sizeBytes;
    uint64_t ownerId; // adapter identifier of the owner
    DRIVE_STATUS_TYPE driveStatus;
    bool isOnline;
    bool isPcieSsd;
    bool isSecurityLocked;
    bool isIdentityConflict;
    bool isExternal;
    KSmartDriveInfo smartInfo;

    // Bytes from vendorId up to smartInfo, saved and copied as one block.
    static constexpr unsigned int PLAIN_BLOCK_SIZE = 100;

private:
    std::string flagsText() const;
};

static_assert(sizeof(KDriveInfo) == 5784, "KDriveInfo image");
