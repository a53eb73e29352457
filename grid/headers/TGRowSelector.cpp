// The row header: its boxes and icons, the row under a point and its tool tips.
#include "grid/TGRowSelector.h"

#include "grid/headers/HeaderBox.h"
#include "grid/TGCellCtrlIds.h"
#include "grid/TGGrid.h"
#include "grid/window/TipAnswer.h"
#include "module/resource.h"

#include <algorithm>

namespace QuorUiCtr
{

BEGIN_MESSAGE_MAP(TGRowSelector, CWnd)
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_RBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

TGRowSelector::TGRowSelector(TGGrid& owner)
    : grid(&owner), currentRowIcon(IDI_CURRENT_ROW), newRowIcon(IDI_NEW_ROW)
{
    bkBrush.CreateSolidBrush(::GetSysColor(COLOR_BTNFACE));
    MakeWindow();
}

void TGRowSelector::MakeWindow()
{
    if (m_hWnd != nullptr || grid->GetSafeHwnd() == nullptr)
        return;
    dragging = false;
    dropMarkY = -1;
    dragRow = -1;
    markedRow = -1;
    const long top = grid->IsColSel() ? grid->GetColHeaderHeight() : 0;
    const CRect place(0, top, grid->GetRowHeight(), HeaderExtent);
    const CString& className = windowClass.Register(bkBrush);
    if (CreateEx(0, className, nullptr, WS_CHILD | WS_VISIBLE, place, grid, RowHeaderId))
        EnableToolTips(TRUE);
}

TGRowSelector::~TGRowSelector()
{
    DestroyWindow();
}

void TGRowSelector::PrepareContext(CDC& context) const
{
    CPoint corner;
    grid->GetUpCorner(corner);
    context.SetViewportOrg(0, corner.y - (grid->IsColSel() ? grid->GetColHeaderHeight() : 0));
}

CRect TGRowSelector::BoxRect(long row) const
{
    const long height = grid->GetRowHeight();
    return CRect(0, row * height, height, (row + 1) * height);
}

void TGRowSelector::OnPaint()
{
    CPaintDC context(this);
    PrepareContext(context);
    CRect clip;
    context.GetClipBox(&clip);
    const long height = grid->GetRowHeight();
    const long first = (std::max)(0L, clip.top / height);
    const long last = (std::min)(grid->GetRowNum() - 1, clip.bottom / height);
    for (long row = first; row <= last; ++row)
        DrawRow(context, row);
    if (grid->IsAppendRowShown())
        DrawNewRow(context);
}

void TGRowSelector::DrawRow(CDC& context, long row)
{
    DrawHeaderBox(context, BoxRect(row), grid->IsFlatButton());
    if (row == markedRow)
        currentRowIcon.Draw(context, BoxRect(row).TopLeft(), grid->GetRowHeight());
}

void TGRowSelector::DrawNewRow(CDC& context)
{
    const CRect box = BoxRect(grid->GetRowNum());
    if (!context.RectVisible(&box))
        return;
    DrawHeaderBox(context, box, grid->IsFlatButton());
    newRowIcon.Draw(context, box.TopLeft(), grid->GetRowHeight());
}

void TGRowSelector::OnCurRowChanged()
{
    const long current = grid->GetCurRowIndex();
    if (current == markedRow)
        return;
    const long unmarked = markedRow;
    markedRow = current;
    if (GetSafeHwnd() == nullptr)
        return;
    if (grid->IsUpdating())
    {
        grid->Invalidate(1);
        return;
    }
    CClientDC context(this);
    PrepareContext(context);
    RedrawRow(context, unmarked);
    RedrawRow(context, markedRow);
}

// The frame leaves the inside of a box as it is, so that an icon has to be wiped out first.
void TGRowSelector::RedrawRow(CDC& context, long row)
{
    if (!grid->IsValidRow(row))
        return;
    const CRect box = BoxRect(row);
    context.FillRect(&box, &bkBrush);
    DrawRow(context, row);
}

long TGRowSelector::PtToRow(CPoint point) const
{
    if (grid->GetDC() == nullptr)
        return point.y;
    if (grid->IsColSel())
        point.y += grid->GetColHeaderHeight();
    return grid->ClientToLogical(point).y / grid->GetRowHeight();
}

INT_PTR TGRowSelector::OnToolHitTest(CPoint point, TOOLINFO* info) const
{
    const long row = PtToRow(point);
    CString tip;
    if (!grid->IsValidRow(row) || !grid->OnRowTip(row, tip))
        return -1;
    return AnswerTip(*this, tip, row, TTF_CENTERTIP, info);
}

} // namespace QuorUiCtr
