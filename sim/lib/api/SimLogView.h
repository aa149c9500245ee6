// A snapshot of an adapter log, from the adapter or from a saved log file.
#pragma once

#include "api/HLogView.h"
#include "model/San.h"

#include "records/KLogEntry.h"

#include <memory>
#include <vector>

namespace sim {

class SimLogView : public HLogView {
public:
    explicit SimLogView(std::vector<KLogEntry> entries) : entries_(std::move(entries)) {}

    static std::vector<KLogEntry> fromRecords(const std::vector<LogRecord>& records);
    // Null when the file is not a saved log.
    static std::unique_ptr<SimLogView> fromFile(const std::string& file);
    static bool save(const std::vector<KLogEntry>& entries, const std::string& file);

    unsigned getCount() override { return static_cast<unsigned>(entries_.size()); }
    bool getFirstEntry(KLogEntry& out) override { return getEntryAt(0, out); }
    bool getLastEntry(KLogEntry& out) override { return getEntryAt(static_cast<int>(entries_.size()) - 1, out); }
    bool getNextEntry(const KLogEntry& from, KLogEntry& out) override;
    bool getPreviousEntry(const KLogEntry& from, KLogEntry& out) override;
    bool getEntryAt(int index, KLogEntry& out) override;
    bool findByTime(PTime time, const KLogEntry& from, KLogEntry& out) override;
    bool findBySeverity(int32_t severity, int mode, const KLogEntry& from, KLogEntry& out) override;
    bool findByText(const std::string& text, const KLogEntry& from, KLogEntry& out) override;
    bool writeReport(const std::string& file) override;
    bool writeCsvFile(const std::string& file, const std::string& delimiter) override;

    const std::vector<KLogEntry>& entries() const { return entries_; }

private:
    int indexOf(const KLogEntry& entry) const;
    template <class Match>
    bool searchOlder(const KLogEntry& from, KLogEntry& out, Match&& match);
    bool writeLines(const std::string& file, const std::string& delimiter, bool csv);

    std::vector<KLogEntry> entries_;
};

} // namespace sim
