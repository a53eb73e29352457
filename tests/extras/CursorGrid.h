// What tests of the cell cursor share: a grid with one, that keys and clicks drive, and its state as a text.
#pragma once

#include "grid/extras/TGCellCursor.h"
#include "tests/grid/EditGrid.h"
#include "tests/grid/ModelGrid.h"
#include "tests/support/Input.h"

#include <string>
#include <string_view>

namespace quor::test
{

inline constexpr auto shift = Modifiers::Shift;
inline constexpr auto control = Modifiers::Control;

class CellCursor : public EditTest
{
protected:
    explicit CellCursor(bool tree = false) : grid(tree) {}

    void Make(long rows = 5, long cols = 3)
    {
        EditTest::Make(grid, rows, cols);
        cursor.AttachTo(grid);
        Focus();
    }
    void Focus()
    {
        ASSERT_TRUE(Activate(host));
        grid.SetFocus();
        PumpPending();
    }
    // "1,2 [0,0-1,2] edit": the current cell, the ranges of more than one cell, and an open editor's text.
    std::string State()
    {
        std::string state = std::to_string(cursor.GetRow()) + "," + std::to_string(cursor.GetCol());
        const auto ranges = cursor.GetRanges();
        for (const QuorUiCtr::TGCellRange& range : ranges)
            if (ranges.size() > 1 || range.top != range.bottom || range.left != range.right)
                state += " [" + std::to_string(range.top) + "," + std::to_string(range.left) + "-" +
                         std::to_string(range.bottom) + "," + std::to_string(range.right) + "]";
        if (!grid.IsEditing() || grid.EditorWindow() == nullptr)
            return state;
        CString text;
        grid.EditorWindow()->GetWindowText(text);
        return state + " edit " + Narrow(text);
    }
    std::string After(WORD key, Modifiers modifiers = Modifiers::None)
    {
        KeyPress(key, modifiers);
        PumpPending();
        return State();
    }
    std::string AfterTyping(std::wstring_view text)
    {
        TypeText(text);
        PumpPending();
        return State();
    }
    CPoint Middle(long row, long col)
    {
        return grid.ToClient(col * 100 + 50, row * grid.GetRowHeight() + grid.GetRowHeight() / 2);
    }
    std::string AfterClick(long row, long col, Modifiers modifiers = Modifiers::None)
    {
        Click(grid, Middle(row, col), modifiers);
        return State();
    }

    EditGrid grid;
    QuorUiCtr::TGCellCursor cursor;
};

class TreeCursor : public CellCursor
{
protected:
    TreeCursor() : CellCursor(true) {}

    // a, with x, which has deep, and y; b.
    void MakeTree()
    {
        Make(0);
        QuorUiCtr::TGGridTreeRow& root = AddRoot(grid, L"a");
        AddChild(AddChild(root, L"x"), L"deep");
        AddChild(root, L"y");
        AddRoot(grid, L"b");
        grid.UpdateWindow();
        cursor.MoveTo(0, 0);
    }
};

} // namespace quor::test
