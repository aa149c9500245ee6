#include "commands/log/LogPager.h"

#include <cctype>
#include <climits>
#include <utility>

#include "api/HLogView.h"

namespace {

constexpr long long kDefaultPageLength = 20;

char const* const kPageLead = "\n\n";
char const* const kStartOfLog = "Start_of_Log\n\n";
char const* const kEndOfLog = "End_of_Log\n\n";

} // namespace

LogPager::LogPager(HLogView& view, long long count, Sink sink) : view(view), count(count), sink(std::move(sink)) {}

bool LogPager::startAt(long long position)
{
    position_ = position;
    return position >= 0 && position <= INT_MAX && view.getEntryAt(static_cast<int>(position), current);
}

bool LogPager::showFromCurrent(long long records, bool countPosition)
{
    for (long long shown = 0; shown < records; ++shown) {
        pending += current.displayText();
        bool const written = sink(pending);
        pending.clear();
        if (!written)
            return false;
        KLogEntry const from = current;
        if (!view.getNextEntry(from, current))
            return sink(kEndOfLog);
        if (countPosition)
            ++position_;
    }
    return true;
}

bool LogPager::forward(long long next)
{
    pending = kPageLead;
    return showFromCurrent(next < count - position_ ? next : count - position_, true);
}

bool LogPager::backward(long long previous)
{
    pending = kPageLead;
    if (previous > position_)
        previous = position_;
    if (previous <= 0)
        return true;
    for (long long step = 0; step < previous; ++step) {
        KLogEntry const from = current;
        if (!view.getPreviousEntry(from, current)) {
            if (!sink(kStartOfLog))
                return false;
            break;
        }
        --position_;
    }
    return showFromCurrent(previous, false);
}

long long rememberedPageLength(std::string const& previousValue)
{
    long long const length = leadingNumber(previousValue) - 1;
    return length == 0 || previousValue.empty() ? kDefaultPageLength : length;
}

long long leadingNumber(std::string const& text)
{
    size_t at = 0;
    while (at < text.size() && std::isspace(static_cast<unsigned char>(text[at])))
        ++at;
    bool negative = false;
    if (at < text.size() && (text[at] == '-' || text[at] == '+'))
        negative = text[at++] == '-';
    long long magnitude = 0;
    for (; at < text.size() && std::isdigit(static_cast<unsigned char>(text[at])); ++at) {
        magnitude = magnitude * 10 + (text[at] - '0');
        if (magnitude > static_cast<long long>(INT_MAX) + 1)
            magnitude = static_cast<long long>(INT_MAX) + 1; // held, so that no length of digits overflows
    }
    long long const value = negative ? -magnitude : magnitude;
    return value > INT_MAX ? INT_MAX : value;
}
