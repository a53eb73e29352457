// Header windows and menus under the real mouse: clicks with each modifier, drags, menus.
#include "tests/grid/HeaderFixture.h"
#include "tests/support/MenuProbe.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class HeaderInput : public HeaderFixture
{
protected:
    void Start(CommandGrid& grid)
    {
        Make(grid, "abcdefgh");
        ASSERT_TRUE(Activate(host));
        grid.SetFocus();
        grid.TakeLog();
    }
    static void ClickRow(CommandGrid& grid, long row, Modifiers modifiers = Modifiers::None)
    {
        Click(RowHeader(grid), RowBox(grid, row), modifiers);
    }
    static void ClickCol(CommandGrid& grid, long col, Modifiers modifiers = Modifiers::None)
    {
        Click(ColHeader(grid), ColBox(grid, col), modifiers);
    }
};

TEST_F(HeaderInput, RowClicks_WithEachModifier)
{
    CommandGrid grid;
    Start(grid);
    ClickRow(grid, 2);
    EXPECT_EQ(grid.Rows(), "a b c* d e f g h");
    ClickRow(grid, 4, Modifiers::Shift);
    EXPECT_EQ(grid.Rows(), "a b c* d* e* f g h");
    ClickRow(grid, 3, Modifiers::Control);
    EXPECT_EQ(grid.Rows(), "a b c* d e* f g h");
    ClickRow(grid, 6, Modifiers::Shift);
    EXPECT_EQ(grid.Rows(), "a b c* d e* f g h");
    ClickRow(grid, 6, Modifiers::Control);
    EXPECT_EQ(grid.Rows(), "a b c* d e* f g* h");
    ClickRow(grid, 0, Modifiers::Control | Modifiers::Shift);
    EXPECT_EQ(grid.Rows(), "a b c* d e* f g* h");
    ClickRow(grid, 0);
    EXPECT_EQ(grid.Rows(), "a* b c d e f g h");
    ClickRow(grid, 10);
    EXPECT_EQ(grid.Rows(), "a b c d e f g h");
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(HeaderInput, ColumnClicks_WithEachModifier)
{
    CommandGrid grid;
    Start(grid);
    ClickCol(grid, 2);
    ClickCol(grid, 4, Modifiers::Shift);
    EXPECT_EQ(grid.Cols(), "A B C* D* E* F");
    ClickCol(grid, 3, Modifiers::Control);
    EXPECT_EQ(grid.Cols(), "A B C* D E* F");
    ClickCol(grid, 0, Modifiers::Control);
    EXPECT_EQ(grid.Cols(), "A* B C* D E* F");
    ClickCol(grid, 1);
    EXPECT_EQ(grid.Cols(), "A B* C D E F");
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(HeaderInput, DoubleClicks_ReachTheRowHookAndSelectAllInTheCorner)
{
    CommandGrid grid;
    Start(grid);
    DoubleClick(RowHeader(grid), RowBox(grid, 3));
    EXPECT_EQ(grid.TakeText(), "OnDblClick 3");
    EXPECT_EQ(grid.Rows(), "a b c d* e f g h");
    DoubleClick(Quad(grid), CPoint(8, 8));
    EXPECT_EQ(grid.GetRowSelNum(), 8);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(HeaderInput, NewRowBox_AppendsARow)
{
    CommandGrid grid;
    Start(grid);
    ClickRow(grid, 8);
    EXPECT_EQ(grid.GetRowNum(), 9);
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
}

TEST_F(HeaderInput, RowDrag_MovesTheSelectedRows)
{
    CommandGrid grid;
    Start(grid);
    ClickRow(grid, 2);
    ClickRow(grid, 3, Modifiers::Control);
    DragPath(RowHeader(grid), {RowBox(grid, 3), RowBox(grid, 4), RowBox(grid, 5), RowBox(grid, 6)});
    EXPECT_EQ(grid.Rows(), "a b e f c* d* g h");
    EXPECT_EQ(
        grid.TakeText(),
        "OnBeginMoveRow | OnMovingRow 4 | OnMovingRow 5 | OnMovingRow 6 | OnMovingRow 6 | OnMoveRow 6 | "
        "OnMovingRow 6 | OnEndMoveRow | "
        "OnDataChanged");
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(HeaderInput, ColumnDrag_MovesTheSelectedColumns)
{
    CommandGrid grid;
    Start(grid);
    ClickCol(grid, 1);
    ClickCol(grid, 2, Modifiers::Shift);
    DragPath(ColHeader(grid), {ColBox(grid, 1), ColBox(grid, 3), ColBox(grid, 5)});
    EXPECT_EQ(grid.Cols(), "A D E B* C* F");
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(HeaderInput, DraggedEdge_ResizesAColumn)
{
    CommandGrid grid;
    Start(grid);
    DragPath(ColHeader(grid), {CPoint(99, 10), CPoint(110, 10), CPoint(129, 10)});
    EXPECT_EQ(grid.GetCol(1).GetWidth(), 80);
    EXPECT_EQ(grid.GetCol(2).GetWidth(), 50);
    EXPECT_EQ(grid.GetRight(), 330);
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(HeaderInput, AnotherWindowThatTakesTheCapture_CancelsTheDrag)
{
    CommandGrid grid;
    Start(grid);
    grid.SelectRows({2});
    PressMouse(RowHeader(grid), RowBox(grid, 2));
    MoveMouse(RowHeader(grid), RowBox(grid, 5));
    ASSERT_TRUE(HasDropMark(grid, 5));
    HostWindow other(200, 100);
    other.SetCapture();
    EXPECT_TRUE(ShowsNoTrace(grid));
    ::ReleaseCapture();
    ReleaseMouse(RowHeader(grid), RowBox(grid, 5));
    EXPECT_EQ(grid.Rows(), "a b c* d e f g h");
}

// ---- Menus

class MenuInput : public HeaderInput
{
protected:
    // Opens a menu with the right button and chooses from it; returns what the command did.
    static std::string Choose(CommandGrid& grid, CWnd& header, CPoint point, UINT id)
    {
        grid.TakeLog();
        {
            MenuProbe probe(id);
            RightClick(header, point);
            EXPECT_TRUE(PumpUntil([&] { return probe.Chosen(); })) << id;
        }
        PumpPending();
        std::string text = grid.TakeText();
        const std::size_t behindClick = text.find(" | ");
        return behindClick == std::string::npos ? "" : text.substr(behindClick + 3);
    }
};

TEST_F(MenuInput, RowMenu_RunsItsCommands)
{
    CommandGrid grid;
    Start(grid);
    grid.showsMenus = true;
    const auto choose = [&](long row, UINT id) {
        return Choose(grid, RowHeader(grid), RowBox(grid, row), id);
    };
    EXPECT_EQ(choose(2, 1), "OnBeforeInsertRow 2 | OnInsertRow 2 | OnDataChanged");
    EXPECT_EQ(grid.Rows(), "a b * c d e f g h");
    EXPECT_EQ(choose(2, 2), "OnBeforeDeleteRow | OnEndDeleteRow | OnDataChanged");
    EXPECT_EQ(choose(2, 3), "OnBeforeInsertRow 8 | OnInsertRow 8 | OnDataChanged");
    EXPECT_EQ(choose(0, 5), "OnBeforeCopy | OnEndCopy");
    EXPECT_EQ(choose(3, 7), "OnBeforePaste 3 | OnEndPaste | OnDataChanged");
    EXPECT_EQ(grid.Rows(), "a b c a* d e f g h ");
    EXPECT_EQ(choose(1, 6), "OnBeforeClip | OnEndClip | OnDataChanged");
    EXPECT_EQ(grid.Rows(), "a c a d e f g h ");
}

TEST_F(MenuInput, ColumnMenu_RunsItsCommands)
{
    CommandGrid grid;
    Start(grid);
    grid.showsMenus = true;
    const auto choose = [&](long col, UINT id) {
        return Choose(grid, ColHeader(grid), ColBox(grid, col), id);
    };
    EXPECT_EQ(choose(2, 9), "OnBeforeDeleteCol | OnEndDeleteCol | OnDataChanged");
    EXPECT_EQ(grid.Cols(), "A B D E F");
    EXPECT_EQ(choose(1, 8), "OnBeforeInsertCol 1 | OnInsertCol 1 | OnDataChanged");
    EXPECT_EQ(choose(0, 10), "OnBeforeInsertCol 6 | OnInsertCol 6 | OnDataChanged");
}

TEST_F(MenuInput, CornerMenu_RunsItsCommands)
{
    CommandGrid grid;
    Start(grid);
    grid.showsMenus = true;
    const auto choose = [&](UINT id) { return Choose(grid, Quad(grid), CPoint(8, 8), id); };
    EXPECT_EQ(choose(4), "");
    EXPECT_EQ(grid.GetRowSelNum(), 8);
    EXPECT_EQ(choose(5), "OnBeforeCopy | OnEndCopy");
    EXPECT_EQ(choose(2), "OnBeforeDeleteRow | OnEndDeleteRow | OnDataChanged");
    EXPECT_EQ(grid.Rows(), "");
    EXPECT_EQ(choose(7), "OnBeforePaste 0 | OnEndPaste | OnDataChanged");
    EXPECT_EQ(grid.Rows(), "h* g* f* e* d* c* b* a*");
}

} // namespace
} // namespace quor::test
