// Lines of a file by the rule that script files are read with (a line feed
// ends a line; a carriage return ends it and takes the next byte with it; a
// last line without its end is not returned), but read in blocks and cut with
// memchr instead of byte by byte. Statistics files run to a hundred megabytes,
// and the per-byte reading was half the time of a merge.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string>

class BlockLineReader {
public:
    static constexpr std::size_t kBlockSize = 8192;

    // Starts over on `file`, which the caller owns; null reads nothing.
    void reset(FILE* file);

    // The next line into `out` (emptied first); false at the end.
    bool readLine(std::string& out);

    // The errno of a failed read, 0 when the end was the end of the file.
    int readError() const { return error; }

private:
    static constexpr std::size_t kUnknown = std::string::npos;

    bool refill();
    std::size_t nextCarriageReturn();

    FILE* file = nullptr;
    std::string block;
    std::size_t pos = 0;
    // The first carriage return at or after `pos`, the block's size for none.
    std::size_t carriageReturn = kUnknown;
    int error = 0;
};
