// How numbers that are texts of cells are written for people: rounded, grouped, with the marks of a locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace QuorUiCtr
{

// What a locale writes numbers with; the orders and the grouping are those of the platform's locale data.
struct NumberMarks
{
    std::wstring decimal = L".";
    std::wstring group = L",";
    // Sizes of the groups from the decimal mark on: "3;0" repeats the last one, "3" is one group.
    std::wstring grouping = L"3;0";
    std::wstring negative = L"-";
    std::wstring percent = L"%";
    // 0 "(1)", 1 "-1", 2 "- 1", 3 "1-", 4 "1 -".
    int negativeOrder = 1;
    // 0 "1 %", 1 "1%", 2 "%1", 3 "% 1"; signs stand where the negative order has them.
    int percentOrder = 1;
};

struct NumberStyle
{
    // -1: as many as the text has.
    int decimals = -1;
    bool isGrouped = true;
    // A hundredfold, with a percent sign.
    bool isPercent = false;
};

// The largest exponent of ten that a text may have, and the most decimals that are written.
constexpr int LargestExponent = 300;
constexpr int MostDecimals = 99;

// What is shown for a text such as "-1234.5" or "1e6": exact, halves rounded away from zero. Nothing for a
// text that is no number as a whole.
std::optional<std::wstring> ShapeNumber(std::wstring_view text, const NumberStyle& style,
                                        const NumberMarks& marks);

} // namespace QuorUiCtr
