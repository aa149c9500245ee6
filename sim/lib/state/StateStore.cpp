#include "state/StateStore.h"

#include "model/DefaultSan.h"
#include "model/Scenario.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sim {

namespace {

std::string systemError(const std::string& what, const std::string& path)
{
    return what + " \"" + path + "\": " + std::strerror(errno);
}

// Holds the lock file open and locked for one scope.
class FileLock {
public:
    FileLock(const std::string& path, int mode) : fd_(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644))
    {
        if (fd_ < 0)
            return;
        while (::flock(fd_, mode) != 0) {
            if (errno != EINTR) {
                ::close(fd_);
                fd_ = -1;
                return;
            }
        }
    }
    ~FileLock()
    {
        if (fd_ >= 0)
            ::close(fd_); // closing releases the lock
    }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    bool held() const { return fd_ >= 0; }

private:
    int fd_;
};

bool makeParentDirectory(const std::string& path, std::string& error)
{
    auto slash = path.rfind('/');
    if (slash == std::string::npos || slash == 0)
        return true;
    std::string dir = path.substr(0, slash);
    struct stat st;
    if (::stat(dir.c_str(), &st) == 0)
        return true;
    if (!makeParentDirectory(dir, error))
        return false;
    if (::mkdir(dir.c_str(), 0755) != 0 && errno != EEXIST) {
        error = systemError("cannot create the directory", dir);
        return false;
    }
    return true;
}

// The exclusive lock that serialises every change of the state.
bool lockState(const std::string& path, std::unique_ptr<FileLock>& lock, std::string& error)
{
    lock = std::make_unique<FileLock>(path + ".lock", LOCK_EX);
    if (lock->held())
        return true;
    error = systemError("cannot lock", path + ".lock");
    return false;
}

bool fileExists(const std::string& path)
{
    struct stat st;
    return ::stat(path.c_str(), &st) == 0;
}

} // namespace

namespace {

std::string stampOf(const struct stat& st)
{
    return std::to_string(st.st_ino) + ":" + std::to_string(st.st_size) + ":" + std::to_string(st.st_mtim.tv_sec) +
        "." + std::to_string(st.st_mtim.tv_nsec);
}

// Reads a whole file; `stamp`, when given, gets the stamp of the very file
// read, not of whatever the path names a moment later.
bool readWholeFile(const std::string& path, std::string& text, std::string* stamp, std::string& error)
{
    int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        error = systemError("cannot open", path);
        return false;
    }
    text.clear();
    struct stat st;
    if (::fstat(fd, &st) == 0 && st.st_size > 0)
        text.reserve(static_cast<size_t>(st.st_size));
    char buf[65536];
    for (;;) {
        ssize_t n = ::read(fd, buf, sizeof buf);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0) {
            error = systemError("cannot read", path);
            ::close(fd);
            return false;
        }
        if (n == 0)
            break;
        text.append(buf, static_cast<size_t>(n));
    }
    if (stamp)
        *stamp = ::fstat(fd, &st) == 0 ? stampOf(st) : std::string();
    ::close(fd);
    return true;
}

} // namespace

bool readTextFile(const std::string& path, std::string& text, std::string& error)
{
    return readWholeFile(path, text, nullptr, error);
}

bool writeTextFileAtomically(const std::string& path, const std::string& text, std::string& error)
{
    if (!makeParentDirectory(path, error))
        return false;
    std::string temp = path + ".tmp." + std::to_string(::getpid());
    int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) {
        error = systemError("cannot create", temp);
        return false;
    }
    size_t done = 0;
    while (done < text.size()) {
        ssize_t n = ::write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0) {
            error = systemError("cannot write", temp);
            ::close(fd);
            ::unlink(temp.c_str());
            return false;
        }
        done += static_cast<size_t>(n);
    }
    // The data must be on disk before the rename makes it the state.
    if (::fsync(fd) != 0 || ::close(fd) != 0) {
        error = systemError("cannot write", temp);
        ::unlink(temp.c_str());
        return false;
    }
    if (::rename(temp.c_str(), path.c_str()) != 0) {
        error = systemError("cannot replace", path);
        ::unlink(temp.c_str());
        return false;
    }
    return true;
}

StateStore::StateStore(std::string path) : path_(std::move(path)) {}

std::string StateStore::defaultPath()
{
    const char* state = std::getenv("HBASIM_STATE");
    if (state && *state)
        return state;
    const char* home = std::getenv("HOME");
    std::string base = (home && *home) ? home : ".";
    return base + "/.hbasim/san.json";
}

std::string StateStore::stamp() const
{
    struct stat st;
    if (::stat(path_.c_str(), &st) != 0)
        return {};
    return stampOf(st);
}

bool StateStore::parse(const std::string& text, San& out, std::string& error) const
{
    return scenarioFromText(text, "simulator state file \"" + path_ + "\"", out, error);
}

bool StateStore::writeFile(const San& san, std::string& error) const
{
    return writeTextFileAtomically(path_, scenarioToText(san), error);
}

bool StateStore::ensureExists(std::string& error)
{
    if (fileExists(path_))
        return true;
    if (!makeParentDirectory(path_, error))
        return false;
    std::unique_ptr<FileLock> lock;
    if (!lockState(path_, lock, error))
        return false;
    if (fileExists(path_))
        return true; // another process made it while we waited
    return writeFile(defaultSan(), error);
}

bool StateStore::read(San& out, std::string& error)
{
    // The file is only ever replaced by rename, so a plain read is a whole
    // snapshot; no lock is needed once the file exists.
    std::string text;
    return ensureExists(error) && readTextFile(path_, text, error) && parse(text, out, error);
}

bool StateStore::read(Snapshot& out, std::string& error)
{
    return ensureExists(error) && readWholeFile(path_, out.text, &out.stamp, error) && parse(out.text, out.san, error);
}

bool StateStore::update(const std::function<bool(San&)>& change, std::string& error)
{
    return update(change, error, nullptr, nullptr);
}

bool StateStore::update(const std::function<bool(San&)>& change, std::string& error, const Snapshot* base,
                        Snapshot* written)
{
    if (!ensureExists(error))
        return false;
    std::unique_ptr<FileLock> lock;
    if (!lockState(path_, lock, error))
        return false;
    // Comparing the text, not the stamp, keeps a stale base out even when a
    // new file happens to get the old one's inode, size and time.
    std::string text;
    if (!readTextFile(path_, text, error))
        return false;
    San san;
    if (base && text == base->text)
        san = base->san;
    else if (!parse(text, san, error))
        return false;
    if (!change(san))
        return true;
    text = scenarioToText(san);
    if (!writeTextFileAtomically(path_, text, error))
        return false;
    std::string rule;
    if (written && validateSan(san, rule)) {
        written->stamp = stamp();
        written->text = std::move(text);
        written->san = std::move(san);
    }
    return true;
}

bool StateStore::replace(const San& san, std::string& error)
{
    if (!makeParentDirectory(path_, error))
        return false;
    std::unique_ptr<FileLock> lock;
    if (!lockState(path_, lock, error))
        return false;
    return writeFile(san, error);
}

} // namespace sim
