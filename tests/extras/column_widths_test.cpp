// Edges that are easy to catch, and columns that are fitted to their texts.
#include "grid/extras/TGColumnFormats.h"
#include "grid/extras/TGColumnWidths.h"
#include "tests/extras/ExtraGrid.h"
#include "tests/extras/RecordingExtension.h"

#include <chrono>
#include <string>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

using Cells = TGColumnWidths::Cells;

class ColumnWidths : public ExtraTest<TGColumnWidths>
{
protected:
    // A point of the column header, `beside` pixels right of a column's right edge.
    CPoint Edge(long col, long beside = 0)
    {
        const CPoint corner = grid.UpCorner();
        long right = 0;
        for (long i = 0; i <= col; ++i)
            right += grid.GetCol(i).GetWidth();
        CPoint point(corner.x - 1 + right + beside, 5);
        grid.MapWindowPoints(&Header(), &point, 1);
        return point;
    }
    std::string Widths()
    {
        std::string widths;
        for (long col = 0; col < grid.GetColNum(); ++col)
            widths += (col > 0 ? " " : "") + std::to_string(grid.GetCol(col).GetWidth());
        return widths;
    }
    void DragEdge(long col, long beside, long distance)
    {
        const CPoint from = Edge(col, beside);
        DragPath(Header(), {from, CPoint(from.x + distance / 2, from.y), CPoint(from.x + distance, from.y)});
    }
    // The pixels of a text, measured as the grid's font draws it.
    long TextWidth(const wchar_t* text)
    {
        CClientDC context(&grid);
        context.SelectObject(grid.GetFont());
        return context.GetTextExtent(CString(text)).cx;
    }
};

// ---- SetWidth

TEST_F(ColumnWidths, SetWidth_MovesTheColumnsBehind_AndIsTold)
{
    Make();
    RecordingExtension told;
    told.AttachTo(grid);
    told.Take();
    grid.GetCol(1).SetWidth(30);
    EXPECT_EQ(Widths(), "100 30 100");
    EXPECT_EQ(grid.GetRight(), 230);
    EXPECT_EQ(told.Take(), "resized 1: 100 -> 30");
    grid.GetCol(1).SetWidth(0);
    EXPECT_EQ(Widths(), "100 0 100");
    EXPECT_EQ(Columns(grid), "Column 0 0-100 | Column 1 100-100 | Column 2 100-200");
}

TEST_F(ColumnWidths, SetWidth_WithoutAWindow_AndForAColumnThatIsNotEntered)
{
    ModelGrid model;
    AddCols(model, 2);
    model.GetCol(0).SetWidth(33);
    EXPECT_EQ(model.GetRight(), 133);
    TGGridCol single(L"single", model);
    single.SetWidth(50);
    EXPECT_EQ(single.GetWidth(), 0);
    EXPECT_EQ(model.GetRight(), 133);
}

// ---- Edges

TEST_F(ColumnWidths, AnEdge_IsCaughtFivePixelsBesideIt_AndFollowsFromThere)
{
    Make();
    for (const long beside : {-5L, -3L, 0L, 3L, 5L})
    {
        DragEdge(0, beside, 20);
        EXPECT_EQ(Widths(), "120 100 100") << beside;
        grid.GetCol(0).SetWidth(100);
    }
    for (const long beside : {-6L, 6L})
    {
        DragEdge(0, beside, 20);
        EXPECT_EQ(Widths(), "100 100 100") << beside;
        grid.UnSelect();
    }
}

TEST_F(ColumnWidths, PressingBesideAnEdge_ChangesNothing)
{
    Make();
    Click(Header(), Edge(0, 4));
    Click(Header(), Edge(1, -4));
    EXPECT_EQ(Widths(), "100 100 100");
    EXPECT_FALSE(grid.IsColSelected());
}

TEST_F(ColumnWidths, FixedWidths_AreFixed)
{
    Make();
    grid.SetColFixWidth(true);
    DragEdge(0, 3, 20);
    DoubleClick(Header(), Edge(0));
    EXPECT_EQ(Widths(), "100 100 100");
    EXPECT_TRUE(extra.FitCol(0)) << "programs may";
}

TEST_F(ColumnWidths, Escape_CancelsADrag)
{
    Make();
    Focus();
    const CPoint from = Edge(0, 3);
    PressMouse(Header(), from);
    MoveMouse(Header(), CPoint(from.x + 40, from.y));
    EXPECT_EQ(::GetCapture(), Header().m_hWnd);
    KeyPress(VK_ESCAPE);
    PumpPending();
    EXPECT_EQ(::GetCapture(), nullptr);
    ReleaseMouse(Header(), CPoint(from.x + 40, from.y));
    EXPECT_EQ(Widths(), "100 100 100");
    // The next drag is a whole one.
    DragEdge(1, 3, 20);
    EXPECT_EQ(Widths(), "100 120 100");
}

TEST_F(ColumnWidths, Escape_CancelsTheMoveOfAColumn)
{
    Make();
    Focus();
    grid.SelectCol(0, true);
    const CPoint from = Edge(0, -50);
    PressMouse(Header(), from);
    MoveMouse(Header(), Edge(1, 50));
    KeyPress(VK_ESCAPE);
    PumpPending();
    ReleaseMouse(Header(), Edge(1, 50));
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
}

// Without a drag the key is the grid's and the dialog's.
TEST_F(ColumnWidths, EscapeWithoutADrag_IsLeftAlone)
{
    Make();
    MSG key = {grid.m_hWnd, WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};
    RecordingExtension told;
    told.AttachTo(grid);
    int seen = 0;
    told.actions["pretranslate"] = [&] { ++seen; };
    grid.PreTranslateMessage(&key);
    EXPECT_EQ(seen, 1);
}

TEST_F(ColumnWidths, TheCursor_SaysWhereAnEdgeIsCaught)
{
    Make();
    ASSERT_TRUE(Activate(host));
    const HCURSOR arrows = ::LoadCursor(nullptr, IDC_SIZEWE);
    const auto cursorAt = [&](long beside) {
        ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
        MoveMouse(Header(), Edge(0, beside));
        Header().SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(Header().m_hWnd),
                             MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return ::GetCursor();
    };
    EXPECT_EQ(cursorAt(-5), arrows);
    EXPECT_EQ(cursorAt(5), arrows);
    EXPECT_NE(cursorAt(-6), arrows);
    EXPECT_NE(cursorAt(6), arrows);
}

TEST_F(ColumnWidths, AColumnThatGoesWhileItIsDragged)
{
    Make();
    const CPoint from = Edge(2, 3);
    PressMouse(Header(), from);
    grid.DelCol(2);
    ReleaseMouse(Header(), CPoint(from.x + 30, from.y));
    EXPECT_EQ(Widths(), "100 100");
    PressMouse(Header(), Edge(1, 3));
    grid.SetColNum(0);
    ReleaseMouse(Header(), CPoint(150, 5));
    EXPECT_EQ(grid.GetColNum(), 0);
}

TEST_F(ColumnWidths, DetachedOrClosedWhileAnEdgeIsDragged)
{
    Make();
    const CPoint from = Edge(0, 3);
    PressMouse(Header(), from);
    extra.Detach();
    ReleaseMouse(Header(), CPoint(from.x + 30, from.y));
    EXPECT_EQ(Widths(), "133 100 100") << "the header drags on by itself";
    extra.AttachTo(grid);
    SendMouse(Header(), WM_LBUTTONDOWN, Edge(0, 3), MK_LBUTTON);
    grid.DestroyWindow();
    EXPECT_EQ(Widths(), "133 100 100");
    EXPECT_TRUE(extra.FitCol(0));
}

// ---- Fitting

TEST_F(ColumnWidths, ADoubleClickOnAnEdge_FitsTheColumn)
{
    Make();
    grid.GetCell(1, 0).SetText(L"the widest text of the whole column");
    for (const long beside : {0L, 4L, -4L})
    {
        grid.GetCol(0).SetWidth(100);
        DoubleClick(Header(), Edge(0, beside));
        EXPECT_NEAR(grid.GetCol(0).GetWidth(), TextWidth(L"the widest text of the whole column") + 6, 1);
    }
    EXPECT_EQ(::GetCapture(), nullptr);
}

// What is fitted has just enough room: the last column of ink is drawn, and not much is left.
TEST_F(ColumnWidths, NothingIsCutAfterwards)
{
    Make();
    grid.GetCell(1, 0).SetText(L"WWWWWWWWWWWWWWWWH");
    grid.GetCol(0).SetWidth(350);
    const CRect wide = Ink(1, 0);
    extra.FitCol(0);
    EXPECT_EQ(Ink(1, 0).Width(), wide.Width());
    EXPECT_LE(grid.InsideOf(1, 0).right - Ink(1, 0).right, 6);
}

TEST_F(ColumnWidths, CaptionsCount_AndTheWidestOfTheirLines)
{
    Make();
    grid.GetCol(0).SetName(L"a caption that is wide\nshort");
    EXPECT_NEAR(extra.GetFitWidth(0), TextWidth(L"a caption that is wide") + 5, 1);
}

TEST_F(ColumnWidths, OnlyVisibleCellsCount_UnlessAllAreWanted)
{
    Make(200);
    grid.GetCell(150, 0).SetText(L"a text far below that is wide");
    const long visible = extra.GetFitWidth(0);
    EXPECT_LT(visible, 80);
    EXPECT_NEAR(extra.GetFitWidth(0, Cells::All), TextWidth(L"a text far below that is wide") + 6, 1);
    grid.MoveView(0, 150 * 20);
    EXPECT_EQ(extra.GetFitWidth(0), extra.GetFitWidth(0, Cells::All));
    grid.MoveView(0, -3000);
    extra.SetDoubleClickCells(Cells::All);
    DoubleClick(Header(), Edge(0));
    EXPECT_EQ(grid.GetCol(0).GetWidth(), extra.GetFitWidth(0, Cells::All));
}

TEST_F(ColumnWidths, FormatsCount_AlsoWhileANumberDoesNotFit)
{
    Make();
    TGColumnFormats formats(grid);
    formats.SetLocale(L"en-US");
    formats.SetFormat(0, {.kind = TGValueKind::Number, .decimals = 2});
    grid.GetCell(2, 0).SetText(L"1234567890123456");
    for (const Cells cells : {Cells::Visible, Cells::All})
    {
        grid.GetCol(0).SetWidth(40);
        extra.FitCol(0, cells);
        EXPECT_NEAR(grid.GetCol(0).GetWidth(), TextWidth(L"1,234,567,890,123,456.00") + 9, 1);
    }
    formats.SetCellFormat(2, 0, {.bold = true});
    EXPECT_GT(extra.GetFitWidth(0), grid.GetCol(0).GetWidth());
}

TEST_F(ColumnWidths, ColumnsWithoutTexts_AreAsWideAsRowsAreHigh)
{
    Make(0, 2);
    for (const long col : {0L, 1L})
        grid.GetCol(col).SetName(L"");
    extra.FitCols();
    EXPECT_EQ(Widths(), "20 20");
}

TEST_F(ColumnWidths, FitCols_LaysOutOnce)
{
    Make();
    RecordingExtension told;
    told.writesViews = true;
    told.AttachTo(grid);
    told.Take();
    extra.FitCols();
    const std::string log = told.Take();
    EXPECT_EQ(log.find("laid out"), log.rfind("laid out")) << log;
    EXPECT_EQ(grid.GetCol(0).GetWidth(), extra.GetFitWidth(0));
}

TEST_F(ColumnWidths, PlacesThatThereAreNot_AreRefused)
{
    EXPECT_FALSE(extra.FitCol(0));
    EXPECT_EQ(extra.GetFitWidth(0), -1);
    extra.FitCols();
    Make();
    EXPECT_FALSE(extra.FitCol(-1));
    EXPECT_FALSE(extra.FitCol(3));
    EXPECT_FALSE(extra.AttachTo(grid));
    ModelGrid other;
    EXPECT_FALSE(extra.AttachTo(other));
}

class TreeWidths : public EditTest
{
};

TEST_F(TreeWidths, DeepRowsNeedMoreRoom)
{
    EditGrid tree(true);
    Create(tree);
    AddCols(tree, 1);
    TGGridTreeRow& root = AddRoot(tree, L"root");
    TGGridTreeRow& child = AddChild(root, L"child");
    AddChild(child, L"child");
    const TGColumnWidths unused;
    TGColumnWidths widths(tree);
    const long folded = widths.GetFitWidth(0);
    root.UnFold();
    child.UnFold();
    const long unfolded = widths.GetFitWidth(0);
    EXPECT_GE(unfolded, folded + 2 * 17);
    EXPECT_EQ(widths.GetFitWidth(0, Cells::All), unfolded);
}

} // namespace
} // namespace quor::test
