// A LUN carved out of the adapter's own drives.
#pragma once

#include "records/PBase.h"

class KSsdLunInfo : public PBase {
public:
    enum SSD_MIRROR_TYPE : int32_t {
        SSD_MIRROR_NONE = 1,
        SSD_MIRROR_SSD_SSD = 2,
    };

    KSsdLunInfo();
    KSsdLunInfo(const KSsdLunInfo& other);
    KSsdLunInfo& operator=(const KSsdLunInfo& other);
    ~KSsdLunInfo() override;

    void init() override;
    std::string displayText() const override;

    bool isSsdLunInfoValid() const { return bValid; }
    bool isReadOnly() const { return bReadOnly; }
    bool isDeleteInProgress() const { return bDeleteInProgress; }

    bool bValid;
    uint64_t ui64SizeBytes;
    bool bReadOnly;
    bool bDeleteInProgress;
    SSD_MIRROR_TYPE eSsdMirrorType;
    uint64_t ui64MirrorPeerAdapter;
    char szSymbolicName[129];
};

static_assert(sizeof(KSsdLunInfo) == 184, "KSsdLunInfo image");
