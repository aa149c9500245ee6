// The entry points: start-up (signal handler, install directory, API library
// and its version), recognising the vectors meant for us, and the road of one
// command line through the parser.
#include "core/zekcli.h"

#include <cctype>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <string>
#include <unistd.h>
#include <vector>

#include "api/HbaMgmtApi.h"
#include "api/HbaMgmtLoader.h"
#include "core/Parser.h"
#include "core/ZekcliReturn.h"
#include "records/KLibraryVersionInfo.h"

namespace {

constexpr size_t kArgumentBound = 4096;
constexpr size_t kProcPathSize = 128;
constexpr size_t kPidTextSize = 32;
constexpr size_t kExePathSize = 512;

bool argumentEquals(char const* argument, char const* word)
{
    return zekcli_safe_strequal(argument, kArgumentBound, word, kArgumentBound);
}

bool startsWithProgramSelector(int argc, char const* const* argv)
{
    return argc > 2 && argumentEquals(argv[1], "-pr") && argumentEquals(argv[2], "zek");
}

// The text of an argument before its first "=", or all of it.
std::string keywordPart(char const* argument)
{
    std::string const text(argument, zekcli_safe_strnlen(argument, kArgumentBound));
    return text.substr(0, text.find('='));
}

// Where the program image lives: /proc/<pid>/exe, or the host's own idea of
// its path when that cannot be read. The trailing "/" stays.
std::string installDirectory(char const* hostPath)
{
    char procPath[kProcPathSize] = {};
    char pidText[kPidTextSize] = {};
    std::snprintf(pidText, sizeof pidText, "%d", static_cast<int>(getpid()));
    zekcli_safe_strcpy(procPath, sizeof procPath, "/proc/", std::strlen("/proc/"));
    zekcli_safe_strcat(procPath, sizeof procPath, pidText, std::strlen(pidText));
    zekcli_safe_strcat(procPath, sizeof procPath, "/exe", std::strlen("/exe"));

    char exePath[kExePathSize] = {};
    ssize_t const length = readlink(procPath, exePath, sizeof exePath);
    std::string path;
    if (length != -1 && length < static_cast<ssize_t>(sizeof exePath))
        path.assign(exePath, static_cast<size_t>(length));
    else if (hostPath)
        path = hostPath;
    std::string::size_type const slash = path.rfind('/');
    if (slash != std::string::npos)
        path.erase(slash + 1);
    return path;
}

std::string versionText(unsigned a, unsigned b, unsigned c, unsigned d)
{
    return std::to_string(a) + "." + std::to_string(b) + "." + std::to_string(c) + "." + std::to_string(d);
}

void reportIncompatibleLibrary()
{
    KLibraryVersionInfo info;
    if (g_pHbaMgmtApi)
        g_pHbaMgmtApi->getLibraryVersionInfo(info);
    std::string const text = "HBA Management API Library version " +
        versionText(info.versionMajor, info.versionMinor, info.versionPatch, info.versionBuild) +
        " is not compatible with this client\n(Client has interface for " + versionText(2, 103, 0, 0) + ")\n";
    std::printf("%s", text.c_str());
}

// Our private copy of the vector, with "-pr zek" or a leading "-zek" taken
// out; with nothing left after them, the interactive session.
std::vector<char*> commandVector(int argc, char** argv)
{
    std::vector<char*> copy(argv, argv + (argc > 0 ? argc : 0));
    bool rewritten = false;
    if (startsWithProgramSelector(argc, argv)) {
        copy.erase(copy.begin() + 1, copy.begin() + 3);
        rewritten = true;
    } else if (argc > 1 && argumentEquals(argv[1], "-zek")) {
        copy.erase(copy.begin() + 1);
        rewritten = true;
    }
    static char interactiveWord[] = "interactive";
    if (rewritten && copy.size() == 1)
        copy.push_back(interactiveWord);
    return copy;
}

void reportParseFailure(Parser const& parser, int rc, std::string const& err)
{
    std::string const lead =
        rc == ZEKCLI_CONFIRM_FAIL ? std::string("(No action taken)") : "*** " + Parser::zekcliReturnToText(rc);
    parser.root.outError(lead + "\n    " + err);
}

// The host's line: what scripts leave to their caller (printing a parse
// failure, the hint when a keyword is missing, preferences and history) is
// done here.
int runHostLine(Parser& parser)
{
    std::string err;
    Parser::LineOutcome const outcome = parser.runCommandLine(err, 0);
    switch (outcome.step) {
    case Parser::LineStep::ParseFailed:
        reportParseFailure(parser, outcome.rc, err);
        return outcome.rc;
    case Parser::LineStep::HelpShown:
        if (outcome.rc != ZEKCLI_OK)
            parser.root.outError(err);
        return ZEKCLI_OK;
    case Parser::LineStep::NotReady:
        std::puts("Use \"-?\" on the command line for help");
        return ZEKCLI_OK;
    case Parser::LineStep::Executed:
        break;
    }
    // State reaches the disk only after a successful command.
    if (outcome.rc == ZEKCLI_OK)
        parser.save();
    parser.updateCommandHistory(outcome.rc, err);
    return outcome.rc;
}

} // namespace

size_t zekcli_safe_strnlen(char const* text, size_t maxLength)
{
    if (!text)
        return 0;
    size_t length = 0;
    while (length < maxLength && text[length] != '\0')
        ++length;
    return length;
}

bool zekcli_safe_strequal(char const* a, size_t aMax, char const* b, size_t bMax)
{
    size_t const length = zekcli_safe_strnlen(a, aMax);
    if (length != zekcli_safe_strnlen(b, bMax))
        return false;
    for (size_t i = 0; i < length; ++i)
        if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i])))
            return false;
    return true;
}

void zekcli_safe_strcpy(char* dst, size_t dstSize, char const* src, size_t srcLength)
{
    size_t const s = zekcli_safe_strnlen(src, srcLength);
    size_t const d = zekcli_safe_strnlen(dst, dstSize);
    if (!dst || !src || s < srcLength || d + s >= dstSize)
        return;
    std::strncpy(dst, src, srcLength);
}

void zekcli_safe_strcat(char* dst, size_t dstSize, char const* src, size_t srcLength)
{
    size_t const s = zekcli_safe_strnlen(src, srcLength);
    size_t const d = zekcli_safe_strnlen(dst, dstSize);
    if (!dst || !src || s > srcLength || d + s >= dstSize)
        return;
    std::strncat(dst, src, srcLength);
}

void signal_callback_handler(int signum)
{
    std::exit(signum);
}

void allDone(int status)
{
    zekcli_releaseResources();
    std::exit(status);
}

extern "C" {

int zekcli_initialize(char* hostPath)
{
    std::signal(SIGINT, signal_callback_handler);
    std::string directory = installDirectory(hostPath);
    setInstallDirectory(directory.data());
    InitializeHbaMgmtAPI();
    if (g_pHbaMgmtApi)
        g_pHbaMgmtApi->beginClientSession();
    if (IsVersionCompatible())
        return ZEKCLI_OK;
    reportIncompatibleLibrary();
    return ZEKCLI_INIT_FAIL;
}

int zekcli_isZekCommandLine(int argc, char const** argv)
{
    if (argc < 2 || !argv)
        return 0;
    if (startsWithProgramSelector(argc, argv))
        return 1;
    for (int i = 1; i < argc; ++i) {
        if (!argv[i])
            continue;
        std::string const keyword = keywordPart(argv[i]);
        if (argumentEquals(keyword.c_str(), "-zek") || argumentEquals(keyword.c_str(), "/zek"))
            return 1;
    }
    return 0;
}

int zekcli_runCommandLineInterface(int argc, char** argv)
{
    try {
        std::vector<char*> copy = commandVector(argc, argv);
        Parser parser;
        parser.getCommandLine(static_cast<int>(copy.size()), copy.data());
        parser.init();
        return runHostLine(parser);
    } catch (std::exception const& e) {
        // Nothing may escape into the host; say what went wrong instead.
        std::printf("*** %s\n    %s\n", Parser::zekcliReturnToText(ZEKCLI_CMD_FAIL).c_str(), e.what());
        return ZEKCLI_CMD_FAIL;
    }
}

int zekcli_releaseResources()
{
    if (g_pHbaMgmtApi)
        g_pHbaMgmtApi->endClientSession();
    return ReleaseHbaMgmtAPI();
}

} // extern "C"
