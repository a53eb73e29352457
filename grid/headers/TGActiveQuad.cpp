// The corner window: its picture of the focus and its tool tip.
#include "grid/TGActiveQuad.h"

#include "grid/headers/HeaderBox.h"
#include "grid/model/GridExtensions.h"
#include "grid/TGCellCtrlIds.h"
#include "grid/TGGrid.h"
#include "grid/window/TipAnswer.h"

namespace QuorUiCtr
{

BEGIN_MESSAGE_MAP(TGActiveQuad, CWnd)
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONUP()
END_MESSAGE_MAP()

TGActiveQuad::TGActiveQuad(TGGrid& owner) : grid(&owner)
{
    MakeWindow();
}

void TGActiveQuad::MakeWindow()
{
    if (m_hWnd != nullptr || grid->GetSafeHwnd() == nullptr)
        return;
    active = false;
    const CRect place(0, 0, grid->GetRowHeight(), grid->GetColHeaderHeight());
    if (Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, place, grid, QuadId))
        EnableToolTips(TRUE);
}

TGActiveQuad::~TGActiveQuad()
{
    DestroyWindow();
}

void TGActiveQuad::ShowActive(bool newActive)
{
    active = newActive;
    if (GetSafeHwnd() != nullptr)
        Invalidate(TRUE);
}

void TGActiveQuad::OnPaint()
{
    CPaintDC context(this);
    CRect rect;
    GetClientRect(&rect);
    // The window class has no background, and neither the frame nor the inside covers everything.
    context.FillSolidRect(&rect, ::GetSysColor(COLOR_BTNFACE));
    DrawHeaderBox(context, rect, grid->IsFlatButton());
    const CRect inside(rect.left + 1, rect.top + 1, rect.right - 2, rect.bottom - 2);
    context.FillSolidRect(&inside, ::GetSysColor(active ? COLOR_ACTIVECAPTION : COLOR_BTNFACE));
}

void TGActiveQuad::FocusGrid()
{
    grid->SetFocus();
    ShowActive(true);
}

void TGActiveQuad::OnLButtonDown(UINT flags, CPoint point)
{
    FocusGrid();
    if (m_hWnd != nullptr)
        CWnd::OnLButtonDown(flags, point);
}

void TGActiveQuad::OnLButtonDblClk(UINT flags, CPoint point)
{
    FocusGrid();
    grid->SelectAll();
    if (m_hWnd != nullptr)
        CWnd::OnLButtonDblClk(flags, point);
}

void TGActiveQuad::OnRButtonUp(UINT flags, CPoint point)
{
    CWnd::OnRButtonUp(flags, point);
    if (m_hWnd == nullptr)
        return;
    grid->SetFocus();
    if (m_hWnd == nullptr)
        return;
    ClientToScreen(&point);
    grid->OnRClickQuad(point);
}

LRESULT TGActiveQuad::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (grid->extensions != nullptr && grid->extensions->Answer(*this, message, wParam, lParam, result))
        return result;
    return CWnd::WindowProc(message, wParam, lParam);
}

INT_PTR TGActiveQuad::OnToolHitTest(CPoint, TOOLINFO* info) const
{
    CString tip;
    if (!grid->OnActiveQuadTip(tip) && !grid->HasExtensionTip(TGGridPlace::Corner, -1, -1, tip))
        return -1;
    return AnswerTip(*this, tip, 0, TTF_CENTERTIP, info);
}

} // namespace QuorUiCtr
