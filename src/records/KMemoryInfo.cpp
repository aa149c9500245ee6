#include "records/KMemoryInfo.h"

namespace {

std::string freeOfTotal(int32_t free, int32_t total)
{
    return PBase::numberToText(free) + " / " + PBase::numberToText(total);
}

} // namespace

KMemoryInfo::KMemoryInfo() : PBase()
{
    init();
}

KMemoryInfo::KMemoryInfo(const KMemoryInfo& other) : PBase()
{
    init();
    *this = other;
}

KMemoryInfo& KMemoryInfo::operator=(const KMemoryInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(&physicalTotal, FIELDS_SIZE, &other.physicalTotal, FIELDS_SIZE);
    }
    return *this;
}

KMemoryInfo::~KMemoryInfo()
{
    init();
}

void KMemoryInfo::init()
{
    fastMemsetZero(&physicalTotal, FIELDS_SIZE);
    initSerialization(&physicalTotal, sizeof(KMemoryInfo));
}

std::string KMemoryInfo::displayText() const
{
    std::string text = "    Physical (free/total)        = " + freeOfTotal(physicalFree, physicalTotal);
    text += "\n    Buffer pool (free/total)     = " + freeOfTotal(bufferPoolFree, bufferPoolTotal);
    text += "\n    Process Blocks (free/total)  = " + freeOfTotal(processBlocksFree, processBlocksTotal);
    text += "\n    Request Blocks (free/total)  = " + freeOfTotal(requestBlocksFree, requestBlocksTotal);
    text += "\n    Event Blocks (free/total)    = " + freeOfTotal(eventBlocksFree, eventBlocksTotal);
    text += "\n    Control Blocks (free/total)  = " + freeOfTotal(controlBlocksFree, controlBlocksTotal);
    return text + "\n\n";
}
