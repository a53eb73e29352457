// What the header windows paint, what lies under a point of them, and the tool tips of all four windows.
#include "grid/TGActiveQuad.h"
#include "grid/TGColSelector.h"
#include "grid/TGRowSelector.h"
#include "tests/grid/WindowGrid.h"

#include <cstdlib>

using namespace QuorUiCtr;
using namespace quor::test;

namespace
{

const COLORREF flatLight = RGB(240, 240, 240);
const COLORREF flatDark = RGB(80, 80, 80);

// Answers every tip with its place, such as "cell 3,1".
class TipGrid : public WindowGrid
{
public:
    bool silent = false;

protected:
    bool Answer(CString& text, const CString& answer) const
    {
        text = answer;
        return !silent;
    }
    static CString Numbered(const wchar_t* what, long number)
    {
        CString text;
        text.Format(L"%s %d", what, static_cast<int>(number));
        return text;
    }

    bool OnCellTip(long row, long col, CString& text) const override
    {
        CString answer;
        answer.Format(L"cell %d,%d", static_cast<int>(row), static_cast<int>(col));
        return Answer(text, answer);
    }
    bool OnRowTip(long row, CString& text) const override { return Answer(text, Numbered(L"row", row)); }
    bool OnColTip(long col, CString& text) const override { return Answer(text, Numbered(L"col", col)); }
    bool OnActiveQuadTip(CString& text) const override { return Answer(text, L"corner"); }
};

class GridHeaders : public GridWindowTest
{
protected:
    void SetUp() override
    {
        grid.SetFlatButton(true);
        Create(grid);
        Fill(grid, 100, 10);
        face = ::GetSysColor(COLOR_BTNFACE);
    }

    CWnd& Quad() { return *grid.GetDlgItem(102); }
    CWnd& ColHeader() { return *grid.GetDlgItem(103); }
    CWnd& RowHeader() { return *grid.GetDlgItem(104); }

    // Whether the frame of a flat box stands at a rectangle of the grid's client area.
    static bool IsFlatBox(const Snapshot& picture, CRect box)
    {
        return picture.IsAll(CRect(box.left, box.top, box.right - 1, box.top + 1), flatLight) &&
               picture.IsAll(CRect(box.left, box.top, box.left + 1, box.bottom - 1), flatLight) &&
               picture.IsAll(CRect(box.left, box.bottom - 1, box.right, box.bottom), flatDark) &&
               picture.IsAll(CRect(box.right - 1, box.top, box.right, box.bottom), flatDark);
    }

    // The answer of a window's hit test: "id text flags", "none" for -1.
    std::string Tip(CWnd& window, CPoint point)
    {
        TOOLINFO info = {};
        info.cbSize = sizeof info;
        const INT_PTR id = window.OnToolHitTest(point, &info);
        if (id == -1)
            return "none";
        EXPECT_EQ(window.m_hWnd, info.hwnd);
        EXPECT_EQ(reinterpret_cast<UINT_PTR>(window.m_hWnd), info.uId);
        EXPECT_EQ(0xC0000000u | TTF_IDISHWND, info.uFlags & ~UINT(TTF_CENTERTIP));
        const std::string text(CStringA(info.lpszText).GetString());
        std::free(info.lpszText);
        return std::to_string(id) + " " + text + ((info.uFlags & TTF_CENTERTIP) != 0 ? " centred" : "");
    }

    TipGrid grid;
    COLORREF face = 0;
};

TEST_F(GridHeaders, RowBoxes_StandBesideTheirRows)
{
    const Snapshot picture(grid);
    for (long row : {0, 1, 5})
        EXPECT_TRUE(IsFlatBox(picture, CRect(0, 20 + row * 20, 20, 40 + row * 20))) << row;
    EXPECT_EQ(face, picture.At(10, 30));
}

TEST_F(GridHeaders, Constructors_MakeTheWindows)
{
    const TGActiveQuad quad(grid);
    const TGColSelector colHeader(grid);
    const TGRowSelector rowHeader(grid);
    const CWnd* headers[] = {&quad, &colHeader, &rowHeader};
    const char* places[] = {"0,0-20,20", "20,0-10000,20", "0,20-20,10000"};
    for (int i = 0; i < 3; ++i)
    {
        ASSERT_NE(nullptr, headers[i]->m_hWnd) << i;
        EXPECT_EQ(grid.m_hWnd, ::GetParent(headers[i]->m_hWnd));
        EXPECT_EQ(102 + i, headers[i]->GetDlgCtrlID());
        EXPECT_TRUE(headers[i]->IsWindowVisible());
        EXPECT_EQ(places[i], Text(PlaceOf(*headers[i])));
    }
    EXPECT_FALSE(quad.IsActive());
}

TEST_F(GridHeaders, ConstructedForAGridWithoutAWindow_WaitForOne)
{
    WindowGrid later;
    TGActiveQuad quad(later);
    TGColSelector colHeader(later);
    TGRowSelector rowHeader(later);
    quad.ShowActive(true);
    rowHeader.OnCurRowChanged();
    colHeader.RestoreMark();
    quad.MakeWindow();
    EXPECT_EQ(nullptr, quad.m_hWnd);
    EXPECT_EQ(nullptr, colHeader.m_hWnd);
    EXPECT_EQ(nullptr, rowHeader.m_hWnd);
    later.SetRowSel(false);
    later.SetColSel(false);
    Create(later);
    EXPECT_EQ(nullptr, later.GetDlgItem(102));
    quad.MakeWindow();
    colHeader.MakeWindow();
    rowHeader.MakeWindow();
    EXPECT_EQ(&quad, later.GetDlgItem(102));
    EXPECT_EQ(&colHeader, later.GetDlgItem(103));
    EXPECT_EQ(&rowHeader, later.GetDlgItem(104));
}

TEST_F(GridHeaders, MakeWindow_KeepsAWindowThatIsThere)
{
    TGActiveQuad quad(grid);
    const HWND window = quad.m_hWnd;
    quad.ShowActive(true);
    quad.MakeWindow();
    EXPECT_EQ(window, quad.m_hWnd);
    EXPECT_TRUE(quad.IsActive());
}

TEST_F(GridHeaders, RowBoxes_ScrollWithTheGrid)
{
    grid.MoveView(0, 30);
    const Snapshot picture(grid);
    EXPECT_TRUE(IsFlatBox(picture, CRect(0, 30, 20, 50)));
    EXPECT_TRUE(IsFlatBox(picture, CRect(0, 50, 20, 70)));
}

TEST_F(GridHeaders, BoxesOfTheLastRowAndTheNewRowLine_EndTheRowHeader)
{
    grid.SetRowNum(3);
    const auto iconInk = [this](long row) {
        const Snapshot picture(grid);
        return picture.IsUniform(CRect(1, 21 + row * 20, 19, 39 + row * 20)) ? 0 : 1;
    };
    EXPECT_TRUE(IsFlatBox(Snapshot(grid), CRect(0, 80, 20, 100)));
    EXPECT_EQ(0, iconInk(2));
    EXPECT_EQ(1, iconInk(3));
    EXPECT_EQ(0, iconInk(4));
    grid.SetNoAppendButton(true);
    grid.RecalcLayout(1);
    EXPECT_TRUE(Snapshot(grid).IsAll(CRect(0, 80, 20, 100), face));
}

TEST_F(GridHeaders, CurrentRow_HasAnIconThatMoves)
{
    const auto hasIcon = [this](long row) {
        return !Snapshot(grid).IsUniform(CRect(1, 21 + row * 20, 19, 39 + row * 20));
    };
    EXPECT_FALSE(hasIcon(1));
    grid.SetCurRowIndex(1);
    EXPECT_TRUE(hasIcon(1));
    EXPECT_TRUE(IsFlatBox(Snapshot(grid), CRect(0, 40, 20, 60)));
    grid.SetCurRowIndex(2);
    EXPECT_FALSE(hasIcon(1));
    EXPECT_TRUE(hasIcon(2));
    EXPECT_TRUE(IsFlatBox(Snapshot(grid), CRect(0, 40, 20, 60)));
    grid.SetCurRowIndex(-1);
    EXPECT_FALSE(hasIcon(2));
    grid.SetCurRowIndex(4);
    grid.Invalidate(1);
    EXPECT_TRUE(hasIcon(4));
}

TEST_F(GridHeaders, CurrentRowChangedBackAndForth_PaintsNothingNew)
{
    grid.SetCurRowIndex(1);
    const Snapshot before(grid);
    grid.SetCurRowIndex(1);
    EXPECT_FALSE(RowHeader().GetUpdateRect(nullptr));
    EXPECT_TRUE(IsFlatBox(before, CRect(0, 40, 20, 60)));
}

TEST_F(GridHeaders, ColumnBoxes_StandAboveTheirColumns)
{
    const Snapshot picture(grid);
    EXPECT_TRUE(IsFlatBox(picture, CRect(20, 0, 120, 20)));
    EXPECT_TRUE(IsFlatBox(picture, CRect(120, 0, 220, 20)));
    grid.MoveView(50, 0);
    EXPECT_TRUE(IsFlatBox(Snapshot(grid), CRect(70, 0, 170, 20)));
}

TEST_F(GridHeaders, Captions_AreBlackAndCentredOnDemand)
{
    grid.GetCol(0).SetName(L"HH");
    const auto firstInk = [this] {
        grid.Invalidate(1);
        const Snapshot picture(grid);
        int x = 21;
        while (x < 118 && picture.CountColour(CRect(x, 3, x + 1, 19), black) == 0)
            ++x;
        return x;
    };
    EXPECT_NEAR(23, firstInk(), 2);
    grid.GetCol(0).SetCenterAlign(true);
    EXPECT_NEAR(62, firstInk(), 6);
}

TEST_F(GridHeaders, CaptionOfTwoLines_ShowsBoth)
{
    // A font whose lines are not higher than what the header reserves for each.
    CFont font;
    ASSERT_TRUE(font.CreateFont(-11, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                                OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH,
                                L"Tahoma"));
    grid.SetFont(&font);
    grid.GetCol(0).SetName(L"HH\nHH");
    grid.RecalcLayout(1);
    const Snapshot picture(grid);
    EXPECT_TRUE(IsFlatBox(picture, CRect(15, 0, 115, 30)));
    EXPECT_FALSE(picture.IsUniform(CRect(17, 3, 100, 15)));
    EXPECT_FALSE(picture.IsUniform(CRect(17, 18, 100, 28)));
}

TEST_F(GridHeaders, BoxesThatAreNotFlat_HaveNoLinesOfTheirOwn)
{
    grid.SetFlatButton(false);
    grid.Invalidate(1);
    const Snapshot picture(grid);
    EXPECT_EQ(0, picture.CountColour(CRect(0, 20, 20, 280), flatDark));
    EXPECT_EQ(face, picture.At(10, 30));
}

TEST_F(GridHeaders, Quad_ShowsTheFocus)
{
    const COLORREF active = ::GetSysColor(COLOR_ACTIVECAPTION);
    ASSERT_NE(active, face);
    host.SetFocus();
    const CRect inside(1, 1, 18, 18);
    EXPECT_TRUE(Snapshot(grid).IsAll(inside, face));
    grid.SetFocus();
    EXPECT_TRUE(Snapshot(grid).IsAll(inside, active));
    EXPECT_TRUE(IsFlatBox(Snapshot(grid), CRect(0, 0, 20, 20)));
    host.SetFocus();
    EXPECT_TRUE(Snapshot(grid).IsAll(inside, face));
    grid.ShowActive(true);
    EXPECT_TRUE(Snapshot(grid).IsAll(inside, active));
}

TEST_F(GridHeaders, Quad_KeepsTheFocusColourForDescendants)
{
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(50, 50, 90, 70), &grid, 7));
    grid.SetFocus();
    edit.SetFocus();
    EXPECT_TRUE(Snapshot(grid).IsAll(CRect(1, 1, 18, 18), ::GetSysColor(COLOR_ACTIVECAPTION)));
    EXPECT_TRUE(grid.IsMyFocus(&edit));
    EXPECT_TRUE(grid.IsMyFocus(&grid));
    EXPECT_FALSE(grid.IsMyFocus(&host));
    EXPECT_FALSE(grid.IsMyFocus(nullptr));
}

TEST_F(GridHeaders, SystemHeaders_RepaintAPartLikeTheWhole)
{
    grid.SetCurRowIndex(3);
    const Snapshot whole(grid);
    RowHeader().InvalidateRect(CRect(5, 50, 12, 95), TRUE);
    ColHeader().InvalidateRect(CRect(90, 5, 150, 12), TRUE);
    const Snapshot part(grid);
    for (int y = 0; y < whole.Height(); ++y)
    {
        for (int x = 0; x < whole.Width(); ++x)
            ASSERT_EQ(whole.At(x, y), part.At(x, y)) << x << "," << y;
    }
}

// ---- Points

TEST_F(GridHeaders, PtToCell_FindsRowAndColumn)
{
    const auto cellAt = [this](int x, int y) {
        long row = -9;
        long col = -9;
        grid.PtToCell(CPoint(x, y), row, col);
        return std::to_string(row) + "," + std::to_string(col);
    };
    EXPECT_EQ("0,0", cellAt(20, 20));
    EXPECT_EQ("0,0", cellAt(20 + 98, 20 + 18));
    EXPECT_EQ("1,1", cellAt(20 + 99, 20 + 19));
    grid.MoveView(250, 1000);
    EXPECT_EQ("50,2", cellAt(20, 20));
    EXPECT_EQ("50,3", cellAt(20 + 49, 20));
    grid.MoveView(-1000, -5000);
    // Above the first row the division truncates toward zero; left of the columns there is none.
    EXPECT_EQ("0,0", cellAt(20, 5));
    EXPECT_EQ("-1,10", cellAt(5, 19 - 20));
}

TEST_F(GridHeaders, PointBesideTheCells_IsTheColumnCountAndARowBelow)
{
    grid.SetRowNum(2);
    grid.SetColNum(2);
    long row = 0;
    long col = 0;
    grid.PtToCell(CPoint(20 + 200, 20 + 61), row, col);
    EXPECT_EQ(3, row);
    EXPECT_EQ(2, col);
}

// ---- Tips

TEST_F(GridHeaders, CellTip_IsNumberedByRowAndColumn)
{
    EXPECT_EQ("0 cell 0,0", Tip(grid, CPoint(50, 30)));
    EXPECT_EQ("31 cell 3,1", Tip(grid, CPoint(150, 90)));
    grid.MoveView(0, 200);
    EXPECT_EQ("131 cell 13,1", Tip(grid, CPoint(150, 90)));
}

TEST_F(GridHeaders, CellTip_OutsideTheCells_IsNone)
{
    grid.SetRowNum(2);
    grid.SetColNum(2);
    EXPECT_EQ("none", Tip(grid, CPoint(50, 70)));
    EXPECT_EQ("none", Tip(grid, CPoint(250, 30)));
    grid.silent = true;
    EXPECT_EQ("none", Tip(grid, CPoint(50, 30)));
}

TEST_F(GridHeaders, RowTip_IsNumberedByTheRow)
{
    EXPECT_EQ("0 row 0 centred", Tip(RowHeader(), CPoint(5, 5)));
    grid.MoveView(0, 200);
    EXPECT_EQ("14 row 14 centred", Tip(RowHeader(), CPoint(5, 90)));
    grid.silent = true;
    EXPECT_EQ("none", Tip(RowHeader(), CPoint(5, 90)));
}

TEST_F(GridHeaders, RowTip_OnTheNewRowLine_IsNone)
{
    grid.SetRowNum(2);
    EXPECT_EQ("1 row 1 centred", Tip(RowHeader(), CPoint(5, 30)));
    EXPECT_EQ("none", Tip(RowHeader(), CPoint(5, 50)));
}

TEST_F(GridHeaders, ColTip_IsNumberedByTheColumn)
{
    EXPECT_EQ("0 col 0", Tip(ColHeader(), CPoint(0, 5)));
    EXPECT_EQ("0 col 0", Tip(ColHeader(), CPoint(98, 5)));
    EXPECT_EQ("1 col 1", Tip(ColHeader(), CPoint(99, 5)));
    grid.MoveView(150, 0);
    EXPECT_EQ("3 col 3", Tip(ColHeader(), CPoint(160, 5)));
    grid.SetColNum(2);
    EXPECT_EQ("none", Tip(ColHeader(), CPoint(300, 5)));
}

TEST_F(GridHeaders, QuadTip_IsZero)
{
    EXPECT_EQ("0 corner centred", Tip(Quad(), CPoint(3, 3)));
    grid.silent = true;
    EXPECT_EQ("none", Tip(Quad(), CPoint(3, 3)));
}

TEST_F(GridHeaders, DefaultGrid_HasNoTips)
{
    WindowGrid plain;
    Create(plain);
    Fill(plain, 3, 3);
    EXPECT_EQ(-1, plain.OnToolHitTest(CPoint(50, 30), nullptr));
    for (int id : {102, 103, 104})
        EXPECT_EQ(-1, plain.GetDlgItem(id)->OnToolHitTest(CPoint(3, 3), nullptr));
}

TEST_F(GridHeaders, CellTip_WhileALayoutIsPostponed_IsNone)
{
    grid.BeginUpdate();
    EXPECT_EQ("0 cell 0,0", Tip(grid, CPoint(50, 30)));
    grid.AppendRow(nullptr);
    EXPECT_EQ("none", Tip(grid, CPoint(50, 30)));
    grid.EndUpdate();
    EXPECT_EQ("0 cell 0,0", Tip(grid, CPoint(50, 30)));
}

} // namespace
