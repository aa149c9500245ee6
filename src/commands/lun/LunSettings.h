// The settings that "create lun" and "modify lun" type: sizes in gigabytes,
// read the way the size keywords are, and the mirror types the library takes.
#pragma once

#include <string>

// The figure a user typed, read the way the size keywords are: base ten,
// anything unreadable as 0, clamped to the range of a signed 64-bit value.
long long decimalValue(std::string const& text);

// Sizes are typed in gigabytes of 2 to the 30 bytes and travel in bytes. A
// figure too large for 64 bits stays the largest byte count rather than
// wrapping round to a small one, so the adapter refuses it.
unsigned long long gigabytesToBytes(long long gigabytes);

// Mirror types as the library takes them.
constexpr int kMirrorTypeNone = 1;
constexpr int kMirrorTypeMirror = 2;
