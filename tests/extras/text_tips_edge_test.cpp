// Tips over texts of other fonts, more lines and more width than a cell and the screen have.
#include "grid/extras/TGColumnFormats.h"
#include "grid/extras/TGTextTips.h"
#include "tests/extras/ExtraGrid.h"

#include <functional>
#include <memory>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class TipEdges : public ExtraTest<TGTextTips>
{
protected:
    void Make()
    {
        ExtraTest::Make();
        extra.SetDelay(0);
        ASSERT_TRUE(Activate(host));
    }
    void MoveOver(long row, long col, WPARAM keys = 0)
    {
        SendMouse(grid, WM_MOUSEMOVE, grid.InsideOf(row, col).CenterPoint(), keys);
    }
};

TEST_F(TipEdges, ABoldText_IsMeasuredBold)
{
    Make();
    TGColumnFormats formats(grid);
    formats.SetFormat(1, {.bold = true});
    CString text;
    do
    {
        text += L'n';
        grid.GetCell(0, 0).SetText(text);
        grid.GetCell(0, 1).SetText(text);
    } while (extra.GetTipText(0, 1).IsEmpty());
    EXPECT_EQ(extra.GetTipText(0, 1), text);
    EXPECT_EQ(extra.GetTipText(0, 0), L"");
}

TEST_F(TipEdges, AnEmptyText_IsNeverCut)
{
    Make();
    grid.GetCol(1).SetWidth(1);
    EXPECT_EQ(extra.GetTipText(0, 1), L"0,1");
    grid.GetCell(0, 1).SetText(L"");
    EXPECT_EQ(extra.GetTipText(0, 1), L"");
}

TEST_F(TipEdges, LinesThatTheHeaderHasNoRoomFor_AreCut)
{
    Make();
    grid.GetCol(0).SetName(L"1\n2");
    grid.RecalcLayout(1);
    EXPECT_EQ(extra.GetTipText(-1, 0), L"");
    grid.GetCol(0).SetName(L"1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n13\n14\n15");
    EXPECT_EQ(extra.GetTipText(-1, 0), L"1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n13\n14\n15");
}

TEST_F(TipEdges, AButtonThatIsDown_HidesTheTip)
{
    Make();
    grid.GetCell(1, 1).SetText(L"a text that is much too wide for its column");
    for (const WPARAM keys : {MK_LBUTTON, MK_RBUTTON, MK_MBUTTON})
    {
        MoveOver(1, 1);
        EXPECT_NE(extra.GetShownText(), L"");
        MoveOver(1, 1, keys);
        EXPECT_EQ(extra.GetShownText(), L"");
    }
}

TEST_F(TipEdges, ChangesOfOtherCells_LeaveTheTip)
{
    Make();
    grid.GetCell(1, 1).SetText(L"a text that is much too wide for its column");
    MoveOver(1, 1);
    grid.GetCell(1, 0).SetText(L"left");
    grid.GetCell(0, 1).SetText(L"above");
    EXPECT_NE(extra.GetShownText(), L"");
    grid.GetCell(1, 1).SetText(L"own");
    EXPECT_EQ(extra.GetShownText(), L"");
}

TEST_F(TipEdges, ByDefault_WaitsAsLongAsADoubleClickMayTake)
{
    Make();
    const UINT before = ::GetDoubleClickTime();
    ::SetDoubleClickTime(200);
    extra.SetDelay(-1);
    grid.GetCell(1, 1).SetText(L"a text that is much too wide for its column");
    // With the real mouse, which stays over the cell.
    MoveMouse(grid, grid.InsideOf(1, 1).CenterPoint());
    PumpPending();
    EXPECT_EQ(extra.GetShownText(), L"");
    EXPECT_TRUE(PumpUntil([&] { return !extra.GetShownText().IsEmpty(); }));
    ::SetDoubleClickTime(before);
}

TEST_F(TipEdges, ATextThatIsWiderThanTheScreen_IsBrokenIntoLines)
{
    Make();
    CString words;
    for (int i = 0; i < 200; ++i)
        words += L"several words ";
    grid.GetCell(1, 1).SetText(words);
    MoveOver(1, 1);
    EXPECT_EQ(extra.GetShownText(), words);
    CRect place;
    for (HWND window = ::GetTopWindow(nullptr); window != nullptr; window = ::GetWindow(window, GW_HWNDNEXT))
        if ((::GetWindowLong(window, GWL_EXSTYLE) & WS_EX_NOACTIVATE) != 0 && ::IsWindowVisible(window) &&
            ::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId())
            ::GetWindowRect(window, &place);
    EXPECT_GT(place.Height(), 3 * rowHeight);
    EXPECT_LE(place.Width(), ::GetSystemMetrics(SM_CXSCREEN));
    EXPECT_GE(place.left, 0);
}

TEST_F(TipEdges, OnlyOverTheEditor_ThereIsNone)
{
    Make();
    grid.GetCell(1, 1).SetText(L"a text that is much too wide for its column");
    for (const CPoint edited : {CPoint(1, 0), CPoint(0, 1), CPoint(0, 0)})
    {
        MoveOver(0, 2);
        grid.BeginEditCell(edited.y, edited.x);
        MoveOver(1, 1);
        EXPECT_NE(extra.GetShownText(), L"");
        grid.CancelEditCell();
    }
    MoveOver(0, 2);
    grid.BeginEditCell(1, 1);
    MoveOver(1, 1);
    EXPECT_EQ(extra.GetShownText(), L"");
}

TEST_F(TipEdges, ALookWithoutAFont_IsMeasuredInTheSystems)
{
    class NoFont : public TGGridExtension
    {
    protected:
        void OnCellLook(TGGridCell&, TGTextLook& look) override { look.font = &empty; }

    private:
        CFont empty;
    } noFont;
    Make();
    grid.GetCell(1, 1).SetText(L"a text that is much too wide for its column");
    noFont.AttachTo(grid);
    EXPECT_EQ(extra.GetTipText(1, 1), L"a text that is much too wide for its column");
    EXPECT_EQ(extra.GetTipText(0, 0), L"");
}

TEST_F(TipEdges, AHookThatDeletesTheExtension_LeavesNoTip)
{
    class AskedGrid : public EditGrid
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
    } hooked;
    EditTest::Make(hooked, 4, 3);
    hooked.GetCell(1, 1).SetText(L"a text that is much too wide for its column");
    auto own = std::make_unique<TGTextTips>(hooked);
    own->SetDelay(0);
    hooked.asked = [&own] { own.reset(); };
    SendMouse(hooked, WM_MOUSEMOVE, hooked.InsideOf(1, 1).CenterPoint());
    EXPECT_EQ(own, nullptr);
    hooked.asked = nullptr;
}

TEST_F(TipEdges, WithoutAHeader_CaptionsHaveNoTip)
{
    Make();
    grid.GetCol(0).SetName(L"a caption that is much too wide for its column");
    EXPECT_NE(extra.GetTipText(-1, 0), L"");
    grid.GetDlgItem(103)->DestroyWindow();
    EXPECT_EQ(extra.GetTipText(-1, 0), L"");
    MoveOver(1, 1);
    EXPECT_EQ(extra.GetShownText(), L"");
}

} // namespace
} // namespace quor::test
