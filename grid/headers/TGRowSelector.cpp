// The row header: its boxes and icons, the row under a point and its tool tips.
#include "grid/TGRowSelector.h"

#include "grid/headers/HeaderBand.h"
#include "grid/model/GridExtensions.h"
#include "grid/model/MakeOrNull.h"
#include "grid/TGCellCtrlIds.h"
#include "grid/TGGrid.h"
#include "grid/window/TipAnswer.h"
#include "module/resource.h"
#include "rules/GridGeometry.h"

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
    const CString& className = windowClass.Register(bkBrush);
    if (CreateEx(0, className, nullptr, WS_CHILD | WS_VISIBLE, Band().WindowRect(), grid, RowHeaderId))
        EnableToolTips(TRUE);
}

TGRowSelector::~TGRowSelector()
{
    DestroyWindow();
}

HeaderBand TGRowSelector::Band() const
{
    return HeaderBand(*grid, HeaderAxis::Rows);
}

void TGRowSelector::OnPaint()
{
    grid->repaintAwaited = false;
    CPaintDC context(this);
    const HeaderPainter painter(context, Band());
    CRect clip;
    context.GetClipBox(&clip);
    const long height = grid->GetRowHeight();
    const long first = (std::max)(0L, clip.top / height);
    const long last = (std::min)(grid->GetRowNum() - 1, clip.bottom / height);
    for (long row = first; row <= last; ++row)
        DrawBox(painter, row, row == markedRow ? &currentRowIcon : nullptr);
    if (grid->IsAppendRowShown())
        DrawBox(painter, grid->GetRowNum(), &newRowIcon);
}

CRect TGRowSelector::BoxRect(const HeaderPainter& painter, long row) const
{
    const long height = grid->GetRowHeight();
    return painter.Box(RowEdge(row, height), RowEdge(row + 1, height));
}

void TGRowSelector::DrawBox(const HeaderPainter& painter, long row, HeaderIcon* icon)
{
    const CRect box = BoxRect(painter, row);
    if (painter.DrawFrame(box) && icon != nullptr)
        icon->Draw(painter.Context(), box.TopLeft(), grid->GetRowHeight());
}

// Rows come and go while this is called, and must not be left half way for a picture: without memory for it
// the boxes are painted later.
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
    const void* const drawn = MakeOrNull([this, unmarked] {
        CClientDC context(this);
        const HeaderPainter painter(context, Band());
        RedrawRow(painter, unmarked);
        RedrawRow(painter, markedRow);
        return this;
    });
    if (drawn == nullptr)
        CWnd::Invalidate(FALSE);
}

// The frame leaves the inside of a box as it is, so that an icon has to be wiped out first.
void TGRowSelector::RedrawRow(const HeaderPainter& painter, long row)
{
    if (!grid->IsValidRow(row))
        return;
    const CRect box = BoxRect(painter, row);
    painter.Context().FillRect(&box, &bkBrush);
    DrawBox(painter, row, row == markedRow ? &currentRowIcon : nullptr);
}

long TGRowSelector::PtToRow(CPoint point) const
{
    if (grid->GetDC() == nullptr)
        return point.y;
    return Band().LogicalPlace(point) / grid->GetRowHeight();
}

LRESULT TGRowSelector::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (grid->extensions != nullptr && grid->extensions->Answer(*this, message, wParam, lParam, result))
        return result;
    return CWnd::WindowProc(message, wParam, lParam);
}

INT_PTR TGRowSelector::OnToolHitTest(CPoint point, TOOLINFO* info) const
{
    const long row = PtToRow(point);
    CString tip;
    if (!grid->IsValidRow(row) ||
        !(grid->OnRowTip(row, tip) || grid->HasExtensionTip(TGGridPlace::RowHeader, row, -1, tip)))
        return -1;
    return AnswerTip(*this, tip, row, TTF_CENTERTIP, info);
}

} // namespace QuorUiCtr
