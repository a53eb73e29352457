// Texts that do not fit, and which of many texts can be the widest.
#include "rules/ColumnEdges.h"
#include "rules/Shortening.h"
#include "rules/WidestTexts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

using namespace QuorUiCtr;

// Characters of one width: 10 pixels.
std::wstring End(std::wstring_view text, long width)
{
    return Shortened(text, false, width, [](const std::wstring& part) { return long(part.size()) * 10; });
}

std::wstring Middle(std::wstring_view text, long width)
{
    return Shortened(text, true, width, [](const std::wstring& part) { return long(part.size()) * 10; });
}

TEST(Shortening, WhatFits_StaysAsItIs)
{
    EXPECT_EQ(End(L"abcdef", 60), L"abcdef");
    EXPECT_EQ(Middle(L"abcdef", 60), L"abcdef");
    EXPECT_EQ(End(L"", 0), L"");
}

TEST(Shortening, TheEndOrTheMiddleGoes)
{
    EXPECT_EQ(End(L"abcdefgh", 79), L"abcd...");
    EXPECT_EQ(End(L"abcdefgh", 40), L"a...");
    EXPECT_EQ(Middle(L"abcdefgh", 79), L"ab...gh");
    EXPECT_EQ(Middle(L"abcdefgh", 60), L"ab...h");
    EXPECT_EQ(Middle(L"abcdefgh", 40), L"a...");
}

TEST(Shortening, NothingButDotsIsLeft_WhenNothingElseFits)
{
    EXPECT_EQ(End(L"abcdefgh", 30), L"...");
    EXPECT_EQ(Middle(L"abcdefgh", 0), L"...");
    EXPECT_EQ(End(L"abcdefgh", -5), L"...");
}

TEST(Shortening, SurrogatePairsStayTogether)
{
    const std::wstring pairs = {L'a', wchar_t(0xD83D), wchar_t(0xDE00), wchar_t(0xD83D), wchar_t(0xDE01),
                                L'b'};
    EXPECT_EQ(End(pairs, 55), L"a...");
    EXPECT_EQ(Middle(pairs, 55), L"a...b");
}

TEST(WidestTexts, KeepsTheWidestOfEachLength)
{
    WidestTexts widest;
    for (long i = 0; i < 1000; ++i)
        widest.Add(i, 5, i % 100);
    widest.Add(1000, 3, 1);
    auto items = widest.Items();
    std::sort(items.begin(), items.end());
    EXPECT_EQ(items, (std::vector<long>{99, 199, 299, 399, 1000}));
}

TEST(WidestTexts, LongTextsShareAClass)
{
    WidestTexts widest;
    for (long i = 0; i < 10; ++i)
        widest.Add(i, 100 + static_cast<std::size_t>(i), i);
    auto items = widest.Items();
    std::sort(items.begin(), items.end());
    EXPECT_EQ(items, (std::vector<long>{6, 7, 8, 9}));
}

long EdgeAt(long x, const std::vector<long>& edges, long reach = 5)
{
    return NearestEdge(x, reach, static_cast<long>(edges.size()),
                       [&](long i) { return edges[static_cast<std::size_t>(i)]; });
}

TEST(ColumnEdges, ReachToBothSides)
{
    const std::vector<long> edges = {100, 200};
    EXPECT_EQ(EdgeAt(94, edges), -1);
    EXPECT_EQ(EdgeAt(95, edges), 0);
    EXPECT_EQ(EdgeAt(100, edges), 0);
    EXPECT_EQ(EdgeAt(105, edges), 0);
    EXPECT_EQ(EdgeAt(106, edges), -1);
    EXPECT_EQ(EdgeAt(205, edges), 1);
    EXPECT_EQ(EdgeAt(206, edges), -1);
    EXPECT_EQ(EdgeAt(0, {}), -1);
}

TEST(ColumnEdges, OfNarrowColumnsTheNearestOneCounts)
{
    const std::vector<long> edges = {100, 106, 106, 110};
    EXPECT_EQ(EdgeAt(102, edges), 0);
    EXPECT_EQ(EdgeAt(103, edges), 2);
    EXPECT_EQ(EdgeAt(106, edges), 2);
    EXPECT_EQ(EdgeAt(107, edges), 2);
    EXPECT_EQ(EdgeAt(108, edges), 3);
}

} // namespace
