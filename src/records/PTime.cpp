#include "records/PTime.h"

#include <cstdio>
#include <cstring>

namespace {

const char kNoClock[] = "**:**:**";
const char kNoDate[] = "**/**/****";
const char kNoDateAndClock[] = "**/**/**** **:**:**";

// snprintf into a small buffer; `fallback` when it gives nothing.
template <typename... Args>
std::string formattedOr(const char* fallback, const char* format, Args... args)
{
    char buffer[64];
    int n = snprintf(buffer, sizeof buffer, format, args...);
    return n > 0 ? std::string(buffer) : std::string(fallback);
}

} // namespace

PTime::PTime()
{
    init();
}

PTime::PTime(const PTime& other) : PBase()
{
    init();
    *this = other;
}

PTime& PTime::operator=(const PTime& other)
{
    init();
    posixTime = other.posixTime;
    return *this;
}

PTime::~PTime()
{
    init();
}

void PTime::init()
{
    initSerialization(nullptr, sizeof(PTime));
    posixTime = 0;
}

std::string PTime::displayText() const
{
    return displayGmt();
}

void PTime::initFromLocalTime()
{
    posixTime = time(nullptr);
}

void PTime::initFromLocalTimeStruct(tm* time)
{
    posixTime = time == nullptr ? 0 : mktime(time);
}

void PTime::initFromGmtTimeStruct(tm* time)
{
    posixTime = time == nullptr ? 0 : timegm(time);
}

void PTime::initFromPosixTime(long seconds)
{
    posixTime = seconds;
}

bool PTime::getGmtTimeInfo(tm& out) const
{
    time_t seconds = static_cast<time_t>(posixTime);
    return gmtime_r(&seconds, &out) != nullptr;
}

bool PTime::getLocalTimeInfo(tm& out) const
{
    time_t seconds = static_cast<time_t>(posixTime);
    return localtime_r(&seconds, &out) != nullptr;
}

bool PTime::isInsideMonthOfYear(BreakDown breakDown, int first, int last) const
{
    tm info;
    return (this->*breakDown)(info) && (info.tm_mon >= first || info.tm_mon <= last);
}

bool PTime::isInsideDayOfWeek(BreakDown breakDown, int first, int last) const
{
    tm info;
    return (this->*breakDown)(info) && (info.tm_wday >= first || info.tm_wday <= last);
}

bool PTime::isInsideTimeOfDay(BreakDown breakDown, int startHour, int startMin, int endHour, int endMin) const
{
    tm info;
    if (!(this->*breakDown)(info)) {
        return false;
    }
    int minuteOfDay = info.tm_hour * 60 + info.tm_min;
    return minuteOfDay >= startHour * 60 + startMin && minuteOfDay <= endHour * 60 + endMin;
}

bool PTime::isInsideGmtMonthOfYearInterval(int first, int last) const
{
    return isInsideMonthOfYear(&PTime::getGmtTimeInfo, first, last);
}

bool PTime::isInsideGmtDayOfWeekInterval(int first, int last) const
{
    return isInsideDayOfWeek(&PTime::getGmtTimeInfo, first, last);
}

bool PTime::isInsideGmtTimeOfDayInterval(int startHour, int startMin, int endHour, int endMin) const
{
    return isInsideTimeOfDay(&PTime::getGmtTimeInfo, startHour, startMin, endHour, endMin);
}

bool PTime::isInsideLocalMonthOfYearInterval(int first, int last) const
{
    return isInsideMonthOfYear(&PTime::getLocalTimeInfo, first, last);
}

bool PTime::isInsideLocalDayOfWeekInterval(int first, int last) const
{
    return isInsideDayOfWeek(&PTime::getLocalTimeInfo, first, last);
}

bool PTime::isInsideLocalTimeOfDayInterval(int startHour, int startMin, int endHour, int endMin) const
{
    return isInsideTimeOfDay(&PTime::getLocalTimeInfo, startHour, startMin, endHour, endMin);
}

std::string PTime::displayClock(BreakDown breakDown) const
{
    tm info;
    if (!(this->*breakDown)(info)) {
        return kNoClock;
    }
    return formattedOr(kNoClock, "%02d:%02d:%02d", info.tm_hour, info.tm_min, info.tm_sec);
}

std::string PTime::displayDate(BreakDown breakDown) const
{
    tm info;
    if (!(this->*breakDown)(info)) {
        return kNoDate;
    }
    return formattedOr(kNoDate, "%02d/%02d/%02d", info.tm_mon + 1, info.tm_mday, info.tm_year + 1900);
}

std::string PTime::displayLocalTime() const
{
    return displayClock(&PTime::getLocalTimeInfo);
}
std::string PTime::displayGmtTime() const
{
    return displayClock(&PTime::getGmtTimeInfo);
}
std::string PTime::displayLocalDate() const
{
    return displayDate(&PTime::getLocalTimeInfo);
}
std::string PTime::displayGmtDate() const
{
    return displayDate(&PTime::getGmtTimeInfo);
}

std::string PTime::displayGmt() const
{
    tm info;
    if (!getGmtTimeInfo(info)) {
        return kNoDateAndClock;
    }
    return formattedOr(kNoDateAndClock, "%02d/%02d/%02d %02d:%02d:%02d", info.tm_mon + 1, info.tm_mday,
                       info.tm_year + 1900, info.tm_hour, info.tm_min, info.tm_sec);
}

std::string PTime::displayLocal() const
{
    tm info;
    char buffer[64];
    if (!getLocalTimeInfo(info) || asctime_r(&info, buffer) == nullptr) {
        return kNoDateAndClock;
    }
    std::string text(buffer);
    if (!text.empty() && text.back() == '\n') {
        text.pop_back();
    }
    return text;
}

// The first line says "Router" and the second shows the local clock only;
// scripts that read this output expect exactly that.
std::string PTime::displayTextGmtAndLocal() const
{
    return "    Router GMT time: " + displayGmt() + "\n" + "         Local Time: " + displayLocalTime() + "\n";
}
