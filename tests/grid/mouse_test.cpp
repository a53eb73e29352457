// Clicks into the cells, the focus, capture and cursor of the grid, and tips shown by the framework.
#include "tests/grid/WindowGrid.h"

#include "tests/support/Input.h"

#include <cstdlib>

using namespace QuorUiCtr;
using namespace quor::test;

namespace
{

// Writes down "right 1,2 at x,y" (screen coordinates of the point less those of the grid's client origin) and
// gives every cell the tip "tip row,col".
class ClickGrid : public WindowGrid
{
public:
    explicit ClickGrid(bool tree = false) : WindowGrid(tree) {}

    std::string rightClick;
    CString tip = L"tip %d,%d"; // formatted with row and column

protected:
    void OnRClickCell(TGGridCell& cell, CPoint point) override
    {
        ScreenToClient(&point);
        rightClick = std::to_string(cell.GetRowIndex()) + "," + std::to_string(cell.GetColIndex()) + " at " +
                     Text(point);
    }

    bool OnCellTip(long row, long col, CString& text) const override
    {
        if (tip == L"tip %d,%d")
            text.Format(tip, static_cast<int>(row), static_cast<int>(col));
        else
            text = tip;
        return true;
    }
};

class GridMouse : public GridWindowTest
{
protected:
    void SetUp() override
    {
        Create(grid);
        Fill(grid, 4, 2);
    }

    static void Click(WindowGrid& clicked, long row, long col, UINT message = WM_LBUTTONDOWN)
    {
        const CPoint corner = clicked.ToClient(col * 100, row * rowHeight);
        SendMouse(clicked, message, CPoint(corner.x + 50, corner.y + 10), MK_LBUTTON);
    }

    // The cell that is edited, "-" for none.
    static std::string Edited(WindowGrid& edited)
    {
        long row = -1;
        long col = -1;
        return edited.GetCurCell(row, col) ? std::to_string(row) + "," + std::to_string(col) : "-";
    }

    ClickGrid grid;
};

TEST_F(GridMouse, Click_OpensTheEditorOfTheCell)
{
    Click(grid, 1, 1);
    EXPECT_EQ("1,1", Edited(grid));
    Click(grid, 2, 0);
    EXPECT_EQ("2,0", Edited(grid));
}

TEST_F(GridMouse, DoubleClick_IsASecondClick)
{
    Click(grid, 1, 1, WM_LBUTTONDBLCLK);
    EXPECT_EQ("1,1", Edited(grid));
}

TEST_F(GridMouse, ClickOnTheNewRowLine_OpensItsEditor)
{
    Click(grid, 4, 0);
    EXPECT_EQ("4,0", Edited(grid));
    EXPECT_EQ(4, grid.GetRowNum());
}

TEST_F(GridMouse, ClickBelowTheNewRowLine_ClearsTheSelection)
{
    grid.SelectRow(1, true);
    Click(grid, 5, 0);
    EXPECT_EQ("-", Edited(grid));
    EXPECT_FALSE(grid.IsRowSelected());
}

TEST_F(GridMouse, ClickBelowTheRowsWithoutNewRowLine_ClearsTheSelection)
{
    grid.SetNoAppendButton(true);
    grid.RecalcLayout(1);
    grid.SelectRow(1, true);
    Click(grid, 4, 0);
    EXPECT_EQ("-", Edited(grid));
    EXPECT_FALSE(grid.IsRowSelected());
}

TEST_F(GridMouse, ClickBesideTheColumns_ClearsTheSelectionAndCommitsTheEdit)
{
    Click(grid, 1, 1);
    grid.GetDlgItem(101)->SetWindowText(L"typed");
    grid.GetDlgItem(101)->SendMessage(EM_SETMODIFY, TRUE);
    Click(grid, 1, 2);
    EXPECT_EQ("-", Edited(grid));
    EXPECT_STREQ(L"typed", grid.GetCell(1, 1).GetText());
    grid.SelectCol(1, true);
    Click(grid, 1, 2);
    EXPECT_FALSE(grid.IsColSelected());
}

TEST_F(GridMouse, Click_TakesTheFocus)
{
    host.SetFocus();
    Click(grid, 9, 0);
    EXPECT_EQ(grid.m_hWnd, ::GetFocus());
}

TEST_F(GridMouse, ClickInsideAnUpdate_HitsTheNewLayout)
{
    grid.BeginUpdate();
    grid.InsertCol(0, L"new", 100);
    Fill(grid, 30, 0);
    Click(grid, 1, 2);
    EXPECT_EQ("1,2", Edited(grid));
    EXPECT_EQ("V " + std::to_string(35 * 20 - 280) + "@0", grid.Bars());
    grid.CancelEditCell();
    grid.EndUpdate();
}

TEST_F(GridMouse, RightClick_ReportsTheCellAndTheScreenPoint)
{
    host.SetFocus();
    const CPoint point(150, 50);
    SendMouse(grid, WM_RBUTTONUP, point);
    EXPECT_EQ("1,1 at 150,50", grid.rightClick);
    EXPECT_EQ(grid.m_hWnd, ::GetFocus());
}

TEST_F(GridMouse, RightClick_LeavesTheSelectionAndOpensNoEditor)
{
    grid.SelectRow(2, true);
    SendMouse(grid, WM_RBUTTONUP, CPoint(150, 50));
    EXPECT_EQ("1,1 at 150,50", grid.rightClick);
    EXPECT_TRUE(grid.IsRowSelected(2));
    EXPECT_EQ("-", Edited(grid));
}

TEST_F(GridMouse, RightClickOutsideTheCells_ReportsNothing)
{
    SendMouse(grid, WM_RBUTTONUP, CPoint(150, 20 + 85));
    SendMouse(grid, WM_RBUTTONUP, CPoint(250, 50));
    EXPECT_EQ("", grid.rightClick);
    host.SetFocus();
    SendMouse(grid, WM_RBUTTONUP, CPoint(250, 50));
    EXPECT_EQ(grid.m_hWnd, ::GetFocus());
}

TEST_F(GridMouse, CancelMode_ReleasesTheGridsCapture)
{
    grid.SetCapture();
    grid.SendMessage(WM_CANCELMODE);
    EXPECT_EQ(nullptr, ::GetCapture());
    host.SetCapture();
    grid.SendMessage(WM_CANCELMODE);
    EXPECT_EQ(host.m_hWnd, ::GetCapture());
    ::ReleaseCapture();
}

TEST_F(GridMouse, Cursor_IsTheArrowOfTheClass)
{
    ::SetCursor(::LoadCursor(nullptr, IDC_IBEAM));
    grid.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(grid.m_hWnd), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(::LoadCursor(nullptr, IDC_ARROW), ::GetCursor());
}

TEST_F(GridMouse, ClickOnAFoldBox_FoldsAndOpensNoEditor)
{
    ClickGrid tree(true);
    Create(tree);
    tree.AppendCol(L"Tree", 200);
    tree.AppendRow(nullptr);
    tree.GetTreeRow(0).AppendChild(nullptr);
    const auto clickAt = [&tree](long x, long y) {
        SendMouse(tree, WM_LBUTTONDOWN, tree.ToClient(x, y), MK_LBUTTON);
    };
    tree.SelectRow(0, true);
    clickAt(2, 2);
    EXPECT_EQ(2, tree.GetRowNum());
    EXPECT_FALSE(tree.IsRowSelected());
    EXPECT_EQ("-", Edited(tree));
    clickAt(18, 18);
    EXPECT_EQ(1, tree.GetRowNum());
    EXPECT_EQ("-", Edited(tree));
    // One pixel beside the box.
    clickAt(19, 10);
    EXPECT_EQ("0,0", Edited(tree));
    EXPECT_EQ(1, tree.GetRowNum());
}

// The second press of a double click acts like the first.
TEST_F(GridMouse, DoubleClickOnAFoldBox_FoldsBack)
{
    ClickGrid tree(true);
    Create(tree);
    tree.AppendCol(L"Tree", 200);
    tree.AppendRow(nullptr);
    tree.GetTreeRow(0).AppendChild(nullptr);
    const CPoint box = tree.ToClient(10, 10);
    SendMouse(tree, WM_LBUTTONDOWN, box, MK_LBUTTON);
    EXPECT_EQ(2, tree.GetRowNum());
    SendMouse(tree, WM_LBUTTONDBLCLK, box, MK_LBUTTON);
    EXPECT_EQ(1, tree.GetRowNum());
    EXPECT_EQ("-", Edited(tree));
}

TEST_F(GridMouse, DoubleClickOutsideTheCells_ClearsTheSelection)
{
    grid.SelectRow(1, true);
    Click(grid, 6, 0, WM_LBUTTONDBLCLK);
    EXPECT_FALSE(grid.IsRowSelected());
    grid.SelectCol(1, true);
    Click(grid, 0, 2, WM_LBUTTONDBLCLK);
    EXPECT_FALSE(grid.IsColSelected());
}

TEST_F(GridMouse, ClickOnTheBoxPlaceOfALeaf_OpensTheEditor)
{
    ClickGrid tree(true);
    Create(tree);
    tree.AppendCol(L"Tree", 200);
    tree.AppendRow(nullptr);
    tree.GetTreeRow(0).AppendChild(nullptr);
    tree.GetTreeRow(0).UnFold();
    // Where its parent has the box, one row above.
    SendMouse(tree, WM_LBUTTONDOWN, tree.ToClient(10, 10 + rowHeight), MK_LBUTTON);
    EXPECT_EQ("1,0", Edited(tree));
    EXPECT_EQ(2, tree.GetRowNum());
}

TEST_F(GridMouse, ClickIntoTheFirstColumnOfALeaf_OpensTheEditor)
{
    ClickGrid tree(true);
    Create(tree);
    tree.AppendCol(L"Tree", 200);
    tree.AppendRow(nullptr);
    SendMouse(tree, WM_LBUTTONDOWN, tree.ToClient(10, 10), MK_LBUTTON);
    EXPECT_EQ("0,0", Edited(tree));
}

// The focus goes from the grid to the editor and back while the corner shows it all the time.
TEST_F(GridMouse, CellEditor_CountsAsTheGridsFocus)
{
    const COLORREF active = ::GetSysColor(COLOR_ACTIVECAPTION);
    const auto corner = [this] { return Snapshot(grid).At(9, 9); };
    Click(grid, 1, 1);
    ASSERT_TRUE(grid.IsMyFocus(CWnd::GetFocus()));
    ASSERT_NE(grid.m_hWnd, ::GetFocus());
    EXPECT_EQ(active, corner());
    Click(grid, 2, 0);
    EXPECT_EQ(active, corner());
    grid.CancelEditCell();
    host.SetFocus();
    EXPECT_NE(active, corner());
}

// ---- Colours of the editor

TEST_F(GridMouse, Editor_HasTheColumnsColours)
{
    TGGridCol& col = grid.GetCol(1);
    col.SetBackColor(RGB(200, 220, 240));
    col.SetTextColor(RGB(90, 0, 30));
    grid.BeginEditCell(1, 1);
    CWnd* editor = grid.GetDlgItem(101);
    ASSERT_NE(nullptr, editor);
    CClientDC context(editor);
    const LRESULT answer = grid.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(context.m_hDC),
                                            reinterpret_cast<LPARAM>(editor->m_hWnd));
    LOGBRUSH brush = {};
    ::GetObject(reinterpret_cast<HBRUSH>(answer), sizeof brush, &brush);
    EXPECT_EQ(RGB(200, 220, 240), brush.lbColor);
    EXPECT_EQ(reinterpret_cast<HGDIOBJ>(answer), ::GetCurrentObject(context, OBJ_BRUSH));
    EXPECT_EQ(RGB(90, 0, 30), context.GetTextColor());
    EXPECT_EQ(RGB(200, 220, 240), context.GetBkColor());
    grid.CancelEditCell();
}

TEST_F(GridMouse, OtherControls_HaveTheDefaultColours)
{
    grid.GetCol(1).SetBackColor(RGB(200, 220, 240));
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(300, 50, 390, 70), &grid, 7));
    grid.BeginEditCell(1, 1);
    CClientDC context(&edit);
    const LRESULT answer = grid.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(context.m_hDC),
                                            reinterpret_cast<LPARAM>(edit.m_hWnd));
    LOGBRUSH brush = {};
    ::GetObject(reinterpret_cast<HBRUSH>(answer), sizeof brush, &brush);
    EXPECT_NE(RGB(200, 220, 240), brush.lbColor);
    EXPECT_NE(RGB(200, 220, 240), context.GetBkColor());
    grid.CancelEditCell();
}

// ---- Tips

// The text of the tool that a tool-tip control of this thread holds.
std::wstring ShownTip()
{
    HWND control = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM found) -> BOOL {
            wchar_t name[64] = L"";
            ::GetClassName(window, name, 64);
            if (wcscmp(name, TOOLTIPS_CLASS) != 0)
                return TRUE;
            *reinterpret_cast<HWND*>(found) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&control));
    TOOLINFO tool = {};
    wchar_t text[256] = L"";
    tool.cbSize = sizeof tool;
    tool.lpszText = text;
    if (control == nullptr || !::SendMessage(control, TTM_ENUMTOOLS, 0, reinterpret_cast<LPARAM>(&tool)))
        return L"";
    ::SendMessage(control, TTM_GETTEXT, 256, reinterpret_cast<LPARAM>(&tool));
    return text;
}

TEST_F(GridMouse, FrameworkTips_FollowTheMouse)
{
    const auto move = [this](int x, int y) {
        MSG message = {grid.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(x, y), 0, {x, y}};
        grid.PreTranslateMessage(&message);
        return ShownTip();
    };
    EXPECT_EQ(L"tip 0,0", move(50, 30));
    EXPECT_EQ(L"tip 0,1", move(150, 30));
    EXPECT_EQ(L"tip 3,1", move(150, 90));
    EXPECT_EQ(L"", move(150, 290));
    EXPECT_EQ(L"tip 3,1", move(150, 90));
}

TEST_F(GridMouse, TipsOfCellsTenColumnsApartInNeighbouringRows_ShareAnId)
{
    for (int col = 0; col < 9; ++col)
        grid.AppendCol(L"", 10);
    grid.tip = L"tip";
    for (const CPoint cell : {CPoint(285, 10), CPoint(50, 30)})
    {
        TOOLINFO info = {};
        info.cbSize = sizeof info;
        EXPECT_EQ(10, grid.OnToolHitTest(grid.ToClient(cell.x, cell.y), &info));
        std::free(info.lpszText);
    }
}

// Such texts once were a format that read whatever lay on the stack, into a buffer of twenty characters.
TEST_F(GridMouse, TipsWithPercentSigns_ReadAndWriteNoForeignMemory)
{
    for (const wchar_t* wild :
         {L"%s%s%s%s%s%s%s%s", L"%n%n%n", L"%d %x %p", L"%5000d", L"100%", L"%hs%ls%S%C",
          L"a text that is much longer than the twenty characters of a tip"})
    {
        grid.tip = wild;
        TOOLINFO info = {};
        info.cbSize = sizeof info;
        EXPECT_EQ(10 + 1, grid.OnToolHitTest(CPoint(150, 50), &info));
        ASSERT_NE(nullptr, info.lpszText);
        EXPECT_LT(wcslen(info.lpszText), 20u) << wild;
        std::free(info.lpszText);
    }
}

} // namespace
