// The adapter's event log in the model: how records are added, how much of
// it the adapter keeps, and how severities are named.
#pragma once

#include "model/San.h"

#include <string>

namespace sim {

// An adapter keeps this many records and drops the oldest beyond them. Logs
// written into a scenario are taken whole, however long.
inline constexpr size_t kAdapterLogCapacity = 2000;

// Appends `count` copies of one record at `now`, then drops what the
// adapter no longer keeps.
void appendLogRecords(Adapter& a, long long now, int severity, const std::string& source, const std::string& message,
                      long long count = 1);

// Drops the oldest records beyond what the adapter keeps.
void keepNewestLogRecords(Adapter& a);

// A severity by its word ("fatal", "error", ... as the command line writes
// them, whole) or by its number, which may lie outside the table. False for
// anything else.
bool severityFromText(const std::string& text, int& severity);

// Gives every adapter of `san` a synthetic log of `records` records, newest
// at `now`.
void replaceLogs(San& san, long long now, int records);

} // namespace sim
