#include "state/Clock.h"

#include <cerrno>
#include <cstdlib>
#include <ctime>

namespace sim {

namespace {

bool pinnedTime(long long& out)
{
    const char* text = std::getenv("HBASIM_TIME");
    if (!text || !*text)
        return false;
    char* end = nullptr;
    errno = 0;
    long long value = std::strtoll(text, &end, 10);
    if (errno != 0 || *end != '\0' || value < 0)
        return false; // an unusable value falls back to the wall clock
    out = value;
    return true;
}

} // namespace

long long simNow()
{
    long long pinned;
    if (pinnedTime(pinned))
        return pinned;
    return static_cast<long long>(std::time(nullptr));
}

bool clockIsPinned()
{
    long long pinned;
    return pinnedTime(pinned);
}

} // namespace sim
