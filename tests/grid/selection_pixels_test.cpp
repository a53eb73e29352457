// Random changes of selection, structure, scrolling and what covers the window: after them exactly the
// selected bands are inverted on the screen, pixel by pixel.
#include "tests/grid/WindowGrid.h"

#include <cstdio>
#include <deque>
#include <random>

using namespace QuorUiCtr;
using namespace quor::test;

namespace
{

#ifdef _DEBUG
constexpr int stepsPerRun = 150;
#else
constexpr int stepsPerRun = 600;
#endif

// A grid whose cells are empty, so that each pixel follows from edges, colours and selection.
class PixelGrid : public WindowGrid
{
public:
    PixelGrid() : WindowGrid(false, 60) {}

    // The first pixel of the data area that is not as it should be, as text; empty when there is none.
    std::string FindWrongPixel()
    {
        const Snapshot picture(*this);
        const CRect area = Area();
        const CPoint origin = ToClient(0, 0);
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x)
            {
                const CPoint logical(x - origin.x, y - origin.y);
                const COLORREF colour = picture.At(x, y);
                if (colour != Expected(logical.x, logical.y))
                    return "pixel " + Text(CPoint(x, y)) + ", logical " + Text(logical) + ", is " +
                           Hex(colour) + " and not " + Hex(Expected(logical.x, logical.y));
            }
        return "";
    }

    std::string Selection()
    {
        std::string text;
        for (long row = 0; row < GetRowNum(); ++row)
            text += IsRowSelected(row) ? " r" + std::to_string(row) : "";
        for (long col = 0; col < GetColNum(); ++col)
            text += IsColSelected(col) ? " c" + std::to_string(col) : "";
        return text;
    }

private:
    static std::string Hex(COLORREF colour)
    {
        char text[16];
        std::snprintf(text, sizeof text, "%06lX", colour);
        return text;
    }

    COLORREF Expected(long x, long y)
    {
        const COLORREF colour = Unselected(x, y);
        return IsInSelectedBand(x, y) ? ~colour & 0xFFFFFF : colour;
    }

    COLORREF Unselected(long x, long y)
    {
        if (GetRight() == 0 || GetBottom() == 0 || x > GetRight() || y > GetBottom())
            return white;
        if (y % GetRowHeight() == 0 || x == GetRight())
            return lineColour;
        TGGridCol& col = GetCol(ColAtX(x));
        CRect edges;
        GetEdges(col, edges);
        return x == edges.left ? lineColour : col.GetBackColor();
    }

    bool IsInSelectedBand(long x, long y)
    {
        if (x >= GetRight() || y >= GetBottom())
            return false;
        return IsColSelected() ? IsColSelected(ColAtX(x)) : IsRowSelected(y / GetRowHeight());
    }

    // The edges follow from the widths of the columns before.
    void GetEdges(const TGGridCol& wanted, CRect& edges)
    {
        edges.SetRectEmpty();
        for (long i = 0; i < GetColNum(); ++i)
        {
            edges.left = edges.right;
            edges.right += GetCol(i).GetWidth();
            if (&GetCol(i) == &wanted)
                return;
        }
    }
};

class GridSelectionPixels : public GridWindowTest
{
protected:
    void SetUp() override
    {
        Create(grid, 300, 200);
        for (const long width : {70, 40, 90})
            AddCol(grid.GetColNum(), width);
        grid.SetRowNum(12);
    }

    long Below(long limit) { return static_cast<long>(random() % static_cast<unsigned long>(limit)); }
    void Did(const std::string& what, long number = -1)
    {
        done.push_back(number < 0 ? what : what + " " + std::to_string(number));
        if (done.size() > 16)
            done.pop_front();
    }

    void AddCol(long at, long width)
    {
        grid.InsertCol(at, L"", width);
        grid.GetCol(at).SetBackColor(RGB(Below(100), Below(100), 200 + Below(50)));
        grid.Invalidate(1);
    }

    void Select()
    {
        const long row = Below(grid.GetRowNum() + 2) - 1;
        const long col = Below(grid.GetColNum() + 2) - 1;
        switch (Below(10))
        {
        case 0:
            Did("SelectAll");
            return grid.SelectAll();
        case 1:
            Did("UnSelect");
            return grid.UnSelect();
        case 2:
        case 3:
            Did("SelectCol", col);
            return grid.SelectCol(col, true);
        case 4:
            Did("SelectCol off", col);
            return grid.SelectCol(col, false);
        case 5:
        case 6:
            Did("SelectRow off", row);
            return grid.SelectRow(row, false);
        default:
            Did("SelectRow", row);
            return grid.SelectRow(row, true);
        }
    }

    void ChangeRows()
    {
        const long row = Below(grid.GetRowNum() + 1);
        switch (Below(4))
        {
        case 0:
            Did("MoveRow to", row);
            if (grid.GetRowNum() > 0)
                grid.MoveRow(Below(grid.GetRowNum()), row);
            return;
        case 1:
            Did("DelRow", row);
            if (row < grid.GetRowNum())
                grid.DelRow(row);
            return;
        default:
            Did("InsertRow", row);
            if (grid.GetRowNum() < 30)
                grid.InsertRow(row, nullptr);
            return;
        }
    }

    void ChangeCols()
    {
        const long col = Below(grid.GetColNum() + 1);
        switch (Below(4))
        {
        case 0:
            Did("MoveCol to", col);
            if (grid.GetColNum() > 0)
                grid.MoveCol(Below(grid.GetColNum()), col);
            return;
        case 1:
            Did("DelCol", col);
            if (col < grid.GetColNum())
                grid.DelCol(col);
            return;
        default:
            Did("InsertCol", col);
            if (grid.GetColNum() < 6)
                AddCol(col, 25 + Below(90));
            return;
        }
    }

    void Draw()
    {
        const CRect area = grid.Area();
        const int x = static_cast<int>(Below(area.right));
        const int y = static_cast<int>(Below(area.bottom));
        const int right = x + 1 + static_cast<int>(Below(80));
        switch (Below(5))
        {
        case 0:
            Did("RecalcLayout");
            return grid.RecalcLayout(static_cast<int>(Below(2)));
        case 1:
            Did("UpdateWindow");
            return grid.UpdateWindow();
        case 2:
            Did("Refresh of a cell");
            if (grid.GetRowNum() > 0 && grid.GetColNum() > 0)
                grid.GetCell(Below(grid.GetRowNum()), Below(grid.GetColNum())).Refresh();
            return;
        case 3:
            Did("Refresh of a row");
            if (grid.GetRowNum() > 0)
                grid.GetRow(Below(grid.GetRowNum())).Refresh();
            return;
        default:
            Did("InvalidateRect");
            return grid.InvalidateRect(CRect(x, y, right, y + 30), static_cast<BOOL>(Below(2)));
        }
    }

    // Another window lies over a part of the grid for a while; the grid changes meanwhile.
    void Cover()
    {
        Did("cover");
        CRect place;
        grid.GetWindowRect(&place);
        place.OffsetRect(static_cast<int>(Below(300)) - 150, static_cast<int>(Below(200)) - 100);
        CWnd cover;
        ASSERT_TRUE(cover.CreateEx(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | WS_VISIBLE, place, nullptr, 0));
        cover.UpdateWindow();
        PumpPending();
        for (long changes = Below(4); changes > 0; --changes)
            Change();
        Did("uncover");
        cover.DestroyWindow();
        PumpPending();
    }

    void ChangeTogether()
    {
        Did("BeginUpdate");
        {
            const TGGridUpdate update(grid);
            for (long changes = Below(5); changes > 0; --changes)
                Change();
        }
        Did("EndUpdate");
    }

    void Resize()
    {
        const int width = 200 + static_cast<int>(Below(150));
        Did("resize", width);
        grid.SetWindowPos(nullptr, 0, 0, width, 150 + static_cast<int>(Below(100)),
                          SWP_NOMOVE | SWP_NOZORDER);
    }

    // Only as the bars allow: without a bar the distance passes unclamped and moves the picture alone.
    void Scroll()
    {
        const std::string bars = grid.Bars();
        const bool horizontal = bars.find('H') != std::string::npos;
        const bool vertical = bars.find('V') != std::string::npos;
        grid.MoveView(horizontal ? static_cast<int>(Below(200)) - 100 : 0,
                      vertical ? static_cast<int>(Below(300)) - 150 : 0);
    }

    void Change()
    {
        switch (Below(12))
        {
        case 0:
        case 1:
            Scroll();
            return Did("MoveView to " + Text(CPoint(grid.HScroll(), grid.VScroll())));
        case 2:
            return ChangeRows();
        case 3:
            return Below(2) ? ChangeCols() : ChangeRows();
        case 4:
        case 5:
            return Draw();
        default:
            return Select();
        }
    }

    void Step()
    {
        switch (Below(20))
        {
        case 0:
            return Cover();
        case 1:
            return ChangeTogether();
        case 2:
            return Resize();
        default:
            return Change();
        }
    }

    std::string History() const
    {
        std::string text;
        for (const std::string& each : done)
            text += each + "; ";
        return text;
    }

    std::mt19937 random;
    std::deque<std::string> done;
    PixelGrid grid;
};

TEST_F(GridSelectionPixels, ExactlyTheSelectedBandsAreInverted_AfterAnyChanges)
{
    for (const unsigned seed : {1u, 2u, 3u})
    {
        random.seed(seed);
        for (int step = 0; step < stepsPerRun / 3; ++step)
        {
            for (long changes = 1 + Below(3); changes > 0; --changes)
                Step();
            const std::string wrong = grid.FindWrongPixel();
            ASSERT_EQ("", wrong) << "seed " << seed << ", step " << step << ", selected" << grid.Selection()
                                 << ", rows " << grid.GetRowNum() << ", after: " << History();
        }
    }
}

} // namespace
