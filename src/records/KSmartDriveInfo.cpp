#include "records/KSmartDriveInfo.h"

#include <cstring>

namespace {

// The library fills the texts; one that is not terminated stops at the end
// of its field.
std::string boundedText(const char* field, size_t size)
{
    return std::string(field, strnlen(field, size));
}

} // namespace

// ---- KSmartDriveAttribute ----------------------------------------------------

KSmartDriveAttribute::KSmartDriveAttribute() : PBase()
{
    init();
}

KSmartDriveAttribute::KSmartDriveAttribute(const KSmartDriveAttribute& other) : PBase()
{
    init();
    *this = other;
}

KSmartDriveAttribute& KSmartDriveAttribute::operator=(const KSmartDriveAttribute& other)
{
    if (this != &other) {
        init();
        attributeId = other.attributeId;
        value = other.value;
        worst = other.worst;
        threshold = other.threshold;
        fastMemcpy(name, sizeof name, other.name, sizeof name);
        fastMemcpy(rawValue, sizeof rawValue, other.rawValue, sizeof rawValue);
        reserved = other.reserved;
        displayType = other.displayType;
    }
    return *this;
}

KSmartDriveAttribute::~KSmartDriveAttribute()
{
    init();
}

void KSmartDriveAttribute::init()
{
    attributeId = 0;
    value = 0;
    worst = 0;
    threshold = 0;
    fastMemsetZero(name, sizeof name);
    fastMemsetZero(rawValue, sizeof rawValue);
    reserved = 0;
    displayType = SMART_DISPLAY_NONE;
    initSerialization(&attributeId, sizeof(KSmartDriveAttribute));
}

std::string KSmartDriveAttribute::smartAttributeNameToText() const
{
    return boundedText(name, sizeof name);
}

std::string KSmartDriveAttribute::smartRawDataToText() const
{
    return boundedText(rawValue, sizeof rawValue);
}

std::string KSmartDriveAttribute::displayText() const
{
    return displayText("    ");
}

std::string KSmartDriveAttribute::displayText(const std::string& before) const
{
    char id[32];
    snprintf(id, sizeof id, "%5d ", attributeId);
    char label[TEXT_SIZE + 32];
    snprintf(label, sizeof label, "%-30s", smartAttributeNameToText().c_str());
    char figures[96];
    snprintf(figures, sizeof figures, "%8d   %8d   %8d   ", value, worst, threshold);
    return before + "\n" + id + label + figures + smartRawDataToText();
}

// ---- KSmartDriveInfo ------------------------------------------------------------

KSmartDriveInfo::KSmartDriveInfo() : PBase()
{
    init();
}

KSmartDriveInfo::KSmartDriveInfo(const KSmartDriveInfo& other) : PBase()
{
    init();
    *this = other;
}

KSmartDriveInfo& KSmartDriveInfo::operator=(const KSmartDriveInfo& other)
{
    if (this != &other) {
        init();
        isSmartDataValid = other.isSmartDataValid;
        smartStatus = other.smartStatus;
        attributeCount = other.attributeCount;
        for (unsigned int i = 0; i < MAX_ATTRIBUTES; ++i)
            attributes[i] = other.attributes[i];
    }
    return *this;
}

KSmartDriveInfo::~KSmartDriveInfo()
{
    init();
}

void KSmartDriveInfo::init()
{
    isSmartDataValid = 0;
    smartStatus = SMART_STATUS_UNKNOWN;
    attributeCount = 0;
    for (KSmartDriveAttribute& attribute : attributes)
        attribute.init();
    initSerialization(&isSmartDataValid, sizeof(KSmartDriveInfo));
}

bool KSmartDriveInfo::serialize(bool write, FILE* file, std::string& error)
{
    if (!base_serialize(write, file, reinterpret_cast<char*>(&isSmartDataValid), HEADER_SIZE, error))
        return false;
    for (KSmartDriveAttribute& attribute : attributes) {
        if (!attribute.serialize(write, file, error))
            return false;
    }
    return true;
}

KSmartDriveAttribute* KSmartDriveInfo::vecAt(unsigned int index)
{
    return index < MAX_ATTRIBUTES ? &attributes[index] : nullptr;
}

const KSmartDriveAttribute* KSmartDriveInfo::vecAt(unsigned int index) const
{
    return index < MAX_ATTRIBUTES ? &attributes[index] : nullptr;
}

std::string KSmartDriveInfo::smartStatusToText(SMART_STATUS_TYPE status)
{
    switch (status) {
    case SMART_STATUS_PASS:
        return "pass";
    case SMART_STATUS_FAIL:
        return "FAIL";
    default:
        return "Unknown";
    }
}

std::string KSmartDriveInfo::displayText() const
{
    return displayText(KSmartDriveAttribute::SMART_DISPLAY_ALWAYS);
}

std::string KSmartDriveInfo::displayText(KSmartDriveAttribute::SMART_DISPLAY_TYPE type, const std::string&) const
{
    if (isSmartDataValid == 0)
        return std::string();
    std::string text = "\n   Smart Drive Information:";
    text += "\n   Smart Drive Status:   " + smartStatusToText(smartStatus);
    text += "\n\n   Vendor Specific SMART Attributes with Thresholds:";
    text += "\n";
    text += "\n   ID ATTRIBUTE_NAME                    VALUE      WORST     THRESH  RAW_VALUE";
    // A count beyond the array comes from a faulty library; show what exists.
    unsigned int shown = attributeCount < MAX_ATTRIBUTES ? attributeCount : MAX_ATTRIBUTES;
    for (unsigned int i = 0; i < shown; ++i) {
        const KSmartDriveAttribute& attribute = attributes[i];
        if (type == KSmartDriveAttribute::SMART_DISPLAY_VERBOSE ||
            attribute.displayType == KSmartDriveAttribute::SMART_DISPLAY_ALWAYS)
            text = attribute.displayText(text);
    }
    return text;
}
