#include "records/PElapsedTime.h"

#include <sys/time.h>

PElapsedTime::PElapsedTime()
{
    init();
}

PElapsedTime::PElapsedTime(const PElapsedTime& other) : PBase()
{
    init();
    *this = other;
}

PElapsedTime& PElapsedTime::operator=(const PElapsedTime& other)
{
    init();
    startMs = other.startMs;
    return *this;
}

PElapsedTime::~PElapsedTime()
{
    init();
}

void PElapsedTime::init()
{
    // A wall-clock start means nothing to another run, so nothing is saved.
    initSerialization(nullptr, sizeof(PElapsedTime));
    startMs = 0;
}

std::string PElapsedTime::displayText() const
{
    return displayElapsedTime(elapsedBetween(startMs, nowMs()) * 10);
}

void PElapsedTime::initElapsedTime()
{
    startMs = nowMs();
}

bool PElapsedTime::isExpired(unsigned int ms) const
{
    return elapsedBetween(startMs, nowMs()) > ms;
}

uint32_t PElapsedTime::nowMs()
{
    timeval now{};
    gettimeofday(&now, nullptr);
    return static_cast<uint32_t>(static_cast<uint64_t>(now.tv_sec) * 1000 + static_cast<uint64_t>(now.tv_usec) / 1000);
}

uint32_t PElapsedTime::elapsedBetween(uint32_t start, uint32_t now)
{
    return now - start;
}
