// Measures short intervals on the wall clock in milliseconds, for the
// progress rate limit and for run statistics.
#pragma once

#include <cstdint>
#include <string>

#include "records/PBase.h"

class PElapsedTime : public PBase {
public:
    PElapsedTime();
    PElapsedTime(const PElapsedTime& other);
    PElapsedTime& operator=(const PElapsedTime& other);
    ~PElapsedTime() override;

    void init() override;
    std::string displayText() const override;

    void initElapsedTime();
    bool isExpired(unsigned int ms) const;
    uint32_t getStartMs() const { return startMs; }

    // Milliseconds of the wall clock, truncated to 32 bits.
    static uint32_t nowMs();
    // Milliseconds from `start` to `now`, right across the 32-bit wrap.
    static uint32_t elapsedBetween(uint32_t start, uint32_t now);

private:
    uint32_t startMs;
};

static_assert(sizeof(PElapsedTime) == 24, "elapsed-time image");
