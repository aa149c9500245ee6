#include "state/StateStore.h"

#include "model/DefaultSan.h"
#include "model/Scenario.h"

#include "core/FileByName.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
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

// The process number a temporary file is named after; only plain digits.
bool pidOfName(const std::string& digits, pid_t& out)
{
    if (digits.empty() || digits.size() > 9 || digits.find_first_not_of("0123456789") != std::string::npos)
        return false;
    out = static_cast<pid_t>(std::stol(digits));
    return out > 0;
}

bool processExists(pid_t pid)
{
    // EPERM: it exists, it is merely someone else's.
    return ::kill(pid, 0) == 0 || errno != ESRCH;
}

std::string stampOf(const struct stat& st)
{
    return std::to_string(st.st_ino) + ":" + std::to_string(st.st_size) + ":" + std::to_string(st.st_mtim.tv_sec) +
        "." + std::to_string(st.st_mtim.tv_nsec);
}

// Anything larger is no file of ours, and reading it whole would only
// exhaust memory.
constexpr off_t kLargestFile = off_t{256} << 20;

// Only a regular file of a sane size is read: a FIFO would block for ever and
// a device such as /dev/zero never ends. `name` says what the file is for.
bool checkReadable(int fd, const std::string& name, struct stat& st, std::string& error)
{
    if (::fstat(fd, &st) != 0) {
        error = std::string("cannot read ") + name + ": " + std::strerror(errno);
        return false;
    }
    if (!S_ISREG(st.st_mode)) {
        error = name + " is not a regular file";
        return false;
    }
    if (st.st_size > kLargestFile) {
        error = name + " is larger than 256 MiB";
        return false;
    }
    return true;
}

// Reads up to the limit; a file that grew past it since the check is refused.
bool readUpToLimit(int fd, const std::string& path, const std::string& name, std::string& text, std::string& error)
{
    char buf[65536];
    for (;;) {
        ssize_t n = ::read(fd, buf, sizeof buf);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0) {
            error = systemError("cannot read", path);
            return false;
        }
        if (n == 0)
            return true;
        if (text.size() + static_cast<size_t>(n) > static_cast<size_t>(kLargestFile)) {
            error = name + " is larger than 256 MiB";
            return false;
        }
        text.append(buf, static_cast<size_t>(n));
    }
}

// Reads a whole file; `stamp`, when given, gets the stamp of the very file
// read, not of whatever the path names a moment later.
bool readWholeFile(const std::string& path, const std::string& name, std::string& text, std::string* stamp,
                   std::string& error)
{
    // Not blocking: opening a FIFO for reading would wait for a writer.
    int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        error = systemError("cannot open", path);
        return false;
    }
    text.clear();
    struct stat st;
    bool ok = checkReadable(fd, name, st, error);
    if (ok) {
        text.reserve(static_cast<size_t>(st.st_size));
        ok = readUpToLimit(fd, path, name, text, error);
    }
    if (ok && stamp)
        *stamp = ::fstat(fd, &st) == 0 ? stampOf(st) : std::string();
    ::close(fd);
    return ok;
}

std::string quoted(const std::string& path)
{
    return "\"" + path + "\"";
}

} // namespace

bool readTextFile(const std::string& path, std::string& text, std::string& error)
{
    return readWholeFile(path, quoted(path), text, nullptr, error);
}

namespace {

// The bytes go to a temporary file beside `target` first, which is then
// renamed over it: readers see the old file or the new one, never half.
bool replaceByRename(const std::string& target, const std::string& path, const std::string& text, std::string& error)
{
    if (!makeParentDirectory(target, error))
        return false;
    // The temporary name is ours, not the user's: messages name `path`.
    std::string temp = target + ".tmp." + std::to_string(::getpid());
    int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) {
        error = systemError("cannot write", path);
        return false;
    }
    size_t done = 0;
    while (done < text.size()) {
        ssize_t n = ::write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0) {
            error = systemError("cannot write", path);
            ::close(fd);
            ::unlink(temp.c_str());
            return false;
        }
        done += static_cast<size_t>(n);
    }
    // The data must be on disk before the rename makes it the state.
    if (::fsync(fd) != 0 || ::close(fd) != 0) {
        error = systemError("cannot write", path);
        ::unlink(temp.c_str());
        return false;
    }
    if (::rename(temp.c_str(), target.c_str()) != 0) {
        error = systemError("cannot replace", path);
        ::unlink(temp.c_str());
        return false;
    }
    return true;
}

// A device, or a pipe that has a reader, takes the bytes where it is:
// renaming a file over it would destroy it (as root, even /dev/null).
bool writeInPlace(const std::string& target, const std::string& path, const std::string& text, std::string& error)
{
    std::string reason;
    FILE* file = openFileByName(target, "w", reason);
    if (!file) {
        error = "cannot write " + quoted(path) + ": " + reason;
        return false;
    }
    bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    written = std::fclose(file) == 0 && written;
    if (!written)
        error = systemError("cannot write", path);
    return written;
}

} // namespace

std::string writeTargetOf(const std::string& path)
{
    std::string target = path;
    // As many links as the system itself would follow.
    for (int depth = 0; depth < 40; ++depth) {
        struct stat st;
        if (::lstat(target.c_str(), &st) != 0 || !S_ISLNK(st.st_mode))
            return target;
        std::string link(4096, '\0');
        ssize_t const n = ::readlink(target.c_str(), link.data(), link.size());
        if (n <= 0)
            return target;
        link.resize(static_cast<size_t>(n));
        auto const slash = target.rfind('/');
        target = link[0] == '/' || slash == std::string::npos ? link : target.substr(0, slash + 1) + link;
    }
    return target;
}

bool writeTextFileAtomically(const std::string& path, const std::string& text, std::string& error)
{
    std::string const target = writeTargetOf(path);
    struct stat st;
    if (::stat(target.c_str(), &st) != 0 || S_ISREG(st.st_mode))
        return replaceByRename(target, path, text, error);
    if (S_ISDIR(st.st_mode)) {
        errno = EISDIR;
        error = systemError("cannot write", path);
        return false;
    }
    return writeInPlace(target, path, text, error);
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

std::string StateStore::name() const
{
    return "simulator state file " + quoted(path_);
}

bool StateStore::readText(std::string& text, std::string* stamp, std::string& error) const
{
    return readWholeFile(path_, name(), text, stamp, error);
}

bool StateStore::parse(const std::string& text, San& out, std::string& error) const
{
    return scenarioFromText(text, name(), out, error);
}

bool StateStore::writeFile(const San& san, std::string& error) const
{
    return writeText(scenarioToText(san), error);
}

bool StateStore::writeText(const std::string& text, std::string& error) const
{
    removeStaleTemporaries();
    return writeTextFileAtomically(path_, text, error);
}

// A writer killed between creating its temporary file and the rename leaves
// that file behind. Every write happens under the lock, so the next writer
// can tell: a temporary file whose process is gone will never be renamed.
void StateStore::removeStaleTemporaries() const
{
    std::string const target = writeTargetOf(path_);
    auto slash = target.rfind('/');
    std::string dir = slash == std::string::npos ? "." : slash == 0 ? "/" : target.substr(0, slash);
    std::string prefix = target.substr(slash == std::string::npos ? 0 : slash + 1) + ".tmp.";
    DIR* d = ::opendir(dir.c_str());
    if (!d)
        return;
    while (const dirent* entry = ::readdir(d)) {
        std::string file = entry->d_name;
        pid_t writer;
        if (file.compare(0, prefix.size(), prefix) == 0 && pidOfName(file.substr(prefix.size()), writer) &&
            !processExists(writer))
            ::unlink((dir + "/" + file).c_str());
    }
    ::closedir(d);
}

bool StateStore::ensureExists(std::string& error)
{
    if (fileExists(path_))
        return true;
    if (!makeParentDirectory(path_, error))
        return false;
    std::unique_ptr<FileLock> lock;
    if (!lockState(writeTargetOf(path_), lock, error))
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
    return ensureExists(error) && readText(text, nullptr, error) && parse(text, out, error);
}

bool StateStore::read(Snapshot& out, std::string& error)
{
    return ensureExists(error) && readText(out.text, &out.stamp, error) && parse(out.text, out.san, error);
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
    if (!lockState(writeTargetOf(path_), lock, error))
        return false;
    // Comparing the text, not the stamp, keeps a stale base out even when a
    // new file happens to get the old one's inode, size and time.
    std::string text;
    if (!readText(text, nullptr, error))
        return false;
    San san;
    if (base && text == base->text)
        san = base->san;
    else if (!parse(text, san, error))
        return false;
    if (!change(san))
        return true;
    text = scenarioToText(san);
    if (!writeText(text, error))
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
    if (!lockState(writeTargetOf(path_), lock, error))
        return false;
    return writeFile(san, error);
}

} // namespace sim
