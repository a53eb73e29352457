// The edit session of the grid: opening, committing and dropping in-place editors.
#include "grid/TGGrid.h"

#include "grid/edit/CellEditorLife.h"
#include "grid/edit/CellWatch.h"
#include "grid/model/GridExtensions.h"
#include "grid/model/GridStructure.h"
#include "grid/model/RowWatch.h"
#include "grid/model/ScopedValue.h"
#include "grid/TGCellButtonEdit.h"
#include "grid/TGCellCombo.h"
#include "grid/TGCellCtrlIds.h"
#include "grid/TGCellEdit.h"
#include "grid/TGCellSpinEdit.h"
#include "grid/TGUserAction.h"

#include <memory>
#include <new>

namespace QuorUiCtr
{

// The steps of an edit session.
class TGGrid::EditSession
{
public:
    explicit EditSession(TGGrid& servedGrid) : grid(servedGrid) {}

    TGGridCell* FindCell(long row, long col);
    void SkipFoldBox(TGGridCell& cell, CRect& rect);

    // All others run hooks, or hide or destroy an editor, of which its parents hear: whoever goes on
    // afterwards with a cell or a row watches it.
    void OpenEditor(TGGridCell& cell);
    void AcceptNewRow();
    TGGridRow* AppendNewRow();
    void DropNewRow();
    void CommitEdit(TGCellCtrl& editor);
    void CommitNewRow(const TGGridCell& cell, const CString& text);
    void StoreText(TGGridCell& cell, const CString& text);
    void HideEditor();
    void DestroyLastEditor();
    void OpenLockedCell();

private:
    TGGrid& grid;
};
namespace
{

constexpr UINT_PTR OpenTimer = 0;
constexpr UINT_PTR CloseTimer = 1;

// Ending an edit runs hooks that may end edits again, of any grid.
bool endingEdit = false;

} // namespace

TGCellCtrl* TGGrid::OnGetCellEdit(TGGridCell& cell)
{
    const TGGridCol& col = cell.GetCol();
    if (col.IsComboEdit())
        return new (std::nothrow) TGCellCombo(cell, true);
    if (col.IsComboSel())
        return new (std::nothrow) TGCellCombo(cell, false);
    if (col.IsRightButton())
        return new (std::nothrow) TGCellButtonEdit(cell);
    if (col.IsRightSpin())
        return new (std::nothrow) TGCellSpinEdit(cell);
    return new (std::nothrow) TGCellEdit(cell);
}

TGGridCell* TGGrid::EditSession::FindCell(long row, long col)
{
    TGGridRow* found = grid.IsNewRow(row)     ? grid.FreshNewRow()
                       : grid.IsValidRow(row) ? grid.rows[row]
                                              : nullptr;
    return found != nullptr && grid.IsValidCol(col) ? found->FindCell(col) : nullptr;
}

void TGGrid::BeginEditCell(long row, long col)
{
    if (m_hWnd == nullptr)
        return;
    UnSelect();
    Settle();
    TGGridCell* cell = EditSession(*this).FindCell(row, col);
    if (m_hWnd == nullptr || cell == nullptr || cell->IsReadOnly())
        return;
    CellWatch watch(*this, cell);
    if (extensions != nullptr && (extensions->AskEdit(*cell, TGEditWay::Editor) || m_hWnd == nullptr))
        return;
    bool commitNewRow = false;
    const bool wasNewRow = IsNewRow(row);
    if (OnBeforeEdit(*cell, commitNewRow))
    {
        // A hook that edits on its own account has its edit committed first.
        Settle();
        if (m_hWnd != nullptr && watch.Cell() != nullptr)
            EditSession(*this).OpenEditor(*watch.Cell());
    }
    else if (wasNewRow && commitNewRow && m_hWnd != nullptr)
        EditSession(*this).AcceptNewRow();
}

void TGGrid::EditSession::OpenEditor(TGGridCell& cell)
{
    DestroyLastEditor();
    CRect rect;
    cell.GetRect(rect);
    grid.PrepareDC(nullptr);
    if (grid.dc == nullptr)
        return;
    grid.ShowRect(rect);
    grid.editCell = &cell;
    grid.editorMoved = false;
    rect.DeflateRect(1, 1, 0, 0);
    SkipFoldBox(cell, rect);
    grid.dc->LPtoDP(rect);

    CellWatch watch(grid, &cell);
    TGCellCtrl* editor = grid.OnGetCellEdit(cell);
    if (editor == nullptr)
    {
        if (grid.editCell == &cell)
            grid.editCell = nullptr;
        return;
    }
    // The hook may have ended this session, or opened the cell itself.
    if (grid.editCell != &cell || watch.Cell() == nullptr || grid.m_hWnd == nullptr ||
        grid.cellCtrl != nullptr)
    {
        delete editor;
        return;
    }
    grid.cellCtrl = editor;
    {
        CellEditorLife::Creation creation(grid.cellCtrl, grid.editCell);
        editor->Create(rect);
    }
    grid.OnCurChanged();
}

// In the tree's column the editor begins right of the fold box, or one step right of the parent's.
void TGGrid::EditSession::SkipFoldBox(TGGridCell& cell, CRect& rect)
{
    TGGridRow& row = cell.GetRow();
    if (cell.GetColIndex() != 0 || !row.IsTreeRow())
        return;
    TGGridTreeRow& treeRow = static_cast<TGGridTreeRow&>(row);
    CRect foldBox;
    if (treeRow.IsParentRow())
    {
        treeRow.GetTreeQuad(foldBox);
        rect.left = foldBox.right;
    }
    else if (treeRow.IsChildRow())
    {
        treeRow.GetParent().GetTreeQuad(foldBox);
        rect.left = 2 * foldBox.right - foldBox.left;
    }
}

// The pending row becomes a row of the grid without an edit.
void TGGrid::EditSession::AcceptNewRow()
{
    const TGUserAction action(grid, TGActionKind::InsertRows);
    if (TGGridRow* accepted = AppendNewRow())
    {
        grid.OnInsertRow(*accepted);
        grid.OnDataChanged();
    }
    DropNewRow();
    grid.RecalcLayout(1);
}

// Asks OnBeforeInsertRow and moves the pending row, or the one that the hook supplies, to the end of the
// rows. Returns null when the hook refuses.
TGGridRow* TGGrid::EditSession::AppendNewRow()
{
    TGGridRow* const pending = grid.newRow;
    const RowWatch watch(grid, pending);
    TGGridRow* accepted = pending;
    const bool agreed = grid.OnBeforeInsertRow(grid.GetRowNum(), accepted);
    // A hook that changes the grid may have had the line made anew.
    if (accepted == pending && !watch.IsAlive())
        accepted = grid.FreshNewRow();
    std::unique_ptr<TGGridRow> supplied(accepted != grid.newRow ? accepted : nullptr);
    if (!agreed || accepted == nullptr)
        return nullptr;
    Structure(grid).FitToCols(*accepted);
    const long place = grid.rows.Append(accepted);
    accepted->SetIndex(place);
    if (!supplied)
        grid.newRow = nullptr;
    supplied.release();
    Structure(grid).TellInserted(place, {&accepted, 1});
    return accepted;
}

void TGGrid::EditSession::DropNewRow()
{
    // A hook may have opened an editor there.
    if (grid.editCell != nullptr && &grid.editCell->GetRow() == grid.newRow)
        grid.CancelEditCell();
    delete grid.newRow;
    grid.newRow = nullptr;
}

void TGGrid::Settle()
{
    if (editCell != nullptr)
        EndEditCell();
    if (layoutPending)
        FlushLayout();
}

void TGGrid::EndEditCell()
{
    if (endingEdit || editCell == nullptr)
        return;
    const ScopedValue guard(endingEdit, true);
    const TGUserAction action(*this, TGActionKind::Type);
    if (cellCtrl != nullptr && cellCtrl->IsModified())
        EditSession(*this).CommitEdit(*cellCtrl);
    // Also what a hook has opened meanwhile.
    editCell = nullptr;
    EditSession(*this).HideEditor();
    // The commit used the new-row line up, as a row or not at all: the layout makes another one.
    if (newRow == nullptr)
        RecalcLayout(1);
}

void TGGrid::EditSession::CommitEdit(TGCellCtrl& editor)
{
    CellWatch watch(grid, grid.editCell);
    CString text;
    editor.GetNewText(text);
    if (!grid.OnModified(*grid.editCell, text) || watch.Cell() == nullptr)
        return;
    if (&watch.Cell()->GetRow() == grid.newRow)
        CommitNewRow(*watch.Cell(), text);
    else
        StoreText(*watch.Cell(), text);
}

void TGGrid::EditSession::CommitNewRow(const TGGridCell& cell, const CString& text)
{
    const long col = cell.GetColIndex();
    if (TGGridRow* accepted = AppendNewRow())
    {
        const long row = accepted->GetIndex();
        grid.OnInsertRow(*accepted);
        if (TGGridCell* stored = FindCell(row, col))
            StoreText(*stored, text);
    }
    DropNewRow();
}

void TGGrid::EditSession::StoreText(TGGridCell& cell, const CString& text)
{
    cell.SetText(text);
    cell.Refresh();
    grid.OnDataChanged();
}

void TGGrid::CancelEditCell()
{
    if (editCell == nullptr)
        return;
    editCell = nullptr;
    EditSession(*this).HideEditor();
}

void TGGrid::EditSession::HideEditor()
{
    if (grid.cellCtrl != nullptr)
        grid.cellCtrl->Hide();
}

void TGGrid::EditSession::DestroyLastEditor()
{
    TGCellCtrl* last = grid.cellCtrl;
    grid.cellCtrl = nullptr;
    CellEditorLife::DestroyWhenIdle(last);
}

void TGGrid::AutoEditCell(TGGridCell* cell)
{
    if (m_hWnd == nullptr || cellLock != nullptr)
        return;
    cellLock = cell == nullptr && editCell != nullptr ? editCell : cell;
    SetTimer(OpenTimer, 0, nullptr);
}

void TGGrid::AutoCloseCell(int ms)
{
    if (m_hWnd != nullptr)
        SetTimer(CloseTimer, static_cast<UINT>(ms), nullptr);
}

void TGGrid::OnTimer(UINT_PTR id)
{
    CWnd::OnTimer(id);
    if (id == OpenTimer)
        EditSession(*this).OpenLockedCell();
    else if (id == CloseTimer)
    {
        KillTimer(CloseTimer);
        EndEditCell();
    }
}

void TGGrid::EditSession::OpenLockedCell()
{
    grid.KillTimer(OpenTimer);
    if (grid.cellLock == nullptr)
        return;
    const long row = grid.cellLock->GetRowIndex();
    const long col = grid.cellLock->GetColIndex();
    grid.cellLock = nullptr;
    grid.CancelEditCell();
    grid.BeginEditCell(row, col);
}

void TGGrid::OnCbnSelchange()
{
    if (editCell == nullptr || cellCtrl == nullptr)
        return;
    const TGUserAction action(*this, TGActionKind::Type);
    OnCmbSelchange(*editCell, static_cast<CComboBox*>(cellCtrl->GetWnd()));
    OnDataChanged();
}

void TGGrid::OnCbnEditChange()
{
    CComboBox* combo = static_cast<CComboBox*>(GetDlgItem(CellEditorId));
    if (editCell == nullptr || combo == nullptr)
        return;
    const TGUserAction action(*this, TGActionKind::Type);
    CellWatch watch(*this, editCell);
    // The hook may destroy the combo box, and the object with it.
    const HWND comboWindow = combo->m_hWnd;
    OnCmbEditchange(*editCell, combo);
    if (watch.Cell() != nullptr && ::IsWindow(comboWindow))
    {
        CString text;
        CWnd::FromHandle(comboWindow)->GetWindowText(text);
        OnModified(*watch.Cell(), text);
    }
    OnDataChanged();
}

} // namespace QuorUiCtr
