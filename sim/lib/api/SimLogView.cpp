#include "api/SimLogView.h"

#include "api/Fill.h"

#include <cstdio>
#include <cstring>
#include <memory>

namespace sim {

std::vector<KLogEntry> SimLogView::fromRecords(const std::vector<LogRecord>& records)
{
    std::vector<KLogEntry> entries(records.size());
    for (size_t i = 0; i < records.size(); ++i)
        fillLogEntry(records[i], static_cast<int>(i), entries[i]);
    return entries;
}

std::unique_ptr<SimLogView> SimLogView::fromFile(const std::string& file)
{
    FILE* f = std::fopen(file.c_str(), "rb");
    if (!f)
        return nullptr;
    std::vector<KLogEntry> entries;
    for (;;) {
        KLogEntry entry;
        size_t n = entry.restore(f);
        if (n == 0)
            break;
        if (n != KLogEntry::SAVED_SIZE) {
            std::fclose(f);
            return nullptr; // a torn record: not a saved log
        }
        entry.entryNumber = static_cast<int32_t>(entries.size());
        entries.push_back(entry);
    }
    std::fclose(f);
    return std::make_unique<SimLogView>(std::move(entries));
}

bool SimLogView::save(const std::vector<KLogEntry>& entries, const std::string& file)
{
    FILE* f = std::fopen(file.c_str(), "wb");
    if (!f)
        return false;
    bool ok = true;
    for (const KLogEntry& e : entries)
        ok = ok && const_cast<KLogEntry&>(e).save(f) == KLogEntry::SAVED_SIZE;
    return std::fclose(f) == 0 && ok;
}

int SimLogView::indexOf(const KLogEntry& entry) const
{
    int n = entry.entryNumber;
    if (n >= 0 && n < static_cast<int>(entries_.size()) && entries_[static_cast<size_t>(n)] == entry)
        return n;
    for (size_t i = 0; i < entries_.size(); ++i)
        if (entries_[i] == entry)
            return static_cast<int>(i);
    return -1;
}

bool SimLogView::getEntryAt(int index, KLogEntry& out)
{
    if (index < 0 || index >= static_cast<int>(entries_.size()))
        return false;
    out = entries_[static_cast<size_t>(index)];
    return true;
}

bool SimLogView::getNextEntry(const KLogEntry& from, KLogEntry& out)
{
    int i = indexOf(from);
    return i >= 0 && getEntryAt(i + 1, out);
}

bool SimLogView::getPreviousEntry(const KLogEntry& from, KLogEntry& out)
{
    int i = indexOf(from);
    return i > 0 && getEntryAt(i - 1, out);
}

template <class Match>
bool SimLogView::searchOlder(const KLogEntry& from, KLogEntry& out, Match&& match)
{
    for (int i = indexOf(from); i >= 0; --i)
        if (match(entries_[static_cast<size_t>(i)]))
            return getEntryAt(i, out);
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
    return searchOlder(from, out, [&](const KLogEntry& e) { return std::strstr(e.message, text.c_str()) != nullptr; });
}

bool SimLogView::writeLines(const std::string& file, const std::string& delimiter, bool csv)
{
    FILE* f = file.empty() ? stdout : std::fopen(file.c_str(), "w");
    if (!f)
        return false;
    bool ok = true;
    for (const KLogEntry& e : entries_) {
        std::string line = csv ? e.displayDelimitedText(delimiter) : e.displayText();
        ok = ok && std::fputs(line.c_str(), f) >= 0;
    }
    if (f == stdout)
        return std::fflush(f) == 0 && ok;
    return std::fclose(f) == 0 && ok;
}

bool SimLogView::writeReport(const std::string& file)
{
    return writeLines(file, " ", false);
}

bool SimLogView::writeCsvFile(const std::string& file, const std::string& delimiter)
{
    if (file.empty())
        return false;
    return writeLines(file, delimiter, true);
}

} // namespace sim
