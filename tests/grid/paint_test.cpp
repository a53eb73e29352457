// What the grid paints in its data area: lines, colours, texts, the new-row line, the selection.
#include "tests/grid/WindowGrid.h"

#include <algorithm>

using namespace QuorUiCtr;
using namespace quor::test;

namespace
{

class GridPainting : public GridWindowTest
{
protected:
    void SetUp() override { Create(grid); }

    // The colour at a logical point.
    COLORREF At(long x, long y)
    {
        const CPoint point = grid.ToClient(x, y);
        return Snapshot(grid).At(point.x, point.y);
    }

    bool IsInsideAll(long row, long col, COLORREF colour)
    {
        return Snapshot(grid).IsAll(grid.InsideOf(row, col), colour);
    }

    // The columns from the first to the last pixel that differs from the corner's colour.
    static CRect Ink(const Snapshot& picture, const CRect& inside)
    {
        const COLORREF ground = picture.At(inside.right - 1, inside.top);
        CRect ink(inside.right, inside.bottom, inside.left, inside.top);
        for (int y = inside.top; y < inside.bottom; ++y)
        {
            for (int x = inside.left; x < inside.right; ++x)
            {
                if (picture.At(x, y) == ground)
                    continue;
                ink = CRect(std::min<int>(ink.left, x), std::min<int>(ink.top, y),
                            std::max<int>(ink.right, x + 1), std::max<int>(ink.bottom, y + 1));
            }
        }
        return ink;
    }

    WindowGrid grid;
};

TEST_F(GridPainting, GridLines_AreOnePixelWide)
{
    grid.SetNoAppendButton(true);
    grid.AppendCol(L"a", 100);
    grid.AppendCol(L"b", 50);
    grid.SetRowNum(3);
    EXPECT_EQ(white, At(99, 10));
    EXPECT_EQ(lineColour, At(100, 10));
    EXPECT_EQ(white, At(101, 10));
    EXPECT_EQ(white, At(149, 10));
    EXPECT_EQ(lineColour, At(150, 10));
    EXPECT_EQ(white, At(151, 10));
    for (long y : {20, 40, 60})
    {
        EXPECT_EQ(white, At(50, y - 1));
        EXPECT_EQ(lineColour, At(50, y));
        EXPECT_EQ(white, At(50, y + 1));
    }
}

TEST_F(GridPainting, FirstLines_LieUnderTheHeaders)
{
    grid.AppendCol(L"a", 100);
    grid.SetRowNum(3);
    const Snapshot picture(grid);
    const CRect area = grid.Area();
    EXPECT_TRUE(picture.IsAll(CRect(area.left, area.top, area.left + 99, area.top + 19), white));
    EXPECT_EQ("0,0", Text(CPoint(area.TopLeft() - grid.ToClient(1, 1))));
}

TEST_F(GridPainting, WithoutHeaders_TheFirstLinesAreOutsideToo)
{
    WindowGrid bare;
    bare.SetRowSel(false);
    bare.SetColSel(false);
    Create(bare);
    bare.AppendCol(L"a", 100);
    bare.SetRowNum(3);
    const Snapshot picture(bare);
    EXPECT_EQ(white, picture.At(0, 0));
    EXPECT_EQ(lineColour, picture.At(99, 0));
    EXPECT_EQ(lineColour, picture.At(0, 19));
}

TEST_F(GridPainting, Background_IsTheColumnsColour)
{
    grid.AppendCol(L"a", 100);
    grid.AppendCol(L"b", 100);
    grid.GetCol(1).SetBackColor(RGB(10, 200, 30));
    grid.SetRowNum(3);
    EXPECT_TRUE(IsInsideAll(1, 0, white));
    EXPECT_TRUE(IsInsideAll(1, 1, RGB(10, 200, 30)));
    EXPECT_EQ(lineColour, At(100, 30));
    EXPECT_EQ(lineColour, At(200, 30));
}

TEST_F(GridPainting, OutsideTheCells_IsWhite)
{
    grid.SetNoAppendButton(true);
    grid.AppendCol(L"a", 100);
    grid.GetCol(0).SetBackColor(RGB(0, 0, 0));
    grid.SetRowNum(3);
    const Snapshot picture(grid);
    const CPoint corner = grid.ToClient(101, 61);
    EXPECT_TRUE(picture.IsAll(CRect(corner.x, 20, 400, 300), white));
    EXPECT_TRUE(picture.IsAll(CRect(20, corner.y, 400, 300), white));
}

TEST_F(GridPainting, NewRowLine_IsARowOfEmptyCells)
{
    grid.AppendCol(L"a", 100);
    grid.GetCol(0).SetBackColor(RGB(1, 2, 3));
    grid.SetRowNum(2);
    EXPECT_EQ(RGB(1, 2, 3), At(50, 50));
    EXPECT_EQ(lineColour, At(50, 60));
    EXPECT_EQ(lineColour, At(100, 50));
    EXPECT_EQ(white, At(50, 61));
    grid.SetNoAppendButton(true);
    grid.RecalcLayout(1);
    EXPECT_EQ(lineColour, At(50, 40));
    EXPECT_EQ(white, At(50, 50));
    EXPECT_EQ(white, At(50, 60));
}

TEST_F(GridPainting, GridWithoutColumns_IsWhite)
{
    grid.SetRowNum(5);
    EXPECT_TRUE(Snapshot(grid).IsAll(grid.Area(), white));
}

TEST_F(GridPainting, Text_StandsTwoPixelsFromTheLineAtTheBottomOfTheRow)
{
    grid.AppendCol(L"a", 100);
    grid.SetRowNum(1);
    grid.GetCell(0, 0).SetText(L"HHH");
    const Snapshot picture(grid);
    const CRect inside = grid.InsideOf(0, 0);
    const CRect ink = Ink(picture, inside);
    EXPECT_GE(ink.left, inside.left + 2);
    EXPECT_LE(ink.left, inside.left + 4);
    EXPECT_GE(ink.top, inside.top + 3);
    EXPECT_LE(ink.bottom, inside.bottom);
}

TEST_F(GridPainting, TextColour_IsTheColumns)
{
    grid.AppendCol(L"a", 100);
    grid.GetCol(0).SetTextColor(RGB(255, 0, 0));
    grid.SetRowNum(1);
    grid.GetCell(0, 0).SetText(L"HHHH");
    const Snapshot picture(grid);
    EXPECT_GT(picture.CountColour(grid.InsideOf(0, 0), RGB(255, 0, 0)), 0);
    EXPECT_EQ(0, picture.CountColour(grid.InsideOf(0, 0), black));
}

TEST_F(GridPainting, CenteredText_StandsInTheMiddle)
{
    grid.AppendCol(L"a", 200);
    grid.SetRowNum(1);
    grid.GetCell(0, 0).SetText(L"HH");
    const CRect inside = grid.InsideOf(0, 0);
    const CRect left = Ink(Snapshot(grid), inside);
    grid.GetCol(0).SetCenterAlign(true);
    grid.Invalidate(1);
    const CRect centred = Ink(Snapshot(grid), inside);
    EXPECT_EQ(left.Width(), centred.Width());
    EXPECT_GT(centred.left, left.left + 50);
    EXPECT_NEAR(centred.CenterPoint().x, inside.CenterPoint().x + 1, 1);
}

TEST_F(GridPainting, LongText_IsClippedToItsCell)
{
    grid.AppendCol(L"a", 40);
    grid.AppendCol(L"b", 100);
    grid.SetRowNum(1);
    grid.GetCell(0, 0).SetText(L"HHHHHHHHHHHHHHHHHHHHHHHH");
    EXPECT_EQ(lineColour, At(40, 10));
    EXPECT_TRUE(IsInsideAll(0, 1, white));
}

TEST_F(GridPainting, SelectedRow_IsInvertedAtOnce)
{
    Fill(grid, 3, 2);
    grid.GetCol(1).SetBackColor(RGB(10, 20, 30));
    grid.UpdateWindow();
    grid.SelectRow(1, true);
    // Without a paint in between.
    CClientDC screen(&grid);
    const CPoint first = grid.ToClient(99, 22);
    EXPECT_EQ(black, screen.GetPixel(first));
    EXPECT_EQ(RGB(245, 235, 225), screen.GetPixel(grid.ToClient(199, 22)));
    EXPECT_EQ(white, screen.GetPixel(grid.ToClient(99, 2)));
    EXPECT_EQ(white, screen.GetPixel(grid.ToClient(99, 42)));
    grid.SelectRow(1, false);
    EXPECT_EQ(white, screen.GetPixel(first));
}

TEST_F(GridPainting, SelectedRow_IsABandFromTheTopLineToTheLastColumn)
{
    Fill(grid, 3, 2);
    grid.SelectRow(1, true);
    EXPECT_EQ(~lineColour & 0xFFFFFF, At(50, 20));
    EXPECT_EQ(lineColour, At(50, 40));
    EXPECT_EQ(black, At(199, 22));
    EXPECT_EQ(lineColour, At(200, 22));
    EXPECT_EQ(white, At(201, 22));
}

TEST_F(GridPainting, SelectedColumn_IsABandOverAllRowsAndTheNewRowLine)
{
    Fill(grid, 3, 3);
    grid.SelectCol(1, true);
    EXPECT_EQ(white, At(99, 2));
    EXPECT_EQ(~lineColour & 0xFFFFFF, At(100, 2));
    EXPECT_EQ(black, At(199, 2));
    EXPECT_EQ(lineColour, At(200, 2));
    EXPECT_EQ(black, At(150, 79));
    EXPECT_EQ(lineColour, At(150, 80));
    EXPECT_EQ(white, At(150, 81));
}

TEST_F(GridPainting, Repaint_InvertsTheSelectionOnce)
{
    Fill(grid, 3, 2);
    grid.SelectRow(1, true);
    grid.Invalidate(1);
    EXPECT_EQ(black, At(99, 22));
    grid.Invalidate(1);
    EXPECT_EQ(black, At(99, 22));
    // A part of the band.
    grid.InvalidateRect(CRect(grid.ToClient(50, 25), grid.ToClient(150, 35)), TRUE);
    EXPECT_EQ(black, At(99, 22));
    EXPECT_EQ(black, At(99, 30));
    EXPECT_EQ(black, At(199, 30));
}

TEST_F(GridPainting, SelectedRow_StaysInvertedAfterTheWindowWasCovered)
{
    Fill(grid, 3, 2);
    grid.SelectRow(1, true);
    EXPECT_EQ(black, At(99, 22));
    {
        CRect place;
        grid.GetWindowRect(&place);
        CWnd cover;
        ASSERT_TRUE(cover.CreateEx(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | WS_VISIBLE, place, nullptr, 0));
        cover.UpdateWindow();
        PumpPending();
        cover.DestroyWindow();
    }
    PumpPending();
    EXPECT_EQ(black, At(99, 22));
    EXPECT_EQ(white, At(99, 2));
}

TEST_F(GridPainting, SelectingARowOffScreen_ShowsItInverted)
{
    Fill(grid, 100, 2);
    grid.UpdateWindow();
    grid.SelectRow(60, true);
    EXPECT_TRUE(grid.Area().PtInRect(grid.ToClient(99, 60 * 20 + 2)));
    EXPECT_EQ(black, At(99, 60 * 20 + 2));
    EXPECT_EQ(white, At(99, 59 * 20 + 2));
}

TEST_F(GridPainting, ManySelectedRows_AreInvertedInTheView)
{
    Fill(grid, 300, 1);
    for (long row = 0; row < 300; row += 3)
        grid.SelectRow(row, true);
    for (int position : {0, 37, 2000, 100000})
    {
        grid.MoveView(0, -100000);
        grid.MoveView(0, position);
        grid.Invalidate(1);
        const Snapshot picture(grid);
        const CRect area = grid.Area();
        for (long row = 0; row < 300; ++row)
        {
            const CPoint point = grid.ToClient(99, row * 20 + 2);
            if (area.PtInRect(point))
            {
                EXPECT_EQ(row % 3 == 0 ? black : white, picture.At(point.x, point.y))
                    << row << " at " << position;
            }
        }
    }
}

TEST_F(GridPainting, SelectAll_InvertsEveryRow)
{
    Fill(grid, 50, 1);
    grid.SelectAll();
    EXPECT_EQ(black, At(99, 2));
    EXPECT_EQ(black, At(99, 202));
    grid.UnSelect();
    EXPECT_EQ(white, At(99, 2));
}

TEST_F(GridPainting, Paint_AsksTheVisibleRowsOnly)
{
    Fill(grid, 100, 2);
    grid.MoveView(0, 210);
    grid.UpdateWindow();
    grid.recording = true;
    grid.Invalidate(1);
    grid.UpdateWindow();
    std::vector<std::string> rows;
    for (const std::string& line : grid.TakeLog())
    {
        if (line.starts_with("OnRefresh row"))
            rows.push_back(line);
    }
    // Logical 211 to 491: rows 10 to 24.
    ASSERT_EQ(15u, rows.size());
    EXPECT_EQ("OnRefresh row 10", rows.front());
    EXPECT_EQ("OnRefresh row 24", rows.back());
}

TEST_F(GridPainting, Paint_AsksForEveryCellInOrder)
{
    Fill(grid, 1, 2);
    grid.UpdateWindow();
    grid.recording = true;
    grid.Refresh();
    const std::vector<std::string> expected{
        "OnRefresh row 0",     "OnRefresh cell 0,0", "OnBeforeRefresh 0,0", "OnRefresh cell 0,1",
        "OnBeforeRefresh 0,1", "OnRefresh row 1",    "OnRefresh cell 1,0",  "OnBeforeRefresh 1,0",
        "OnRefresh cell 1,1",  "OnBeforeRefresh 1,1"};
    EXPECT_EQ(expected, grid.TakeLog());
}

TEST_F(GridPainting, HiddenNewRowLine_IsNotAsked)
{
    grid.SetNoAppendButton(true);
    Fill(grid, 1, 1);
    grid.UpdateWindow();
    grid.recording = true;
    grid.Refresh();
    EXPECT_EQ((std::vector<std::string>{"OnRefresh row 0", "OnRefresh cell 0,0", "OnBeforeRefresh 0,0"}),
              grid.TakeLog());
}

TEST_F(GridPainting, Paint_LeavesTheRowCursorAlone)
{
    Fill(grid, 100, 2);
    grid.MoveTo(70);
    grid.Invalidate(1);
    grid.UpdateWindow();
    EXPECT_EQ(70, grid.GetCur());
}

class VetoGrid : public WindowGrid
{
public:
    long vetoedRow = -1;
    CPoint vetoedCell{-1, -1};

protected:
    bool OnRefresh(TGGridCell& cell) override
    {
        return !(cell.GetColIndex() == vetoedCell.x && cell.GetRowIndex() == vetoedCell.y);
    }
    bool OnRefresh(TGGridRow& row) override { return row.GetIndex() != vetoedRow; }
};

TEST_F(GridPainting, Veto_SkipsTheRowOrTheCell)
{
    VetoGrid vetoing;
    vetoing.vetoedRow = 1;
    vetoing.vetoedCell = CPoint(1, 3);
    Create(vetoing);
    Fill(vetoing, 5, 3);
    for (long col = 0; col < 3; ++col)
        vetoing.GetCol(col).SetBackColor(RGB(9, 9, 9));
    const Snapshot picture(vetoing);
    EXPECT_TRUE(picture.IsAll(vetoing.InsideOf(1, 0), white));
    EXPECT_TRUE(picture.IsAll(vetoing.InsideOf(3, 1), white));
    EXPECT_FALSE(picture.IsAll(vetoing.InsideOf(3, 0), white));
    EXPECT_EQ(RGB(9, 9, 9), picture.At(vetoing.InsideOf(3, 2).right - 1, vetoing.InsideOf(3, 2).top));
}

class ColourGrid : public WindowGrid
{
protected:
    void OnBeforeRefresh(TGGridCell& cell) override
    {
        WindowGrid::OnBeforeRefresh(cell);
        if (cell.GetRowIndex() == 1)
            GetDC()->SetBkColor(RGB(0, 128, 255));
    }
};

TEST_F(GridPainting, ColoursOfTheHook_AreUsed)
{
    ColourGrid coloured;
    Create(coloured);
    coloured.AppendCol(L"a", 100);
    coloured.SetRowNum(3);
    const Snapshot picture(coloured);
    EXPECT_TRUE(picture.IsAll(coloured.InsideOf(1, 0), RGB(0, 128, 255)));
    EXPECT_TRUE(picture.IsAll(coloured.InsideOf(2, 0), white));
}

class RestlessGrid : public WindowGrid
{
public:
    int pending = 0;

protected:
    bool OnRefresh(TGGridRow& row) override
    {
        if (row.GetIndex() == 2 && pending-- > 0)
            DelRow(0);
        return WindowGrid::OnRefresh(row);
    }
};

TEST_F(GridPainting, RowsDeletedWhilePainting_AreHarmless)
{
    RestlessGrid restless;
    Create(restless);
    Fill(restless, 10, 2);
    restless.pending = 3;
    restless.Invalidate(1);
    PumpUntil([&restless] { return restless.GetRowNum() == 7; });
    EXPECT_EQ(7, restless.GetRowNum());
    EXPECT_NE(nullptr, restless.GetDC());
    EXPECT_STREQ(L"3,0", restless.GetCell(0, 0).GetText());
}

TEST_F(GridPainting, Erase_WithBothBars_IsLeftToTheCells)
{
    CClientDC context(&grid);
    const WPARAM handle = reinterpret_cast<WPARAM>(context.m_hDC);
    context.FillSolidRect(CRect(100, 100, 120, 120), RGB(1, 2, 3));
    grid.SendMessage(WM_ERASEBKGND, handle);
    EXPECT_EQ(white, context.GetPixel(110, 110));
    Fill(grid, 100, 1);
    context.FillSolidRect(CRect(100, 100, 120, 120), RGB(1, 2, 3));
    grid.SendMessage(WM_ERASEBKGND, handle);
    EXPECT_EQ(white, context.GetPixel(110, 110));
    grid.SetColNum(10);
    context.FillSolidRect(CRect(100, 100, 120, 120), RGB(1, 2, 3));
    EXPECT_EQ(TRUE, grid.SendMessage(WM_ERASEBKGND, handle));
    EXPECT_EQ(RGB(1, 2, 3), context.GetPixel(110, 110));
}

TEST_F(GridPainting, CellSelect_InvertsTheCellAndASecondTimeRestoresIt)
{
    Fill(grid, 3, 2);
    grid.UpdateWindow();
    CClientDC screen(&grid);
    const CPoint point = grid.ToClient(199, 22);
    grid.GetCell(1, 1).Select(true);
    EXPECT_EQ(black, screen.GetPixel(point));
    grid.GetCell(1, 1).Select(true);
    EXPECT_EQ(white, screen.GetPixel(point));
}

TEST_F(GridPainting, CellRefresh_DrawsAtOnce)
{
    Fill(grid, 3, 2);
    grid.UpdateWindow();
    grid.GetCell(1, 1).SetText(L"HHHHHHHHH");
    grid.GetCol(1).SetBackColor(RGB(200, 100, 0));
    grid.GetCell(1, 1).Refresh();
    CClientDC screen(&grid);
    EXPECT_EQ(RGB(200, 100, 0), screen.GetPixel(grid.ToClient(199, 22)));
    EXPECT_FALSE(grid.GetUpdateRect(nullptr));
}

} // namespace
