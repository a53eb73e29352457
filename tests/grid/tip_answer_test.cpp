// The tips of the grid's windows, as the platform formats them: with themselves, safe for every text.
#include "tests/grid/WindowGrid.h"
#include "tests/support/Rounds.h"

#include <cstdlib>
#include <random>
#include <string>

using namespace QuorUiCtr;
using namespace quor::test;

namespace
{

// Every cell has the tip.
class OneTipGrid : public WindowGrid
{
public:
    CString tip;

protected:
    bool OnCellTip(long, long, CString& text) const override
    {
        text = tip;
        return true;
    }
};

class TipAnswer : public GridWindowTest
{
protected:
    void SetUp() override
    {
        Create(grid);
        Fill(grid, 2, 2);
    }

    std::wstring TipText(const CString& tip)
    {
        grid.tip = tip;
        TOOLINFO info = {};
        info.cbSize = sizeof info;
        EXPECT_EQ(0, grid.OnToolHitTest(grid.ToClient(50, 10), &info));
        const std::wstring text = info.lpszText;
        std::free(info.lpszText);
        return text;
    }

    OneTipGrid grid;
};

TEST_F(TipAnswer, Text_IsItsOwnFormat)
{
    EXPECT_EQ(L"100% sure", TipText(L"100%% sure"));
    EXPECT_EQ(L"0 of 0", TipText(L"%d of %u"));
    EXPECT_EQ(L"   0|", TipText(L"%4d|"));
    EXPECT_EQ(L"0000|", TipText(L"%04d|"));
    EXPECT_EQ(L"0   |", TipText(L"%-4d|"));
}

TEST_F(TipAnswer, Strings_ReadNothing)
{
    EXPECT_EQ(L"(null)", TipText(L"%s"));
    EXPECT_EQ(L"(null)", TipText(L"%hs"));
    EXPECT_EQ(L"(null)", TipText(L"%ls"));
    EXPECT_EQ(L"(null)", TipText(L"%S"));
    EXPECT_EQ(L"(null)(null)(null)(", TipText(L"%s%s%s%s%s%s%s%s%s%s%s%s"));
}

TEST_F(TipAnswer, ZeroCharacter_EndsTheText)
{
    EXPECT_EQ(L"x", TipText(L"x%cy"));
    EXPECT_EQ(L"x", TipText(L"x%cy%d"));
    EXPECT_EQ(L"", TipText(L"%lc"));
}

TEST_F(TipAnswer, LonePercentAtTheEnd_IsDropped)
{
    EXPECT_EQ(L"100", TipText(L"100%"));
    EXPECT_EQ(L"", TipText(L"%"));
}

TEST_F(TipAnswer, LargeWidths_FillTheTipAndNoMore)
{
    EXPECT_EQ(std::wstring(19, L' '), TipText(L"%2000d"));
    EXPECT_EQ(std::wstring(19, L'0'), TipText(L"%.2000d"));
    EXPECT_EQ(std::wstring(19, L' '), TipText(L"%99999999999999999999d"));
    EXPECT_EQ(L"(null)             ", TipText(L"%-5000s|"));
    EXPECT_EQ(19u, TipText(L"%#5000.5000X%#5000X%s").length());
}

TEST_F(TipAnswer, ThousandsOfConversions_AreSafe)
{
    CString tip;
    for (int i = 0; i < 5000; ++i)
        tip += L"%lc%d";
    EXPECT_EQ(L"", TipText(tip));
}

TEST_F(TipAnswer, AnyText_FitsItsBuffer)
{
    const unsigned seed = 20;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::wstring alphabet = L"%%%%%%%%0123456789.-+# *sSdiuxXcCpnlhIw6432|\u884C";
    for (int i = 0; i < Rounds(20000); ++i)
    {
        CString tip;
        for (unsigned length = random() % 80; length > 0; --length)
            tip += alphabet[random() % alphabet.length()];
        ASSERT_LT(TipText(tip).length(), 20u) << static_cast<const wchar_t*>(tip);
    }
}

TEST_F(TipAnswer, NamesTheWindowAndAddsItsFlags)
{
    grid.tip = L"Tip";
    TOOLINFO info = {};
    info.cbSize = sizeof info;
    info.uFlags = TTF_SUBCLASS;
    EXPECT_EQ(11, grid.OnToolHitTest(grid.ToClient(150, 30), &info));
    EXPECT_STREQ(L"Tip", info.lpszText);
    EXPECT_EQ(grid.m_hWnd, info.hwnd);
    EXPECT_EQ(reinterpret_cast<UINT_PTR>(grid.m_hWnd), info.uId);
    EXPECT_EQ(TTF_SUBCLASS | TTF_IDISHWND | 0x80000000u | 0x40000000u, info.uFlags);
    std::free(info.lpszText);
}

TEST_F(TipAnswer, WithoutAPlaceForIt_IsTheNumber)
{
    grid.tip = L"Tip";
    EXPECT_EQ(11, grid.OnToolHitTest(grid.ToClient(150, 30), nullptr));
}

} // namespace
