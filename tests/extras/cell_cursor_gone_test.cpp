// A cell cursor that a hook of its own commands deletes: the command ends, and the grid goes on without it.
#include "grid/extras/TGCellCursor.h"
#include "tests/grid/EditGrid.h"
#include "tests/grid/ModelGrid.h"
#include "tests/support/Input.h"

#include <functional>
#include <memory>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class GoneCursor : public EditTest
{
protected:
    GoneCursor()
    {
        Make(grid, 5, 3);
        cursor = std::make_unique<TGCellCursor>(grid);
        EXPECT_TRUE(Activate(host));
        grid.SetFocus();
        PumpPending();
        cursor->MoveTo(1, 1);
    }
    void DeleteInModified()
    {
        grid.modifiedText = [this](TGGridCell&, CString&) {
            cursor.reset();
            return true;
        };
    }
    void DeleteInBeforeEdit()
    {
        grid.beforeEdit = [this](TGGridCell&, bool&) {
            cursor.reset();
            return true;
        };
    }
    void DeleteInCurChanged()
    {
        grid.curChanged = [this] { cursor.reset(); };
    }
    void Press(WORD key, Modifiers modifiers = Modifiers::None)
    {
        KeyPress(key, modifiers);
        PumpPending();
    }
    void TypeX()
    {
        TypeText(L"x");
        PumpPending();
        ASSERT_TRUE(grid.IsEditing());
    }
    CPoint Middle(long row, long col)
    {
        return grid.ToClient(col * 100 + 50, row * grid.GetRowHeight() + grid.GetRowHeight() / 2);
    }
    std::string TextAt(long row, long col) { return Narrow(grid.GetCell(row, col).GetText()); }

    EditGrid grid;
    std::unique_ptr<TGCellCursor> cursor;
};

TEST_F(GoneCursor, InACommitByKeys)
{
    constexpr WORD keys[] = {VK_RETURN, VK_TAB, VK_DOWN, VK_RIGHT};
    for (const WORD key : keys)
    {
        cursor = std::make_unique<TGCellCursor>(grid);
        cursor->MoveTo(1, 1);
        TypeX();
        DeleteInModified();
        Press(key);
        EXPECT_EQ(cursor, nullptr);
        EXPECT_FALSE(grid.IsEditing());
        EXPECT_EQ(TextAt(1, 1), "x");
        grid.modifiedText = nullptr;
    }
}

TEST_F(GoneCursor, InACommitByAClick)
{
    TypeX();
    DeleteInModified();
    Click(grid, Middle(3, 2));
    EXPECT_EQ(cursor, nullptr);
    EXPECT_EQ(TextAt(1, 1), "x");
}

TEST_F(GoneCursor, WhileItEmptiesARange)
{
    cursor->SelectRange({0, 0, 2, 2});
    DeleteInModified();
    Press(VK_DELETE);
    EXPECT_EQ(cursor, nullptr);
    EXPECT_EQ(TextAt(0, 0), "");
    EXPECT_EQ(TextAt(0, 1), "0,1");
}

TEST_F(GoneCursor, WhileItOpensAnEditor)
{
    DeleteInBeforeEdit();
    Press(VK_F2);
    EXPECT_EQ(cursor, nullptr);
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(GoneCursor, WhenTypingBegins)
{
    DeleteInBeforeEdit();
    TypeText(L"x");
    PumpPending();
    EXPECT_EQ(cursor, nullptr);
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(GoneCursor, WhileItMovesAwayFromASelection)
{
    grid.SelectRow(2, true);
    DeleteInCurChanged();
    Press(VK_DOWN);
    EXPECT_EQ(cursor, nullptr);
}

TEST_F(GoneCursor, WhileADoubleClickMovesIt)
{
    DeleteInCurChanged();
    DoubleClick(grid, Middle(3, 2));
    EXPECT_EQ(cursor, nullptr);
}

TEST_F(GoneCursor, WhileItSelectsRowsOrColumns)
{
    for (const auto& modifiers : {Modifiers::Shift, Modifiers::Control})
    {
        cursor = std::make_unique<TGCellCursor>(grid);
        cursor->SelectRange({1, 1, 2, 2});
        DeleteInCurChanged();
        Press(VK_SPACE, modifiers);
        EXPECT_EQ(cursor, nullptr);
        grid.curChanged = nullptr;
        grid.UnSelect();
    }
}

} // namespace
} // namespace quor::test
