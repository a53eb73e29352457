// Tips over texts that are cut.
#include "grid/extras/TGColumnFormats.h"
#include "grid/extras/TGTextTips.h"
#include "tests/extras/ExtraGrid.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

const wchar_t* const longText = L"a text that is much too wide for its column";

class TextTips : public ExtraTest<TGTextTips>
{
protected:
    void Make(long rows = 4)
    {
        ExtraTest::Make(rows);
        grid.GetCell(1, 1).SetText(longText);
        extra.SetDelay(0);
        ASSERT_TRUE(Activate(host));
    }
    // The text of the tip after the mouse has come to a cell; row -1 is a caption.
    std::string Over(long row, long col)
    {
        if (row == -1)
        {
            CPoint point = CaptionOf(col).CenterPoint();
            grid.MapWindowPoints(&Header(), &point, 1);
            MoveMouse(Header(), point);
        }
        else
            MoveMouse(grid, grid.InsideOf(row, col).CenterPoint());
        PumpPending();
        return Narrow(extra.GetShownText());
    }
    // The tip that is on the screen: the window of this thread that cannot be activated.
    static HWND TipWindow()
    {
        HWND found = nullptr;
        ::EnumThreadWindows(::GetCurrentThreadId(), &TextTips::NoteTip, reinterpret_cast<LPARAM>(&found));
        return found;
    }
    static BOOL CALLBACK NoteTip(HWND window, LPARAM found)
    {
        const bool isTip = (::GetWindowLong(window, GWL_EXSTYLE) & WS_EX_NOACTIVATE) != 0;
        if (isTip && ::IsWindowVisible(window))
            *reinterpret_cast<HWND*>(found) = window;
        return TRUE;
    }
};

TEST_F(TextTips, ShowTheWholeText_OnlyWhereItIsCut)
{
    Make();
    EXPECT_EQ(Over(1, 1), Narrow(longText));
    EXPECT_NE(TipWindow(), nullptr);
    EXPECT_EQ(Over(0, 1), "");
    EXPECT_EQ(TipWindow(), nullptr);
    EXPECT_EQ(Over(1, 1), Narrow(longText));
    grid.GetCol(0).SetWidth(20);
    grid.GetCol(1).SetWidth(340);
    EXPECT_EQ(extra.GetShownText(), L"");
    EXPECT_EQ(Over(1, 1), "");
}

// Character over character: the ink of the text is where the cell has it.
TEST_F(TextTips, LieOverTheText)
{
    for (const TGAlign align : {TGAlign::Left, TGAlign::Center})
    {
        Make();
        TGColumnFormats formats(grid);
        formats.SetFormat(1, {.align = align});
        grid.GetCell(1, 1).SetText(L"HHHHHHHHHH HHHHHHHHHH");
        const CRect inside = grid.InsideOf(1, 1);
        const Snapshot cell = Picture();
        ASSERT_NE(Over(1, 1), "");
        const HWND window = TipWindow();
        ASSERT_NE(window, nullptr);
        const Snapshot tip(window);
        CRect place = inside;
        grid.ClientToScreen(&place);
        CRect tipArea;
        ::GetClientRect(window, &tipArea);
        ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&tipArea), 2);
        // The same columns and rows of pixels are dark in the part that both show.
        int same = 0;
        int other = 0;
        CRect both;
        both.IntersectRect(&place, &tipArea);
        both.DeflateRect(2, 2, 2, 2);
        const auto isDark = [](COLORREF colour) { return GetRValue(colour) + GetGValue(colour) < 200; };
        for (int y = both.top; y < both.bottom; ++y)
            for (int x = both.left; x < both.right; ++x)
            {
                const bool inCell = isDark(cell.At(x - place.left + inside.left, y - place.top + inside.top));
                const bool inTip = isDark(tip.At(x - tipArea.left, y - tipArea.top));
                same += inCell && inTip ? 1 : 0;
                other += inCell != inTip ? 1 : 0;
            }
        EXPECT_GT(same, 50) << static_cast<int>(align);
        EXPECT_EQ(other, 0) << static_cast<int>(align);
        grid.DestroyWindow();
        extra.Detach();
        grid.Clear();
        grid.SetColNum(0);
    }
}

TEST_F(TextTips, Captions)
{
    Make();
    grid.GetCol(1).SetName(longText);
    EXPECT_EQ(Over(-1, 1), Narrow(longText));
    EXPECT_NE(TipWindow(), nullptr);
    EXPECT_EQ(Over(-1, 0), "");
    EXPECT_EQ(Over(1, 1), Narrow(longText));
    EXPECT_EQ(Over(-1, 1), Narrow(longText));
}

TEST_F(TextTips, CaptionsOfSeveralLines)
{
    Make();
    grid.GetCol(0).SetName(L"one\ntwo");
    grid.RecalcLayout(1);
    EXPECT_EQ(extra.GetTipText(-1, 0), L"");
    grid.GetCol(0).SetName(L"one\ntwo that is wider than the whole column");
    EXPECT_EQ(extra.GetTipText(-1, 0), L"one\ntwo that is wider than the whole column");
}

TEST_F(TextTips, HooksComeFirst)
{
    ASSERT_TRUE(Activate(host));
    class TipGrid : public EditGrid
    {
    protected:
        bool OnCellTip(long row, long, CString& text) const override
        {
            text = L"hook";
            return row == 1;
        }
    };
    TipGrid hooked;
    EditTest::Make(hooked, 4, 3);
    for (const long row : {1L, 2L})
        hooked.GetCell(row, 1).SetText(longText);
    TGTextTips tips(hooked);
    tips.SetDelay(0);
    MoveMouse(hooked, hooked.InsideOf(1, 1).CenterPoint());
    PumpPending();
    EXPECT_EQ(tips.GetShownText(), L"");
    MoveMouse(hooked, hooked.InsideOf(2, 1).CenterPoint());
    PumpPending();
    EXPECT_EQ(tips.GetShownText(), longText);
}

TEST_F(TextTips, WholeNumbersAndWholeTexts_WhereFormatsShortenThem)
{
    Make();
    TGColumnFormats formats(grid);
    formats.SetLocale(L"en-US");
    formats.SetFormat(1, {.kind = TGValueKind::Number, .ellipsis = TGEllipsis::End});
    grid.GetCell(2, 1).SetText(L"12345678901234567890");
    EXPECT_EQ(Over(2, 1), "12,345,678,901,234,567,890");
    EXPECT_EQ(Over(1, 1), Narrow(longText));
    EXPECT_EQ(Over(0, 1), "");
}

TEST_F(TextTips, ATextThatIsScrolledOutOfTheView_IsCut)
{
    Make();
    grid.GetCol(0).SetWidth(300);
    grid.GetCol(1).SetWidth(340);
    EXPECT_EQ(extra.GetTipText(1, 1), longText);
    EXPECT_EQ(extra.GetTipText(1, 0), L"");
    grid.MoveView(280, 0);
    EXPECT_EQ(extra.GetTipText(1, 1), L"");
    EXPECT_EQ(extra.GetTipText(1, 0), L"1,0");
}

TEST_F(TextTips, WaitForTheMouseToRest)
{
    Make();
    extra.SetDelay(50);
    EXPECT_EQ(Over(1, 1), "");
    EXPECT_TRUE(PumpUntil([&] { return !extra.GetShownText().IsEmpty(); }));
    EXPECT_EQ(extra.GetShownText(), longText);
    extra.SetDelay(-7);
    EXPECT_EQ(extra.GetDelay(), -1);
}

TEST_F(TextTips, OverAnEditor_ThereIsNone)
{
    Make();
    const auto shownAfterAMove = [&] {
        SendMouse(grid, WM_MOUSEMOVE, grid.InsideOf(0, 0).CenterPoint());
        SendMouse(grid, WM_MOUSEMOVE, grid.InsideOf(1, 1).CenterPoint());
        return Narrow(extra.GetShownText());
    };
    EXPECT_EQ(shownAfterAMove(), Narrow(longText));
    grid.BeginEditCell(1, 1);
    EXPECT_EQ(shownAfterAMove(), "");
    grid.CancelEditCell();
    EXPECT_EQ(shownAfterAMove(), Narrow(longText));
}

TEST_F(TextTips, GoWithTheMouseAKeyAClickAndChanges)
{
    Make(40);
    const auto show = [&] {
        Over(0, 0);
        ASSERT_EQ(Over(1, 1), Narrow(longText));
    };
    show();
    MoveMouse(host, CPoint(700, 500));
    EXPECT_TRUE(PumpUntil([&] { return TipWindow() == nullptr; }));
    show();
    grid.SetFocus();
    KeyPress(VK_F12);
    EXPECT_EQ(TipWindow(), nullptr);
    show();
    TurnWheel(grid, grid.InsideOf(1, 1).CenterPoint(), -1);
    EXPECT_EQ(TipWindow(), nullptr);
    grid.MoveView(0, -1000);
    show();
    grid.GetCell(1, 1).SetText(L"another text that is too wide for the column");
    EXPECT_EQ(TipWindow(), nullptr);
    grid.GetCell(1, 1).SetText(longText);
    show();
    Click(grid, grid.InsideOf(1, 1).CenterPoint());
    EXPECT_EQ(TipWindow(), nullptr);
    EXPECT_TRUE(grid.IsEditing()) << "the tip lets clicks through";
}

TEST_F(TextTips, GoWithTheExtensionAndTheWindow)
{
    Make();
    ASSERT_NE(Over(1, 1), "");
    extra.Detach();
    EXPECT_EQ(TipWindow(), nullptr);
    extra.AttachTo(grid);
    Over(0, 0);
    ASSERT_NE(Over(1, 1), "");
    grid.DestroyWindow();
    EXPECT_EQ(TipWindow(), nullptr);
    EXPECT_EQ(extra.GetTipText(1, 1), L"");
    EXPECT_FALSE(extra.AttachTo(grid));
}

TEST_F(TextTips, AHookThatClosesTheWindow_OrDetaches)
{
    for (const bool closes : {true, false})
    {
        class HostileTips : public EditGrid
        {
        public:
            std::function<void()> asked;

        protected:
            bool OnCellTip(long, long, CString&) const override
            {
                if (asked)
                    asked();
                return false;
            }
        };
        HostileTips hostile;
        EditTest::Make(hostile, 4, 3);
        hostile.GetCell(1, 1).SetText(longText);
        TGTextTips tips(hostile);
        tips.SetDelay(0);
        bool asked = false;
        hostile.asked = [&] {
            if (std::exchange(asked, true))
                return;
            if (closes)
                hostile.DestroyWindow();
            else
                tips.Detach();
        };
        SendMouse(hostile, WM_MOUSEMOVE, hostile.InsideOf(1, 1).CenterPoint());
        EXPECT_TRUE(asked);
        EXPECT_EQ(tips.GetShownText(), L"");
        EXPECT_EQ(TipWindow(), nullptr);
        hostile.asked = nullptr;
        hostile.DestroyWindow();
    }
}

TEST_F(TextTips, PlacesThatThereAreNot_HaveNone)
{
    EXPECT_EQ(extra.GetTipText(0, 0), L"");
    extra.Hide();
    Make();
    for (const long index : {-5L, -2L, 3L, 1000L})
        EXPECT_EQ(extra.GetTipText(1, index), L"");
    for (const long index : {-5L, -2L, 5L, 1000L})
        EXPECT_EQ(extra.GetTipText(index, 1), L"");
    ModelGrid other;
    EXPECT_FALSE(extra.AttachTo(other));
}

} // namespace
} // namespace quor::test
