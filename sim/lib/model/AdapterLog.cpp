#include "model/AdapterLog.h"

#include "model/DefaultSan.h"

#include <cerrno>
#include <climits>
#include <cstdlib>

namespace sim {

namespace {

// The words of the severities 0 to 7; a lower number is worse.
const char* const kSeverityWords[] = {"unknown", "fatal", "error", "warning", "trace", "info", "debug", "system"};

} // namespace

void appendLogRecords(Adapter& a, long long now, int severity, const std::string& source, const std::string& message,
                      long long count)
{
    // Only what the adapter will keep is added.
    long long const kept =
        count < static_cast<long long>(kAdapterLogCapacity) ? count : static_cast<long long>(kAdapterLogCapacity);
    for (long long i = 0; i < kept; ++i)
        a.log.push_back({now, severity, source, message});
    keepNewestLogRecords(a);
}

void keepNewestLogRecords(Adapter& a)
{
    if (a.log.size() > kAdapterLogCapacity)
        a.log.erase(a.log.begin(), a.log.end() - static_cast<std::ptrdiff_t>(kAdapterLogCapacity));
}

bool severityFromText(const std::string& text, int& severity)
{
    for (int i = 0; i < static_cast<int>(std::size(kSeverityWords)); ++i)
        if (text == kSeverityWords[i]) {
            severity = i;
            return true;
        }
    if (text.empty())
        return false;
    char* end = nullptr;
    errno = 0;
    long long const value = std::strtoll(text.c_str(), &end, 10);
    if (*end != '\0' || errno == ERANGE || value < INT_MIN || value > INT_MAX)
        return false;
    severity = static_cast<int>(value);
    return true;
}

void replaceLogs(San& san, long long now, int records)
{
    for (Adapter& a : san.adapters)
        a.log = makeLog(now, records);
}

} // namespace sim
