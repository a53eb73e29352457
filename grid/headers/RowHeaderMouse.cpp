// The row header's mouse work: selecting rows, the new-row box, moving rows by dragging.
#include "grid/TGRowSelector.h"

#include "grid/TGGrid.h"
#include "grid/TGUserAction.h"
#include "grid/headers/HeaderClick.h"
#include "grid/headers/HeaderDrag.h"
#include "rules/GridGeometry.h"

namespace QuorUiCtr
{
namespace
{

constexpr long DropMarkHeight = 3;

} // namespace

HeaderDrag TGRowSelector::Drag()
{
    return HeaderDrag(*grid, HeaderAxis::Rows, dropMarkY, DropMarkHeight);
}

// ---- Buttons

void TGRowSelector::OnLButtonDown(UINT flags, CPoint point)
{
    const long row = PtToRow(point);
    if (grid->IsNewRow(row) && grid->IsAppendRowShown())
    {
        ClickNewRowBox();
        return;
    }
    SetFocus();
    // The end of an edit runs hooks, which may close the window.
    if (m_hWnd == nullptr)
        return;
    SetCapture();
    if (grid->IsValidRow(row))
        ClickRow(row);
    else
        grid->UnSelect();
    if (m_hWnd != nullptr)
        CWnd::OnLButtonDown(flags, point);
}

// An edit of the new-row line that is open becomes a row; otherwise the click makes one.
void TGRowSelector::ClickNewRowBox()
{
    const long before = grid->GetRowNum();
    grid->EndEditCell();
    if (grid->GetRowNum() != before)
        grid->ShowAppendRow();
    else
        grid->DoAppendRow(false);
}

void TGRowSelector::ClickRow(long row)
{
    const bool control = !grid->IsSingleSelRow() && IsKeyHeld(VK_CONTROL);
    const bool shift = !grid->IsSingleSelRow() && IsKeyHeld(VK_SHIFT);
    switch (HeaderClickOn(grid->IsRowSelected(row), control, shift))
    {
    case HeaderClick::TakeOut:
        grid->SelectRow(row, false);
        break;
    case HeaderClick::Drag:
        BeginDrag(row);
        break;
    case HeaderClick::Extend:
        ExtendSelection(row);
        break;
    case HeaderClick::SelectOnly:
        grid->UnSelect();
        [[fallthrough]];
    case HeaderClick::Add:
        grid->SelectRow(row, true);
        break;
    }
}

// Only a selection without gaps is extended.
void TGRowSelector::ExtendSelection(long row)
{
    if (grid->IsRowSelected() && grid->IsSelConnect())
        ExtendRun(grid->rowSel[0], grid->rowSel[grid->GetRowSelNum() - 1], row,
                  [this](long i) { grid->SelectRow(i, true); });
}

void TGRowSelector::OnLButtonUp(UINT flags, CPoint point)
{
    // The drag ends before the capture does: losing the capture cancels a drag.
    const bool dropped = dragging;
    CancelDrag();
    if (GetCapture() == this)
        ::ReleaseCapture();
    if (dropped)
        Drop(PtToRow(point));
    if (m_hWnd != nullptr)
        grid->SetFocus();
    if (m_hWnd != nullptr)
        CWnd::OnLButtonUp(flags, point);
}

void TGRowSelector::OnRButtonUp(UINT, CPoint point)
{
    grid->SetFocus();
    const long row = PtToRow(point);
    if (m_hWnd == nullptr || !grid->IsValidRow(row))
        return;
    ClientToScreen(&point);
    if (!grid->IsRowSelected(row))
    {
        grid->UnSelect();
        grid->SelectRow(row, true);
    }
    if (grid->IsValidRow(row))
        grid->OnRClickRow(grid->GetRow(row), point);
}

void TGRowSelector::OnLButtonDblClk(UINT flags, CPoint point)
{
    CWnd::OnLButtonDblClk(flags, point);
    const long row = PtToRow(point);
    if (grid->IsValidRow(row))
        grid->OnDblClick(grid->GetRow(row));
}

// ---- Dragging rows

void TGRowSelector::BeginDrag(long row)
{
    if (grid->IsRowPosFix() || !grid->IsSelFold() || grid->IsSelDelUnable() || !grid->OnBeginMoveRow())
        return;
    // The hook may have taken the capture or the window away.
    dragging = GetCapture() == this;
    dropMarkY = -1;
    dragRow = row;
}

void TGRowSelector::OnMouseMove(UINT flags, CPoint point)
{
    if (dragging)
    {
        const long margin = grid->GetScrollPos(SB_VERT) != 0 ? grid->GetRowHeight() : 0;
        if (Drag().ScrollAtEdge(*this, point, margin))
            return;
        DragTo(PtToRow(point));
    }
    if (m_hWnd != nullptr)
        CWnd::OnMouseMove(flags, point);
}

void TGRowSelector::DragTo(long row)
{
    Drag().ShowCursor();
    if (row == dragRow || row < 0 || row > grid->GetRowNum() || !grid->OnMovingRow(row) || !dragging)
        return;
    Drag().MoveMark(RowEdge(row, grid->GetRowHeight()));
}

void TGRowSelector::RestoreDropMark()
{
    Drag().RestoreMark();
}

void TGRowSelector::RestoreDropMark(const CRect& drawn)
{
    Drag().RestoreMark(drawn);
}

// Takes the mark off the screen and leaves the dragging state.
void TGRowSelector::CancelDrag()
{
    Drag().MoveMark(-1);
    dragging = false;
}

void TGRowSelector::OnCaptureChanged(CWnd* newCapture)
{
    CancelDrag();
    CWnd::OnCaptureChanged(newCapture);
}

// The hook may have changed the rows and the selection.
void TGRowSelector::Drop(long to)
{
    const TGUserAction action(*grid, TGActionKind::MoveRows);
    if (to == dragRow || to < 0 || to > grid->GetRowNum() || !grid->OnMoveRow(to) || to > grid->GetRowNum() ||
        !grid->IsRowSelected())
        return;
    grid->MoveSelectedRows(to);
    grid->OnEndMoveRow();
    grid->OnDataChanged();
}

} // namespace QuorUiCtr
