#include "records/KSsdLunInfo.h"

#include "records/KIsaAdapterPath.h"

KSsdLunInfo::KSsdLunInfo() : PBase()
{
    init();
}

KSsdLunInfo::KSsdLunInfo(const KSsdLunInfo& other) : PBase()
{
    init();
    *this = other;
}

KSsdLunInfo& KSsdLunInfo::operator=(const KSsdLunInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(&bValid, getSerialSize(), &other.bValid, getSerialSize());
    }
    return *this;
}

KSsdLunInfo::~KSsdLunInfo()
{
    init();
}

void KSsdLunInfo::init()
{
    initSerialization(&bValid, sizeof(KSsdLunInfo));
    fastMemsetZero(&bValid, getSerialSize());
}

std::string KSsdLunInfo::displayText() const
{
    if (!bValid)
        return "********\n";
    std::string text = "    ZEK local LUN, Size = " + longlongToMByteText(ui64SizeBytes) + ", (" +
        ui64NumberToText(ui64SizeBytes / 512) + " blocks)\n";
    // The name array may arrive without its terminator; never read past it.
    text += "    Symbolic Name = \"" + charFieldToText(szSymbolicName) + "\"\n";
    if (bReadOnly)
        text += "    READ-ONLY\n";
    if (bDeleteInProgress)
        text += "    *** DELETE IN PROGRESS ***\n";
    if (eSsdMirrorType == SSD_MIRROR_SSD_SSD)
        text += "    SSD-SSD Mirror,  (Mirrored Peer Adapter -zek=" +
            KIsaAdapterPath::ui64numberToHexText(ui64MirrorPeerAdapter) + " )\n";
    return text;
}
