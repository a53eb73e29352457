// The row header's mouse work: selecting rows, the new-row box, moving rows by dragging.
#include "grid/TGRowSelector.h"

#include "grid/headers/HeaderDrag.h"
#include "grid/TGGrid.h"

namespace QuorUiCtr
{
namespace
{

constexpr long DropMarkHeight = 3;
constexpr long FarRight = 10000;

} // namespace

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
    if (grid->IsRowSelected(row))
    {
        if (control)
            grid->SelectRow(row, false);
        else
            BeginDrag(row);
    }
    else if (shift)
        ExtendSelection(row);
    else
    {
        if (!control)
            grid->UnSelect();
        grid->SelectRow(row, true);
    }
}

// Selects the rows between the selection and `row`, which lies outside of it.
void TGRowSelector::ExtendSelection(long row)
{
    if (!grid->IsRowSelected() || !grid->IsSelConnect())
        return;
    const long first = grid->rowSel[0];
    const long last = grid->rowSel[grid->GetRowSelNum() - 1];
    for (long i = last + 1; i <= row; ++i)
        grid->SelectRow(i, true);
    for (long i = first - 1; i >= row; --i)
        grid->SelectRow(i, true);
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
        if (ScrollAtEdge(point))
            return;
        DragTo(PtToRow(point));
    }
    if (m_hWnd != nullptr)
        CWnd::OnMouseMove(flags, point);
}

// Scrolls when the mouse is at the upper or lower edge of the data area; returns whether it is.
bool TGRowSelector::ScrollAtEdge(CPoint point)
{
    if (!grid->vScrollShown)
        return false;
    CRect area;
    grid->GetClientRect(area);
    grid->MapWindowPoints(this, area);
    const long position = grid->GetScrollPos(SB_VERT);
    const long upperEdge = area.top + (position != 0 ? grid->GetRowHeight() : 0);
    if (point.y < area.bottom && point.y > upperEdge)
        return false;
    grid->MoveView(0, point.y >= area.bottom ? AutoScrollStep : -AutoScrollStep);
    grid->UpdateWindow();
    return true;
}

void TGRowSelector::DragTo(long row)
{
    ::SetCursor(::LoadCursor(nullptr, IDC_SIZENS));
    if (row == dragRow || row < 0 || row > grid->GetRowNum() || !grid->OnMovingRow(row) || !dragging)
        return;
    MoveDropMark(row * grid->GetRowHeight());
}

void TGRowSelector::MoveDropMark(long y)
{
    if (y == dropMarkY)
        return;
    InvertDropMark();
    dropMarkY = y;
    InvertDropMark();
}

// Empty when no mark is shown.
CRect TGRowSelector::DropMarkRect() const
{
    return dropMarkY == -1 ? CRect() : CRect(0, dropMarkY, FarRight, dropMarkY + DropMarkHeight);
}

void TGRowSelector::InvertDropMark()
{
    RestoreDropMark(DropMarkRect());
}

void TGRowSelector::RestoreDropMark()
{
    grid->ClearOutsideCells(DropMarkRect());
    InvertDropMark();
}

void TGRowSelector::RestoreDropMark(const CRect& drawn)
{
    CRect part;
    CDC* context = grid->GetDC();
    if (part.IntersectRect(DropMarkRect(), drawn) && context != nullptr)
        context->InvertRect(part);
}

// Takes the mark off the screen and leaves the dragging state.
void TGRowSelector::CancelDrag()
{
    MoveDropMark(-1);
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
    if (to == dragRow || to < 0 || to > grid->GetRowNum() || !grid->OnMoveRow(to) || to > grid->GetRowNum() ||
        !grid->IsRowSelected())
        return;
    grid->MoveSelectedRows(to);
    grid->OnEndMoveRow();
    grid->OnDataChanged();
}

} // namespace QuorUiCtr
