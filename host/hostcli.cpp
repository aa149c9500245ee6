// hostcli: the host program that loads libzekcli.so and hands it the argument
// vectors addressed to it (those carrying -zek, or starting with -pr zek).
#include <cstdio>

#include "core/zekcli.h"

namespace {

// Exit statuses hold one byte; API codes such as 1206 do not fit, so every
// code from 255 up reports as 255 (a -result file keeps the full code).
int exitStatusFor(int code)
{
    if (code < 0 || code >= 255)
        return 255;
    return code;
}

void printUsage(const char* program)
{
    std::fprintf(stderr,
                 "usage: %s -zek <action> <item> [-keyword=value ...]\n"
                 "       %s <action> <item> [-keyword=value ...] -zek=<adapter>\n"
                 "       %s -pr zek <action> <item> [-keyword=value ...]\n"
                 "With -zek (or -pr zek) and nothing after it, the interactive session starts.\n"
                 "Try: %s -zek help cli\n",
                 program, program, program, program);
}

} // namespace

int main(int argc, char** argv)
{
    int rc = zekcli_initialize(argv[0]);
    if (rc != 0)
        return exitStatusFor(rc);
    if (!zekcli_isZekCommandLine(argc, const_cast<char const**>(argv))) {
        printUsage(argc > 0 ? argv[0] : "hostcli");
        zekcli_releaseResources();
        return 2;
    }
    rc = zekcli_runCommandLineInterface(argc, argv);
    zekcli_releaseResources();
    return exitStatusFor(rc);
}
