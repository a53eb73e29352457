// Reading the form of a number from what was typed, and writing others in it.
#include "rules/TextSeries.h"

#include "rules/Digits.h"

#include <algorithm>
#include <cstddef>

namespace QuorUiCtr
{
namespace
{

// The most that a series counts with.
constexpr std::size_t LongestWhole = 15;

// A number and what is around it.
struct WrittenNumber
{
    DecimalNumber number;
    NumberForm form;
};

std::wstring_view TrimmedOfBlanks(std::wstring_view text)
{
    const std::size_t first = text.find_first_not_of(L" \t");
    return first == std::wstring_view::npos ? std::wstring_view()
                                            : text.substr(first, text.find_last_not_of(L" \t") - first + 1);
}

constexpr wchar_t TypedMinus = L'\x2212';
// Between thousands: the last ones are blanks that do not break.
constexpr std::wstring_view GroupMarks = L".,' \x2019\xA0\x202F";

// Where the decimals of a number without sign begin, at their mark; the end when there are none.
std::size_t DecimalMarkOf(std::wstring_view body, wchar_t decimal)
{
    const std::size_t last = body.find_last_of(L".,");
    if (last == std::wstring_view::npos || body.find(body[last]) != last)
        return body.size();
    if (body.find_first_of(GroupMarks) != last)
        return last;
    // One mark of either kind.
    const bool mayBeGroup = last >= 1 && last <= 3 && body.size() - last == 4 && body.front() != L'0';
    return mayBeGroup && body[last] != decimal ? body.size() : last;
}

// Digits, of which the first one to three and all further three may be groups; false for other texts.
bool TakeWhole(std::wstring_view whole, std::wstring& digits, wchar_t& group)
{
    const std::size_t mark = whole.find_first_of(GroupMarks);
    group = mark == std::wstring_view::npos ? L'\0' : whole[mark];
    if (group != L'\0' && (mark == 0 || mark > 3 || (whole.size() - mark) % 4 != 0))
        return false;
    for (std::size_t i = 0; i < whole.size(); ++i)
    {
        const bool isMark = group != L'\0' && i >= mark && (i - mark) % 4 == 0;
        if (isMark ? whole[i] != group : !IsDecimalDigit(whole[i]))
            return false;
        if (!isMark)
            digits += whole[i];
    }
    return true;
}

// Nothing for no digits and for too many.
std::optional<long long> NumberOf(std::wstring_view digits)
{
    if (digits.empty() || digits.size() > LongestWhole)
        return std::nullopt;
    long long number = 0;
    for (const wchar_t digit : digits)
        number = number * 10 + (digit - L'0');
    return number;
}

int LeastDigits(std::wstring_view digits)
{
    return digits.size() > 1 && digits.front() == L'0' ? static_cast<int>(digits.size()) : 0;
}

// A text that is a number as a whole.
std::optional<WrittenNumber> ReadWhole(std::wstring_view text, wchar_t decimal)
{
    WrittenNumber written;
    if (text.ends_with(L'%'))
    {
        const std::size_t end = text.find_last_not_of(L"% \xA0\x202F") + 1;
        written.form.suffix = text.substr(end);
        text = text.substr(0, end);
    }
    const bool isNegative = text.starts_with(L'-') || text.starts_with(TypedMinus);
    written.form.minus = text.starts_with(TypedMinus) ? TypedMinus : L'-';
    if (isNegative || text.starts_with(L'+'))
        text.remove_prefix(1);
    const std::size_t mark = DecimalMarkOf(text, decimal);
    std::wstring digits;
    if (!TakeWhole(text.substr(0, mark), digits, written.form.group))
        return std::nullopt;
    if (mark == text.size())
        written.form.leastDigits = written.form.group == L'\0' ? LeastDigits(digits) : 0;
    else
    {
        written.form.decimal = text[mark];
        const std::wstring_view decimals = text.substr(mark + 1);
        if (!std::all_of(decimals.begin(), decimals.end(), IsDecimalDigit))
            return std::nullopt;
        digits += decimals;
        written.number.decimals = static_cast<int>(decimals.size());
    }
    const auto number = NumberOf(digits);
    if (!number)
        return std::nullopt;
    written.number.digits = isNegative ? -*number : *number;
    return written;
}

std::optional<WrittenNumber> ReadWritten(std::wstring_view text, wchar_t decimal)
{
    text = TrimmedOfBlanks(text);
    if (std::optional<WrittenNumber> whole = ReadWhole(text, decimal))
        return whole;
    const std::size_t first = static_cast<std::size_t>(
        std::find_if_not(text.rbegin(), text.rend(), IsDecimalDigit).base() - text.begin());
    const std::wstring_view prefix = text.substr(0, first);
    const auto number = NumberOf(text.substr(first));
    if (!number || std::any_of(prefix.begin(), prefix.end(), IsDecimalDigit) || prefix.empty())
        return std::nullopt;
    WrittenNumber written{{*number, 0}, {}};
    written.form.prefix = prefix;
    written.form.leastDigits = LeastDigits(text.substr(first));
    return written;
}

// The form of both; nothing when they do not belong together.
std::optional<NumberForm> CommonForm(const WrittenNumber& one, const WrittenNumber& other)
{
    NumberForm form = one.form;
    const bool hasDecimals = one.number.decimals > 0;
    if (form.prefix != other.form.prefix || form.suffix != other.form.suffix ||
        (hasDecimals && other.number.decimals > 0 && form.decimal != other.form.decimal))
        return std::nullopt;
    form.decimal = hasDecimals ? form.decimal : other.form.decimal;
    form.group = form.group != L'\0' ? form.group : other.form.group;
    form.minus = form.minus != L'-' ? form.minus : other.form.minus;
    form.leastDigits = (std::max)(form.leastDigits, other.form.leastDigits);
    // "1,5" and "1,200" cannot both be what they seem.
    if (form.group == form.decimal && (hasDecimals || other.number.decimals > 0))
        return std::nullopt;
    return form;
}

// A number such as "-1234.50" in another form.
std::wstring InForm(std::wstring text, const NumberForm& form)
{
    const bool isNegative = text.starts_with(L'-');
    text.erase(0, isNegative ? 1 : 0);
    std::size_t whole = (std::min)(text.find(L'.'), text.size());
    if (whole < text.size())
        text[whole] = form.decimal;
    const auto least = static_cast<std::size_t>(form.leastDigits);
    if (whole < least)
        text.insert(0, least - whole, L'0');
    for (; form.group != L'\0' && whole > 3; whole -= 3)
        text.insert(whole - 3, 1, form.group);
    if (isNegative)
        text.insert(text.begin(), form.minus);
    return form.prefix + text + form.suffix;
}

} // namespace

std::optional<TextSeries> TextSeries::By(std::wstring_view first, const DecimalNumber& step, wchar_t decimal)
{
    const auto from = ReadWritten(first, decimal);
    // Behind a text there is no place for decimals.
    if (!from || (!from->form.prefix.empty() && step.decimals > 0))
        return std::nullopt;
    const auto numbers = NumberSeries::By(from->number, step);
    if (!numbers)
        return std::nullopt;
    TextSeries series(*numbers, from->form);
    // The mark of thousands is not to be taken for that of decimals.
    if (from->number.decimals == 0)
        series.form.decimal = from->form.group != decimal ? decimal : decimal == L',' ? L'.' : L',';
    return series;
}

std::optional<TextSeries> TextSeries::Of(std::wstring_view first, std::optional<std::wstring_view> second,
                                         wchar_t decimal)
{
    if (!second)
        return By(first, {1, 0}, decimal);
    const auto from = ReadWritten(first, decimal);
    const auto to = ReadWritten(*second, decimal);
    const auto form = from && to ? CommonForm(*from, *to) : std::nullopt;
    const auto numbers =
        form ? NumberSeries::Of(WriteDecimal(from->number), WriteDecimal(to->number)) : std::nullopt;
    return numbers ? std::optional(TextSeries(*numbers, *form)) : std::nullopt;
}

std::optional<std::wstring> TextSeries::At(long place) const
{
    const std::optional<std::wstring> number = numbers.At(place);
    if (!number || (number->starts_with(L'-') && !form.prefix.empty()))
        return std::nullopt;
    return InForm(*number, form);
}

} // namespace QuorUiCtr
