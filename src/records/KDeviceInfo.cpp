#include "records/KDeviceInfo.h"

KDeviceInfo::KDeviceInfo() : PBase()
{
    init();
}

KDeviceInfo::KDeviceInfo(const KDeviceInfo& other) : PBase()
{
    init();
    *this = other;
}

KDeviceInfo& KDeviceInfo::operator=(const KDeviceInfo& other)
{
    if (this != &other) {
        init();
        isTarget = other.isTarget;
        isInitiator = other.isInitiator;
        isInternal = other.isInternal;
        target = other.target;
        initiator = other.initiator;
    }
    return *this;
}

KDeviceInfo::~KDeviceInfo()
{
    init();
}

void KDeviceInfo::init()
{
    isTarget = false;
    isInitiator = false;
    isInternal = false;
    target.init();
    initiator.init();
    initSerialization(&isTarget, sizeof(KDeviceInfo));
}

bool KDeviceInfo::serialize(bool write, FILE* file, std::string& error)
{
    return base_serialize(write, file, reinterpret_cast<char*>(&isTarget),
                          static_cast<unsigned int>(&isInternal + 1 - &isTarget), error) &&
        target.serialize(write, file, error) && initiator.serialize(write, file, error);
}

std::string KDeviceInfo::displayText() const
{
    if (!isTarget && !isInitiator)
        return "Undefined device - not a target or an initiator\n";
    std::string text;
    if (isTarget)
        text += target.displayText();
    if (isInitiator)
        text += initiator.displayText();
    return text;
}
