// Placeholder entry points so that the host program links while the command
// line core is being built. Every command answers 54 and says so.
#include <cstdio>
#include <cstring>
#include <strings.h>

#include "core/zekcli.h"

extern "C" {
int zekcli_initialize(char*) { return 0; }
int zekcli_isZekCommandLine(int argc, char const** argv)
{
    for (int i = 1; i < argc; ++i)
        if (strncasecmp(argv[i], "-zek", 4) == 0)
            return 1;
    return 0;
}
int zekcli_runCommandLineInterface(int, char**)
{
    std::puts("zekcli: the command-line core is not available yet");
    return 54;
}
int zekcli_releaseResources() { return 0; }
}
