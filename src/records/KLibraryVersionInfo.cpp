#include "records/KLibraryVersionInfo.h"

KLibraryVersionInfo::KLibraryVersionInfo()
{
    init();
}

KLibraryVersionInfo::KLibraryVersionInfo(const KLibraryVersionInfo& other) : PBase()
{
    init();
    *this = other;
}

KLibraryVersionInfo& KLibraryVersionInfo::operator=(const KLibraryVersionInfo& other)
{
    init();
    copySavedArea(&other);
    return *this;
}

KLibraryVersionInfo::~KLibraryVersionInfo()
{
    init();
}

void KLibraryVersionInfo::init()
{
    ZEK_ASSERT_FIELD_OFFSET(KLibraryVersionInfo, versionMajor, 20);
    initSerialization(&versionMajor, sizeof(KLibraryVersionInfo));
    versionMajor = 0;
    versionMinor = 0;
    versionPatch = 0;
    versionBuild = 0;
}

std::string KLibraryVersionInfo::displayText() const
{
    return ui64NumberToText(versionMajor) + "." + ui64NumberToText(versionMinor) + "." +
        ui64NumberToText(versionPatch) + "." + ui64NumberToText(versionBuild);
}
