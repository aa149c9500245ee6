// One named 64-bit cache counter as the adapter reports it, with the
// arithmetic that derived figures are built from.
//
// The record part (construction, copy, blanking, plain text) is defined
// here in the header: the device library fills these records too and does
// not link the statistics code.
#pragma once

#include <cstring>
#include <string>

#include "records/PBase.h"

class KCacheInfo : public PBase {
public:
    static constexpr unsigned int NAME_SIZE = 33; // 32 characters and the NUL
    // What the adapter's code field holds in a blank record.
    static constexpr int32_t BLANK_KIND = 9;

    KCacheInfo() : PBase() { init(); }
    KCacheInfo(const KCacheInfo& other) : PBase()
    {
        init();
        *this = other;
    }
    ~KCacheInfo() override { init(); }

    // Blanks the target first, so assigning a record to itself clears it.
    KCacheInfo& operator=(const KCacheInfo& other)
    {
        init();
        memmove(name, other.name, sizeof name);
        kind = other.kind;
        value = other.value;
        return *this;
    }

    void init() override
    {
        fastMemsetZero(name, sizeof name);
        kind = BLANK_KIND;
        value = 0;
        initSerialization(name, sizeof(KCacheInfo));
    }

    // The value as a signed number.
    std::string displayText() const override { return i64NumberToText(value); }
    // The name, up to its NUL.
    std::string displayTitle() const { return std::string(name, strnlen(name, sizeof name)); }
    // The value as a number of bytes in the largest unit with a whole part.
    std::string displayTextWithUnit() const;

    // Each keeps the left operand's name and kind; values wrap at 64 bits,
    // and division by zero gives 0.
    KCacheInfo operator+(const KCacheInfo& other) const;
    KCacheInfo operator+(long long other) const;
    KCacheInfo operator-(const KCacheInfo& other) const;
    KCacheInfo operator-(long long other) const;
    KCacheInfo operator*(const KCacheInfo& other) const;
    KCacheInfo operator*(long long other) const;
    KCacheInfo operator/(const KCacheInfo& other) const;
    KCacheInfo operator/(long long other) const;

    KCacheInfo& operator+=(const KCacheInfo& other);
    KCacheInfo& operator-=(const KCacheInfo& other);
    KCacheInfo& operator*=(const KCacheInfo& other);
    // Division by zero leaves the value as it is (unlike operator/).
    KCacheInfo& operator/=(const KCacheInfo& other);

    char name[NAME_SIZE];
    int32_t kind; // the adapter's code; copied, never read here
    int64_t value;

private:
    KCacheInfo withValue(long long newValue) const;
};

static_assert(sizeof(KCacheInfo) == 72, "KCacheInfo image");
