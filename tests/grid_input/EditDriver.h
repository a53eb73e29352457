// A user who edits cells with mouse and keyboard.
#pragma once

#include "tests/grid/EditGrid.h"
#include "tests/support/Input.h"

#include <string_view>

namespace quor::test
{

// Real input for the cells of one grid. Clicks go to the middle of what is named.
class EditDriver
{
public:
    explicit EditDriver(EditGrid& drivenGrid) : grid(drivenGrid) {}

    // The row may be the new-row line.
    void ClickCell(long row, long col);
    void RightClickCell(long row, long col);
    // Into the data area below all rows.
    void ClickBelowRows();
    // Types over what is selected in the editor.
    void Type(std::wstring_view text) { TypeText(text); }
    void PressButton();
    // The arrows of the open editor's spin.
    void SpinUp(int times = 1);
    void SpinDown(int times = 1);
    // Opens the list of the open combo box and clicks the item.
    void ChooseItem(int item);
    // The fold box of a row of a tree whose boxes stand `depth` steps inside.
    void ClickFoldBox(long row, long depth);

private:
    CPoint CellMiddle(long row, long col);

    EditGrid& grid;
};

// A grid with a column of each kind: plain, button, spin, editable combo, list combo. Fruits are offered in
// the combo boxes; the button of a cell adds "!" to the text.
class EditInputTest : public EditTest
{
protected:
    enum Column : long
    {
        Plain,
        Button,
        Spin,
        Combo,
        List
    };

    void MakeAllKinds(EditGrid& grid, long rows);
    static CWnd* FocusedWindow() { return CWnd::GetFocus(); }
};

} // namespace quor::test
