#pragma once

#include <cstdio>
#include <string>

// Opens a file the user named, for the readers and writers of the tool.
//
// The name may be anything: a FIFO nobody writes to, a directory, a device
// that never ends. Nothing here waits: a FIFO is opened without blocking.
// A file to read must be a regular file. A file to write may also be
// missing (it is made), a character device such as /dev/null, or a pipe
// that somebody reads; a FIFO without a reader fails instead of waiting.
//
// `mode` is an fopen mode ("r", "rb", "w", "a", "ab", with "+" to read and
// write). On failure the result is null and `reason` holds why, in the words
// of strerror where the system gave one.
std::FILE* openFileByName(std::string const& path, std::string const& mode, std::string& reason);
