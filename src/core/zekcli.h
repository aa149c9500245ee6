// The four entry points that a host program calls, exported with plain names.
#pragma once

#define ZEKCLI_EXPORT __attribute__((visibility("default")))

extern "C" {
ZEKCLI_EXPORT int zekcli_initialize(char* hostPath);
ZEKCLI_EXPORT int zekcli_isZekCommandLine(int argc, char const** argv);
ZEKCLI_EXPORT int zekcli_runCommandLineInterface(int argc, char** argv);
ZEKCLI_EXPORT int zekcli_releaseResources();
}
