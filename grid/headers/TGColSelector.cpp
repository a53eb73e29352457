// The column header: its caption boxes, the column under a point and its tool tips.
#include "grid/TGColSelector.h"

#include "grid/headers/HeaderBand.h"
#include "grid/TGCellCtrlIds.h"
#include "grid/TGGrid.h"
#include "grid/window/TipAnswer.h"

namespace QuorUiCtr
{

BEGIN_MESSAGE_MAP(TGColSelector, CWnd)
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_SETCURSOR()
    ON_WM_LBUTTONUP()
    ON_WM_RBUTTONUP()
    ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

TGColSelector::TGColSelector(TGGrid& owner) : grid(&owner)
{
    bkBrush.CreateSolidBrush(::GetSysColor(COLOR_BTNFACE));
    MakeWindow();
}

void TGColSelector::MakeWindow()
{
    if (m_hWnd != nullptr || grid->GetSafeHwnd() == nullptr)
        return;
    moving = false;
    resizing = false;
    resizeCol = -1;
    markX = -1;
    const CString& className = windowClass.Register(bkBrush);
    if (CreateEx(0, className, nullptr, WS_CHILD | WS_VISIBLE, Band().WindowRect(), grid, ColHeaderId))
        EnableToolTips(TRUE);
}

TGColSelector::~TGColSelector()
{
    DestroyWindow();
}

HeaderBand TGColSelector::Band() const
{
    return HeaderBand(*grid, HeaderAxis::Cols);
}

void TGColSelector::OnPaint()
{
    CPaintDC context(this);
    const HeaderPainter painter(context, Band());
    context.SetTextColor(RGB(0, 0, 0));
    context.SetBkMode(TRANSPARENT);
    context.SelectObject(grid->GetFont());
    for (const TGGridCol* col : grid->cols)
    {
        const CRect box = painter.Box(col->GetLeft(), col->GetRight());
        if (painter.DrawFrame(box))
            DrawCaption(context, *col, box);
    }
}

void TGColSelector::DrawCaption(CDC& context, const TGGridCol& col, const CRect& box) const
{
    CRect text(box.left + 2, grid->GetRowSpace(), box.right, box.bottom - 1);
    const UINT alignment = col.IsCenterAlign() ? DT_CENTER : DT_LEFT;
    context.DrawText(col.GetName(), &text, DT_EDITCONTROL | alignment);
}

long TGColSelector::PtToCol(CPoint point) const
{
    if (grid->GetDC() == nullptr)
        return point.x;
    return grid->ColAtX(Band().LogicalPlace(point));
}

INT_PTR TGColSelector::OnToolHitTest(CPoint point, TOOLINFO* info) const
{
    const long col = PtToCol(point);
    CString tip;
    if (!grid->IsValidCol(col) || !grid->OnColTip(col, tip))
        return -1;
    return AnswerTip(*this, tip, col, 0, info);
}

} // namespace QuorUiCtr
