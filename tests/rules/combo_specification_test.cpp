// The compact text of a combo property.
#include "rules/ComboSpecification.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace
{

using namespace QuorUiCtr;

TEST(ComboSpecification, HasValueOptionsAndDescription)
{
    const std::optional<ComboSpecification> parts = ParseComboSpecification(L"mm,<mm,cm,inch>[the unit]");
    ASSERT_TRUE(parts.has_value());
    EXPECT_EQ(parts->value, L"mm");
    EXPECT_EQ(parts->options, (std::vector<std::wstring>{L"mm", L"cm", L"inch"}));
    EXPECT_EQ(parts->description, L"the unit");
}

TEST(ComboSpecification, OfEmptyParts_HasOneEmptyOption)
{
    const std::optional<ComboSpecification> parts = ParseComboSpecification(L",<>[]");
    ASSERT_TRUE(parts.has_value());
    EXPECT_EQ(parts->value, L"");
    EXPECT_EQ(parts->options, std::vector<std::wstring>{L""});
    EXPECT_EQ(parts->description, L"");
}

TEST(ComboSpecification, WithoutItsMarksInTheirOrder_IsNone)
{
    for (const wchar_t* text : {L"", L"a", L"a<b>[c]", L"a,b", L"a,<b[c]", L"a,b>[c]", L"a,<b>", L"a,<b>[c",
                                L"a,<b>c]", L"a,[c]<b>", L"a,>b<[c]", L"a,<b>]c[", L"<a>,b[c]"})
        EXPECT_FALSE(ParseComboSpecification(text).has_value()) << testing::PrintToString(text);
}

// ---- Random texts against a parser that goes character by character.

struct Reference
{
    std::wstring value;
    std::vector<std::wstring> options;
    std::wstring description;
};

std::optional<Reference> ReadSlowly(const std::wstring& text)
{
    Reference result;
    size_t at = 0;
    const auto takeUntil = [&](wchar_t end, std::wstring& taken) {
        taken.clear();
        while (at < text.size() && text[at] != end)
            taken += text[at++];
        return at < text.size() && text[at++] == end;
    };
    std::wstring skipped;
    std::wstring list;
    if (!takeUntil(L',', result.value))
        return std::nullopt;
    if (!takeUntil(L'<', skipped) || skipped.find(L'>') != std::wstring::npos || !takeUntil(L'>', list))
        return std::nullopt;
    if (!takeUntil(L'[', skipped) || skipped.find(L']') != std::wstring::npos ||
        !takeUntil(L']', result.description))
        return std::nullopt;
    result.options.emplace_back();
    for (const wchar_t c : list)
    {
        if (c == L',')
            result.options.emplace_back();
        else
            result.options.back() += c;
    }
    return result;
}

TEST(ComboSpecificationFuzz, RandomTextsReadLikeTheReference)
{
    constexpr unsigned Seed = 20261121;
    std::mt19937 random(Seed);
    constexpr wchar_t Characters[] = L",,,<<>>[]ab \x4E2D";
    std::uniform_int_distribution<size_t> character(0, std::size(Characters) - 2);
    std::uniform_int_distribution<int> length(0, 24);
    int accepted = 0;
    for (int i = 0; i < 30000; ++i)
    {
        std::wstring text;
        for (int n = length(random); n > 0; --n)
            text += Characters[character(random)];
        const std::optional<Reference> expected = ReadSlowly(text);
        const std::optional<ComboSpecification> parts = ParseComboSpecification(text);
        ASSERT_EQ(parts.has_value(), expected.has_value()) << "seed " << Seed << " round " << i;
        if (!parts)
            continue;
        ++accepted;
        ASSERT_EQ(parts->value, expected->value) << i;
        ASSERT_EQ(parts->description, expected->description) << i;
        ASSERT_EQ(parts->options, expected->options) << i;
    }
    EXPECT_GT(accepted, 200) << "enough of them are good to mean something";
}

} // namespace
