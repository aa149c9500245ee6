// Any bytes as the preferences file: read as every command reads it at
// start, then written back. What was written must read and write again as
// the very same bytes.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include "core/Parser.h"
#include "fuzz/FuzzHost.h"

namespace {

std::string preferencesBytes()
{
    std::ifstream in(fuzz::scratchDirectory() + "/zekcli.ini", std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void readAndSave()
{
    Parser parser;
    parser.init();
    parser.save();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size)
{
    fuzz::emptyScratchDirectory();
    if (!fuzz::writeScratchFile("zekcli.ini", std::string(reinterpret_cast<char const*>(data), size)))
        return 0;
    readAndSave();
    std::string const once = preferencesBytes();
    readAndSave();
    if (preferencesBytes() != once)
        std::abort();
    return 0;
}
