// TextSeries: the texts that go on from one or two, written as these are.
#pragma once

#include "rules/NumberSeries.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace QuorUiCtr
{

// How a number is written around its digits.
struct NumberForm
{
    // Before and behind the number: "Item ", "%".
    std::wstring prefix;
    std::wstring suffix;
    wchar_t decimal = L'.';
    // Between thousands; 0 for none.
    wchar_t group = L'\0';
    wchar_t minus = L'-';
    // Zeros fill a whole number up to so many digits.
    int leastDigits = 0;
};

// A series: the first text, then those whose numbers follow.
//
// A text goes on when it is a number as people write it, blanks around it left out: with a point or a comma
// in front of the decimals, with points, commas, apostrophes or blanks between thousands, with a percent
// sign, with zeros in front. So does a text that ends with a whole number, and has no other digit: "Item 9"
// comes before "Item 10", and "Item 0" is the first one. Dates and times do not, nor does anything else with
// several numbers in it, which may be a date.
class TextSeries
{
public:
    // From a text on by a step, one for instance. `decimal` is the mark of the user's locale, which decides
    // what a text such as "1,234" is. Nothing for a text that does not go on, and for too many digits.
    static std::optional<TextSeries> By(std::wstring_view first, const DecimalNumber& step,
                                        wchar_t decimal = L'.');
    // From the first text to the second one; a step of one without a second. Nothing also when the texts
    // around the numbers differ.
    static std::optional<TextSeries> Of(std::wstring_view first, std::optional<std::wstring_view> second,
                                        wchar_t decimal = L'.');

    // The text at a place from 0 on, with the decimals of start and step. Nothing when the number has too
    // many digits, or is negative behind a text.
    std::optional<std::wstring> At(long place) const;

private:
    TextSeries(const NumberSeries& itsNumbers, NumberForm itsForm)
        : numbers(itsNumbers), form(std::move(itsForm))
    {
    }

    NumberSeries numbers;
    NumberForm form;
};

} // namespace QuorUiCtr
