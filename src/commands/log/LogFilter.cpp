#include "commands/log/LogFilter.h"

#include "api/HLogView.h"
#include "records/KLogEntry.h"

namespace {

// Counts a match against the limit: true when it is the last one wanted.
bool lastWanted(long long& limit)
{
    return limit-- <= 0;
}

} // namespace

void LogFilter::matchText(std::string const& wanted)
{
    byText = true;
    text = wanted;
}

void LogFilter::matchSeverity(int worst)
{
    bySeverity = true;
    severity = worst;
}

bool LogFilter::matches(KLogEntry const& entry) const
{
    if (byText)
        return entry.messageContains(text);
    if (bySeverity)
        return entry.severity <= severity;
    return true;
}

void LogFilter::walkBack(HLogView& view, KLogEntry& entry, long long limit) const
{
    for (;;) {
        if (matches(entry) && lastWanted(limit))
            return;
        KLogEntry const from = entry;
        if (!view.getPreviousEntry(from, entry)) {
            view.getFirstEntry(entry);
            return;
        }
    }
}

bool LogFilter::printNewest(HLogView& view, KLogEntry const& newest, long long limit, Sink const& sink) const
{
    KLogEntry entry = newest;
    walkBack(view, entry, limit);
    for (;;) {
        if (matches(entry)) {
            if (!sink(entry.displayText()))
                return false;
            if (lastWanted(limit))
                return true;
        }
        KLogEntry const from = entry;
        if (!view.getNextEntry(from, entry))
            return true;
    }
}
