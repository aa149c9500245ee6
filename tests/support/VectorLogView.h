// An event log held in a vector, for tests of the walks over a log: it
// answers as a management library's view does, and counts the calls that
// tell how far a walk went.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "api/HLogView.h"
#include "records/KLogEntry.h"

class VectorLogView : public HLogView {
public:
    // Records with these severities, oldest first, message "record <index>".
    explicit VectorLogView(std::vector<int> const& severities)
    {
        for (int severity : severities) {
            KLogEntry entry;
            int const index = static_cast<int>(entries.size());
            entry.entryNumber = index;
            entry.severity = static_cast<KLogEntry::RAW_LOG_ENTRY_SEVERITY_TYPE>(severity);
            std::strcpy(entry.source, "test");
            std::strcpy(entry.message, ("record " + std::to_string(index)).c_str());
            entry.time.initFromPosixTime(1700000000 + 60L * index);
            entries.push_back(entry);
        }
    }

    unsigned getCount() override { return static_cast<unsigned>(entries.size()); }
    bool getFirstEntry(KLogEntry& out) override { return at(0, out); }
    bool getLastEntry(KLogEntry& out) override { return at(static_cast<int>(entries.size()) - 1, out); }
    bool getNextEntry(const KLogEntry& from, KLogEntry& out) override
    {
        ++moves;
        return at(from.entryNumber + 1, out);
    }
    bool getPreviousEntry(const KLogEntry& from, KLogEntry& out) override
    {
        ++moves;
        return from.entryNumber > 0 && at(from.entryNumber - 1, out);
    }
    bool getEntryAt(int index, KLogEntry& out) override
    {
        ++lookups;
        return at(index, out);
    }
    bool findByTime(PTime time, const KLogEntry& from, KLogEntry& out) override
    {
        return search(from, out, [&](KLogEntry const& e) { return e.time <= time; });
    }
    bool findBySeverity(int32_t severity, int, const KLogEntry& from, KLogEntry& out) override
    {
        return search(from, out, [&](KLogEntry const& e) { return e.severity <= severity; });
    }
    bool findByText(const std::string& text, const KLogEntry& from, KLogEntry& out) override
    {
        return search(from, out, [&](KLogEntry const& e) { return e.messageContains(text); });
    }
    bool writeReport(const std::string&) override { return false; }
    bool writeCsvFile(const std::string&, const std::string&) override { return false; }

    std::vector<KLogEntry> entries;
    int moves = 0;
    int lookups = 0;

private:
    bool at(int index, KLogEntry& out) const
    {
        if (index < 0 || index >= static_cast<int>(entries.size()))
            return false;
        out = entries[static_cast<size_t>(index)];
        return true;
    }

    template <class Match>
    bool search(KLogEntry const& from, KLogEntry& out, Match match)
    {
        for (int i = from.entryNumber; i >= 0; --i)
            if (match(entries[static_cast<size_t>(i)])) {
                out = entries[static_cast<size_t>(i)];
                return true;
            }
        return false;
    }
};
