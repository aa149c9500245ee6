// Loading and unloading of the management library, libhbaclient.so, which
// is found beside the running program. Nothing else in the system calls
// dlopen: everything reaches the library through g_pHbaMgmtApi.
//
// The expected order on the way in is setInstallDirectory,
// InitializeHbaMgmtAPI, beginClientSession on the API object, then
// IsVersionCompatible; on the way out endClientSession, then
// ReleaseHbaMgmtAPI.
#pragma once

#include <cstdint>
#include <string>

#include "api/HbaMgmtEntryPoints.h"

class HbaMgmtApi;

// The one API object; null until the library's create entry has filled it.
// It belongs to the library: it is never deleted here.
extern HbaMgmtApi* g_pHbaMgmtApi;

// Where to find the library. Null or empty leaves the loader to find the
// directory of the running program itself. Longer paths than 299 characters
// are cut to 299.
void setInstallDirectory(char* path);

// Loads the library, resolves its entries, creates the API object and
// initializes it; gives back what the object's initialize returned. Does
// not return on failure: a library that cannot be opened or lacks an entry
// ends the process with status 1, a library that creates no object with
// status 0, after saying why.
int64_t InitializeHbaMgmtAPI();

// Uninitializes the API object and hands it to the destroy entry, returning
// what that entry returned. The library stays mapped, so a later
// InitializeHbaMgmtAPI unloads and loads it anew. Without an API object
// there is nothing to release, and the result is 0.
int ReleaseHbaMgmtAPI();

// True when the library is of the interface generation 2.103.6, whatever
// its build number; false when no library is loaded.
bool IsVersionCompatible();

// True when no API object exists.
bool IsRunningInLibrary();

// $HOME, or the current working directory when HOME is not set.
std::string hbaMgmt_getHomeDirectory();

// ---- inspection, for the tests and for messages --------------------------

// One row of the table of entries resolved at load time.
struct DllInterfaceEntry {
    const char* name;
    void** function;
};
// The create, destroy and final-release rows, ended by a row with a null name.
extern DllInterfaceEntry g_xDllInterfaceTable[];

// The directory stored by setInstallDirectory (300 characters, possibly
// without a terminating zero past 299), and whether it is in use.
const char* hbaMgmt_installDirectory();
bool hbaMgmt_isInstallDirectorySet();

// The directory of a program path as read from /proc/<pid>/exe: the text
// before its last "/". A failed read (length -1) gives an empty text.
std::string hbaMgmt_directoryOfExecutable(const char* link, long length);

// The file the loader opens for a directory: the directory followed by
// "/libhbaclient.so".
std::string hbaMgmt_libraryFileName(const std::string& directory);
