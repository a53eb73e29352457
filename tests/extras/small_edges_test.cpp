// Widths, the wheel and the text of an empty grid, where there is little of what they are about.
#include "grid/extras/TGCellCursor.h"
#include "grid/extras/TGColumnWidths.h"
#include "grid/extras/TGEmptyText.h"
#include "grid/extras/TGWheelScroll.h"
#include "tests/extras/ExtraGrid.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// ---- Widths

class WidthEdges : public ExtraTest<TGColumnWidths>
{
protected:
    // The right edge of the first column, in the header.
    CPoint Edge()
    {
        CPoint point(grid.InsideOf(0, 0).right + 3, 10);
        grid.MapWindowPoints(&Header(), &point, 1);
        return point;
    }
};

class NarrowRow : public TGGridRow
{
public:
    using TGGridRow::TGGridRow;

protected:
    void AppendCol(TGGridCol&) override {}
};

TEST_F(WidthEdges, EmptyCells_AndCellsThatThereAreNot_NeedNoRoom)
{
    Make(3, 1);
    grid.InsertRow(1, new NarrowRow(grid));
    AddCols(grid, 1);
    grid.GetCell(0, 1).SetText(L"the only text of this column");
    const long width = extra.GetFitWidth(1, TGColumnWidths::Cells::All);
    EXPECT_GT(width, 60);
    grid.GetCell(0, 1).SetText(L"");
    EXPECT_LT(extra.GetFitWidth(1, TGColumnWidths::Cells::All), width);
    EXPECT_LT(extra.GetFitWidth(1), width);
}

TEST_F(WidthEdges, WithoutAGrid_NothingIsFitted)
{
    EXPECT_EQ(extra.GetFitWidth(0), -1);
    EXPECT_FALSE(extra.FitCol(0));
    extra.FitCols();
    Make();
    EXPECT_TRUE(extra.FitCol(0));
}

TEST_F(WidthEdges, EscapeThatIsSent_CancelsADrag_OtherKeysDoNot)
{
    Make();
    Focus();
    const long width = grid.GetCol(0).GetWidth();
    const auto drag = [&](WPARAM key) {
        const CPoint edge = Edge();
        SendMouse(Header(), WM_LBUTTONDOWN, edge, MK_LBUTTON);
        SendMouse(Header(), WM_MOUSEMOVE, CPoint(edge.x + 30, edge.y), MK_LBUTTON);
        Header().SendMessage(WM_KEYDOWN, key);
        SendMouse(Header(), WM_LBUTTONUP, CPoint(edge.x + 30, edge.y));
        return grid.GetCol(0).GetWidth();
    };
    EXPECT_EQ(drag(VK_ESCAPE), width);
    EXPECT_EQ(drag(VK_F12), width + 30);
}

TEST_F(WidthEdges, Escape_OfAnotherWindowsDrag_IsLeftAlone)
{
    Make();
    Focus();
    // A window with the header's number that stands elsewhere.
    CWnd other;
    other.CreateEx(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, CRect(500, 400, 600, 420), &host, 103);
    other.SetCapture();
    PostKey(grid, VK_ESCAPE);
    PostKey(grid, VK_F12);
    PumpPending();
    EXPECT_EQ(::GetCapture(), other.m_hWnd);
    ::ReleaseCapture();
}

TEST_F(WidthEdges, Escape_CancelsTheMoveOfARow)
{
    Make();
    Focus();
    CWnd& rowHeader = *grid.GetDlgItem(104);
    grid.SelectRow(0, true);
    SendMouse(rowHeader, WM_LBUTTONDOWN, CPoint(10, 30), MK_LBUTTON);
    ASSERT_EQ(::GetCapture(), rowHeader.m_hWnd);
    PostKey(grid, VK_ESCAPE);
    PumpPending();
    EXPECT_NE(::GetCapture(), rowHeader.m_hWnd);
}

// ---- Wheel

using WheelEdges = ExtraTest<TGWheelScroll>;

TEST_F(WheelEdges, OverTheEditor_AndItsButton_ScrollsTheGrid)
{
    Make(100);
    Focus();
    grid.GetCol(0).SetRightButton(true);
    grid.BeginEditCell(0, 0);
    ASSERT_NE(grid.EditorWindow(), nullptr);
    const WPARAM down = MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA));
    grid.EditorWindow()->PostMessage(WM_MOUSEWHEEL, down);
    PumpPending();
    const int once = grid.VScroll();
    EXPECT_GT(once, 0);
    if (!grid.IsEditing())
        grid.BeginEditCell(0, 0);
    ASSERT_NE(grid.EditorPart(), nullptr);
    const int before = grid.VScroll();
    grid.EditorPart()->PostMessage(WM_MOUSEWHEEL, down);
    PumpPending();
    EXPECT_GT(grid.VScroll(), before);
    // Of another window it is not the grid's.
    if (!grid.IsEditing())
        grid.BeginEditCell(0, 0);
    const int at = grid.VScroll();
    grid.GetDlgItem(102)->PostMessage(WM_KEYDOWN, VK_F12);
    PumpPending();
    EXPECT_EQ(grid.VScroll(), at);
}

TEST_F(WheelEdges, OverAnEditorWithAnOpenList_IsTheLists)
{
    Make(100);
    Focus();
    grid.GetCol(0).SetComboEdit(true);
    grid.comboStrings = [](TGGridCell&, CComboBox& combo) { combo.AddString(L"item"); };
    grid.BeginEditCell(0, 0);
    ASSERT_NE(grid.EditorWindow(), nullptr);
    grid.EditorWindow()->SendMessage(CB_SHOWDROPDOWN, TRUE);
    grid.EditorWindow()->PostMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)));
    PumpPending();
    EXPECT_EQ(grid.VScroll(), 0);
}

// ---- Text of an empty grid

TEST_F(EditTest, AnEmptyText_ComesAndGoesWithTheFirstRow_NotWithTheSecond)
{
    EditGrid grid;
    Make(grid, 0, 3);
    TGEmptyText text(grid, L"nothing here");
    EXPECT_EQ(text.GetText(), L"nothing here");
    grid.UpdateWindow();
    grid.AppendRow(nullptr);
    EXPECT_TRUE(grid.GetUpdateRect(nullptr));
    grid.UpdateWindow();
    const TGGridUpdate update(grid);
    grid.AppendRow(nullptr);
    grid.AppendRow(nullptr);
    grid.DelRow(0);
    EXPECT_EQ(grid.GetRowNum(), 2);
    text.Detach();
    text.SetText(L"other");
    EXPECT_EQ(text.GetText(), L"other");
}

TEST_F(EditTest, AnEmptyText_StaysInTheMiddleWhenColumnsAreScrolled)
{
    EditGrid grid;
    Make(grid, 0, 12);
    TGEmptyText text(grid, L"nothing here");
    const auto ink = [&] {
        grid.UpdateWindow();
        const CRect area = grid.Area();
        return InkIn(Snapshot(grid),
                     CRect(area.left + 4, area.top + 2 * rowHeight, area.right - 4, area.bottom - 4));
    };
    const CRect before = ink();
    ASSERT_GT(before.Width(), 20);
    grid.MoveView(130, 0);
    EXPECT_EQ(grid.HScroll(), 130);
    EXPECT_EQ(Text(ink()), Text(before));
}

// ---- Cursor

TEST_F(EditTest, ACursor_InRowsThatLackCells)
{
    EditGrid grid;
    Make(grid, 3, 1);
    grid.InsertRow(1, new NarrowRow(grid));
    AddCols(grid, 1);
    TGCellCursor cursor(grid);
    grid.GetCell(0, 1).SetText(L"full");
    EXPECT_TRUE(cursor.SelectRange({0, 0, 3, 1}));
    EXPECT_EQ(cursor.EmptyRanges(), 4);
    ASSERT_TRUE(Activate(host));
    grid.SetFocus();
    PumpPending();
    EXPECT_TRUE(cursor.MoveTo(0, 1));
    KeyPress(VK_DOWN, Modifiers::Control);
    PumpPending();
    EXPECT_EQ(cursor.GetRow(), 3);
}

} // namespace
} // namespace quor::test
