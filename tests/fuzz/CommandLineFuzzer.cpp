// One command line, any bytes, through the parser, the help and the
// execution frame of every command, against a management library that fails
// every device operation the same way each time.
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/FuzzHost.h"

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size)
{
    std::string const line(reinterpret_cast<char const*>(data), size);
    if (fuzz::isOutsideTheSandbox(line))
        return -1;
    fuzz::emptyScratchDirectory();
    fuzz::runCommandLine(line);
    return 0;
}
