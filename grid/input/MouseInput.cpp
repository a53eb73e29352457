// TGGrid's mouse and focus: hit tests, clicks, the focus state in the corner, tool tips.
#include "grid/TGGrid.h"

#include "grid/model/GridExtensions.h"
#include "grid/model/RowWatch.h"
#include "grid/TGActiveQuad.h"
#include "grid/TGUserAction.h"
#include "grid/window/TipAnswer.h"

namespace QuorUiCtr
{

// What a click does where it hits the grid, and the column of the tree; both run hooks.
class TGGrid::Pointer
{
public:
    explicit Pointer(TGGrid& servedGrid) : grid(servedGrid) {}

    void PressCell(CPoint point);

private:
    void PressTreeCell(long row, CPoint point);

    TGGrid& grid;
};

// ---- Hit tests

CPoint TGGrid::ClientToLogical(CPoint point) const
{
    if (dc != nullptr)
        dc->DPtoLP(&point);
    return point;
}

void TGGrid::PtToCell(CPoint point, long& row, long& col) const
{
    const CPoint logical = ClientToLogical(point);
    row = logical.y / GetRowHeight();
    col = ColAtX(logical.x);
}

long TGGrid::ColAtX(long logicalX) const
{
    const auto col = cols.FindPartition(
        [logicalX](const TGGridCol* candidate) { return candidate->GetRight() <= logicalX; });
    return col != cols.end() && (*col)->GetLeft() <= logicalX ? (*col)->GetIndex() : GetColNum();
}

INT_PTR TGGrid::OnToolHitTest(CPoint point, TOOLINFO* info) const
{
    // While a layout is postponed, nobody can say what is under a point.
    if (layoutPending)
        return -1;
    long row = -1;
    long col = -1;
    PtToCell(point, row, col);
    CString tip;
    if (!IsValidRow(row) || !IsValidCol(col) ||
        !(OnCellTip(row, col, tip) || HasExtensionTip(TGGridPlace::Cell, row, col, tip)))
        return -1;
    return AnswerTip(*this, tip, static_cast<INT_PTR>(row) * 10 + col, 0, info);
}

bool TGGrid::HasExtensionTip(TGGridPlace place, long row, long col, CString& tip) const
{
    return extensions != nullptr && extensions->AskTip(place, row, col, tip);
}

// ---- Clicks

void TGGrid::OnLButtonDown(UINT flags, CPoint point)
{
    SetFocus();
    Settle();
    Pointer(*this).PressCell(point);
    CWnd::OnLButtonDown(flags, point);
}

// A double click acts as a second click.
void TGGrid::OnLButtonDblClk(UINT flags, CPoint point)
{
    OnLButtonDown(flags, point);
}

void TGGrid::Pointer::PressCell(CPoint point)
{
    long row = -1;
    long col = -1;
    grid.PtToCell(point, row, col);
    if (row < 0 || !grid.IsValidCol(col))
        grid.UnSelect();
    else if (grid.IsValidRow(row) && col == 0 && grid.GetRow(row).IsTreeRow())
        PressTreeCell(row, point);
    else if (grid.IsValidRow(row) || (grid.IsNewRow(row) && grid.IsAppendRowShown()))
        grid.BeginEditCell(row, col);
    else
        grid.UnSelect();
}

void TGGrid::Pointer::PressTreeCell(long row, CPoint point)
{
    TGGridTreeRow& treeRow = grid.GetTreeRow(row);
    CPoint logical = grid.ClientToLogical(point);
    if (!treeRow.IsParentRow() || !treeRow.IsPtInTreeQuad(logical))
    {
        grid.BeginEditCell(row, 0);
        return;
    }
    const TGUserAction action(grid, TGActionKind::Fold);
    const RowWatch watch(grid, &treeRow);
    grid.UnSelect();
    if (!watch.IsAlive())
        return;
    if (treeRow.IsFold())
        treeRow.UnFold();
    else
        treeRow.Fold();
}

void TGGrid::OnRButtonUp(UINT flags, CPoint point)
{
    CWnd::OnRButtonUp(flags, point);
    SetFocus();
    FlushLayout();
    long row = -1;
    long col = -1;
    PtToCell(point, row, col);
    if (!IsValidRow(row) || !IsValidCol(col))
        return;
    ClientToScreen(&point);
    OnRClickCell(GetCell(row, col), point);
}

void TGGrid::OnCancelMode()
{
    if (GetCapture() == this)
        ReleaseCapture();
    CWnd::OnCancelMode();
}

BOOL TGGrid::OnSetCursor(CWnd* wnd, UINT hitTest, UINT message)
{
    return CWnd::OnSetCursor(wnd, hitTest, message);
}

// ---- Focus

bool TGGrid::IsMyFocus(const CWnd* wnd) const
{
    if (wnd->GetSafeHwnd() == nullptr || GetSafeHwnd() == nullptr)
        return false;
    return wnd->GetSafeHwnd() == GetSafeHwnd() || IsChild(wnd);
}

void TGGrid::ShowActive(bool active)
{
    if (quad != nullptr)
        quad->ShowActive(active);
}

void TGGrid::OnSetFocus(CWnd* oldFocus)
{
    CWnd::OnSetFocus(oldFocus);
    ShowActive(true);
}

void TGGrid::OnKillFocus(CWnd* newFocus)
{
    CWnd::OnKillFocus(newFocus);
    if (!IsMyFocus(newFocus))
        ShowActive(false);
}

} // namespace QuorUiCtr
