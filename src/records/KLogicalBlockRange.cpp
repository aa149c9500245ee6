#include "records/KLogicalBlockRange.h"

KLogicalBlockRange::KLogicalBlockRange() : PBase()
{
    init();
}

KLogicalBlockRange::KLogicalBlockRange(const KLogicalBlockRange& other) : PBase()
{
    init();
    *this = other;
}

KLogicalBlockRange& KLogicalBlockRange::operator=(const KLogicalBlockRange& other)
{
    if (this != &other) {
        init();
        ui64StartLba = other.ui64StartLba;
        ui32Size = other.ui32Size;
    }
    return *this;
}

KLogicalBlockRange::~KLogicalBlockRange()
{
    init();
}

void KLogicalBlockRange::init()
{
    ui64StartLba = 0;
    ui32Size = 0;
    initSerialization(&ui64StartLba, sizeof(KLogicalBlockRange));
}

std::string KLogicalBlockRange::displayText() const
{
    return "StartLba: " + ui64NumberToText(ui64StartLba) + "\tSize: " + ui64NumberToText(ui32Size);
}
