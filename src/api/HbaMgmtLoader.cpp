#include "api/HbaMgmtLoader.h"

#include <dlfcn.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "api/HbaMgmtApi.h"
#include "records/KLibraryVersionInfo.h"

HbaMgmtApi* g_pHbaMgmtApi = nullptr;

HbaMgmtCreateInstanceFn g_hbaMgmt_create_instance__pf = nullptr;
HbaMgmtDestroyInstanceFn g_hbaMgmt_destroy_instance__pf = nullptr;
// Resolved so that a library without it is refused, but never called.
HbaMgmtFinalReleaseFn g_hbaMgmt_final_release__pf = nullptr;

DllInterfaceEntry g_xDllInterfaceTable[] = {
    {HBAMGMTAPI_CREATE_INSTANCE_NAME, reinterpret_cast<void**>(&g_hbaMgmt_create_instance__pf)},
    {HBAMGMTAPI_DESTROY_INSTANCE_NAME, reinterpret_cast<void**>(&g_hbaMgmt_destroy_instance__pf)},
    {HBAMGMTAPI_FINAL_RELEASE_NAME, reinterpret_cast<void**>(&g_hbaMgmt_final_release__pf)},
    {nullptr, nullptr},
};

namespace {

constexpr size_t kInstallDirectorySize = 300;
constexpr size_t kInstallDirectoryMaxLength = kInstallDirectorySize - 1;
constexpr char kLibraryFileName[] = "/libhbaclient.so";

// The library's interface generation that this client speaks.
constexpr uint32_t kRequiredMajor = 2;
constexpr uint32_t kRequiredMinor = 103;
constexpr uint32_t kRequiredPatch = 6;

char installDirectory[kInstallDirectorySize];
bool installDirectoryIsSet = false;

void* libraryHandle = nullptr;
// Libraries that the management library once needed loaded beside it. None
// are loaded today, but unloading still closes them should they ever be.
void* companionHandles[3] = {nullptr, nullptr, nullptr};

void closeHandle(void*& handle)
{
    if (handle != nullptr) {
        dlclose(handle);
        handle = nullptr;
    }
}

void unloadLibrary()
{
    closeHandle(libraryHandle);
    for (int i = 2; i >= 0; --i)
        closeHandle(companionHandles[i]);
}

std::string directoryOfRunningProgram()
{
    char pid[10];
    std::snprintf(pid, sizeof pid, "%d", static_cast<int>(getpid()));
    std::string procExe = std::string("/proc/") + pid + "/exe";
    char link[513];
    std::memset(link, 0, sizeof link);
    ssize_t length = readlink(procExe.c_str(), link, 512);
    return hbaMgmt_directoryOfExecutable(link, static_cast<long>(length));
}

std::string libraryDirectory()
{
    if (installDirectoryIsSet)
        return std::string(installDirectory, strnlen(installDirectory, kInstallDirectorySize));
    return directoryOfRunningProgram();
}

void openLibraryOrExit(const std::string& file)
{
    libraryHandle = dlopen(file.c_str(), RTLD_NOW);
    if (libraryHandle == nullptr) {
        std::fprintf(stderr, "Couldn't open %s:  %s\n", file.c_str(), dlerror());
        std::exit(1);
    }
}

void resolveEntriesOrExit()
{
    for (DllInterfaceEntry* row = g_xDllInterfaceTable; row->name != nullptr; ++row) {
        dlerror();
        void* address = dlsym(libraryHandle, row->name);
        // Copy the object representation: the table holds typed function
        // pointers behind untyped addresses.
        std::memcpy(row->function, &address, sizeof address);
        if (address == nullptr) {
            std::fprintf(stderr, "Couldn't get   %s  from libhbaclient.so:  %s\n", row->name, dlerror());
            unloadLibrary();
            std::exit(1);
        }
    }
}

} // namespace

void setInstallDirectory(char* path)
{
    if (path == nullptr || path[0] == '\0') {
        installDirectoryIsSet = false;
        return;
    }
    installDirectoryIsSet = true;
    size_t length = std::strlen(path);
    if (length > kInstallDirectoryMaxLength) {
        std::memcpy(installDirectory, path, kInstallDirectoryMaxLength);
        installDirectory[kInstallDirectoryMaxLength] = '\0';
    } else {
        // No terminator is written: the buffer starts zeroed and is set
        // once per process.
        std::memcpy(installDirectory, path, length);
    }
}

int64_t InitializeHbaMgmtAPI()
{
    if (libraryHandle != nullptr)
        unloadLibrary();
    openLibraryOrExit(hbaMgmt_libraryFileName(libraryDirectory()));
    resolveEntriesOrExit();
    g_hbaMgmt_create_instance__pf(&g_pHbaMgmtApi);
    if (g_pHbaMgmtApi == nullptr) {
        std::puts("ERROR - HBAMGMT   API instance create failed");
        // A host sees status 0 for this failure; that is what it expects.
        std::exit(0);
    }
    return g_pHbaMgmtApi->initialize(g_pHbaMgmtApi);
}

int ReleaseHbaMgmtAPI()
{
    // A second release, or one after a failed start, has nothing to do.
    if (g_pHbaMgmtApi == nullptr || g_hbaMgmt_destroy_instance__pf == nullptr)
        return 0;
    g_pHbaMgmtApi->uninitialize();
    return g_hbaMgmt_destroy_instance__pf(&g_pHbaMgmtApi);
}

bool IsVersionCompatible()
{
    if (g_pHbaMgmtApi == nullptr)
        return false;
    KLibraryVersionInfo version;
    g_pHbaMgmtApi->getLibraryVersionInfo(version);
    // The build number does not matter for the interface.
    return version.versionMajor == kRequiredMajor && version.versionMinor == kRequiredMinor &&
        version.versionPatch == kRequiredPatch;
}

bool IsRunningInLibrary()
{
    return g_pHbaMgmtApi == nullptr;
}

std::string hbaMgmt_getHomeDirectory()
{
    if (const char* home = std::getenv("HOME"))
        return home;
    char cwd[512];
    if (getcwd(cwd, sizeof cwd) == nullptr)
        return std::string();
    return cwd;
}

const char* hbaMgmt_installDirectory()
{
    return installDirectory;
}

bool hbaMgmt_isInstallDirectorySet()
{
    return installDirectoryIsSet;
}

std::string hbaMgmt_directoryOfExecutable(const char* link, long length)
{
    if (length < 0)
        return std::string();
    std::string path(link, static_cast<size_t>(length));
    size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

std::string hbaMgmt_libraryFileName(const std::string& directory)
{
    return directory + kLibraryFileName;
}
