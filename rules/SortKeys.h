// How texts of cells are compared when rows are sorted: by numbers in them, as numbers, as dates.
#pragma once

#include <optional>
#include <string_view>

namespace QuorUiCtr
{

// Less than, equal to or greater than 0 as `first` stands before, with or behind `second` for people: digits
// that follow one another count as a number ("row 9" before "row 10"), letters without their case. Texts that
// differ in case or leading zeros only stand in the order of their character codes.
int CompareNatural(std::wstring_view first, std::wstring_view second);

// The number that a text begins with, behind spaces: sign, digits, "." and decimals, exponent; commas between
// groups of three digits are passed over, what follows is not read. Nothing for other texts. About 15 digits
// count.
std::optional<double> ReadNumber(std::wstring_view text);

// In which order the parts of a date stand.
enum class DateOrder
{
    MonthDayYear,
    DayMonthYear,
    YearMonthDay
};

// Seconds from the beginning of the year 0 to the date that a text begins with: three numbers with anything
// but digits between them, then maybe the time of the day, "13:05" or "13:05:09". A number of more than two
// digits at the front is the year, whatever `order` says; of two digits, 50 to 99 are years of the last
// century. Nothing for other texts and for days that no calendar has.
std::optional<long long> ReadMoment(std::wstring_view text, DateOrder order);

} // namespace QuorUiCtr
