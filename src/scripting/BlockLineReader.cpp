#include "scripting/BlockLineReader.h"

#include <cerrno>
#include <cstring>

void BlockLineReader::reset(FILE* newFile)
{
    file = newFile;
    block.clear();
    pos = 0;
    carriageReturn = kUnknown;
    error = 0;
}

bool BlockLineReader::refill()
{
    if (!file)
        return false;
    block.resize(kBlockSize);
    errno = 0;
    std::size_t const got = std::fread(block.data(), 1, block.size(), file);
    block.resize(got);
    pos = 0;
    carriageReturn = kUnknown;
    if (got == 0 && std::ferror(file))
        error = errno != 0 ? errno : EIO;
    return got > 0;
}

// Looked up once per block and carriage return, so lines without any cost
// one search of the block, not one per line.
std::size_t BlockLineReader::nextCarriageReturn()
{
    if (carriageReturn == kUnknown || carriageReturn < pos) {
        void const* const found = std::memchr(block.data() + pos, '\r', block.size() - pos);
        carriageReturn =
            found ? static_cast<std::size_t>(static_cast<char const*>(found) - block.data()) : block.size();
    }
    return carriageReturn;
}

bool BlockLineReader::readLine(std::string& out)
{
    out.clear();
    for (;;) {
        if (pos == block.size() && !refill())
            return false;
        std::size_t const limit = nextCarriageReturn();
        void const* const feed = std::memchr(block.data() + pos, '\n', limit - pos);
        std::size_t const end = feed ? static_cast<std::size_t>(static_cast<char const*>(feed) - block.data()) : limit;
        out.append(block, pos, end - pos);
        pos = end;
        if (end == block.size())
            continue;
        bool const wasCarriageReturn = block[end] == '\r';
        ++pos;
        if (!wasCarriageReturn)
            return true;
        if (pos == block.size() && !refill())
            return false;
        ++pos;
        return true;
    }
}
