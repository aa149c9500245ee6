// What the commands that move files to and from an adapter share: the
// adapter they are addressed to and the local file named by -filepath.
#pragma once

#include <string>

#include "commands/CommandPattern.h"

class TokenCmd;

// Selects and finds the adapter and reads the file name. 0 or a return code.
int findAdapterAndFile(TokenCmd& cmd, AddressedAdapter& target, std::string& file, std::string& err);

// The adapter's side of a file copy: its file name, when one was given, and
// whether the adapter's file is to be cleared.
struct AdapterFileKeywords {
    bool named = false;
    std::string name;
    bool clear = false;

    // The library takes no name as a null pointer.
    char const* nameOrNull() const { return named ? name.c_str() : nullptr; }
};

// Selects and finds the adapter and reads -filepath, -name and -clear.
// 0 or a return code.
int findAdapterFileCopy(TokenCmd& cmd, AddressedAdapter& target, std::string& file, AdapterFileKeywords& adapterFile,
                        std::string& err);

// Saves an archive of the adapter, by `save`, into the -filepath file with
// the archive ending, and tells so with `doneText`.
int saveAdapterArchive(TokenCmd& cmd, e_MHBA_RETURN (HIsaAdapter::*save)(const std::string&),
                       std::string const& doneText, std::string& err);

// Capture and FRU files are compressed archives: a name that doesn't end in
// ".tar.gz" gets that ending.
std::string withArchiveEnding(std::string const& name);
