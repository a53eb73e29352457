// The column header's mouse work: selecting, resizing and moving columns.
#include "grid/TGColSelector.h"

#include "grid/model/GridStructure.h"
#include "grid/TGUserAction.h"
#include "grid/headers/HeaderClick.h"
#include "grid/headers/HeaderDrag.h"

namespace QuorUiCtr
{
namespace
{

constexpr long MoveMarkWidth = 3;
constexpr long ResizeMarkWidth = 1;

} // namespace

HeaderDrag TGColSelector::Drag()
{
    return HeaderDrag(*grid, HeaderAxis::Cols, markX, moving ? MoveMarkWidth : ResizeMarkWidth);
}

// The column whose right edge or the pixel before it is at `x`; -1 when there is none. With coinciding edges
// the last column counts.
long TGColSelector::ColWithEdgeAt(long x) const
{
    long found = -1;
    if (grid->IsColFixWidth())
        return found;
    auto col =
        grid->cols.FindPartition([x](const TGGridCol* candidate) { return candidate->GetRight() < x; });
    for (; col != grid->cols.end() && (*col)->GetRight() <= x + 1; ++col)
        found = (*col)->GetIndex();
    return found;
}

BOOL TGColSelector::OnSetCursor(CWnd* wnd, UINT hitTest, UINT message)
{
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    if (ColWithEdgeAt(Band().LogicalPlace(point)) == -1)
        return CWnd::OnSetCursor(wnd, hitTest, message);
    Drag().ShowCursor();
    return TRUE;
}

// ---- Buttons

void TGColSelector::OnLButtonDown(UINT flags, CPoint point)
{
    SetFocus();
    // The end of an edit runs hooks, which may close the window.
    if (m_hWnd == nullptr)
        return;
    SetCapture();
    const long edgeCol = ColWithEdgeAt(Band().LogicalPlace(point));
    if (edgeCol != -1)
    {
        resizeCol = edgeCol;
        markX = -1;
        resizing = true;
    }
    else if (const long col = PtToCol(point); grid->IsValidCol(col))
        ClickCol(col);
    if (m_hWnd != nullptr)
        CWnd::OnLButtonDown(flags, point);
}

void TGColSelector::ClickCol(long col)
{
    switch (HeaderClickOn(grid->IsColSelected(col), IsKeyHeld(VK_CONTROL), IsKeyHeld(VK_SHIFT)))
    {
    case HeaderClick::TakeOut:
        grid->SelectCol(col, false);
        break;
    case HeaderClick::Drag:
        BeginMove();
        break;
    case HeaderClick::Extend:
        ExtendSelection(col);
        break;
    case HeaderClick::SelectOnly:
        grid->UnSelect();
        [[fallthrough]];
    case HeaderClick::Add:
        grid->SelectCol(col, true);
        break;
    }
}

// Only a single selected column is extended.
void TGColSelector::ExtendSelection(long col)
{
    if (grid->GetColSelNum() == 1)
        ExtendRun(grid->colSel[0], grid->colSel[0], col, [this](long i) { grid->SelectCol(i, true); });
}

void TGColSelector::OnLButtonUp(UINT flags, CPoint point)
{
    // The drag ends before the capture does: losing the capture cancels a drag.
    const bool wasMoving = moving;
    const bool wasResizing = resizing;
    CancelDrag();
    if (GetCapture() == this)
        ::ReleaseCapture();
    if (wasResizing)
        ResizeTo(Band().LogicalPlace(point));
    else if (wasMoving)
        DropAt(PtToCol(point));
    if (m_hWnd != nullptr)
        grid->SetFocus();
    if (m_hWnd != nullptr)
        CWnd::OnLButtonUp(flags, point);
}

void TGColSelector::OnRButtonUp(UINT flags, CPoint point)
{
    CWnd::OnRButtonUp(flags, point);
    grid->SetFocus();
    const long col = PtToCol(point);
    if (m_hWnd == nullptr || !grid->IsValidCol(col))
        return;
    ClientToScreen(&point);
    if (!grid->IsColSelected(col))
    {
        grid->UnSelect();
        grid->SelectCol(col, true);
    }
    if (grid->IsValidCol(col))
        grid->OnRClickCol(grid->GetCol(col), point);
}

// ---- Dragging

void TGColSelector::BeginMove()
{
    if (grid->IsColPosFix())
        return;
    // The hook may take the capture or the window away.
    moving = grid->IsSelConnect() && grid->OnBeginMoveCol() && GetCapture() == this;
    markX = -1;
}

void TGColSelector::OnMouseMove(UINT flags, CPoint point)
{
    if ((moving || resizing) && Drag().ScrollAtEdge(*this, point, CutColumnWidth(point)))
        return;
    if (moving)
        MarkMoveTarget(PtToCol(point));
    else if (resizing)
        Drag().MoveMark(Band().LogicalPlace(point));
    if (m_hWnd != nullptr)
        CWnd::OnMouseMove(flags, point);
}

// The width of the column under the point when it is scrolled partly out of the view, else 0.
long TGColSelector::CutColumnWidth(CPoint point) const
{
    const long position = grid->GetScrollPos(SB_HORZ);
    const long col = PtToCol(point);
    if (position == 0 || !grid->IsValidCol(col) || grid->GetCol(col).GetLeft() >= position)
        return 0;
    return grid->GetCol(col).GetWidth();
}

void TGColSelector::MarkMoveTarget(long col)
{
    Drag().ShowCursor();
    if (col < 0 || col > grid->GetColNum() || !grid->OnMovingCol(col) || !moving)
        return;
    Drag().MoveMark(grid->IsValidCol(col) ? grid->GetCol(col).GetLeft() : grid->GetRight());
}

void TGColSelector::RestoreMark()
{
    Drag().RestoreMark();
}

void TGColSelector::RestoreMark(const CRect& drawn)
{
    Drag().RestoreMark(drawn);
}

// Takes the mark off the screen and leaves the dragging states.
void TGColSelector::CancelDrag()
{
    Drag().MoveMark(-1);
    moving = false;
    resizing = false;
}

void TGColSelector::OnCaptureChanged(CWnd* newCapture)
{
    CancelDrag();
    CWnd::OnCaptureChanged(newCapture);
}

void TGColSelector::ResizeTo(long x)
{
    if (!grid->IsValidCol(resizeCol))
        return;
    TGGridCol& col = grid->GetCol(resizeCol);
    if (x <= col.GetLeft() + 1)
        return;
    const TGUserAction action(*grid, TGActionKind::ResizeCols);
    TGGrid::Structure(*grid).ResizeCol(col, x - col.GetLeft());
}

// The hook may have changed the columns and the selection.
void TGColSelector::DropAt(long to)
{
    const TGUserAction action(*grid, TGActionKind::MoveCols);
    if (to < 0 || to > grid->GetColNum() || !grid->OnMoveCol(to) || to > grid->GetColNum() ||
        !grid->IsColSelected())
        return;
    const long first = grid->colSel[0];
    const long last = grid->colSel[grid->GetColSelNum() - 1];
    if (to >= first && to <= last + 1)
        return;
    grid->MoveSelectedCols(first, last, to);
    if (m_hWnd != nullptr)
        CWnd::Invalidate();
    grid->OnEndMoveCol();
    grid->OnDataChanged();
}

} // namespace QuorUiCtr
