#include "commands/lun/LunSettings.h"

#include <cstdlib>

namespace {

constexpr unsigned kGigabyteShift = 30;

} // namespace

long long decimalValue(std::string const& text)
{
    // strtoll clamps what does not fit, so a huge figure stays huge.
    return strtoll(text.c_str(), nullptr, 10);
}

unsigned long long gigabytesToBytes(long long gigabytes)
{
    unsigned long long const whole = static_cast<unsigned long long>(gigabytes);
    if (whole > (~0ull >> kGigabyteShift))
        return ~0ull;
    return whole << kGigabyteShift;
}
