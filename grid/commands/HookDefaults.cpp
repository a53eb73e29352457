// The defaults of TGGrid's hooks and the notification of the parent window. The defaults that show context
// menus and that make cell editors are with the menus and the edit session.
#include "grid/TGGrid.h"

#include "grid/TGRowSelector.h"

namespace QuorUiCtr
{

// ---- Observing hooks

void TGGrid::OnDblClick(TGGridRow&) {}
void TGGrid::OnRClickCell(TGGridCell&, CPoint) {}
void TGGrid::OnCellComboString(TGGridCell&, CComboBox&) {}
void TGGrid::OnCellSpinInit(TGGridCell&, CSpinButtonCtrl&) {}
void TGGrid::OnCmbEditchange(TGGridCell&, CComboBox*) {}
void TGGrid::OnEndDeleteCol() {}
void TGGrid::OnEndMoveCol() {}
void TGGrid::OnEndDeleteRow() {}
void TGGrid::OnEndClip() {}
void TGGrid::OnEndCopy() {}
void TGGrid::OnEndPaste() {}
void TGGrid::OnEndMoveRow() {}

// ---- Vetoing hooks

bool TGGrid::OnBeforeEdit(TGGridCell&, bool&)
{
    return true;
}

bool TGGrid::OnModified(TGGridCell&, CString&)
{
    return true;
}

bool TGGrid::OnRefresh(TGGridCell&)
{
    return true;
}

bool TGGrid::OnRefresh(TGGridRow&)
{
    return true;
}

bool TGGrid::OnBeforeInsertCol(long, TGGridCol*&)
{
    return true;
}

bool TGGrid::OnBeforeDeleteCol()
{
    return true;
}

bool TGGrid::OnBeginMoveCol()
{
    return true;
}

bool TGGrid::OnMovingCol(long)
{
    return true;
}

bool TGGrid::OnMoveCol(long position)
{
    return OnMovingCol(position);
}

bool TGGrid::OnBeforeInsertRow(long, TGGridRow*&)
{
    return true;
}

bool TGGrid::OnBeforeInsertChild(TGGridTreeRow&, long, TGGridTreeRow*&)
{
    return true;
}

bool TGGrid::OnBeforeDeleteRow()
{
    return true;
}

bool TGGrid::OnBeforeClip()
{
    return true;
}

bool TGGrid::OnBeforeCopy()
{
    return true;
}

bool TGGrid::OnBeforePaste(long)
{
    return true;
}

bool TGGrid::OnBeforePasteChild(TGGridTreeRow&)
{
    return true;
}

bool TGGrid::OnBeginMoveRow()
{
    return true;
}

bool TGGrid::OnMovingRow(long)
{
    return true;
}

bool TGGrid::OnMoveRow(long position)
{
    return OnMovingRow(position);
}

// ---- Information hooks

bool TGGrid::OnCellButtonDown(TGGridCell&, CString&)
{
    return false;
}

bool TGGrid::OnCellTip(long, long, CString&) const
{
    return false;
}

bool TGGrid::OnRowTip(long, CString&) const
{
    return false;
}

bool TGGrid::OnColTip(long, CString&) const
{
    return false;
}

bool TGGrid::OnCellButtonTip(long, long, CString&) const
{
    return false;
}

bool TGGrid::OnActiveQuadTip(CString&) const
{
    return false;
}

// ---- Hooks with an effect of their own

void TGGrid::OnInsertCol(TGGridCol&)
{
    OnDataChanged();
}

void TGGrid::OnInsertRow(TGGridRow&)
{
    if (!tellsChangesLater)
        OnDataChanged();
}

void TGGrid::OnDataChanged()
{
    modified = true;
    SendParentNotify(EN_CHANGE);
}

void TGGrid::OnCurChanged()
{
    if (editCell != nullptr)
        curColIndex = editCell->GetColIndex();
    else
        curColIndex = colSel.GetNum() == 1 ? *colSel.begin() : -1;
    if (editCell != nullptr)
        curRowIndex = editCell->GetRowIndex();
    else
        curRowIndex = rowSel.GetNum() == 1 ? *rowSel.begin() : -1;
    if (rowHeader != nullptr)
        rowHeader->OnCurRowChanged();
}

void TGGrid::OnCmbSelchange(TGGridCell& cell, CComboBox* combo)
{
    const int chosen = combo->GetCurSel();
    if (chosen < 0)
        return;
    CString text;
    combo->GetLBText(chosen, text);
    cell.SetText(text);
}

void TGGrid::OnBeforeRefresh(TGGridCell& cell)
{
    if (dc == nullptr)
        return;
    const TGGridCol& col = cell.GetCol();
    dc->SetBkColor(col.GetBackColor());
    dc->SetTextColor(col.GetTextColor());
    dc->SetBkMode(TRANSPARENT);
}

// ---- Notification

void TGGrid::SendParentNotify(unsigned short code) const
{
    if (GetSafeHwnd() == nullptr)
        return;
    if (CWnd* parent = GetParent())
        parent->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), code), reinterpret_cast<LPARAM>(m_hWnd));
}

} // namespace QuorUiCtr
