#include "statistics/KCacheInfo.h"

#include <climits>

ZEK_ASSERT_FIELD_OFFSET(KCacheInfo, name, 20);
ZEK_ASSERT_FIELD_OFFSET(KCacheInfo, kind, 56);
ZEK_ASSERT_FIELD_OFFSET(KCacheInfo, value, 64);

namespace {

// Counters wrap like the adapter's registers do; unsigned arithmetic keeps
// that defined.
long long wrappingAdd(long long a, long long b)
{
    return static_cast<long long>(static_cast<unsigned long long>(a) + static_cast<unsigned long long>(b));
}

long long wrappingSubtract(long long a, long long b)
{
    return static_cast<long long>(static_cast<unsigned long long>(a) - static_cast<unsigned long long>(b));
}

long long wrappingMultiply(long long a, long long b)
{
    return static_cast<long long>(static_cast<unsigned long long>(a) * static_cast<unsigned long long>(b));
}

// Truncates toward zero; the one quotient that does not fit wraps, as the
// product would. The caller has ruled out a zero divisor.
long long wrappingDivide(long long a, long long b)
{
    if (a == LLONG_MIN && b == -1)
        return LLONG_MIN;
    return a / b;
}

} // namespace

KCacheInfo KCacheInfo::withValue(long long newValue) const
{
    KCacheInfo result(*this);
    result.value = newValue;
    return result;
}

KCacheInfo KCacheInfo::operator+(const KCacheInfo& other) const
{
    return *this + static_cast<long long>(other.value);
}

KCacheInfo KCacheInfo::operator+(long long other) const
{
    return withValue(wrappingAdd(value, other));
}

KCacheInfo KCacheInfo::operator-(const KCacheInfo& other) const
{
    return *this - static_cast<long long>(other.value);
}

KCacheInfo KCacheInfo::operator-(long long other) const
{
    return withValue(wrappingSubtract(value, other));
}

KCacheInfo KCacheInfo::operator*(const KCacheInfo& other) const
{
    return *this * static_cast<long long>(other.value);
}

KCacheInfo KCacheInfo::operator*(long long other) const
{
    return withValue(wrappingMultiply(value, other));
}

KCacheInfo KCacheInfo::operator/(const KCacheInfo& other) const
{
    return *this / static_cast<long long>(other.value);
}

KCacheInfo KCacheInfo::operator/(long long other) const
{
    return withValue(other == 0 ? 0 : wrappingDivide(value, other));
}

KCacheInfo& KCacheInfo::operator+=(const KCacheInfo& other)
{
    value = wrappingAdd(value, other.value);
    return *this;
}

KCacheInfo& KCacheInfo::operator-=(const KCacheInfo& other)
{
    value = wrappingSubtract(value, other.value);
    return *this;
}

KCacheInfo& KCacheInfo::operator*=(const KCacheInfo& other)
{
    value = wrappingMultiply(value, other.value);
    return *this;
}

KCacheInfo& KCacheInfo::operator/=(const KCacheInfo& other)
{
    if (other.value != 0)
        value = wrappingDivide(value, other.value);
    return *this;
}

// From one KiB up this is the size text of the records. Below it the value
// stays a bare number; a negative difference thus shows only its remainder
// modulo 1024.
std::string KCacheInfo::displayTextWithUnit() const
{
    if (value >= 1024)
        return longlongToMByteText(static_cast<unsigned long long>(value));
    return i64NumberToText(value % 1024);
}
