// The grid's key map: what each key does, with an editor open and without.
#include "grid/input/GridKeyMap.h"

#include "grid/TGGrid.h"

#include <algorithm>
#include <iterator>

namespace QuorUiCtr
{

const GridKeyMap::Entry GridKeyMap::Entries[] = {
    {VK_TAB, &GridKeyMap::OnTabKey},       {VK_RETURN, &GridKeyMap::OnReturnKey},
    {VK_ESCAPE, &GridKeyMap::OnEscapeKey}, {VK_PRIOR, &GridKeyMap::OnPageUpKey},
    {VK_NEXT, &GridKeyMap::OnPageDownKey}, {VK_HOME, &GridKeyMap::OnHomeKey},
    {VK_LEFT, &GridKeyMap::OnLeftKey},     {VK_RIGHT, &GridKeyMap::OnRightKey},
    {VK_UP, &GridKeyMap::OnUpKey},         {VK_DOWN, &GridKeyMap::OnDownKey},
    {VK_INSERT, &GridKeyMap::OnInsertKey}, {VK_DELETE, &GridKeyMap::OnDeleteKey},
    {'A', &GridKeyMap::OnSelectAllKey},    {'C', &GridKeyMap::OnCopyKey},
    {'N', &GridKeyMap::OnNewKey},          {'R', &GridKeyMap::OnSortUpKey},
    {'T', &GridKeyMap::OnChildKey},        {'U', &GridKeyMap::OnSortDownKey},
    {'V', &GridKeyMap::OnPasteKey},        {'X', &GridKeyMap::OnCutKey},
};

void GridKeyMap::Run(UINT key)
{
    const bool control = (GetKeyState(VK_CONTROL) & 0xFF80) != 0;
    const auto entry = std::find_if(std::begin(Entries), std::end(Entries),
                                    [key](const Entry& candidate) { return candidate.key == key; });
    if (entry != std::end(Entries))
        (this->*entry->handler)(control);
}

// ---- Moving the edit and the selection
// ----------------------------------------------------------------------

void GridKeyMap::OnTabKey(bool)
{
    if (!grid.editCell)
        return;
    if (grid.GetColNum() > 1)
        grid.BeginEditCell(grid.editCell->GetRowIndex(),
                           (grid.editCell->GetColIndex() + 1) % grid.GetColNum());
    else
        grid.EndEditCell();
}

void GridKeyMap::OnReturnKey(bool control)
{
    if (!grid.editCell)
    {
        if (grid.GetRowSelNum() == 1 && grid.GetColNum() >= 1)
            grid.BeginEditCell(grid.rowSel[0], 0);
    }
    else if (grid.IsAppendRowShown())
        OnDownKey(control);
    else if (grid.GetRowNum() <= 1)
        grid.EndEditCell();
    else
        grid.BeginEditCell((grid.editCell->GetRowIndex() + 1) % grid.GetRowNum(),
                           grid.editCell->GetColIndex());
}

void GridKeyMap::OnEscapeKey(bool)
{
    if (!grid.editCell)
    {
        grid.UnSelect();
        return;
    }
    grid.CancelEditCell();
    if (grid.m_hWnd)
        grid.SetFocus();
}

void GridKeyMap::MoveEditSideways(long step)
{
    const long count = grid.GetColNum();
    grid.BeginEditCell(grid.editCell->GetRowIndex(), (grid.editCell->GetColIndex() + step + count) % count);
}

void GridKeyMap::MoveColSelection(long step, UINT scrollCode)
{
    const long count = grid.GetColNum();
    if (grid.GetColSelNum() == 1 && count >= 2)
    {
        const long selected = grid.colSel[0];
        grid.SelectCol(selected, false);
        grid.SelectCol((selected + step + count) % count, true);
    }
    else if (grid.hScrollShown)
        grid.OnHScroll(scrollCode, 0, nullptr);
}

void GridKeyMap::MoveRowSelection(long step, UINT scrollCode)
{
    const long count = grid.GetRowNum();
    if (grid.GetRowSelNum() == 1 && count >= 2)
    {
        const long selected = grid.rowSel[0];
        grid.SelectRow(selected, false);
        grid.SelectRow((selected + step + count) % count, true);
    }
    else if (grid.vScrollShown)
        grid.OnVScroll(scrollCode, 0, nullptr);
}

void GridKeyMap::OnLeftKey(bool)
{
    if (grid.editCell && grid.GetColNum() > 1)
        MoveEditSideways(-1);
    else
        MoveColSelection(-1, SB_LINEUP);
}

void GridKeyMap::OnRightKey(bool)
{
    if (grid.editCell && grid.GetColNum() > 1)
        MoveEditSideways(1);
    else
        MoveColSelection(1, SB_LINEDOWN);
}

void GridKeyMap::OnUpKey(bool)
{
    if (!grid.editCell)
    {
        MoveRowSelection(-1, SB_LINEUP);
        return;
    }
    const long row = grid.editCell->GetRowIndex();
    const long col = grid.editCell->GetColIndex();
    const long count = grid.GetRowNum();
    if (grid.IsAppendRowShown())
    {
        if (count > 0)
            grid.BeginEditCell((row + count) % (count + 1), col);
    }
    else if (count > 1)
        grid.BeginEditCell((row - 1 + count) % count, col);
}

void GridKeyMap::OnDownKey(bool)
{
    if (!grid.editCell)
    {
        MoveRowSelection(1, SB_LINEDOWN);
        return;
    }
    const long row = grid.editCell->GetRowIndex();
    const long col = grid.editCell->GetColIndex();
    const long count = grid.GetRowNum();
    if (!grid.IsAppendRowShown())
    {
        if (count > 1)
            grid.BeginEditCell((row + 1) % count, col);
    }
    else if (row != count)
        grid.BeginEditCell(row + 1, col);
    else
        GoOnBelowNewRow(col);
}

// From the new-row line the entry continues in the new-row line below the row that this one becomes.
void GridKeyMap::GoOnBelowNewRow(long col)
{
    const long count = grid.GetRowNum();
    grid.EndEditCell();
    if (grid.GetRowNum() == count)
        grid.DoAppendRow(false);
    grid.BeginEditCell(grid.GetRowNum(), col);
}

// ---- Scrolling
// ----------------------------------------------------------------------------------------------

void GridKeyMap::OnPageUpKey(bool)
{
    if (grid.vScrollShown)
        grid.OnVScroll(SB_PAGEUP, 0, nullptr);
}

void GridKeyMap::OnPageDownKey(bool)
{
    if (grid.vScrollShown)
        grid.OnVScroll(SB_PAGEDOWN, 0, nullptr);
}

void GridKeyMap::OnHomeKey(bool)
{
    grid.MoveView(grid.hScrollShown ? -grid.GetScrollPos(SB_HORZ) : 0,
                  grid.vScrollShown ? -grid.GetScrollPos(SB_VERT) : 0);
}

// ---- Commands
// -----------------------------------------------------------------------------------------------

void GridKeyMap::OnInsertKey(bool control)
{
    if (grid.IsRowSelected())
        control ? grid.DoInsertTree() : grid.DoInsertRow();
    else if (grid.IsColSelected())
        grid.DoInsertCol();
}

void GridKeyMap::OnDeleteKey(bool)
{
    grid.DoDelete();
}

void GridKeyMap::OnSelectAllKey(bool)
{
    if (!grid.IsSingleSelRow() || grid.GetRowNum() == 1)
        grid.SelectAll();
}

void GridKeyMap::OnCopyKey(bool)
{
    grid.DoCopy();
}

void GridKeyMap::OnNewKey(bool control)
{
    if (grid.IsColSelected())
        grid.DoInsertColAfter();
    else if (grid.IsRowSelected())
        control ? grid.DoInsertTreeAfter() : grid.DoInsertRowAfter();
    else
        control ? grid.DoAppendTree() : grid.DoAppendRow(true);
}

void GridKeyMap::OnSortUpKey(bool)
{
    if (grid.IsSortEnable())
        grid.Arrange(true);
}

void GridKeyMap::OnSortDownKey(bool)
{
    if (grid.IsSortEnable())
        grid.Arrange(false);
}

void GridKeyMap::OnChildKey(bool)
{
    grid.DoAppendChild();
}

void GridKeyMap::OnPasteKey(bool control)
{
    control ? grid.DoPasteChild() : grid.DoPaste();
}

void GridKeyMap::OnCutKey(bool)
{
    grid.DoClip();
}

} // namespace QuorUiCtr
