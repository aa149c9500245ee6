#include "api/SimLogView.h"

#include "api/Fill.h"
#include "core/FileByName.h"
#include "state/StateStore.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace sim {

namespace {

// The adapter's log, copied when the view was made: later changes to the
// adapter do not reach a view already handed out.
class MemoryLogRecords final : public LogRecordSource {
public:
    explicit MemoryLogRecords(std::vector<KLogEntry> entries) : entries_(std::move(entries)) {}

    unsigned count() const override { return static_cast<unsigned>(entries_.size()); }
    bool read(unsigned index, KLogEntry& out) override
    {
        if (index >= entries_.size())
            return false;
        out = entries_[index];
        return true;
    }

private:
    std::vector<KLogEntry> entries_;
};

// A saved log: bare records of KLogEntry::SAVED_SIZE bytes, oldest first.
// The file stays open for the life of the view and is read one block of
// records at a time, so that a view of any size costs one block of memory
// and a walk in either direction reads each block once.
class SavedLogFile final : public LogRecordSource {
public:
    SavedLogFile(int fd, unsigned count) : fd_(fd), count_(count) {}
    ~SavedLogFile() override { close(); }
    SavedLogFile(const SavedLogFile&) = delete;
    SavedLogFile& operator=(const SavedLogFile&) = delete;

    void close() override
    {
        if (fd_ >= 0)
            ::close(fd_);
        fd_ = -1;
        count_ = 0;
        cachedBlock_ = kNoBlock;
    }

    unsigned count() const override { return count_; }

    bool read(unsigned index, KLogEntry& out) override
    {
        if (index >= count_ || !holdBlockOf(index))
            return false;
        out.init();
        out.restoreFrom(block_.data() + static_cast<size_t>(index % kBlockRecords) * KLogEntry::SAVED_SIZE);
        out.entryNumber = static_cast<int32_t>(index);
        return true;
    }

private:
    static constexpr unsigned kBlockRecords = 256;
    static constexpr unsigned kNoBlock = ~0u;

    bool holdBlockOf(unsigned index)
    {
        unsigned const blockNumber = index / kBlockRecords;
        if (blockNumber == cachedBlock_)
            return true;
        unsigned const first = blockNumber * kBlockRecords;
        unsigned const records = std::min(kBlockRecords, count_ - first);
        size_t const bytes = static_cast<size_t>(records) * KLogEntry::SAVED_SIZE;
        block_.resize(bytes);
        off_t const at = static_cast<off_t>(first) * static_cast<off_t>(KLogEntry::SAVED_SIZE);
        size_t done = 0;
        while (done < bytes) {
            ssize_t const n = ::pread(fd_, block_.data() + done, bytes - done, at + static_cast<off_t>(done));
            if (n < 0 && errno == EINTR)
                continue;
            if (n <= 0) {
                cachedBlock_ = kNoBlock; // the file shrank or failed since it was opened
                return false;
            }
            done += static_cast<size_t>(n);
        }
        cachedBlock_ = blockNumber;
        return true;
    }

    int fd_;
    unsigned count_;
    std::vector<unsigned char> block_;
    unsigned cachedBlock_ = kNoBlock;
};

std::string quoted(const std::string& file)
{
    return "\"" + file + "\"";
}

// The saved log at `file`, opened for reading, or -1 with the reason.
int openSavedLog(const std::string& file, unsigned& count, std::string& error)
{
    // Not blocking: a FIFO would wait for a writer before fstat could refuse it.
    int const fd = ::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        error = "cannot open saved log " + quoted(file) + ": " + std::strerror(errno);
        return -1;
    }
    struct stat st {};
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        error = quoted(file) + " is not a saved log: not a regular file";
    } else if (st.st_size % static_cast<off_t>(KLogEntry::SAVED_SIZE) != 0) {
        error = quoted(file) + " is not a saved log: " + std::to_string(st.st_size) +
            " bytes are not a whole number of " + std::to_string(KLogEntry::SAVED_SIZE) + "-byte records";
    } else if (st.st_size / static_cast<off_t>(KLogEntry::SAVED_SIZE) > 0x7FFFFFFF) {
        error = quoted(file) + " is not a saved log: too many records";
    } else {
        count = static_cast<unsigned>(st.st_size / static_cast<off_t>(KLogEntry::SAVED_SIZE));
        return fd;
    }
    ::close(fd);
    return -1;
}

} // namespace

std::unique_ptr<SimLogView> SimLogView::fromRecords(const std::vector<LogRecord>& records)
{
    std::vector<KLogEntry> entries(records.size());
    for (size_t i = 0; i < records.size(); ++i)
        fillLogEntry(records[i], static_cast<int>(i), entries[i]);
    return std::make_unique<SimLogView>(std::make_unique<MemoryLogRecords>(std::move(entries)));
}

std::unique_ptr<SimLogView> SimLogView::fromFile(const std::string& file, std::string& error)
{
    unsigned count = 0;
    int const fd = openSavedLog(file, count, error);
    if (fd < 0)
        return nullptr;
    return std::make_unique<SimLogView>(std::make_unique<SavedLogFile>(fd, count));
}

bool SimLogView::save(const std::string& file, std::string& error)
{
    unsigned const count = getCount();
    std::string bytes(static_cast<size_t>(count) * KLogEntry::SAVED_SIZE, '\0');
    KLogEntry entry;
    for (unsigned i = 0; i < count; ++i) {
        if (!source_->read(i, entry)) {
            error = "the log could not be read";
            return false;
        }
        entry.saveTo(reinterpret_cast<unsigned char*>(bytes.data()) + static_cast<size_t>(i) * KLogEntry::SAVED_SIZE);
    }
    return writeTextFileAtomically(file, bytes, error);
}

void SimLogView::close()
{
    source_->close();
}

int SimLogView::indexOf(const KLogEntry& entry)
{
    KLogEntry candidate;
    int const n = entry.entryNumber;
    if (n >= 0 && source_->read(static_cast<unsigned>(n), candidate) && candidate == entry)
        return n;
    // A record that did not come from this view: look for an equal one.
    unsigned const count = getCount();
    for (unsigned i = 0; i < count; ++i)
        if (source_->read(i, candidate) && candidate == entry)
            return static_cast<int>(i);
    return -1;
}

bool SimLogView::getEntryAt(int index, KLogEntry& out)
{
    return index >= 0 && source_->read(static_cast<unsigned>(index), out);
}

bool SimLogView::getNextEntry(const KLogEntry& from, KLogEntry& out)
{
    int const i = indexOf(from);
    return i >= 0 && getEntryAt(i + 1, out);
}

bool SimLogView::getPreviousEntry(const KLogEntry& from, KLogEntry& out)
{
    int const i = indexOf(from);
    return i > 0 && getEntryAt(i - 1, out);
}

template <class Match>
bool SimLogView::searchOlder(const KLogEntry& from, KLogEntry& out, Match&& match)
{
    KLogEntry candidate;
    for (int i = indexOf(from); i >= 0; --i) {
        if (!getEntryAt(i, candidate))
            return false;
        if (match(candidate)) {
            out = candidate;
            return true;
        }
    }
    return false;
}

bool SimLogView::findByTime(PTime time, const KLogEntry& from, KLogEntry& out)
{
    return searchOlder(from, out, [&](const KLogEntry& e) { return e.time <= time; });
}

bool SimLogView::findBySeverity(int32_t severity, int, const KLogEntry& from, KLogEntry& out)
{
    return searchOlder(from, out, [&](const KLogEntry& e) { return e.severity <= severity; });
}

bool SimLogView::findByText(const std::string& text, const KLogEntry& from, KLogEntry& out)
{
    return searchOlder(from, out, [&](const KLogEntry& e) { return e.messageContains(text); });
}

// A heading, then one line per record, oldest first; with a delimiter the
// fields are cut by it, else they are the record's own text.
bool SimLogView::writeLines(const std::string& file, const std::string& heading, const std::string* delimiter)
{
    std::string unwritable;
    FILE* f = file.empty() ? stdout : openFileByName(file, "w", unwritable);
    if (!f)
        return false;
    bool ok = std::fputs(heading.c_str(), f) >= 0;
    KLogEntry entry;
    unsigned const count = getCount();
    for (unsigned i = 0; ok && i < count; ++i) {
        ok = source_->read(i, entry);
        std::string const line = delimiter ? entry.displayDelimitedText(*delimiter) : entry.displayText();
        ok = ok && std::fputs(line.c_str(), f) >= 0;
    }
    if (f == stdout)
        return std::fflush(f) == 0 && ok;
    return std::fclose(f) == 0 && ok;
}

bool SimLogView::writeReport(const std::string& file)
{
    unsigned const count = getCount();
    return writeLines(
        file, "Event log report: " + std::to_string(count) + (count == 1 ? " record" : " records") + ", oldest first\n",
        nullptr);
}

bool SimLogView::writeCsvFile(const std::string& file, const std::string& delimiter)
{
    if (file.empty())
        return false;
    return writeLines(file, "Severity" + delimiter + "Time" + delimiter + "Source" + delimiter + "Message\n",
                      &delimiter);
}

} // namespace sim
