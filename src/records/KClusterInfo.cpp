#include "records/KClusterInfo.h"

KClusterInfo::KClusterInfo()
{
    init();
}

KClusterInfo::KClusterInfo(const KClusterInfo& other) : PBase()
{
    init();
    *this = other;
}

KClusterInfo& KClusterInfo::operator=(const KClusterInfo& other)
{
    init();
    copySavedArea(&other);
    return *this;
}

KClusterInfo::~KClusterInfo()
{
    init();
}

void KClusterInfo::init()
{
    ZEK_ASSERT_FIELD_OFFSET(KClusterInfo, primaryAdapterId, 24);
    initSerialization(&primaryAdapterId, sizeof(KClusterInfo));
    primaryAdapterId = 0;
    secondaryAdapterId = 0;
}

// Identifiers are decimal here, unlike everywhere else; the keyword lines
// are read back in that form.
std::string KClusterInfo::displayText() const
{
    if (primaryAdapterId == 0) {
        return "*** Cluster has no primary adapter ***\n";
    }
    std::string text = "    -primary=" + ui64NumberToText(primaryAdapterId) + "\n";
    if (secondaryAdapterId == 0) {
        return text + "*** Cluster has no secondary adapter ***\n";
    }
    return text + "    -secondary=" + ui64NumberToText(secondaryAdapterId) + "\n";
}
