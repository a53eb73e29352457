// NumberSeries: the numbers that go on from one or two texts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace QuorUiCtr
{

// A decimal number, exactly: `digits` divided by ten to the power of `decimals`.
struct DecimalNumber
{
    long long digits = 0;
    int decimals = 0;
};

// Reads "12", "-1.50" or "+3", blanks around it left out. Nothing for other texts, also for one with an
// exponent, and for numbers of more than 15 digits.
std::optional<DecimalNumber> ReadDecimal(std::wstring_view text);
// The number with the fewest decimals that is `number` to 15 digits: 0.1 is one tenth. Nothing for one that
// is not finite, too large, or of more than 15 decimals.
std::optional<DecimalNumber> DecimalOf(double number);
// With as many decimals as it has: "-1.50".
std::wstring WriteDecimal(const DecimalNumber& number);

// A series: start, start + step, start + 2 x step ...
class NumberSeries
{
public:
    // Nothing when the two together have too many digits.
    static std::optional<NumberSeries> By(const DecimalNumber& first, const DecimalNumber& step);
    // From the first text to the second one; a step of one without a second. Nothing also when one is no
    // number.
    static std::optional<NumberSeries> Of(std::wstring_view first, std::optional<std::wstring_view> second);

    // The number at a place from 0 on, with the decimals of start and step. Nothing when it has too many
    // digits.
    std::optional<std::wstring> At(long place) const;

private:
    long long start = 0;
    long long distance = 0;
    int decimals = 0;
};

} // namespace QuorUiCtr
