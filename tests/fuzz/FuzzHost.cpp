#include "fuzz/FuzzHost.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <unistd.h>

#include "core/Parser.h"
#include "core/TokenRoot.h"
#include "support/FakeHbaMgmtApi.h"

// Commands that poll or count down would spend real seconds on every input;
// the harness's clock never waits.
extern "C" unsigned int sleep(unsigned int)
{
    return 0;
}
extern "C" int usleep(useconds_t)
{
    return 0;
}
extern "C" int nanosleep(const struct timespec*, struct timespec*)
{
    return 0;
}

namespace fuzz {

namespace {

constexpr size_t kLongestLine = 4096;

struct Host {
    Host()
    {
        char pattern[] = "/tmp/zek-fuzz-XXXXXX";
        if (!mkdtemp(pattern))
            std::abort();
        directory = pattern;
        if (chdir(directory.c_str()) != 0)
            std::abort();
        setenv("HOME", directory.c_str(), 1);
        setenv("TZ", "UTC", 1);
        int const null = open("/dev/null", O_RDWR);
        dup2(null, STDIN_FILENO);
        dup2(null, STDOUT_FILENO);
        close(null);
        g_pHbaMgmtApi = &api;
    }
    ~Host()
    {
        std::error_code ignored;
        std::filesystem::remove_all(directory, ignored);
    }
    std::string directory;
    FakeHbaMgmtApi api;
};

Host& host()
{
    static Host theHost;
    return theHost;
}

} // namespace

std::string const& scratchDirectory()
{
    return host().directory;
}

void emptyScratchDirectory()
{
    std::error_code ignored;
    for (auto const& entry : std::filesystem::directory_iterator(scratchDirectory(), ignored))
        std::filesystem::remove_all(entry.path(), ignored);
}

bool writeScratchFile(std::string const& name, std::string const& bytes)
{
    std::ofstream out(scratchDirectory() + "/" + name, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return static_cast<bool>(out);
}

bool isOutsideTheSandbox(std::string const& line)
{
    return line.size() > kLongestLine || line.find_first_of("/~") != std::string::npos;
}

int runCommandLine(std::string const& line)
{
    host();
    Parser parser;
    parser.initParsingTree();
    parser.root.initFromPrefFile(nullptr);
    parser.commandLine = line;
    std::string err;
    int const rc = parser.runCommandLine(err, 0).rc;
    std::fflush(stdout);
    return rc;
}

} // namespace fuzz
