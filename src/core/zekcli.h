// The four entry points that a host program calls, exported with plain names.
#pragma once

#include <cstddef>

#define ZEKCLI_EXPORT __attribute__((visibility("default")))

extern "C" {
ZEKCLI_EXPORT int zekcli_initialize(char* hostPath);
ZEKCLI_EXPORT int zekcli_isZekCommandLine(int argc, char const** argv);
ZEKCLI_EXPORT int zekcli_runCommandLineInterface(int argc, char** argv);
ZEKCLI_EXPORT int zekcli_releaseResources();
}

// Also offered to the host: release and exit in one call.
[[noreturn]] ZEKCLI_EXPORT void allDone(int status);

// Bounded copies. A copy is refused (nothing written) when it would not fit
// with room for the terminator. zekcli_safe_strcpy also refuses a source
// shorter than `srcLength`: callers pass the exact length. zekcli_safe_strcat
// accepts shorter sources.
ZEKCLI_EXPORT void zekcli_safe_strcpy(char* dst, size_t dstSize, char const* src, size_t srcLength);
ZEKCLI_EXPORT void zekcli_safe_strcat(char* dst, size_t dstSize, char const* src, size_t srcLength);

// Length before the first NUL, never more than `maxLength`; 0 for null.
size_t zekcli_safe_strnlen(char const* text, size_t maxLength);
// Case-insensitive equality of two bounded texts of the same length.
bool zekcli_safe_strequal(char const* a, size_t aMax, char const* b, size_t bMax);

[[noreturn]] void signal_callback_handler(int signum);
