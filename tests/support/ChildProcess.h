// Test helper: runs a piece of code in a forked child and collects its exit
// status and everything it wrote, so that code which ends the process can
// be tested for its exact words and status. Used by the unit tests only.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

struct ChildOutcome {
    bool exited = false; // false when the child died by a signal
    int status = -1;
    std::string out;
    std::string err;
};

inline std::string readAllFrom(int fd)
{
    std::string text;
    char buffer[4096];
    ssize_t n;
    while ((n = read(fd, buffer, sizeof buffer)) > 0)
        text.append(buffer, static_cast<size_t>(n));
    return text;
}

// The child's output goes to temporary files rather than pipes, so a child
// that writes much can never block on a full pipe.
inline ChildOutcome runInChild(const std::function<void()>& body)
{
    ChildOutcome outcome;
    std::FILE* outFile = std::tmpfile();
    std::FILE* errFile = std::tmpfile();
    if (outFile == nullptr || errFile == nullptr)
        return outcome;
    std::fflush(stdout);
    std::fflush(stderr);
    pid_t pid = fork();
    if (pid == 0) {
        dup2(fileno(outFile), STDOUT_FILENO);
        dup2(fileno(errFile), STDERR_FILENO);
        body();
        std::fflush(stdout);
        std::fflush(stderr);
        _exit(250); // the body was expected to end the process itself
    }
    int wstatus = 0;
    waitpid(pid, &wstatus, 0);
    outcome.exited = WIFEXITED(wstatus);
    outcome.status = outcome.exited ? WEXITSTATUS(wstatus) : -1;
    std::rewind(outFile);
    std::rewind(errFile);
    outcome.out = readAllFrom(fileno(outFile));
    outcome.err = readAllFrom(fileno(errFile));
    std::fclose(outFile);
    std::fclose(errFile);
    return outcome;
}
