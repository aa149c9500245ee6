#include "api/HbaMgmtLoader.h"

#include <dlfcn.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "api/HbaMgmtApi.h"
#include "api/MHbaReturnBuffer.h"
#include "support/ChildProcess.h"
#include "support/TempDirectory.h"

namespace {

namespace fs = std::filesystem;

std::string fixtureDirectory(const std::string& name)
{
    return std::string(ZEK_TEST_BIN_DIR) + "/../fixtures/" + name;
}

// setInstallDirectory keeps a char* signature, as the entry points pass one.
void setDirectory(std::string text)
{
    std::vector<char> buffer(text.begin(), text.end());
    buffer.push_back('\0');
    setInstallDirectory(buffer.data());
}

// A 300-character path overwrites all 299 usable places, so each test can
// start from a known buffer whatever ran before it.
void resetDirectoryTo(char filler)
{
    setDirectory(std::string(300, filler));
}

// The loader tests point it at a fixture folder. A shorter path would keep
// the tail of a longer earlier one, so the folder's name is filled up with
// slashes to the full 299 characters, which names the same folder. Gives
// the file name the loader will open.
std::string useDirectory(const std::string& directory)
{
    std::string padded = directory + std::string(299 - directory.size(), '/');
    setDirectory(padded);
    return hbaMgmt_libraryFileName(padded);
}

std::string storedDirectory()
{
    return std::string(hbaMgmt_installDirectory(), strnlen(hbaMgmt_installDirectory(), 300));
}

// What dlerror says for opening this file, or for looking up this symbol in
// it, as the loader will see it.
std::string dlopenErrorFor(const std::string& file)
{
    void* handle = dlopen(file.c_str(), RTLD_NOW);
    if (handle != nullptr) {
        dlclose(handle);
        return "(opened)";
    }
    return dlerror();
}

std::string dlsymErrorFor(const std::string& file, const char* symbol)
{
    void* handle = dlopen(file.c_str(), RTLD_NOW);
    if (handle == nullptr)
        return "(not opened)";
    dlerror();
    void* address = dlsym(handle, symbol);
    std::string text = address == nullptr ? dlerror() : "(found)";
    dlclose(handle);
    return text;
}

} // namespace

// ---- the install directory ------------------------------------------------

TEST(SetInstallDirectory, CopiesAPathOf299CharactersWhole)
{
    resetDirectoryTo('x');
    std::string path = "/" + std::string(298, 'a');
    setDirectory(path);
    EXPECT_TRUE(hbaMgmt_isInstallDirectorySet());
    EXPECT_EQ(storedDirectory(), path);
}

TEST(SetInstallDirectory, CutsAPathOf300CharactersTo299)
{
    resetDirectoryTo('x');
    std::string path = "/" + std::string(298, 'a') + "Z";
    setDirectory(path);
    EXPECT_TRUE(hbaMgmt_isInstallDirectorySet());
    EXPECT_EQ(storedDirectory(), path.substr(0, 299));
    EXPECT_EQ(hbaMgmt_installDirectory()[299], '\0');
}

TEST(SetInstallDirectory, NullLeavesTheLoaderOnItsOwnRouteAndTheTextAsItWas)
{
    resetDirectoryTo('x');
    setDirectory("/opt/zek/");
    setInstallDirectory(nullptr);
    EXPECT_FALSE(hbaMgmt_isInstallDirectorySet());
    EXPECT_EQ(storedDirectory().substr(0, 9), "/opt/zek/");
}

TEST(SetInstallDirectory, EmptyLeavesTheLoaderOnItsOwnRouteAndTheTextAsItWas)
{
    resetDirectoryTo('x');
    setDirectory("/opt/zek/");
    setDirectory("");
    EXPECT_FALSE(hbaMgmt_isInstallDirectorySet());
    EXPECT_EQ(storedDirectory().substr(0, 9), "/opt/zek/");
}

TEST(SetInstallDirectory, AShorterSecondPathKeepsTheTailOfTheFirst)
{
    resetDirectoryTo('x');
    setDirectory("/abc");
    EXPECT_EQ(storedDirectory(), "/abc" + std::string(295, 'x'));
}

// ---- where the library is looked for ----------------------------------------

TEST(LibraryFileName, IsTheDirectoryFollowedBySlashAndTheLibraryName)
{
    EXPECT_EQ(hbaMgmt_libraryFileName("/opt/zek"), "/opt/zek/libhbaclient.so");
    // A directory ending in a slash, as the entry points pass it, doubles it.
    EXPECT_EQ(hbaMgmt_libraryFileName("/opt/zek/"), "/opt/zek//libhbaclient.so");
}

TEST(LibraryFileName, IsTheBareNameWhenTheProgramPathCannotBeRead)
{
    char link[513] = {};
    EXPECT_EQ(hbaMgmt_libraryFileName(hbaMgmt_directoryOfExecutable(link, -1)), "/libhbaclient.so");
}

TEST(DirectoryOfExecutable, KeepsWhatStandsBeforeTheLastSlash)
{
    const char link[] = "/usr/local/zek/hostcliXXXX";
    EXPECT_EQ(hbaMgmt_directoryOfExecutable(link, 22), "/usr/local/zek");
    EXPECT_EQ(hbaMgmt_directoryOfExecutable("/hostcli", 8), "");
}

TEST(DllInterfaceTable, ListsCreateDestroyAndFinalReleaseThenEnds)
{
    EXPECT_STREQ(g_xDllInterfaceTable[0].name, "hbamgmtapi_create_instance");
    EXPECT_STREQ(g_xDllInterfaceTable[1].name, "hbamgmtapi_destroy_instance");
    EXPECT_STREQ(g_xDllInterfaceTable[2].name, "hbamgmtapi_final_release");
    EXPECT_EQ(g_xDllInterfaceTable[3].name, nullptr);
    for (int i = 0; i < 3; ++i)
        EXPECT_NE(g_xDllInterfaceTable[i].function, nullptr);
}

// ---- load failures end the process ----------------------------------------------

TEST(InitializeHbaMgmtApi, AMissingLibraryEndsTheProcessWithStatus1)
{
    TempDirectory empty{"zek-loader"};
    ASSERT_FALSE(empty.path.empty());
    std::string file;
    ChildOutcome child = runInChild([&] {
        useDirectory(empty.path);
        InitializeHbaMgmtAPI();
    });
    EXPECT_TRUE(child.exited);
    EXPECT_EQ(child.status, 1);
    file = hbaMgmt_libraryFileName(empty.path + std::string(299 - empty.path.size(), '/'));
    EXPECT_EQ(child.err, "Couldn't open " + file + ":  " + dlopenErrorFor(file) + "\n");
    EXPECT_EQ(child.out, "");
}

TEST(InitializeHbaMgmtApi, ALibraryWithoutFinalReleaseEndsTheProcessWithStatus1)
{
    std::string directory = fixtureDirectory("hbaclient-no-final-release");
    ASSERT_TRUE(fs::exists(directory + "/libhbaclient.so"));
    std::string file = useDirectory(directory);
    ChildOutcome child = runInChild([&] {
        useDirectory(directory);
        InitializeHbaMgmtAPI();
    });
    EXPECT_TRUE(child.exited);
    EXPECT_EQ(child.status, 1);
    EXPECT_EQ(child.err,
              "Couldn't get   hbamgmtapi_final_release  from libhbaclient.so:  " +
                  dlsymErrorFor(file, "hbamgmtapi_final_release") + "\n");
    EXPECT_EQ(child.out, "");
}

TEST(InitializeHbaMgmtApi, ALibraryThatCreatesNoObjectEndsTheProcessWithStatus0)
{
    std::string directory = fixtureDirectory("hbaclient-null-instance");
    ASSERT_TRUE(fs::exists(directory + "/libhbaclient.so"));
    ChildOutcome child = runInChild([&] {
        useDirectory(directory);
        InitializeHbaMgmtAPI();
    });
    EXPECT_TRUE(child.exited);
    EXPECT_EQ(child.status, 0);
    EXPECT_EQ(child.out, "ERROR - HBAMGMT   API instance create failed\n");
    EXPECT_EQ(child.err, "");
}

// ---- a library that loads --------------------------------------------------------

TEST(InitializeHbaMgmtApi, CreatesAndInitializesTheObjectThenReleasesIt)
{
    std::string directory = fixtureDirectory("hbaclient-compatible");
    ASSERT_TRUE(fs::exists(directory + "/libhbaclient.so"));
    useDirectory(directory);

    EXPECT_EQ(InitializeHbaMgmtAPI(), 4242);
    ASSERT_NE(g_pHbaMgmtApi, nullptr);
    EXPECT_FALSE(IsRunningInLibrary());
    EXPECT_TRUE(IsVersionCompatible()) << "build number 77 must not matter";
    EXPECT_EQ(MHbaReturnBuffer(MHBA_E_NOT_SUPPORTED).displayText(), "fixture code 1003");

    // The fixture's destroy entry answers 7 only when uninitialize came first.
    EXPECT_EQ(ReleaseHbaMgmtAPI(), 7);
    EXPECT_EQ(g_pHbaMgmtApi, nullptr);
    EXPECT_TRUE(IsRunningInLibrary());

    // Releasing twice does nothing the second time.
    EXPECT_EQ(ReleaseHbaMgmtAPI(), 0);
    EXPECT_FALSE(IsVersionCompatible());

    // The library stayed mapped; loading again unloads it first and starts over.
    EXPECT_EQ(InitializeHbaMgmtAPI(), 4242);
    EXPECT_EQ(ReleaseHbaMgmtAPI(), 7);
}

TEST(IsVersionCompatible, RefusesAnOlderInterfaceGeneration)
{
    std::string directory = fixtureDirectory("hbaclient-old-version");
    ASSERT_TRUE(fs::exists(directory + "/libhbaclient.so"));
    useDirectory(directory);
    InitializeHbaMgmtAPI();
    EXPECT_FALSE(IsVersionCompatible());
    ReleaseHbaMgmtAPI();
}

// Without an install directory the loader looks beside the running program.
// A copy of this test program is run from a folder that holds the compatible
// fixture library; inside it this test does the loading.
TEST(InitializeHbaMgmtApi, FindsTheLibraryBesideTheRunningProgram)
{
    if (std::getenv("ZEK_LOADER_BESIDE_PROGRAM") != nullptr) {
        setInstallDirectory(nullptr);
        EXPECT_EQ(InitializeHbaMgmtAPI(), 4242);
        EXPECT_TRUE(IsVersionCompatible());
        EXPECT_EQ(ReleaseHbaMgmtAPI(), 7);
        return;
    }
    TempDirectory folder{"zek-loader"};
    ASSERT_FALSE(folder.path.empty());
    fs::copy_file(fs::read_symlink("/proc/self/exe"), folder.path + "/api_tests");
    fs::copy_file(fixtureDirectory("hbaclient-compatible") + "/libhbaclient.so", folder.path + "/libhbaclient.so");
    std::string command = "ZEK_LOADER_BESIDE_PROGRAM=1 " + folder.path +
        "/api_tests --gtest_filter=InitializeHbaMgmtApi.FindsTheLibraryBesideTheRunningProgram"
        " >/dev/null 2>&1";
    EXPECT_EQ(std::system(command.c_str()), 0);
}

// ---- the home directory -------------------------------------------------------------

TEST(HomeDirectory, IsHomeWhenSetAndTheWorkingDirectoryOtherwise)
{
    const char* saved = std::getenv("HOME");
    std::string savedHome = saved != nullptr ? saved : "";

    setenv("HOME", "/home/zek-admin", 1);
    EXPECT_EQ(hbaMgmt_getHomeDirectory(), "/home/zek-admin");

    unsetenv("HOME");
    EXPECT_EQ(hbaMgmt_getHomeDirectory(), fs::current_path().string());

    if (saved != nullptr)
        setenv("HOME", savedHome.c_str(), 1);
}
