// The three plain-named functions that the management library exports. The
// loader resolves them by name; a substitute library defines them with
// these signatures.
#pragma once

class HbaMgmtApi;

#define HBAMGMTAPI_EXPORT __attribute__((visibility("default")))

// Fills *instance with the library's one API object (or leaves it null).
using HbaMgmtCreateInstanceFn = int (*)(HbaMgmtApi** instance);
// Ends that object; its result is what ReleaseHbaMgmtAPI hands back.
using HbaMgmtDestroyInstanceFn = int (*)(HbaMgmtApi** instance);
// Must be present, though this system never calls it.
using HbaMgmtFinalReleaseFn = int (*)();

#define HBAMGMTAPI_CREATE_INSTANCE_NAME "hbamgmtapi_create_instance"
#define HBAMGMTAPI_DESTROY_INSTANCE_NAME "hbamgmtapi_destroy_instance"
#define HBAMGMTAPI_FINAL_RELEASE_NAME "hbamgmtapi_final_release"
