// Series of decimal numbers, counted in whole numbers so that no place behind the point is invented.
#include "rules/NumberSeries.h"

#include "rules/Digits.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <iterator>

namespace QuorUiCtr
{
namespace
{

constexpr int MostDigits = 15;
constexpr long long DigitsEnd = 1'000'000'000'000'000;

// The digits of the number with more decimals; nothing when there are too many.
std::optional<long long> WidenedDigits(const DecimalNumber& number, int decimals)
{
    long long digits = number.digits;
    for (int i = number.decimals; i < decimals; ++i)
        if (digits *= 10; std::llabs(digits) >= DigitsEnd)
            return std::nullopt;
    return digits;
}

} // namespace

std::optional<DecimalNumber> ReadDecimal(std::wstring_view text)
{
    const std::size_t first = text.find_first_not_of(L" \t");
    if (first == std::wstring_view::npos)
        return std::nullopt;
    text = text.substr(first, text.find_last_not_of(L" \t") - first + 1);
    const bool negative = text.front() == L'-';
    if (negative || text.front() == L'+')
        text.remove_prefix(1);
    DecimalNumber number;
    int count = 0;
    bool behindPoint = false;
    for (const wchar_t unit : text)
    {
        if (unit == L'.' && !behindPoint)
        {
            behindPoint = true;
            continue;
        }
        if (!IsDecimalDigit(unit) || ++count > MostDigits)
            return std::nullopt;
        number.digits = number.digits * 10 + (unit - L'0');
        number.decimals += behindPoint ? 1 : 0;
    }
    if (count == 0)
        return std::nullopt;
    if (negative)
        number.digits = -number.digits;
    return number;
}

// By text, which alone says where a decimal number was meant; not by one of the locale.
std::optional<DecimalNumber> DecimalOf(double number)
{
    if (!std::isfinite(number))
        return std::nullopt;
    char text[32];
    const char* const end =
        std::to_chars(text, std::end(text), number, std::chars_format::scientific, MostDigits - 1).ptr;
    const char* const exponentAt = std::find<const char*>(text, end, 'e') + 1;
    int exponent = 0;
    std::from_chars(exponentAt + (*exponentAt == '+' ? 1 : 0), end, exponent);
    DecimalNumber decimal;
    for (const char* at = text; *at != 'e'; ++at)
        if (*at >= '0' && *at <= '9')
            decimal.digits = decimal.digits * 10 + (*at - '0');
    decimal.decimals = MostDigits - 1 - exponent;
    for (; decimal.digits % 10 == 0 && decimal.digits != 0 && decimal.decimals > 0; --decimal.decimals)
        decimal.digits /= 10;
    if (decimal.digits == 0)
        return DecimalNumber();
    if (decimal.decimals < 0 || decimal.decimals > MostDigits)
        return std::nullopt;
    if (number < 0)
        decimal.digits = -decimal.digits;
    return decimal;
}

std::wstring WriteDecimal(const DecimalNumber& number)
{
    std::wstring text = std::to_wstring(std::llabs(number.digits));
    const auto decimals = static_cast<std::size_t>(number.decimals);
    if (text.size() <= decimals)
        text.insert(0, decimals + 1 - text.size(), L'0');
    if (decimals > 0)
        text.insert(text.size() - decimals, 1, L'.');
    return number.digits < 0 ? L"-" + text : text;
}

std::optional<NumberSeries> NumberSeries::By(const DecimalNumber& first, const DecimalNumber& step)
{
    NumberSeries series;
    series.decimals = (std::max)(first.decimals, step.decimals);
    const auto start = WidenedDigits(first, series.decimals);
    const auto distance = WidenedDigits(step, series.decimals);
    if (!start || !distance)
        return std::nullopt;
    series.start = *start;
    series.distance = *distance;
    return series;
}

std::optional<NumberSeries> NumberSeries::Of(std::wstring_view first, std::optional<std::wstring_view> second)
{
    const auto from = ReadDecimal(first);
    if (!from)
        return std::nullopt;
    if (!second)
        return By(*from, {1, 0});
    const auto to = ReadDecimal(*second);
    if (!to)
        return std::nullopt;
    std::optional<NumberSeries> series = By(*from, *to);
    if (series)
        series->distance -= series->start;
    return series;
}

std::optional<std::wstring> NumberSeries::At(long place) const
{
    if (place > 0 && std::llabs(distance) > DigitsEnd / place)
        return std::nullopt;
    const long long digits = start + distance * place;
    if (std::llabs(digits) >= DigitsEnd)
        return std::nullopt;
    return WriteDecimal({digits, decimals});
}

} // namespace QuorUiCtr
