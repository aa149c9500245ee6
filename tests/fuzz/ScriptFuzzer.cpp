// Any bytes as a script for execute script: its lines, comments, line ends
// and lengths, each line run through the parser and the frame.
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/FuzzHost.h"

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size)
{
    std::string const script(reinterpret_cast<char const*>(data), size);
    if (fuzz::isOutsideTheSandbox(script))
        return -1;
    fuzz::emptyScratchDirectory();
    if (!fuzz::writeScratchFile("run.cfg", script))
        return 0;
    fuzz::runCommandLine("execute script -file=run.cfg -continue_on_error");
    return 0;
}
