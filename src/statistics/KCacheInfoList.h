// The adapter's table of named cache counters, looked up by name, and the
// small equations that derived figures are computed with.
//
// Construction and copy are defined here in the header, so that the device
// library can fill a table without linking the statistics code.
#pragma once

#include <string>

#include "statistics/KCacheInfo.h"

class KCacheInfoList {
public:
    static constexpr unsigned int MAX_ITEMS = 256;

    enum OPERATION_TYPE : int32_t {
        OP_ADD = 0,
        OP_SUBTRACT = 1,
        OP_MULTIPLY = 2,
        OP_DIVIDE = 3,
        OP_PERCENT = 4, // (a * 100) / b
    };

    KCacheInfoList() { init(); }
    KCacheInfoList(const KCacheInfoList& other) { *this = other; }
    KCacheInfoList& operator=(const KCacheInfoList& other)
    {
        for (unsigned int i = 0; i < MAX_ITEMS; ++i)
            items[i] = other.items[i];
        count = other.count;
        return *this;
    }

    void init()
    {
        for (KCacheInfo& item : items)
            item.init();
        count = 0;
    }

    // Compares `length` bytes of each entry's name with `name`; a length
    // that counts the NUL makes this an exact match. Every entry is
    // searched, whatever `count` says; the first match is copied to `out`.
    bool findItem(const char* name, unsigned long length, KCacheInfo& out) const;

    // Names, and values as unsigned numbers, of the filled entries, each
    // followed by four blanks; the values end with a newline.
    std::string displayTitles() const;
    std::string displayText() const;

    // result = first op second. A name is looked up in this table; a name
    // that is missing appends "Item <position> not found." to `error`,
    // leaves `result` as it was and gives false. The result keeps the name
    // and kind of the first operand. An operation outside the table changes
    // nothing and still gives true.
    bool cacheEquation(const KCacheInfo& first, OPERATION_TYPE op, long long second, KCacheInfo& result,
                       std::string& error) const;
    bool cacheEquation(const KCacheInfo& first, OPERATION_TYPE op, const KCacheInfo& second, KCacheInfo& result,
                       std::string& error) const;
    bool cacheEquation(const KCacheInfo& first, OPERATION_TYPE op, const char* secondName, unsigned long secondLength,
                       KCacheInfo& result, std::string& error) const;
    bool cacheEquation(const char* firstName, unsigned long firstLength, OPERATION_TYPE op, const KCacheInfo& second,
                       KCacheInfo& result, std::string& error) const;
    bool cacheEquation(const char* firstName, unsigned long firstLength, OPERATION_TYPE op, long long second,
                       KCacheInfo& result, std::string& error) const;
    bool cacheEquation(const char* firstName, unsigned long firstLength, OPERATION_TYPE op, const char* secondName,
                       unsigned long secondLength, KCacheInfo& result, std::string& error) const;
    // result = first op1 second op2 third, with multiplication and division
    // binding first. Left to right, the second step applies `second` again
    // and `third` is only looked up; callers rely on that as it is.
    bool cacheEquation(const char* firstName, unsigned long firstLength, OPERATION_TYPE op1, const char* secondName,
                       unsigned long secondLength, OPERATION_TYPE op2, const char* thirdName, unsigned long thirdLength,
                       KCacheInfo& result, std::string& error) const;

    uint32_t count; // leading entries filled by the adapter
    KCacheInfo items[MAX_ITEMS];

private:
    bool lookUp(const char* name, unsigned long length, int position, KCacheInfo& out, std::string& error) const;
};

static_assert(sizeof(KCacheInfoList) == 8 + 256 * 72, "KCacheInfoList image");
