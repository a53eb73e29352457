// The parts of a date of automation.
#include "time/DateParts.h"

#include <cmath>

namespace
{

constexpr int SecondsPerDay = 24 * 3600;
// 30 December 1899, in days since 1 March of year 0.
constexpr int Epoch = 693899;
constexpr int DaysPer400Years = 146097;

bool IsLeap(int year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int DaysOfMonth(int year, int month)
{
    static const int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return days[month - 1] + (month == 2 && IsLeap(year) ? 1 : 0);
}

// Years that begin in March end with the leap day, so that the months before it need no correction.
int MarchDays(int year, int month, int day)
{
    const int marchYear = month > 2 ? year : year - 1;
    const int marchMonth = month > 2 ? month - 3 : month + 9;
    return 365 * marchYear + marchYear / 4 - marchYear / 100 + marchYear / 400 + (153 * marchMonth + 2) / 5 +
           day - 1;
}

void SetCalendarDay(std::tm& parts, int marchDays)
{
    const int era = marchDays / DaysPer400Years;
    const int day = marchDays % DaysPer400Years;
    const int year = (day - day / 1460 + day / 36524 - day / 146096) / 365;
    const int dayOfYear = day - (365 * year + year / 4 - year / 100);
    const int month = (5 * dayOfYear + 2) / 153;
    const int realMonth = month < 10 ? month + 3 : month - 9;
    const int realYear = era * 400 + year + (realMonth <= 2 ? 1 : 0);
    parts.tm_year = realYear - 1900;
    parts.tm_mon = realMonth - 1;
    parts.tm_mday = dayOfYear - (153 * month + 2) / 5 + 1;
    parts.tm_yday = marchDays - MarchDays(realYear, 1, 1);
    // 1 March of year 0 was a Wednesday.
    parts.tm_wday = (marchDays + 3) % 7;
}

} // namespace

namespace quorfx
{

bool IsDate(int year, int month, int day, int hour, int minute, int second)
{
    return year >= 100 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 &&
           day <= DaysOfMonth(year, month) && hour >= 0 && hour <= 23 && minute >= 0 && minute <= 59 &&
           second >= 0 && second <= 59;
}

std::tm PartsOf(DATE date)
{
    const double linear = LinearOf(date);
    double day = std::floor(linear);
    int second = static_cast<int>(std::lround((linear - day) * SecondsPerDay));
    // The last half second belongs to the next day, which the last day of all does not have.
    if (second == SecondsPerDay && day + 1 < EndOfDates)
    {
        second = 0;
        ++day;
    }
    else if (second == SecondsPerDay)
    {
        --second;
    }
    std::tm parts = {};
    SetCalendarDay(parts, static_cast<int>(day) + Epoch);
    parts.tm_hour = second / 3600;
    parts.tm_min = second / 60 % 60;
    parts.tm_sec = second % 60;
    return parts;
}

double LinearOf(DATE date)
{
    const double day = std::trunc(date);
    return day + std::fabs(date - day);
}

DATE DateOfLinear(double days)
{
    const double day = std::floor(days);
    return day >= 0 ? days : day - (days - day);
}

} // namespace quorfx
