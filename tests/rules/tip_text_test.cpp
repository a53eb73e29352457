// The text of tool tips: formatted with itself, fitted into its buffer, safe for every text.
#include "rules/TipText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <random>
#include <string>

namespace
{

using namespace QuorUiCtr;

// Shows how a tip is cut into pieces: each in brackets.
std::wstring InBrackets(const std::wstring& piece)
{
    return L"[" + piece + L"]";
}

// Writes as many zeros as the largest number of the conversion says.
std::wstring LongZeros(const std::wstring& piece)
{
    EXPECT_LE(piece.length(), LongestTipPiece);
    int number = 0;
    int largest = 0;
    for (const wchar_t unit : piece.substr(1, piece.find_first_not_of(L"-+#. *0123456789", 1) - 1))
    {
        number = unit >= L'0' && unit <= L'9' ? number * 10 + (unit - L'0') : 0;
        largest = (std::max)(largest, number);
    }
    EXPECT_LE(largest, LargestTipWidth) << testing::PrintToString(piece);
    return std::wstring(static_cast<std::size_t>(largest), L'0');
}

std::wstring WithZeroInside(const std::wstring&)
{
    return std::wstring(L"a\0b", 3);
}

std::wstring Pieces(const wchar_t* tip)
{
    return MakeTipText(tip, InBrackets);
}

TEST(TipText, PlainText_IsKept)
{
    EXPECT_EQ(L"", Pieces(L""));
    EXPECT_EQ(L"A tip", Pieces(L"A tip"));
    EXPECT_EQ(L"\u884C 1", Pieces(L"\u884C 1"));
}

TEST(TipText, OfNineteenUnits_IsKept_AndALongerOneIsCut)
{
    EXPECT_EQ(L"1234567890123456789", Pieces(L"1234567890123456789"));
    EXPECT_EQ(L"1234567890123456789", Pieces(L"12345678901234567890"));
    EXPECT_EQ(std::wstring(19, L'x'), Pieces(std::wstring(100000, L'x').c_str()));
}

// The pair is written as its two units, because not every platform needs two.
TEST(TipText, Cut_DoesNotSplitASurrogatePair)
{
    const std::wstring pair{static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)};
    EXPECT_EQ(L"123456789012345678", Pieces((L"123456789012345678" + pair).c_str()));
    EXPECT_EQ(L"12345678901234567" + pair, Pieces((L"12345678901234567" + pair + L"x").c_str()));
}

TEST(TipText, EachConversionIsAPiece_WithTheTextBehindIt)
{
    EXPECT_EQ(L"a[%d of ][%u]", Pieces(L"a%d of %u"));
    EXPECT_EQ(L"100[%%] sure", Pieces(L"100%% sure"));
    EXPECT_EQ(L"[%04d|]", Pieces(L"%04d|"));
    EXPECT_EQ(L"[%-4.2s|]", Pieces(L"%-4.2s|"));
    EXPECT_EQ(L"100[%]", Pieces(L"100%"));
}

TEST(TipText, LargeNumbers_AreLimited)
{
    EXPECT_EQ(L"[%64d]", Pieces(L"%2000d"));
    EXPECT_EQ(L"[%.64d]", Pieces(L"%.99999999999999999d"));
    EXPECT_EQ(L"[%064d]", Pieces(L"%0000099d"));
    EXPECT_EQ(std::wstring(19, L'0'), MakeTipText(L"%5000d", LongZeros));
}

TEST(TipText, ZeroCharacter_EndsTheText)
{
    EXPECT_EQ(L"xa", MakeTipText(L"x%cy%d", WithZeroInside));
}

TEST(TipText, OfAnyTip_FitsItsBuffer)
{
    const unsigned seed = 20;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::wstring alphabet = L"%%%%%%%%0123456789.-+# *sSdiuxXcCpnlhIw6432|\u884C";
    for (int i = 0; i < 20000; ++i)
    {
        std::wstring tip;
        for (auto length = random() % 80; length > 0; --length)
            tip += alphabet[random() % alphabet.length()];
        ASSERT_LT(MakeTipText(tip.c_str(), LongZeros).length(), TipBufferLength)
            << testing::PrintToString(tip);
    }
}

} // namespace
