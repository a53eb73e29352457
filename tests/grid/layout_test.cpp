// The grid's measures, scroll bars, the fitting of the last column and the bracket of many changes.
#include "tests/grid/WindowGrid.h"

using namespace QuorUiCtr;
using namespace quor::test;

namespace
{

class GridLayout : public GridWindowTest
{
protected:
    void SetUp() override { Create(grid); }

    static int BarWidth() { return ::GetSystemMetrics(SM_CXVSCROLL); }
    static int BarHeight() { return ::GetSystemMetrics(SM_CYHSCROLL); }

    // The data area is 380 x 280 pixels without bars.
    WindowGrid grid;
};

TEST_F(GridLayout, Area_IsTheClientAreaBesideTheHeaders)
{
    EXPECT_EQ("20,20-400,300", Text(grid.Area()));
    grid.SetRowSel(false);
    EXPECT_EQ("0,20-400,300", Text(grid.Area()));
    grid.SetColSel(false);
    EXPECT_EQ("0,0-400,300", Text(grid.Area()));
}

TEST_F(GridLayout, HeaderHeight_FollowsTheLongestCaption)
{
    EXPECT_EQ(20, grid.GetColHeaderHeight());
    grid.AppendCol(L"One", 50);
    EXPECT_EQ(20, grid.GetColHeaderHeight());
    grid.AppendCol(L"One\nTwo", 50);
    grid.AppendCol(L"\nOne", 50);
    EXPECT_EQ(40, grid.GetColHeaderHeight());
    EXPECT_EQ("20,40-400,300", Text(grid.Area()));
}

TEST_F(GridLayout, Bottom_CountsTheNewRowLineWhileItIsShown)
{
    Fill(grid, 3, 1);
    EXPECT_EQ(80, grid.GetBottom());
    grid.SetNoAppendButton(true);
    EXPECT_EQ(60, grid.GetBottom());
    grid.SetNoAppendButton(false);
    grid.SetRowFixLength(true);
    EXPECT_EQ(60, grid.GetBottom());
    grid.SetRowFixLength(false);
    grid.SetReadOnly(true);
    EXPECT_EQ(60, grid.GetBottom());
}

TEST_F(GridLayout, RowSpace_ThatWouldLeaveRowsWithoutAPixelIsRefused)
{
    Fill(grid, 3, 1);
    grid.SetRowSpace(-16);
    EXPECT_EQ(1, grid.GetRowHeight());
    for (const int refused : {-17, -18, -1000})
    {
        grid.SetRowSpace(refused);
        EXPECT_EQ(-16, grid.GetRowSpace());
        EXPECT_EQ(1, grid.GetRowHeight());
    }
    ::SendMessage(grid, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 21));
    EXPECT_FALSE(grid.GetSafeHwnd() == nullptr);
}

TEST_F(GridLayout, RowSpace_IsRefusedBeforeTheWindowIsThereToo)
{
    WindowGrid later;
    later.SetRowSpace(-1);
    EXPECT_EQ(3, later.GetRowSpace());
    later.SetRowSpace(0);
    EXPECT_EQ(0, later.GetRowSpace());
}

TEST_F(GridLayout, SmallerFont_LeavesRowsAPixel)
{
    grid.SetRowSpace(-12);
    EXPECT_EQ(5, grid.GetRowHeight());
    CFont small;
    ASSERT_TRUE(small.CreateFont(-6, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                                 OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH,
                                 L"Tahoma"));
    grid.SetFont(&small);
    EXPECT_EQ(1, grid.GetRowHeight());
    EXPECT_EQ(-6, grid.GetRowSpace());
}

TEST_F(GridLayout, Right_IsTheLastColumnsEdge)
{
    EXPECT_EQ(0, grid.GetRight());
    grid.AppendCol(L"a", 70);
    grid.AppendCol(L"b", 0);
    EXPECT_EQ(170, grid.GetRight());
}

TEST_F(GridLayout, Measures_LeaveTheCursorsAlone)
{
    Fill(grid, 5, 3);
    grid.MoveTo(2);
    grid.GetBottom();
    grid.GetRight();
    grid.GetColHeaderHeight();
    grid.RecalcLayout(1);
    grid.UpdateWindow();
    EXPECT_EQ(2, grid.GetCur());
}

TEST_F(GridLayout, ContentAsLargeAsTheArea_ShowsNoBars)
{
    Fill(grid, 13, 1, 380);
    EXPECT_EQ(280, grid.GetBottom());
    EXPECT_EQ("", grid.Bars());
}

TEST_F(GridLayout, OneRowMore_ShowsTheVerticalBarAndWithAFullWidthAlsoTheOther)
{
    Fill(grid, 14, 1, 380 - BarWidth());
    EXPECT_EQ("V 20@0", grid.Bars());
    grid.AppendCol(L"", 1);
    const std::string maximum = std::to_string(20 + BarHeight());
    EXPECT_EQ("H 1@0 V " + maximum + "@0", grid.Bars());
}

TEST_F(GridLayout, OnePixelMoreWidth_ShowsTheHorizontalBarAndWithAFullHeightAlsoTheOther)
{
    Fill(grid, 12, 1, 381);
    EXPECT_EQ("H 1@0", grid.Bars());
    grid.AppendRow(nullptr);
    EXPECT_EQ("H " + std::to_string(1 + BarWidth()) + "@0 V " + std::to_string(BarHeight()) + "@0",
              grid.Bars());
}

TEST_F(GridLayout, LessContent_HidesTheBars)
{
    Fill(grid, 30, 5);
    EXPECT_NE("", grid.Bars());
    grid.SetRowNum(2);
    grid.SetColNum(2);
    EXPECT_EQ("", grid.Bars());
    EXPECT_EQ("20,20-400,300", Text(grid.Area()));
}

TEST_F(GridLayout, Sizing_LaysOut)
{
    Fill(grid, 13, 3);
    EXPECT_EQ("", grid.Bars());
    grid.SetWindowPos(nullptr, 0, 0, 300, 299, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ("H " + std::to_string(20 + BarWidth()) + "@0 V " + std::to_string(1 + BarHeight()) + "@0",
              grid.Bars());
    grid.SetWindowPos(nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ("", grid.Bars());
}

TEST_F(GridLayout, Position_IsKeptAsFarAsTheRangeGoes)
{
    grid.SetNoAppendButton(true);
    Fill(grid, 100, 1);
    grid.MoveView(0, 500);
    EXPECT_EQ("V 1720@500", grid.Bars());
    grid.SetRowNum(60);
    EXPECT_EQ("V 920@500", grid.Bars());
    grid.SetRowNum(20);
    EXPECT_EQ("V 120@120", grid.Bars());
}

TEST_F(GridLayout, BarShownAnew_StartsAtTheBeginning)
{
    grid.SetNoAppendButton(true);
    Fill(grid, 100, 1);
    grid.MoveView(0, 500);
    grid.SetRowNum(5);
    EXPECT_EQ("", grid.Bars());
    EXPECT_EQ("20,20", Text(grid.UpCorner()));
    grid.SetRowNum(100);
    EXPECT_EQ("V 1720@0", grid.Bars());
}

TEST_F(GridLayout, UpCorner_MovesWithTheScrollPositions)
{
    Fill(grid, 100, 10);
    EXPECT_EQ("20,20", Text(grid.UpCorner()));
    grid.MoveView(30, 45);
    EXPECT_EQ("-10,-25", Text(grid.UpCorner()));
}

TEST_F(GridLayout, ContextOrigin_LiesOnePixelBeforeTheUpCorner)
{
    Fill(grid, 100, 10);
    grid.MoveView(30, 45);
    ASSERT_NE(nullptr, grid.GetDC());
    EXPECT_EQ("-11,-26", Text(grid.GetDC()->GetViewportOrg()));
}

TEST_F(GridLayout, PreparedContext_HasFontPenAndMode)
{
    CDC* context = grid.GetDC();
    EXPECT_EQ(R2_COPYPEN, context->GetROP2());
    EXPECT_EQ(grid.GetFont()->m_hObject, ::GetCurrentObject(*context, OBJ_FONT));
    LOGPEN pen = {};
    ::GetObject(::GetCurrentObject(*context, OBJ_PEN), sizeof pen, &pen);
    EXPECT_EQ(lineColour, pen.lopnColor);
    EXPECT_EQ(1, pen.lopnWidth.x);
    EXPECT_EQ(UINT(PS_SOLID), pen.lopnStyle);
}

TEST_F(GridLayout, ClearAndPrepare_RemakeTheContext)
{
    grid.ClearDC();
    EXPECT_EQ(nullptr, grid.GetDC());
    grid.PrepareDC(nullptr);
    CDC* context = grid.GetDC();
    ASSERT_NE(nullptr, context);
    grid.PrepareDC(nullptr);
    EXPECT_EQ(context, grid.GetDC());
}

TEST_F(GridLayout, BarsOfTheCreationStyle_AreLaidOutLikeTheGridsOwn)
{
    WindowGrid styled;
    Create(styled, 400, 300, WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL);
    EXPECT_EQ("", styled.Bars());
    EXPECT_EQ("20,20-400,300", Text(styled.Area()));
    WindowGrid filled;
    filled.SetNoAppendButton(true);
    Fill(filled, 14, 1, 380);
    Create(filled, 400, 300, WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL);
    EXPECT_EQ("", filled.Bars());
}

TEST_F(GridLayout, BarPicture_FollowsWithTheNextPaint)
{
    const auto picture = [this] {
        grid.UpdateWindow();
        CWindowDC context(&grid);
        const int x = 400 - BarWidth() / 2;
        std::vector<COLORREF> column;
        for (int y = 0; y < 300; ++y)
            column.push_back(context.GetPixel(x, y));
        return column;
    };
    Fill(grid, 40, 1);
    grid.MoveView(0, 300);
    const auto longContent = picture();
    grid.SetRowNum(400);
    const auto drawnByPaint = picture();
    EXPECT_NE(longContent, drawnByPaint);
    grid.SetScrollPos(SB_VERT, grid.VScroll(), TRUE);
    EXPECT_EQ(picture(), drawnByPaint);
}

TEST_F(GridLayout, FitLastCol_FillsTheArea)
{
    Fill(grid, 3, 3);
    EXPECT_TRUE(grid.FitLastCol());
    EXPECT_EQ(380, grid.GetRight());
    EXPECT_EQ(180, grid.GetCol(2).GetWidth());
    EXPECT_EQ("", grid.Bars());
    EXPECT_FALSE(grid.FitLastCol());
}

TEST_F(GridLayout, FitLastCol_NarrowsAColumnThatIsTooWide)
{
    Fill(grid, 3, 3, 150);
    EXPECT_NE("", grid.Bars());
    EXPECT_TRUE(grid.FitLastCol());
    EXPECT_EQ(80, grid.GetCol(2).GetWidth());
    EXPECT_EQ("", grid.Bars());
}

TEST_F(GridLayout, FitLastCol_StopsAtOneRowHeight)
{
    grid.AppendCol(L"a", 360);
    grid.AppendCol(L"b", 100);
    EXPECT_TRUE(grid.FitLastCol());
    EXPECT_EQ(20, grid.GetCol(1).GetWidth());
    WindowGrid narrow;
    Create(narrow);
    narrow.AppendCol(L"a", 361);
    narrow.AppendCol(L"b", 100);
    EXPECT_FALSE(narrow.FitLastCol());
    EXPECT_EQ(100, narrow.GetCol(1).GetWidth());
}

TEST_F(GridLayout, FitLastCol_LeavesRoomForTheVerticalBar)
{
    Fill(grid, 50, 3);
    EXPECT_TRUE(grid.FitLastCol());
    EXPECT_EQ(380 - BarWidth(), grid.GetRight());
    EXPECT_EQ(grid.Area().Width(), grid.GetRight());
}

TEST_F(GridLayout, FitLastCol_WithoutColumnsOrWindow_IsRefused)
{
    EXPECT_FALSE(grid.FitLastCol());
    WindowGrid windowless;
    Fill(windowless, 1, 1);
    EXPECT_FALSE(windowless.FitLastCol());
    EXPECT_EQ(100, windowless.GetRight());
}

TEST_F(GridLayout, SetRowSpace_LaysOut)
{
    Fill(grid, 13, 1);
    EXPECT_EQ("", grid.Bars());
    grid.SetRowSpace(4);
    EXPECT_EQ(4, grid.GetRowSpace());
    EXPECT_EQ(21, grid.GetRowHeight());
    EXPECT_EQ("V " + std::to_string(14 * 21 - (300 - 21)) + "@0", grid.Bars());
}

TEST_F(GridLayout, Invalidate_ErasesTheHeadersInAnyCase)
{
    for (int erase : {0, 1})
    {
        PumpPending();
        EXPECT_FALSE(grid.GetUpdateRect(nullptr));
        grid.Invalidate(erase);
        EXPECT_TRUE(grid.GetUpdateRect(nullptr));
        for (int id : {102, 103, 104})
        {
            CWnd& header = *grid.GetDlgItem(id);
            EXPECT_TRUE(header.GetUpdateRect(nullptr)) << id;
            PAINTSTRUCT paint = {};
            ::BeginPaint(header, &paint);
            ::EndPaint(header, &paint);
            // Erased, as far as the window class can: the corner's has no background.
            EXPECT_EQ(id == 102, paint.fErase != FALSE) << id;
        }
    }
}

// Marking the grid marks no child where it clips its children.
TEST_F(GridLayout, Invalidate_ReachesTheHeadersOfAGridThatClipsThem)
{
    WindowGrid clipping;
    Create(clipping, 300, 200, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN);
    Fill(clipping, 3, 2);
    for (int erase : {0, 1})
    {
        PumpPending();
        for (int id : {102, 103, 104})
            clipping.GetDlgItem(id)->UpdateWindow();
        clipping.Invalidate(erase);
        for (int id : {102, 103, 104})
            EXPECT_TRUE(clipping.GetDlgItem(id)->GetUpdateRect(nullptr)) << id;
    }
}

TEST_F(GridLayout, Update_PostponesTheLayoutToItsLastEnd)
{
    grid.BeginUpdate();
    grid.BeginUpdate();
    Fill(grid, 50, 1);
    EXPECT_TRUE(grid.IsUpdating());
    grid.EndUpdate();
    EXPECT_TRUE(grid.IsUpdating());
    EXPECT_EQ("", grid.Bars());
    grid.EndUpdate();
    EXPECT_FALSE(grid.IsUpdating());
    EXPECT_EQ("V 740@0", grid.Bars());
}

TEST_F(GridLayout, EndUpdateWithoutBegin_IsHarmless)
{
    grid.EndUpdate();
    EXPECT_FALSE(grid.IsUpdating());
    Fill(grid, 50, 1);
    EXPECT_EQ("V 740@0", grid.Bars());
}

TEST_F(GridLayout, UpdateWithoutChanges_RepaintsNothing)
{
    grid.UpdateWindow();
    grid.BeginUpdate();
    grid.EndUpdate();
    EXPECT_FALSE(grid.GetUpdateRect(nullptr));
}

TEST_F(GridLayout, Update_PostponesARepaint)
{
    Fill(grid, 3, 2);
    grid.UpdateWindow();
    grid.BeginUpdate();
    grid.Invalidate(1);
    EXPECT_FALSE(grid.GetUpdateRect(nullptr));
    grid.EndUpdate();
    EXPECT_TRUE(grid.GetUpdateRect(nullptr));
}

TEST_F(GridLayout, PaintInsideAnUpdate_DrawsNothingAndIsRepeatedAtItsEnd)
{
    Fill(grid, 3, 2);
    grid.UpdateWindow();
    grid.BeginUpdate();
    grid.GetCol(0).SetBackColor(RGB(0, 0, 200));
    grid.recording = true;
    grid.CWnd::Invalidate(TRUE);
    grid.UpdateWindow();
    EXPECT_TRUE(grid.TakeLog().empty());
    EXPECT_FALSE(grid.GetUpdateRect(nullptr));
    grid.EndUpdate();
    EXPECT_TRUE(Snapshot(grid).IsAll(CRect(grid.InsideOf(0, 0).TopLeft(), CSize(2, 2)), RGB(0, 0, 200)));
    EXPECT_FALSE(grid.TakeLog().empty());
}

TEST_F(GridLayout, MoveViewInsideAnUpdate_LaysOutFirst)
{
    grid.BeginUpdate();
    Fill(grid, 50, 1);
    grid.MoveView(0, 100);
    EXPECT_EQ("V 740@100", grid.Bars());
    grid.EndUpdate();
    EXPECT_EQ("V 740@100", grid.Bars());
}

TEST_F(GridLayout, RowSelectedInsideAnUpdate_IsShownAtItsEnd)
{
    grid.BeginUpdate();
    Fill(grid, 50, 1);
    grid.SelectRow(40, true);
    EXPECT_EQ("", grid.Bars());
    grid.EndUpdate();
    // 41 rows less the 14 that fit.
    EXPECT_EQ("V 740@540", grid.Bars());
}

TEST_F(GridLayout, LayoutInAHookOfALayout_ReturnsAtOnce)
{
    class Nested : public WindowGrid
    {
    public:
        int sizes = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_SIZE)
                ++sizes;
            return WindowGrid::WindowProc(message, wParam, lParam);
        }
    };
    Nested nested;
    Create(nested);
    Fill(nested, 14, 1, 380);
    // Both bars were shown by one layout, although each sent WM_SIZE.
    EXPECT_GE(nested.sizes, 2);
    EXPECT_EQ("H " + std::to_string(BarWidth()) + "@0 V " + std::to_string(20 + BarHeight()) + "@0",
              nested.Bars());
}

} // namespace
