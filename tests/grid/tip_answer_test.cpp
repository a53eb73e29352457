// The text of tool tips: formatted with itself, fitted into its buffer, safe for every text.
#include "grid/window/TipAnswer.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <random>
#include <string>

using namespace QuorUiCtr;

namespace
{

struct FreeMemory
{
    void operator()(wchar_t* memory) const { std::free(memory); }
};

std::wstring TipText(const CString& tip)
{
    const std::unique_ptr<wchar_t, FreeMemory> text(MakeTipText(tip));
    return text.get();
}

TEST(TipAnswer, PlainText_IsKept)
{
    EXPECT_EQ(L"", TipText(L""));
    EXPECT_EQ(L"A tip", TipText(L"A tip"));
    EXPECT_EQ(L"\u884C 1", TipText(L"\u884C 1"));
}

TEST(TipAnswer, TextOfNineteenUnits_IsKept_AndALongerOneIsCut)
{
    EXPECT_EQ(L"1234567890123456789", TipText(L"1234567890123456789"));
    EXPECT_EQ(L"1234567890123456789", TipText(L"12345678901234567890"));
    EXPECT_EQ(std::wstring(19, L'x'), TipText(CString(L'x', 100000)));
}

TEST(TipAnswer, Cut_DoesNotSplitASurrogatePair)
{
    EXPECT_EQ(L"123456789012345678", TipText(L"123456789012345678\U0001F600"));
    EXPECT_EQ(L"12345678901234567\U0001F600", TipText(L"12345678901234567\U0001F600x"));
}

TEST(TipAnswer, Text_IsItsOwnFormat)
{
    EXPECT_EQ(L"100% sure", TipText(L"100%% sure"));
    EXPECT_EQ(L"0 of 0", TipText(L"%d of %u"));
    EXPECT_EQ(L"   0|", TipText(L"%4d|"));
    EXPECT_EQ(L"0000|", TipText(L"%04d|"));
    EXPECT_EQ(L"0   |", TipText(L"%-4d|"));
}

TEST(TipAnswer, Strings_ReadNothing)
{
    EXPECT_EQ(L"(null)", TipText(L"%s"));
    EXPECT_EQ(L"(null)", TipText(L"%hs"));
    EXPECT_EQ(L"(null)", TipText(L"%ls"));
    EXPECT_EQ(L"(null)", TipText(L"%S"));
    EXPECT_EQ(L"(null)(null)(null)(", TipText(L"%s%s%s%s%s%s%s%s%s%s%s%s"));
}

TEST(TipAnswer, ZeroCharacter_EndsTheText)
{
    EXPECT_EQ(L"x", TipText(L"x%cy"));
    EXPECT_EQ(L"x", TipText(L"x%cy%d"));
    EXPECT_EQ(L"", TipText(L"%lc"));
}

TEST(TipAnswer, LonePercentAtTheEnd_IsDropped)
{
    EXPECT_EQ(L"100", TipText(L"100%"));
    EXPECT_EQ(L"", TipText(L"%"));
}

TEST(TipAnswer, LargeWidths_FillTheTipAndNoMore)
{
    EXPECT_EQ(std::wstring(19, L' '), TipText(L"%2000d"));
    EXPECT_EQ(std::wstring(19, L'0'), TipText(L"%.2000d"));
    EXPECT_EQ(std::wstring(19, L' '), TipText(L"%99999999999999999999d"));
    EXPECT_EQ(L"(null)             ", TipText(L"%-5000s|"));
    EXPECT_EQ(19u, TipText(L"%#5000.5000X%#5000X%s").length());
}

TEST(TipAnswer, ThousandsOfConversions_AreSafe)
{
    CString tip;
    for (int i = 0; i < 5000; ++i)
        tip += L"%lc%d";
    EXPECT_EQ(L"", TipText(tip));
}

TEST(TipAnswer, AnyText_FitsItsBuffer)
{
    const unsigned seed = 20;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::wstring alphabet = L"%%%%%%%%0123456789.-+# *sSdiuxXcCpnlhIw6432|\u884C";
    for (int i = 0; i < 20000; ++i)
    {
        CString tip;
        for (unsigned length = random() % 80; length > 0; --length)
            tip += alphabet[random() % alphabet.length()];
        ASSERT_LT(TipText(tip).length(), 20u) << static_cast<const wchar_t*>(tip);
    }
}

TEST(TipAnswer, Answer_NamesTheWindowAndAddsItsFlags)
{
    CWnd window;
    ASSERT_TRUE(window.CreateEx(0, L"STATIC", L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    TOOLINFO info = {};
    info.uFlags = TTF_SUBCLASS;
    EXPECT_EQ(37, AnswerTip(window, L"Tip", 37, TTF_CENTERTIP, &info));
    const std::unique_ptr<wchar_t, FreeMemory> text(info.lpszText);
    EXPECT_STREQ(L"Tip", text.get());
    EXPECT_EQ(window.m_hWnd, info.hwnd);
    EXPECT_EQ(reinterpret_cast<UINT_PTR>(window.m_hWnd), info.uId);
    EXPECT_EQ(TTF_SUBCLASS | TTF_IDISHWND | TTF_CENTERTIP | 0x80000000u | 0x40000000u, info.uFlags);
    window.DestroyWindow();
}

TEST(TipAnswer, Answer_WithoutAPlaceForIt_IsTheNumber)
{
    const CWnd window;
    EXPECT_EQ(4, AnswerTip(window, L"Tip", 4, 0, nullptr));
}

} // namespace
