// Natural order, and numbers and dates at the beginning of texts.
#include "rules/SortKeys.h"

#include "rules/Calendar.h"
#include "rules/Digits.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cwctype>

namespace QuorUiCtr
{
namespace
{

// How many digits a text begins with.
std::size_t DigitsAt(std::wstring_view text)
{
    std::size_t number = 0;
    while (number < text.size() && IsDecimalDigit(text[number]))
        ++number;
    return number;
}

std::size_t SpacesAt(std::wstring_view text)
{
    std::size_t number = 0;
    while (number < text.size() && std::iswspace(static_cast<std::wint_t>(text[number])) != 0)
        ++number;
    return number;
}

// Takes the digits off that both texts begin with and compares them as numbers of any length.
int CompareDigits(std::wstring_view& first, std::wstring_view& second)
{
    const auto take = [](std::wstring_view& text) {
        std::wstring_view digits = text.substr(0, DigitsAt(text));
        text.remove_prefix(digits.size());
        digits.remove_prefix((std::min)(digits.find_first_not_of(L'0'), digits.size()));
        return digits;
    };
    const std::wstring_view left = take(first);
    const std::wstring_view right = take(second);
    if (left.size() != right.size())
        return left.size() < right.size() ? -1 : 1;
    return left.compare(right);
}

std::wint_t WithoutCase(wchar_t character)
{
    return std::towlower(static_cast<std::wint_t>(character));
}

// The digits of a number as one, and the power of ten that it is to be multiplied with.
struct Digits
{
    void Add(wchar_t digit, bool isDecimal)
    {
        constexpr unsigned long long Full = 100'000'000'000'000'000ULL;
        any = true;
        const bool counts = value < Full;
        if (counts)
            value = value * 10 + static_cast<unsigned>(digit - L'0');
        if (counts && isDecimal)
            --power;
        else if (!counts && !isDecimal)
            ++power;
    }
    // Quotients of small numbers are exact, so that "0.1" and "0.10" are the same.
    double Value() const
    {
        const double whole = static_cast<double>(value);
        return power < 0 ? whole / std::pow(10.0, -power) : power > 0 ? whole * std::pow(10.0, power) : whole;
    }

    unsigned long long value = 0;
    int power = 0;
    bool any = false;
};

// Whether a comma stands here that three digits follow.
bool IsGroupMark(std::wstring_view text)
{
    return !text.empty() && text.front() == L',' && DigitsAt(text.substr(1)) == 3;
}

// The exponent that a text begins with, 0 when there is none.
int ExponentAt(std::wstring_view text)
{
    if (text.empty() || (text.front() != L'e' && text.front() != L'E'))
        return 0;
    text.remove_prefix(1);
    const bool negative = !text.empty() && text.front() == L'-';
    if (!text.empty() && (negative || text.front() == L'+'))
        text.remove_prefix(1);
    int exponent = 0;
    for (const wchar_t digit : text.substr(0, DigitsAt(text)))
        exponent = (std::min)(exponent * 10 + (digit - L'0'), 9999);
    return negative ? -exponent : exponent;
}

// The number that a text begins with, taken off it; nothing without a digit or with too many.
std::optional<int> TakeNumber(std::wstring_view& text)
{
    constexpr std::size_t MostDigits = 5;
    const std::size_t digits = DigitsAt(text);
    if (digits == 0 || digits > MostDigits)
        return std::nullopt;
    int number = 0;
    for (const wchar_t digit : text.substr(0, digits))
        number = number * 10 + (digit - L'0');
    text.remove_prefix(digits);
    return number;
}

// The same for one that follows something else; takes nothing off when there is none.
std::optional<int> TakeNextNumber(std::wstring_view& text)
{
    std::wstring_view rest = text;
    while (!rest.empty() && !IsDecimalDigit(rest.front()))
        rest.remove_prefix(1);
    if (rest.size() == text.size())
        return std::nullopt;
    const std::optional<int> number = TakeNumber(rest);
    if (number)
        text = rest;
    return number;
}

// Days since the first of March of the year 0; counted from March on, a leap day is the last of its year.
long long DayNumber(int year, int month, int day)
{
    const long long years = month > 2 ? year : year - 1LL;
    const long long months = (month + 9) % 12;
    return years * 365 + years / 4 - years / 100 + years / 400 + (months * 306 + 5) / 10 + day - 1;
}

// The seconds of a time of the day such as " 13:05:09"; 0 when there is none.
long long SecondsAt(std::wstring_view text)
{
    constexpr int Limits[] = {23, 59, 59};
    constexpr int Lengths[] = {3600, 60, 1};
    long long seconds = 0;
    for (std::size_t i = 0; i < 3; ++i)
    {
        const std::optional<int> part = TakeNextNumber(text);
        if (!part || *part > Limits[i])
            return i < 2 ? 0 : seconds;
        seconds += static_cast<long long>(*part) * Lengths[i];
    }
    return seconds;
}

} // namespace

int CompareNatural(std::wstring_view first, std::wstring_view second)
{
    std::wstring_view left = first;
    std::wstring_view right = second;
    while (!left.empty() && !right.empty())
    {
        int difference = 0;
        if (IsDecimalDigit(left.front()) && IsDecimalDigit(right.front()))
            difference = CompareDigits(left, right);
        else
        {
            const std::wint_t one = WithoutCase(left.front());
            const std::wint_t other = WithoutCase(right.front());
            difference = one == other ? 0 : one < other ? -1 : 1;
            left.remove_prefix(1);
            right.remove_prefix(1);
        }
        if (difference != 0)
            return difference;
    }
    if (left.empty() != right.empty())
        return left.empty() ? -1 : 1;
    return first.compare(second);
}

std::optional<double> ReadNumber(std::wstring_view text)
{
    text.remove_prefix(SpacesAt(text));
    constexpr wchar_t MinusSign = L'\x2212';
    const bool negative = !text.empty() && (text.front() == L'-' || text.front() == MinusSign);
    if (!text.empty() && (negative || text.front() == L'+'))
        text.remove_prefix(1);
    Digits digits;
    while (!text.empty() && (IsDecimalDigit(text.front()) || (digits.any && IsGroupMark(text))))
    {
        if (text.front() != L',')
            digits.Add(text.front(), false);
        text.remove_prefix(1);
    }
    if (!text.empty() && text.front() == L'.')
        for (text.remove_prefix(1); !text.empty() && IsDecimalDigit(text.front()); text.remove_prefix(1))
            digits.Add(text.front(), true);
    if (!digits.any)
        return std::nullopt;
    digits.power += ExponentAt(text);
    return negative ? -digits.Value() : digits.Value();
}

std::optional<long long> ReadMoment(std::wstring_view text, DateOrder order)
{
    text.remove_prefix(SpacesAt(text));
    const bool longYear = DigitsAt(text) > 2;
    const bool yearFirst = longYear || order == DateOrder::YearMonthDay;
    const std::optional<int> first = TakeNumber(text);
    const std::optional<int> second = first ? TakeNextNumber(text) : std::nullopt;
    const std::optional<int> third = second ? TakeNextNumber(text) : std::nullopt;
    if (!third)
        return std::nullopt;
    const int month = yearFirst ? *second : order == DateOrder::MonthDayYear ? *first : *second;
    const int day = yearFirst ? *third : order == DateOrder::MonthDayYear ? *second : *first;
    int year = yearFirst ? *first : *third;
    if (year < 100 && !longYear)
        year += year < 50 ? 2000 : 1900;
    if (month < 1 || month > 12 || day < 1 || day > DaysOf(year, month))
        return std::nullopt;
    constexpr long long SecondsOfADay = 86400;
    return DayNumber(year, month, day) * SecondsOfADay + SecondsAt(text);
}

} // namespace QuorUiCtr
