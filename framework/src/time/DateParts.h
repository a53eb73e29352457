// The parts of a date of automation, as pure functions.
#pragma once

#include <wtypes.h>

#include <ctime>

namespace quorfx
{

// The first day of year 100 and the day after the last of year 9999, as automation dates.
constexpr double FirstDate = -657434;
constexpr double EndOfDates = 2958466;

// Whether there is such a date and time in the years 100 to 9999.
bool IsDate(int year, int month, int day, int hour, int minute, int second);

// The parts of a date between the limits, rounded to the second, with the days of the week and of the year.
std::tm PartsOf(DATE date);

// A date as days on a straight scale, where the fraction always adds, and back.
double LinearOf(DATE date);
DATE DateOfLinear(double days);

} // namespace quorfx
