// The version of the management library (or of a remote agent).
#pragma once

#include <cstdint>
#include <string>

#include "records/PBase.h"

class KLibraryVersionInfo : public PBase {
public:
    KLibraryVersionInfo();
    KLibraryVersionInfo(const KLibraryVersionInfo& other);
    KLibraryVersionInfo& operator=(const KLibraryVersionInfo& other);
    ~KLibraryVersionInfo() override;

    void init() override;
    std::string displayText() const override;

    uint32_t versionMajor;
    uint32_t versionMinor;
    uint32_t versionPatch;
    uint32_t versionBuild;
};

static_assert(sizeof(KLibraryVersionInfo) == 40, "library version image");
