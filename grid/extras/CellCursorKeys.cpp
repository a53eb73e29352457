// The keys of the cell cursor: one table, what each does, and the editor's keys.
#include "grid/extras/TGCellCursor.h"

#include "grid/TGGrid.h"
#include "grid/TGUserAction.h"
#include "rules/DataEdge.h"

#include <algorithm>
#include <iterator>

namespace QuorUiCtr
{
namespace
{

enum KeyModifiers
{
    PlainKey = 0,
    ShiftKey = 1,
    ControlKey = 2,
    // With and without Shift.
    MaybeShiftKey = 4,
    AltKey = 8
};

bool IsDown(int key)
{
    return ::GetKeyState(key) < 0;
}

bool IsComboBox(const CWnd* editor)
{
    return editor != nullptr && editor->IsKindOf(RUNTIME_CLASS(CComboBox));
}

} // namespace

// What a key does, by its modifiers.
class TGCellCursor::Keys
{
public:
    explicit Keys(TGCellCursor& keyed) : cursor(keyed), grid(*keyed.GetGrid()), extend(IsDown(VK_SHIFT)) {}

    bool Left() { return FoldOrStepOut() || Go(0, -1); }
    bool Right() { return UnfoldOrStepIn() || Go(0, 1); }
    bool Up() { return Go(-1, 0); }
    bool Down() { return Go(1, 0); }
    bool EdgeLeft() { return Jump(0, -1); }
    bool EdgeRight() { return Jump(0, 1); }
    bool EdgeUp() { return Jump(-1, 0); }
    bool EdgeDown() { return Jump(1, 0); }
    bool RowStart() { return To(cursor.GetRow(), 0); }
    bool RowEnd() { return To(cursor.GetRow(), cursor.LastCol()); }
    bool FirstCell() { return To(0, 0); }
    bool LastCell() { return To(cursor.LastRow(false), cursor.LastCol()); }
    bool PageUp() { return Go(-PageRows(), 0); }
    bool PageDown()
    {
        return To((std::min)(cursor.GetRow() + PageRows(), cursor.LastRow(false)), cursor.GetCol());
    }

    bool StepEnter() { return cursor.StepOn(cursor.enterStep, extend, false); }
    bool StepTab() { return cursor.StepOn(cursor.tabStep, extend, true); }
    bool LeaveGrid()
    {
        cursor.LeaveGrid(extend);
        return true;
    }
    bool Collapse();
    bool Edit() { return cursor.Edit(true) || true; }
    bool OpenList();
    bool Empty()
    {
        cursor.EmptyRanges();
        return true;
    }
    bool SelectAll() { return cursor.SelectAllCells() || true; }
    bool SelectRows();
    bool SelectCols();
    // The commands that the grid has behind letters and that Ctrl makes the tree's.
    bool DeleteRows() { return grid.DoDelete() || true; }
    bool Copy() { return grid.DoCopy() || true; }
    bool Cut() { return grid.DoClip() || true; }
    bool Paste() { return grid.DoPaste() || true; }
    bool PasteChild() { return grid.DoPasteChild() || true; }
    bool AppendChild() { return grid.DoAppendChild() || true; }
    bool New();
    bool NewTree();
    bool SortUp() { return Sort(true); }
    bool SortDown() { return Sort(false); }

private:
    bool To(long row, long col)
    {
        cursor.MoveTo(row, col, extend);
        return true;
    }
    bool Go(long rows, long cols)
    {
        return To(std::clamp(cursor.GetRow() + rows, 0L, cursor.LastRow(true)),
                  std::clamp(cursor.GetCol() + cols, 0L, cursor.LastCol()));
    }
    bool Jump(long rows, long cols);
    bool Sort(bool ascending);
    long PageRows() const;
    TGGridTreeRow* TreeRow() const;
    bool FoldOrStepOut();
    bool UnfoldOrStepIn();

    TGCellCursor& cursor;
    TGGrid& grid;
    bool extend;
};

// A virtual key with its modifiers, what it is called and what it does.
struct TGCellCursor::Key
{
    UINT code;
    int modifiers;
    const wchar_t* name;
    const wchar_t* action;
    bool (Keys::*run)();

    static const Key Table[];
};

const TGCellCursor::Key TGCellCursor::Key::Table[] = {
    {VK_LEFT, MaybeShiftKey, L"Left",
     L"one cell to the left; on a tree row in the first column: fold, or go to the parent", &Keys::Left},
    {VK_RIGHT, MaybeShiftKey, L"Right",
     L"one cell to the right; on a parent row in the first column: unfold, or go to the first child",
     &Keys::Right},
    {VK_UP, MaybeShiftKey, L"Up", L"one cell up", &Keys::Up},
    {VK_DOWN, MaybeShiftKey, L"Down", L"one cell down; from the last row to the new-row line", &Keys::Down},
    {VK_LEFT, ControlKey | MaybeShiftKey, L"Ctrl+Left", L"to the edge of the data on the left",
     &Keys::EdgeLeft},
    {VK_RIGHT, ControlKey | MaybeShiftKey, L"Ctrl+Right", L"to the edge of the data on the right",
     &Keys::EdgeRight},
    {VK_UP, ControlKey | MaybeShiftKey, L"Ctrl+Up", L"to the edge of the data above", &Keys::EdgeUp},
    {VK_DOWN, ControlKey | MaybeShiftKey, L"Ctrl+Down", L"to the edge of the data below", &Keys::EdgeDown},
    {VK_HOME, MaybeShiftKey, L"Home", L"to the first cell of the row", &Keys::RowStart},
    {VK_END, MaybeShiftKey, L"End", L"to the last cell of the row", &Keys::RowEnd},
    {VK_HOME, ControlKey | MaybeShiftKey, L"Ctrl+Home", L"to the first cell of the grid", &Keys::FirstCell},
    {VK_END, ControlKey | MaybeShiftKey, L"Ctrl+End", L"to the last cell of the grid", &Keys::LastCell},
    {VK_PRIOR, MaybeShiftKey, L"Page Up", L"one page up", &Keys::PageUp},
    {VK_NEXT, MaybeShiftKey, L"Page Down", L"one page down", &Keys::PageDown},
    {VK_RETURN, PlainKey, L"Enter", L"the step that is set for Enter: down", &Keys::StepEnter},
    {VK_RETURN, ShiftKey, L"Shift+Enter", L"the step of Enter, back", &Keys::StepEnter},
    {VK_TAB, PlainKey, L"Tab",
     L"the step that is set for Tab: to the right; from the last cell out of the grid", &Keys::StepTab},
    {VK_TAB, ShiftKey, L"Shift+Tab", L"the step of Tab, back", &Keys::StepTab},
    {VK_TAB, ControlKey | MaybeShiftKey, L"Ctrl+Tab", L"out of the grid", &Keys::LeaveGrid},
    {VK_ESCAPE, PlainKey, L"Esc", L"drop the range; without one the dialog's", &Keys::Collapse},
    {VK_F2, PlainKey, L"F2", L"edit, with the caret at the end", &Keys::Edit},
    {VK_DOWN, AltKey, L"Alt+Down", L"edit, with the list open", &Keys::OpenList},
    {VK_DELETE, MaybeShiftKey, L"Del", L"empty the cells of the range", &Keys::Empty},
    {VK_DELETE, ControlKey, L"Ctrl+Del", L"delete the selected rows or columns", &Keys::DeleteRows},
    {'A', ControlKey, L"Ctrl+A", L"select all cells", &Keys::SelectAll},
    {VK_SPACE, ShiftKey, L"Shift+Space", L"select the rows of the range", &Keys::SelectRows},
    {VK_SPACE, ControlKey, L"Ctrl+Space", L"select the columns of the range", &Keys::SelectCols},
    {'C', ControlKey, L"Ctrl+C", L"copy the selected rows", &Keys::Copy},
    {'X', ControlKey, L"Ctrl+X", L"cut the selected rows", &Keys::Cut},
    {'V', ControlKey, L"Ctrl+V", L"paste rows before the selected one, or at the end", &Keys::Paste},
    {'V', ControlKey | ShiftKey, L"Ctrl+Shift+V", L"paste rows as children of the selected one",
     &Keys::PasteChild},
    {'N', ControlKey, L"Ctrl+N", L"new row or column behind the selected one, or a row at the end",
     &Keys::New},
    {'N', ControlKey | ShiftKey, L"Ctrl+Shift+N", L"the same in a tree, with a child", &Keys::NewTree},
    {'T', ControlKey, L"Ctrl+T", L"new child of the selected row", &Keys::AppendChild},
    {'R', ControlKey, L"Ctrl+R", L"sort ascending", &Keys::SortUp},
    {'U', ControlKey, L"Ctrl+U", L"sort descending", &Keys::SortDown},
};

std::vector<TGKeyDescription> TGCellCursor::GetKeys()
{
    std::vector<TGKeyDescription> keys;
    for (const Key& key : Key::Table)
        keys.push_back({key.name, key.action});
    keys.push_back({L"a character", L"edit, beginning with the character"});
    keys.push_back({L"+", L"on a parent row in the first column: unfold"});
    keys.push_back({L"-", L"on a parent row in the first column: fold"});
    keys.push_back({L"*", L"on a parent row in the first column: unfold all below it"});
    return keys;
}

// ---- What keys do

bool TGCellCursor::Keys::Jump(long rows, long cols)
{
    const long row = cursor.GetRow();
    const long col = cursor.GetCol();
    const auto isFull = [&](long r, long c) {
        const TGGridCell* cell = cursor.FindCell(r, c);
        return cell != nullptr && !cell->GetText().IsEmpty();
    };
    if (rows != 0)
        return To(DataEdge((std::min)(row, cursor.LastRow(true)), rows, (std::max)(cursor.LastRow(false), 0L),
                           [&](long r) { return isFull(r, col); }),
                  col);
    return To(row, DataEdge(col, cols, cursor.LastCol(), [&](long c) { return isFull(row, c); }));
}

bool TGCellCursor::Keys::New()
{
    if (grid.IsColSelected())
        grid.DoInsertColAfter();
    else if (grid.IsRowSelected())
        grid.DoInsertRowAfter();
    else
        grid.DoAppendRow(true);
    return true;
}

bool TGCellCursor::Keys::NewTree()
{
    if (grid.IsRowSelected())
        grid.DoInsertTreeAfter();
    else
        grid.DoAppendTree();
    return true;
}

bool TGCellCursor::Keys::Sort(bool ascending)
{
    if (grid.IsSortEnable())
        grid.Arrange(ascending);
    return true;
}

long TGCellCursor::Keys::PageRows() const
{
    return (std::max)(cursor.GetView().Height() / grid.GetRowHeight() - 1, 1L);
}

bool TGCellCursor::Keys::Collapse()
{
    const std::vector<TGCellRange> selected = cursor.GetRanges();
    const bool single = selected.size() == 1 && selected[0].top == selected[0].bottom &&
                        selected[0].left == selected[0].right;
    return !single && To(cursor.GetRow(), cursor.GetCol());
}

bool TGCellCursor::Keys::OpenList()
{
    if (cursor.Edit(true) && IsComboBox(cursor.GetEditorWindow()))
        static_cast<CComboBox*>(cursor.GetEditorWindow())->ShowDropDown(TRUE);
    return true;
}

bool TGCellCursor::Keys::SelectRows()
{
    const TGCellRange range = cursor.GetRanges().back();
    const TGGridUpdate update(grid);
    const OwnSelecting own(cursor);
    if (range.top <= 0 && range.bottom >= cursor.LastRow(false) && !grid.IsSingleSelRow())
        grid.SelectAll();
    else
        for (long row = grid.IsSingleSelRow() ? range.bottom : range.top; row <= range.bottom; ++row)
            grid.SelectRow(row, true);
    return true;
}

bool TGCellCursor::Keys::SelectCols()
{
    const TGCellRange range = cursor.GetRanges().back();
    const TGGridUpdate update(grid);
    const OwnSelecting own(cursor);
    for (long col = range.left; col <= range.right; ++col)
        grid.SelectCol(col, true);
    return true;
}

// ---- Trees

// The row of the cursor in the column of the tree.
TGGridTreeRow* TGCellCursor::Keys::TreeRow() const
{
    TGGridRow* const row = cursor.GetCol() == 0 && !extend ? cursor.FindRow(cursor.GetRow()) : nullptr;
    return row != nullptr && row->IsTreeRow() ? static_cast<TGGridTreeRow*>(row) : nullptr;
}

bool TGCellCursor::Keys::FoldOrStepOut()
{
    TGGridTreeRow* const row = TreeRow();
    if (row == nullptr)
        return false;
    const TGUserAction action(grid, TGActionKind::Fold);
    if (row->IsParentRow() && !row->IsFold())
        row->Fold();
    else if (row->IsChildRow())
        To(row->GetParent().GetIndex(), 0);
    return true;
}

bool TGCellCursor::Keys::UnfoldOrStepIn()
{
    TGGridTreeRow* const row = TreeRow();
    if (row == nullptr || !row->IsParentRow())
        return false;
    const TGUserAction action(grid, TGActionKind::Fold);
    if (row->IsFold())
        row->UnFold();
    else
        Go(1, 0);
    return true;
}

bool TGCellCursor::RunTreeCharacter(wchar_t character)
{
    TGGridRow* const row = GetCol() == 0 ? FindRow(GetRow()) : nullptr;
    if (row == nullptr || !row->IsParentRow() ||
        (character != L'+' && character != L'-' && character != L'*'))
        return false;
    auto& parent = static_cast<TGGridTreeRow&>(*row);
    const TGUserAction action(*GetGrid(), TGActionKind::Fold);
    if (character == L'+')
        parent.UnFold();
    else if (character == L'-')
        parent.Fold();
    else
        parent.UnFoldAll();
    return true;
}

// ---- Keys without an editor

// Keys that the table does not have are the grid's, but for letters without Ctrl, which come as characters.
bool TGCellCursor::RunKey(UINT key)
{
    if (!EnsureCell())
        return false;
    const int held = (IsDown(VK_SHIFT) ? ShiftKey : 0) | (IsDown(VK_CONTROL) ? ControlKey : 0) |
                     (IsDown(VK_MENU) ? AltKey : 0);
    const auto fits = [&](const Key& entry) {
        const int ignored = (entry.modifiers & MaybeShiftKey) != 0 ? ShiftKey : 0;
        return entry.code == key && (entry.modifiers & ~MaybeShiftKey) == (held & ~ignored);
    };
    const auto found = std::find_if(std::begin(Key::Table), std::end(Key::Table), fits);
    if (found == std::end(Key::Table))
        return false;
    return (Keys(*this).*found->run)();
}

bool TGCellCursor::RunCharacter(wchar_t character)
{
    if (character < L' ' || character == 0x7F || !EnsureCell())
        return false;
    if (RunTreeCharacter(character))
        return true;
    if (!GetGrid()->IsEditing() && !Edit(false))
        return true;
    typing = true;
    const HWND focus = ::GetFocus();
    if (focus != nullptr && focus != GetGrid()->m_hWnd && ::IsChild(GetGrid()->m_hWnd, focus))
        ::SendMessage(focus, WM_CHAR, character, 1);
    return true;
}

// ---- Keys of the editor

bool TGCellCursor::LeavesEditor(UINT key) const
{
    if (IsComboBox(GetEditorWindow()))
        return typing && (key == VK_LEFT || key == VK_RIGHT);
    if (key == VK_UP || key == VK_DOWN)
        return true;
    return typing && (key == VK_LEFT || key == VK_RIGHT);
}

// The grid has arrows go from the ends of a text to the next editor; here they stay in the text, or commit.
bool TGCellCursor::RunEditorKey(MSG& message)
{
    const UINT key = static_cast<UINT>(message.wParam);
    const bool back = IsDown(VK_SHIFT);
    const Watch watch(*this);
    switch (key)
    {
    case VK_RETURN:
    case VK_TAB:
        CommitEdit();
        if (watch.HasWindow())
            StepOn(key == VK_RETURN ? enterStep : tabStep, back, key == VK_TAB);
        return true;
    case VK_ESCAPE:
        GetGrid()->CancelEditCell();
        if (watch.HasWindow())
            GetGrid()->SetFocus();
        return true;
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
        if (!LeavesEditor(key))
            break;
        CommitEdit();
        if (watch.HasWindow())
            RunKey(key);
        return true;
    case VK_PRIOR:
    case VK_NEXT:
        break;
    default:
        return false;
    }
    ::TranslateMessage(&message);
    ::DispatchMessage(&message);
    return true;
}

void TGCellCursor::CommitEdit()
{
    const Watch watch(*this);
    GetGrid()->EndEditCell();
    if (watch.HasWindow())
        GetGrid()->SetFocus();
}

// ---- Steps

// False leaves the key to the dialog.
bool TGCellCursor::StepOn(Step step, bool back, bool mayLeave)
{
    if (!EnsureCell())
        return false;
    if (step == Step::None)
    {
        if (mayLeave)
            LeaveGrid(back);
        return mayLeave;
    }
    // Steps to the right run along rows, steps down along columns; the new-row line is the last row.
    const bool right = step == Step::Right;
    const long lines = (right ? LastRow(true) : LastCol()) + 1;
    const long places = (right ? LastCol() : LastRow(true)) + 1;
    long line = right ? GetRow() : GetCol();
    long place = (right ? GetCol() : GetRow()) + (back ? -1 : 1);
    if (place < 0 || place >= places)
    {
        if (!wrapping && !mayLeave)
            return true;
        place = back ? places - 1 : 0;
        line += wrapping ? (back ? -1 : 1) : lines;
    }
    if (line < 0 || line >= lines)
    {
        if (mayLeave && leaving)
        {
            LeaveGrid(back);
            return true;
        }
        if (!wrapping)
            return true;
        line = back ? lines - 1 : 0;
    }
    right ? MoveTo(line, place) : MoveTo(place, line);
    return true;
}

void TGCellCursor::LeaveGrid(bool back)
{
    const HWND grid = GetGrid()->GetSafeHwnd();
    const HWND parent = grid != nullptr ? ::GetParent(grid) : nullptr;
    const HWND next = parent != nullptr ? ::GetNextDlgTabItem(parent, grid, back) : nullptr;
    if (next != nullptr && next != grid)
        ::SetFocus(next);
}

} // namespace QuorUiCtr
