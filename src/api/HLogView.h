// A view of an adapter's event log, fetched from the adapter by loadLog or
// read from a saved file. Index 0 is the oldest record; "previous" goes
// towards older records, "next" towards newer ones.
//
// Slot order matters (see HbaMgmtApi.h). This interface has no reserved
// head, so its destructor is declared last, behind the operations.
#pragma once

#include <cstdint>
#include <string>

#include "api/ApiForward.h"

class HLogView {
public:
    virtual unsigned getCount() = 0;
    virtual bool getFirstEntry(KLogEntry& out) = 0;
    virtual bool getLastEntry(KLogEntry& out) = 0;
    // False at the end of the log.
    virtual bool getNextEntry(const KLogEntry& from, KLogEntry& out) = 0;
    virtual bool getPreviousEntry(const KLogEntry& from, KLogEntry& out) = 0;
    virtual bool getEntryAt(int index, KLogEntry& out) = 0;
    // The searches go towards older records, starting at `from`.
    virtual bool findByTime(PTime time, const KLogEntry& from, KLogEntry& out) = 0;
    // `severity` is a KLogEntry::RAW_LOG_ENTRY_SEVERITY_TYPE value; a match
    // is a record of that severity or a worse one. Callers pass 1 as `mode`.
    virtual bool findBySeverity(int32_t severity, int mode, const KLogEntry& from, KLogEntry& out) = 0;
    virtual bool findByText(const std::string& text, const KLogEntry& from, KLogEntry& out) = 0;
    // An empty name means the console.
    virtual bool writeReport(const std::string& file) = 0;
    virtual bool writeCsvFile(const std::string& file, const std::string& delimiter) = 0;

    virtual ~HLogView() = default;
};
