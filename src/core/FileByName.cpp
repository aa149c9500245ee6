#include "core/FileByName.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct OpenRequest {
    int flags = 0;
    bool reading = false;
    bool writing = false;
};

OpenRequest requestFor(std::string const& mode)
{
    OpenRequest request;
    bool const update = mode.find('+') != std::string::npos;
    char const kind = mode.empty() ? 'r' : mode[0];
    request.reading = kind == 'r' || update;
    request.writing = kind != 'r' || update;
    request.flags = request.reading && request.writing ? O_RDWR : request.writing ? O_WRONLY : O_RDONLY;
    if (kind == 'w')
        request.flags |= O_CREAT | O_TRUNC;
    if (kind == 'a')
        request.flags |= O_CREAT | O_APPEND;
    return request;
}

// A file only read must hold a fixed number of bytes; one also written may be
// a sink such as /dev/null or a pipe with a reader (the open would have failed
// without one).
bool isUsable(struct stat const& status, OpenRequest const& request)
{
    if (S_ISREG(status.st_mode))
        return true;
    if (!request.writing || request.reading)
        return false;
    return S_ISCHR(status.st_mode) || S_ISFIFO(status.st_mode);
}

std::string refusal(struct stat const& status)
{
    if (S_ISDIR(status.st_mode))
        return std::strerror(EISDIR);
    return "Not a regular file";
}

} // namespace

std::FILE* openFileByName(std::string const& path, std::string const& mode, std::string& reason)
{
    OpenRequest const request = requestFor(mode);
    int const fd = ::open(path.c_str(), request.flags | O_NONBLOCK | O_CLOEXEC, 0666);
    if (fd < 0) {
        struct stat status {};
        // ENXIO from a FIFO means nobody reads it: say that, not "no device".
        if (errno == ENXIO && ::stat(path.c_str(), &status) == 0 && S_ISFIFO(status.st_mode))
            reason = "No process reads the pipe";
        else
            reason = std::strerror(errno);
        return nullptr;
    }
    struct stat status {};
    if (::fstat(fd, &status) != 0 || !isUsable(status, request)) {
        reason = refusal(status);
        ::close(fd);
        return nullptr;
    }
    // Blocking again from here: a pipe with a reader is written at its pace.
    ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) & ~O_NONBLOCK);
    std::FILE* const file = ::fdopen(fd, mode.c_str());
    if (!file) {
        reason = std::strerror(errno);
        ::close(fd);
    }
    return file;
}
