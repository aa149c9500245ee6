// A point in time, kept as seconds in the manner of time_t. The image is the
// same on both sides of the library boundary; nothing of it is saved.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>

#include "records/PBase.h"

class PTime : public PBase {
public:
    PTime();
    PTime(const PTime& other);
    PTime& operator=(const PTime& other);
    ~PTime() override;

    void init() override;
    std::string displayText() const override;

    void initFromLocalTime();
    void initFromLocalTimeStruct(tm* time);
    void initFromGmtTimeStruct(tm* time);
    void initFromPosixTime(long seconds);
    int64_t getPosixTime() const { return posixTime; }

    bool operator==(const PTime& other) const { return posixTime == other.posixTime; }
    bool operator!=(const PTime& other) const { return posixTime != other.posixTime; }
    bool operator<(const PTime& other) const { return posixTime < other.posixTime; }
    bool operator>(const PTime& other) const { return posixTime > other.posixTime; }
    bool operator<=(const PTime& other) const { return posixTime <= other.posixTime; }
    bool operator>=(const PTime& other) const { return posixTime >= other.posixTime; }

    bool getGmtTimeInfo(tm& out) const;
    bool getLocalTimeInfo(tm& out) const;

    // Meant for intervals that wrap around the year (or week): a month is
    // inside when it is at least `first` OR at most `last`.
    bool isInsideGmtMonthOfYearInterval(int first, int last) const;
    bool isInsideGmtDayOfWeekInterval(int first, int last) const;
    bool isInsideGmtTimeOfDayInterval(int startHour, int startMin, int endHour, int endMin) const;
    bool isInsideLocalMonthOfYearInterval(int first, int last) const;
    bool isInsideLocalDayOfWeekInterval(int first, int last) const;
    bool isInsideLocalTimeOfDayInterval(int startHour, int startMin, int endHour, int endMin) const;

    std::string displayLocalTime() const;
    std::string displayGmtTime() const;
    std::string displayLocalDate() const;
    std::string displayGmtDate() const;
    std::string displayGmt() const;
    std::string displayLocal() const;
    std::string displayTextGmtAndLocal() const;

private:
    using BreakDown = bool (PTime::*)(tm&) const;

    bool isInsideMonthOfYear(BreakDown breakDown, int first, int last) const;
    bool isInsideDayOfWeek(BreakDown breakDown, int first, int last) const;
    bool isInsideTimeOfDay(BreakDown breakDown, int startHour, int startMin, int endHour, int endMin) const;
    std::string displayClock(BreakDown breakDown) const;
    std::string displayDate(BreakDown breakDown) const;

    int64_t posixTime;
};

static_assert(sizeof(PTime) == 32, "time image");
