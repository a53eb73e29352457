// TGGrid's painting: the visible rows, the new-row line, the selection, and the colours of an open editor.
#include "grid/TGGrid.h"

#include "grid/TGCellCtrl.h"
#include "grid/TGColSelector.h"
#include "grid/TGRowSelector.h"

#include <algorithm>

namespace QuorUiCtr
{

namespace
{

// The position in an ascending list from which its elements are at least `value`.
long FirstNotBelow(DualList<long>& ascending, long value)
{
    long first = 0;
    long last = ascending.GetNum();
    while (first < last)
    {
        const long middle = (first + last) / 2;
        if (*ascending.IteratorAt(middle) < value)
            first = middle + 1;
        else
            last = middle;
    }
    return first;
}

} // namespace

void TGGrid::OnPaint()
{
    if (IsUpdating())
    {
        const CPaintDC validated(this);
        redrawPending = true;
        return;
    }
    ClearDC();
    {
        CPaintDC paintContext(this);
        PrepareDC(&paintContext);
        Refresh();
        // A hook that asked for a layout has put a client context in the place of this one.
        ClearDC();
    }
    PrepareDC(nullptr);
}

void TGGrid::Refresh()
{
    if (GetSafeHwnd() == nullptr)
        return;
    if (IsUpdating())
    {
        redrawPending = true;
        return;
    }
    long first = 0;
    long last = GetRowNum();
    if (dc != nullptr)
    {
        const CRect view = ViewRect();
        first = view.top / GetRowHeight();
        last = view.bottom / GetRowHeight();
    }
    DrawRows(first, last);
    if (GetRowNum() <= last && IsAppendRowShown() && newRow != nullptr)
        newRow->Refresh();
    if (IsColSelected())
        DrawSelectedCols();
    else if (IsRowSelected())
        DrawSelectedRows(first, last);
    // The marks of a running drag stand on what was just drawn.
    if (rowHeader != nullptr)
        rowHeader->InvertDropMark();
    if (colHeader != nullptr)
        colHeader->InvertMark();
}

// The cursor walks along, so that hooks may change the rows meanwhile, and is brought back for the host.
void TGGrid::DrawRows(long first, long last)
{
    const CursorGuard<TGGridRow*> cursor(rows);
    for (long i = std::max(first, 0L); i <= last && rows.MoveTo(i); ++i)
    {
        TGGridRow* row = rows.Cur();
        if (row != nullptr)
            row->Refresh();
    }
}

void TGGrid::DrawSelectedCols()
{
    for (const long index : colSel)
    {
        TGGridCol* col = IsValidCol(index) ? *cols.IteratorAt(index) : nullptr;
        if (col != nullptr)
            col->Select(true);
    }
}

void TGGrid::DrawSelectedRows(long first, long last)
{
    auto entry = rowSel.IteratorAt(FirstNotBelow(rowSel, first));
    for (; entry != rowSel.end() && *entry <= last; ++entry)
    {
        TGGridRow* row = IsValidRow(*entry) ? *rows.IteratorAt(*entry) : nullptr;
        if (row != nullptr)
            row->Select(true);
    }
}

BOOL TGGrid::OnEraseBkgnd(CDC* context)
{
    // With both bars shown the cells cover the area; between BeginUpdate and EndUpdate the old picture stays.
    if ((hScrollShown && vScrollShown) || IsUpdating())
        return TRUE;
    return CWnd::OnEraseBkgnd(context);
}

HBRUSH TGGrid::OnCtlColor(CDC* context, CWnd* wnd, UINT kind)
{
    const HBRUSH standard = CWnd::OnCtlColor(context, wnd, kind);
    if (!IsEditing() || cellCtrl == nullptr || wnd->GetSafeHwnd() == nullptr ||
        wnd->GetSafeHwnd() != cellCtrl->GetWnd()->GetSafeHwnd())
        return standard;
    TGGridCol& col = editCell->GetCol();
    context->SetTextColor(col.GetTextColor());
    context->SetBkColor(col.GetBackColor());
    context->SelectObject(&col.GetBrush());
    return col.GetBrush();
}

} // namespace QuorUiCtr
