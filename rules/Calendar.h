// Days of the calendar.
#pragma once

namespace QuorUiCtr
{

// How many days a month has, 1 to 12, by the rules for leap years of today.
constexpr int DaysOf(int year, int month)
{
    constexpr int Days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool isLeapYear = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return month == 2 && isLeapYear ? 29 : Days[month - 1];
}

} // namespace QuorUiCtr
