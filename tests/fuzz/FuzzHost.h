// What the harnesses that drive the command-line core share: a private
// directory that is both the working and the home directory, emptied before
// every input; the console pointed at /dev/null both ways; a fake management
// library that answers every call the same way each time; and no real waits
// (FuzzHost.cpp replaces the process's sleep calls).
#pragma once

#include <string>

namespace fuzz {

// The scratch directory, made on first use and the working directory from
// then on.
std::string const& scratchDirectory();

// Removes whatever the previous input left in the scratch directory.
void emptyScratchDirectory();

// Writes `bytes` to `name` in the scratch directory; false when it could not.
bool writeScratchFile(std::string const& name, std::string const& bytes);

// Parses and runs one line in a tree of every command, as a script line is
// run. Returns the line's code.
int runCommandLine(std::string const& line);

// A line the harness must not run: one that could name a file outside the
// scratch directory (the fuzzer runs with the rights of its user), or one
// too long to be worth the time.
bool isOutsideTheSandbox(std::string const& line);

} // namespace fuzz
