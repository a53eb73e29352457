// Reads dates and truth values.
#include "rules/ValueTexts.h"

#include "rules/Calendar.h"

#include <algorithm>
#include <cstddef>

namespace QuorUiCtr
{
namespace
{

struct TruthPair
{
    std::wstring_view yes;
    std::wstring_view no;
};

constexpr TruthPair TruthPairs[] = {{L"1", L"0"}, {L"true", L"false"}, {L"yes", L"no"}, {L"on", L"off"}};

constexpr int FirstYear = 1601;

// Of the letters that the pairs are made of.
wchar_t Lower(wchar_t unit)
{
    return unit >= L'A' && unit <= L'Z' ? static_cast<wchar_t>(unit + (L'a' - L'A')) : unit;
}

wchar_t Upper(wchar_t unit)
{
    return unit >= L'a' && unit <= L'z' ? static_cast<wchar_t>(unit - (L'a' - L'A')) : unit;
}

bool IsUpper(wchar_t unit)
{
    return unit >= L'A' && unit <= L'Z';
}

std::wstring_view WithoutSpaces(std::wstring_view text)
{
    const std::size_t first = text.find_first_not_of(L' ');
    if (first == std::wstring_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(L' ') - first + 1);
}

bool IsWord(std::wstring_view text, std::wstring_view word)
{
    return std::equal(text.begin(), text.end(), word.begin(), word.end(),
                      [](wchar_t left, wchar_t right) { return Lower(left) == right; });
}

// As many digits as wanted, of which nothing may follow at once.
bool TakeNumber(std::wstring_view& text, std::size_t digits, int& value)
{
    const auto isDigit = [&](std::size_t i) { return i < text.size() && text[i] >= L'0' && text[i] <= L'9'; };
    value = 0;
    for (std::size_t i = 0; i < digits; ++i)
    {
        if (!isDigit(i))
            return false;
        value = value * 10 + (text[i] - L'0');
    }
    if (isDigit(digits))
        return false;
    text.remove_prefix(digits);
    return true;
}

bool TakeUnit(std::wstring_view& text, wchar_t unit)
{
    if (text.empty() || text.front() != unit)
        return false;
    text.remove_prefix(1);
    return true;
}

bool TakeDay(std::wstring_view& text, DateValue& value)
{
    return TakeNumber(text, 4, value.year) && TakeUnit(text, L'-') && TakeNumber(text, 2, value.month) &&
           TakeUnit(text, L'-') && TakeNumber(text, 2, value.day) && value.year >= FirstYear &&
           value.month >= 1 && value.month <= 12 && value.day >= 1 &&
           value.day <= DaysOf(value.year, value.month);
}

bool TakeTime(std::wstring_view& text, DateValue& value)
{
    if (!TakeNumber(text, 2, value.hour) || !TakeUnit(text, L':') || !TakeNumber(text, 2, value.minute))
        return false;
    if (TakeUnit(text, L':') && !TakeNumber(text, 2, value.second))
        return false;
    return value.hour < 24 && value.minute < 60 && value.second < 60;
}

} // namespace

std::optional<DateValue> ReadDate(std::wstring_view text)
{
    text = WithoutSpaces(text);
    DateValue value;
    if (!TakeDay(text, value))
        return std::nullopt;
    const bool hasTime = TakeUnit(text, L' ') || TakeUnit(text, L'T');
    if ((hasTime && !TakeTime(text, value)) || !text.empty())
        return std::nullopt;
    return value;
}

std::optional<bool> ReadTruth(std::wstring_view text)
{
    text = WithoutSpaces(text);
    for (const TruthPair& pair : TruthPairs)
    {
        if (IsWord(text, pair.yes))
            return true;
        if (IsWord(text, pair.no))
            return false;
    }
    return std::nullopt;
}

std::optional<std::wstring> OppositeTruth(std::wstring_view text, std::wstring_view start)
{
    text = WithoutSpaces(text);
    if (text.empty())
        return std::wstring(start);
    for (const TruthPair& pair : TruthPairs)
    {
        const bool isYes = IsWord(text, pair.yes);
        if (!isYes && !IsWord(text, pair.no))
            continue;
        std::wstring other(isYes ? pair.no : pair.yes);
        const bool allUpper = text.size() > 1 && IsUpper(text[1]);
        for (std::size_t i = 0; i < other.size() && IsUpper(text.front()); ++i)
            other[i] = i == 0 || allUpper ? Upper(other[i]) : other[i];
        return other;
    }
    return std::nullopt;
}

} // namespace QuorUiCtr
