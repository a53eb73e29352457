// The grid's key map: what each key does, with an editor open and without.
#include "grid/input/GridKeyMap.h"

#include "grid/TGGrid.h"

#include <algorithm>
#include <iterator>

namespace QuorUiCtr
{

// What a key does, alone and with Ctrl.
const GridKeyMap::Entry GridKeyMap::Entries[] = {
    {VK_TAB, &GridKeyMap::EditNextCell, &GridKeyMap::EditNextCell},
    {VK_RETURN, &GridKeyMap::EditOrGoDown, &GridKeyMap::EditOrGoDown},
    {VK_ESCAPE, &GridKeyMap::Cancel, &GridKeyMap::Cancel},
    {VK_PRIOR, &GridKeyMap::ScrollPageUp, &GridKeyMap::ScrollPageUp},
    {VK_NEXT, &GridKeyMap::ScrollPageDown, &GridKeyMap::ScrollPageDown},
    {VK_HOME, &GridKeyMap::ScrollHome, &GridKeyMap::ScrollHome},
    {VK_LEFT, &GridKeyMap::GoLeft, &GridKeyMap::GoLeft},
    {VK_RIGHT, &GridKeyMap::GoRight, &GridKeyMap::GoRight},
    {VK_UP, &GridKeyMap::GoUp, &GridKeyMap::GoUp},
    {VK_DOWN, &GridKeyMap::GoDown, &GridKeyMap::GoDown},
    {VK_INSERT, &GridKeyMap::Insert, &GridKeyMap::InsertTree},
    {VK_DELETE, &GridKeyMap::Delete, &GridKeyMap::Delete},
    {'A', &GridKeyMap::SelectAll, &GridKeyMap::SelectAll},
    {'C', &GridKeyMap::Copy, &GridKeyMap::Copy},
    {'N', &GridKeyMap::New, &GridKeyMap::NewTree},
    {'R', &GridKeyMap::SortUp, &GridKeyMap::SortUp},
    {'T', &GridKeyMap::AppendChild, &GridKeyMap::AppendChild},
    {'U', &GridKeyMap::SortDown, &GridKeyMap::SortDown},
    {'V', &GridKeyMap::Paste, &GridKeyMap::PasteChild},
    {'X', &GridKeyMap::Cut, &GridKeyMap::Cut},
};

void GridKeyMap::Run(UINT key)
{
    const bool control = (GetKeyState(VK_CONTROL) & 0xFF80) != 0;
    const auto entry = std::find_if(std::begin(Entries), std::end(Entries),
                                    [key](const Entry& candidate) { return candidate.key == key; });
    if (entry != std::end(Entries))
        (this->*(control ? entry->withControl : entry->plain))();
}

// ---- Moving the edit and the selection

void GridKeyMap::EditNextCell()
{
    if (grid.editCell == nullptr)
        return;
    if (grid.GetColNum() > 1)
        grid.BeginEditCell(grid.editCell->GetRowIndex(),
                           (grid.editCell->GetColIndex() + 1) % grid.GetColNum());
    else
        grid.EndEditCell();
}

void GridKeyMap::EditOrGoDown()
{
    if (grid.editCell == nullptr)
    {
        if (grid.GetRowSelNum() == 1 && grid.GetColNum() >= 1)
            grid.BeginEditCell(grid.rowSel[0], 0);
    }
    else if (grid.IsAppendRowShown())
        GoDown();
    else if (grid.GetRowNum() <= 1)
        grid.EndEditCell();
    else
        grid.BeginEditCell((grid.editCell->GetRowIndex() + 1) % grid.GetRowNum(),
                           grid.editCell->GetColIndex());
}

void GridKeyMap::Cancel()
{
    if (grid.editCell == nullptr)
    {
        grid.UnSelect();
        return;
    }
    grid.CancelEditCell();
    if (grid.m_hWnd != nullptr)
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

void GridKeyMap::GoLeft()
{
    if (grid.editCell != nullptr && grid.GetColNum() > 1)
        MoveEditSideways(-1);
    else
        MoveColSelection(-1, SB_LINEUP);
}

void GridKeyMap::GoRight()
{
    if (grid.editCell != nullptr && grid.GetColNum() > 1)
        MoveEditSideways(1);
    else
        MoveColSelection(1, SB_LINEDOWN);
}

void GridKeyMap::GoUp()
{
    if (grid.editCell == nullptr)
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

void GridKeyMap::GoDown()
{
    if (grid.editCell == nullptr)
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

void GridKeyMap::ScrollPageUp()
{
    if (grid.vScrollShown)
        grid.OnVScroll(SB_PAGEUP, 0, nullptr);
}

void GridKeyMap::ScrollPageDown()
{
    if (grid.vScrollShown)
        grid.OnVScroll(SB_PAGEDOWN, 0, nullptr);
}

void GridKeyMap::ScrollHome()
{
    grid.MoveView(grid.hScrollShown ? -grid.GetScrollPos(SB_HORZ) : 0,
                  grid.vScrollShown ? -grid.GetScrollPos(SB_VERT) : 0);
}

// ---- Commands

// Before the selected row or column; a tree only before a row.
void GridKeyMap::Insert()
{
    if (grid.IsRowSelected())
        grid.DoInsertRow();
    else if (grid.IsColSelected())
        grid.DoInsertCol();
}

void GridKeyMap::InsertTree()
{
    if (grid.IsRowSelected())
        grid.DoInsertTree();
    else
        Insert();
}

// Behind what is selected, else at the end.
void GridKeyMap::New()
{
    if (grid.IsColSelected())
        grid.DoInsertColAfter();
    else if (grid.IsRowSelected())
        grid.DoInsertRowAfter();
    else
        grid.DoAppendRow(true);
}

void GridKeyMap::NewTree()
{
    if (grid.IsColSelected())
        New();
    else if (grid.IsRowSelected())
        grid.DoInsertTreeAfter();
    else
        grid.DoAppendTree();
}

void GridKeyMap::AppendChild()
{
    grid.DoAppendChild();
}

void GridKeyMap::Delete()
{
    grid.DoDelete();
}

void GridKeyMap::SelectAll()
{
    if (!grid.IsSingleSelRow() || grid.GetRowNum() == 1)
        grid.SelectAll();
}

void GridKeyMap::Copy()
{
    grid.DoCopy();
}

void GridKeyMap::Cut()
{
    grid.DoClip();
}

void GridKeyMap::Paste()
{
    grid.DoPaste();
}

void GridKeyMap::PasteChild()
{
    grid.DoPasteChild();
}

void GridKeyMap::SortUp()
{
    if (grid.IsSortEnable())
        grid.Arrange(true);
}

void GridKeyMap::SortDown()
{
    if (grid.IsSortEnable())
        grid.Arrange(false);
}

} // namespace QuorUiCtr
