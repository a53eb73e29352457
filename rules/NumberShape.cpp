// Numbers as strings of digits, so that nothing is lost that a binary number could not hold.
#include "rules/NumberShape.h"

#include "rules/Digits.h"

#include <algorithm>
#include <cstddef>

namespace QuorUiCtr
{
namespace
{

// The value is the digits, read as one whole number, divided by 10 `scale` times.
struct Decimal
{
    bool isNegative = false;
    std::wstring digits;
    int scale = 0;
};

// Longer texts are no numbers that people read.
constexpr std::size_t LongestNumber = 300;

std::wstring_view Trimmed(std::wstring_view text)
{
    const std::size_t first = text.find_first_not_of(L" \t");
    if (first == std::wstring_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(L" \t") - first + 1);
}

bool TakeSign(std::wstring_view& text)
{
    const bool isSigned = !text.empty() && (text.front() == L'-' || text.front() == L'+');
    const bool isNegative = isSigned && text.front() == L'-';
    if (isSigned)
        text.remove_prefix(1);
    return isNegative;
}

std::size_t TakeDigits(std::wstring_view& text, std::wstring& digits)
{
    std::size_t taken = 0;
    while (taken < text.size() && IsDecimalDigit(text[taken]))
        digits += text[taken++];
    text.remove_prefix(taken);
    return taken;
}

// "e6" and the like; nothing is an exponent of zero.
std::optional<int> TakeExponent(std::wstring_view& text)
{
    if (text.empty())
        return 0;
    if (text.front() != L'e' && text.front() != L'E')
        return std::nullopt;
    text.remove_prefix(1);
    const bool isNegative = TakeSign(text);
    std::wstring digits;
    if (TakeDigits(text, digits) == 0)
        return std::nullopt;
    int value = 0;
    for (const wchar_t digit : digits)
        value = (std::min)(value * 10 + (digit - L'0'), LargestExponent + 1);
    if (value > LargestExponent)
        return std::nullopt;
    return isNegative ? -value : value;
}

std::optional<Decimal> DecimalOf(std::wstring_view text)
{
    text = Trimmed(text);
    if (text.empty() || text.size() > LongestNumber)
        return std::nullopt;
    Decimal value;
    value.isNegative = TakeSign(text);
    TakeDigits(text, value.digits);
    if (!text.empty() && text.front() == L'.')
    {
        text.remove_prefix(1);
        value.scale = static_cast<int>(TakeDigits(text, value.digits));
    }
    if (value.digits.empty())
        return std::nullopt;
    const std::optional<int> exponent = TakeExponent(text);
    if (!exponent || !text.empty())
        return std::nullopt;
    value.scale -= *exponent;
    return value;
}

// Gives the digits at least one in front of the decimal mark and none missing behind it.
void FillUp(Decimal& value)
{
    if (value.scale < 0)
        value.digits.append(static_cast<std::size_t>(-value.scale), L'0');
    value.scale = (std::max)(value.scale, 0);
    const std::size_t wanted = static_cast<std::size_t>(value.scale) + 1;
    if (value.digits.size() < wanted)
        value.digits.insert(0, wanted - value.digits.size(), L'0');
    const std::size_t whole = value.digits.size() - static_cast<std::size_t>(value.scale);
    value.digits.erase(0, (std::min)(value.digits.find_first_not_of(L'0'), whole - 1));
}

void CountUp(std::wstring& digits)
{
    std::size_t place = digits.size();
    while (place > 0 && digits[place - 1] == L'9')
        digits[--place] = L'0';
    if (place == 0)
        digits.insert(0, 1, L'1');
    else
        ++digits[place - 1];
}

void RoundTo(Decimal& value, int decimals)
{
    if (value.scale < decimals)
        value.digits.append(static_cast<std::size_t>(decimals - value.scale), L'0');
    else if (value.scale > decimals)
    {
        const std::size_t kept = value.digits.size() - static_cast<std::size_t>(value.scale - decimals);
        const bool up = value.digits[kept] >= L'5';
        value.digits.resize(kept);
        if (up)
            CountUp(value.digits);
    }
    value.scale = decimals;
}

// The size of the group number `i` from the decimal mark on; 0: all that is left.
std::size_t GroupSize(const std::wstring& grouping, std::size_t i)
{
    std::size_t last = 0;
    std::size_t number = 0;
    for (const wchar_t unit : grouping)
    {
        if (!IsDecimalDigit(unit))
            continue;
        const std::size_t size = static_cast<std::size_t>(unit - L'0');
        if (size == 0)
            return last;
        if (number++ == i)
            return size;
        last = size;
    }
    return 0;
}

std::wstring Grouped(const std::wstring& digits, const NumberMarks& marks)
{
    std::wstring text;
    std::size_t left = digits.size();
    for (std::size_t i = 0; left > 0; ++i)
    {
        const std::size_t wanted = GroupSize(marks.grouping, i);
        const std::size_t size = wanted == 0 ? left : (std::min)(wanted, left);
        left -= size;
        text.insert(0, digits, left, size);
        if (left > 0)
            text.insert(0, marks.group);
    }
    return text;
}

std::wstring WithPercent(const std::wstring& number, const NumberMarks& marks)
{
    switch (marks.percentOrder)
    {
    case 0:
        return number + L' ' + marks.percent;
    case 2:
        return marks.percent + number;
    case 3:
        return marks.percent + L' ' + number;
    default:
        return number + marks.percent;
    }
}

std::wstring Negative(const std::wstring& number, const NumberMarks& marks)
{
    switch (marks.negativeOrder)
    {
    case 0:
        return L'(' + number + L')';
    case 2:
        return marks.negative + L' ' + number;
    case 3:
        return number + marks.negative;
    case 4:
        return number + L' ' + marks.negative;
    default:
        return marks.negative + number;
    }
}

} // namespace

std::optional<std::wstring> ShapeNumber(std::wstring_view text, const NumberStyle& style,
                                        const NumberMarks& marks)
{
    std::optional<Decimal> value = DecimalOf(text);
    if (!value)
        return std::nullopt;
    if (style.isPercent)
        value->scale -= 2;
    FillUp(*value);
    if (style.decimals >= 0)
        RoundTo(*value, (std::min)(style.decimals, MostDecimals));
    const std::size_t point = value->digits.size() - static_cast<std::size_t>(value->scale);
    const std::wstring whole = value->digits.substr(0, point);
    std::wstring shown = style.isGrouped ? Grouped(whole, marks) : whole;
    if (value->scale > 0)
        shown += marks.decimal + value->digits.substr(point);
    if (style.isPercent)
        shown = WithPercent(shown, marks);
    const bool isZero = value->digits.find_first_not_of(L'0') == std::wstring::npos;
    return value->isNegative && !isZero ? Negative(shown, marks) : shown;
}

} // namespace QuorUiCtr
