// A grid whose header windows a test presses, drags and looks at.
#pragma once

#include "tests/grid/CommandGrid.h"
#include "tests/grid/HeldKeys.h"
#include "tests/support/Input.h"

namespace quor::test
{

// Rows are 20 pixels high, as is the column header; columns are 50 pixels wide. The row header is 20 pixels
// wide.
class HeaderFixture : public GridWindowTest
{
protected:
    static constexpr long colWidth = 50;

    void Make(CommandGrid& grid, const std::string& rows, int cols = 6, int width = 500, int height = 300)
    {
        Create(grid, width, height);
        for (int col = 0; col < cols; ++col)
            grid.AppendCol(CString(static_cast<wchar_t>(L'A' + col)), colWidth);
        grid.AddRows(rows);
        grid.UpdateWindow();
    }

    static CWnd& Quad(CommandGrid& grid) { return *grid.GetDlgItem(102); }
    static CWnd& ColHeader(CommandGrid& grid) { return *grid.GetDlgItem(103); }
    static CWnd& RowHeader(CommandGrid& grid) { return *grid.GetDlgItem(104); }
    // The middle of a box, in the header window's client coordinates.
    static CPoint RowBox(CommandGrid& grid, long row)
    {
        return CPoint(10, grid.UpCorner().y - rowHeight + row * rowHeight + rowHeight / 2);
    }
    static CPoint ColBox(CommandGrid& grid, long col)
    {
        return CPoint(grid.UpCorner().x - rowHeight + col * colWidth + colWidth / 2, 10);
    }

    static void Press(CWnd& header, CPoint point) { SendMouse(header, WM_LBUTTONDOWN, point, MK_LBUTTON); }
    static void Move(CWnd& header, CPoint point) { SendMouse(header, WM_MOUSEMOVE, point, MK_LBUTTON); }
    static void Release(CWnd& header, CPoint point) { SendMouse(header, WM_LBUTTONUP, point); }
    static void ClickRow(CommandGrid& grid, long row)
    {
        Press(RowHeader(grid), RowBox(grid, row));
        Release(RowHeader(grid), RowBox(grid, row));
    }
    static void ClickCol(CommandGrid& grid, long col)
    {
        Press(ColHeader(grid), ColBox(grid, col));
        Release(ColHeader(grid), ColBox(grid, col));
    }
    static void DragRow(CommandGrid& grid, long from, long to)
    {
        Press(RowHeader(grid), RowBox(grid, from));
        Move(RowHeader(grid), RowBox(grid, to));
        Release(RowHeader(grid), RowBox(grid, to));
    }
    static void DragCol(CommandGrid& grid, long from, CPoint to)
    {
        Press(ColHeader(grid), ColBox(grid, from));
        Move(ColHeader(grid), to);
        Release(ColHeader(grid), to);
    }

    // Whether the picture of the grid is what painting all of it anew would give.
    static testing::AssertionResult ShowsNoTrace(CommandGrid& grid)
    {
        const Snapshot before(grid);
        grid.Invalidate(1);
        const Snapshot fresh(grid);
        for (int y = 0; y < before.Height(); ++y)
            for (int x = 0; x < before.Width(); ++x)
                if (before.At(x, y) != fresh.At(x, y))
                    return testing::AssertionFailure() << "trace at " << x << "," << y;
        return testing::AssertionSuccess();
    }
    // Whether an inverted bar stands at the upper edge of a row: the pixels of its empty cell in the third
    // column are black there and white below.
    static bool HasDropMark(CommandGrid& grid, long row)
    {
        const Snapshot picture(grid);
        const CPoint corner = grid.ToClient(colWidth * 2 + 10, row * rowHeight);
        return picture.IsAll(CRect(corner.x, corner.y + 1, corner.x + 20, corner.y + 3), black) &&
               picture.IsAll(CRect(corner.x, corner.y + 3, corner.x + 20, corner.y + 6), white);
    }
};

} // namespace quor::test
