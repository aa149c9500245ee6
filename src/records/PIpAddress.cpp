#include "records/PIpAddress.h"

#include <cstddef>
#include <cstring>

namespace {

// Copies a C string into a fixed field, cut to fit so that the field keeps
// its terminating zero.
template <size_t N>
void copyText(char (&field)[N], const char* text)
{
    PBase::fastMemsetZero(field, N);
    if (text != nullptr) {
        PBase::fastMemcpy(field, N, text, strnlen(text, N - 1));
    }
}

// Copies a field by its C-string length; the target is already blank.
template <size_t N>
void copyField(char (&field)[N], const char (&source)[N])
{
    PBase::fastMemcpy(field, N, source, strnlen(source, N));
}

template <size_t N>
bool setBytes(unsigned char (&field)[N], const unsigned char* bytes, unsigned int length)
{
    if (length > N) {
        return false;
    }
    PBase::fastMemsetZero(field, N);
    if (bytes != nullptr) {
        PBase::fastMemcpy(field, N, bytes, length);
    }
    return true;
}

} // namespace

PIpAddress::PIpAddress()
{
    init();
}

PIpAddress::PIpAddress(const PIpAddress& other) : PBase()
{
    init();
    *this = other;
}

PIpAddress& PIpAddress::operator=(const PIpAddress& other)
{
    if (this == &other) {
        return *this;
    }
    init();
    type = other.type;
    copyField(numericText, other.numericText);
    copyField(numericSubnetText, other.numericSubnetText);
    copyField(lookupText, other.lookupText);
    copyField(initText, other.initText);
    copyField(subnetInitText, other.subnetInitText);
    fastMemcpy(data, sizeof data, other.data, sizeof data);
    fastMemcpy(subnetData, sizeof subnetData, other.subnetData, sizeof subnetData);
    return *this;
}

PIpAddress::~PIpAddress()
{
    init();
}

void PIpAddress::init()
{
    initSerialization(&type, sizeof(PIpAddress));
    type = IPV_NOT_SET;
    // Everything from the type to the end is the saved area, so zero it whole.
    fastMemsetZero(reinterpret_cast<char*>(this) + serialOffset, serialSize);
    ZEK_ASSERT_FIELD_OFFSET(PIpAddress, type, 20);
}

std::string PIpAddress::displayText() const
{
    if (type == IPV_NOT_SET) {
        return "INVALID";
    }
    return std::string(numericText, strnlen(numericText, sizeof numericText));
}

bool PIpAddress::operator==(const PIpAddress& other) const
{
    if (type == IPV_NOT_SET || type != other.type) {
        return false;
    }
    switch (type) {
    case IPV_SHORT_1:
    case IPV_SHORT_2:
        return fastIsEqualMemcmp(data, sizeof data, other.data, SHORT_COMPARE_SIZE);
    case IPV_LONG_1:
    case IPV_LONG_2:
        return fastIsEqualMemcmp(data, sizeof data, other.data, sizeof data);
    default:
        return false;
    }
}

bool PIpAddress::operator!=(const PIpAddress& other) const
{
    return !(*this == other);
}

bool PIpAddress::setData(const unsigned char* bytes, unsigned int length)
{
    return setBytes(data, bytes, length);
}

bool PIpAddress::setSubnetData(const unsigned char* bytes, unsigned int length)
{
    return setBytes(subnetData, bytes, length);
}

void PIpAddress::setNumericText(const char* text, const char* subnet)
{
    copyText(numericText, text);
    copyText(numericSubnetText, subnet);
}

void PIpAddress::setInitText(const char* text, const char* subnet)
{
    copyText(initText, text);
    copyText(subnetInitText, subnet);
}

void PIpAddress::setLookupText(const char* text)
{
    copyText(lookupText, text);
}
