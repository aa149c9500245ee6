// Which records "list log" prints, and the walk that prints the newest of
// them oldest first without holding any: back from the newest record to the
// first one to print, then forwards, printing as it goes.
#pragma once

#include <functional>
#include <string>

class HLogView;
class KLogEntry;

class LogFilter {
public:
    // Text wins over severity: with a text the severity is not looked at.
    void matchText(std::string const& text);
    void matchSeverity(int severity);

    // Every record when neither is set; else a message that holds the text
    // (case-sensitively), or a severity at least as bad as the one given.
    bool matches(KLogEntry const& entry) const;

    // Takes one printed record; false when it could not be written.
    using Sink = std::function<bool(std::string const&)>;

    // Prints, oldest first, the newest `limit` + 1 matching records from
    // `newest` back (all of them when there are fewer). A `limit` of 0 or
    // less prints one. False as soon as the output fails.
    bool printNewest(HLogView& view, KLogEntry const& newest, long long limit, Sink const& sink) const;

private:
    // The oldest record to print: a match, or the oldest record of the log.
    void walkBack(HLogView& view, KLogEntry& entry, long long limit) const;

    bool byText = false;
    std::string text;
    bool bySeverity = false;
    int severity = 0;
};
