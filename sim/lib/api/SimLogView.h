// A snapshot of an adapter log, from the adapter or from a saved log file.
#pragma once

#include "api/HLogView.h"
#include "model/San.h"

#include "records/KLogEntry.h"

#include <memory>
#include <string>
#include <vector>

namespace sim {

// Where the records of a view come from. Index 0 is the oldest record; a
// record read is numbered by its index, which is how the view finds it
// again when a caller hands it back.
class LogRecordSource {
public:
    virtual ~LogRecordSource() = default;
    virtual unsigned count() const = 0;
    virtual bool read(unsigned index, KLogEntry& out) = 0;
    // Lets go of what the records are read from; no record is left after.
    virtual void close() {}
};

class SimLogView : public HLogView {
public:
    explicit SimLogView(std::unique_ptr<LogRecordSource> source) : source_(std::move(source)) {}

    // The adapter's log as it stands now, copied.
    static std::unique_ptr<SimLogView> fromRecords(const std::vector<LogRecord>& records);
    // A saved log, read as the walk reaches it rather than all at once.
    // Null, with the reason in `error`, when the file is not a saved log.
    static std::unique_ptr<SimLogView> fromFile(const std::string& file, std::string& error);

    // Every record in the saved form, replacing the file whole or not at all.
    bool save(const std::string& file, std::string& error);
    // A file view stops reading its file: after this it holds no records.
    void close();

    unsigned getCount() override { return source_->count(); }
    bool getFirstEntry(KLogEntry& out) override { return getEntryAt(0, out); }
    bool getLastEntry(KLogEntry& out) override { return getEntryAt(static_cast<int>(getCount()) - 1, out); }
    bool getNextEntry(const KLogEntry& from, KLogEntry& out) override;
    bool getPreviousEntry(const KLogEntry& from, KLogEntry& out) override;
    bool getEntryAt(int index, KLogEntry& out) override;
    bool findByTime(PTime time, const KLogEntry& from, KLogEntry& out) override;
    bool findBySeverity(int32_t severity, int mode, const KLogEntry& from, KLogEntry& out) override;
    bool findByText(const std::string& text, const KLogEntry& from, KLogEntry& out) override;
    bool writeReport(const std::string& file) override;
    bool writeCsvFile(const std::string& file, const std::string& delimiter) override;

private:
    int indexOf(const KLogEntry& entry);
    template <class Match>
    bool searchOlder(const KLogEntry& from, KLogEntry& out, Match&& match);
    bool writeLines(const std::string& file, const std::string& heading, const std::string* delimiter);

    std::unique_ptr<LogRecordSource> source_;
};

} // namespace sim
