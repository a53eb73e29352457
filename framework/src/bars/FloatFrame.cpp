// FloatFrame: size, closing, and life with its bar.
#include "bars/FloatFrame.h"
#include "bars/FrameBars.h"

namespace quorfx
{

BEGIN_MESSAGE_MAP(FloatFrame, CMiniFrameWnd)
    ON_WM_CLOSE()
END_MESSAGE_MAP()

BOOL FloatFrame::Create(CPoint screenPoint, DWORD align)
{
    const DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN | MFS_SYNCACTIVE;
    if (!CMiniFrameWnd::Create(nullptr, _T(""), style, CRect(screenPoint, CSize(10, 10)), &m_site))
        return FALSE;
    if (m_dock.Create(*this, AFX_IDW_DOCKBAR_FLOAT, (align & CBRS_ALIGN_ANY) | CBRS_FLOATING))
        return TRUE;
    DestroyWindow();
    return FALSE;
}

CControlBar* FloatFrame::Bar() const
{
    const auto& rows = m_dock.Rows();
    return rows.empty() ? nullptr : rows.front().slots.front().bar;
}

CPoint FloatFrame::Place() const
{
    CPoint corner(0, 0);
    ClientToScreen(&corner);
    return corner;
}

void FloatFrame::MoveTo(CPoint screenPoint)
{
    CRect window;
    GetWindowRect(&window);
    const CPoint moved = window.TopLeft() + (screenPoint - Place());
    SetWindowPos(nullptr, moved.x, moved.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// The window fits its bar, not the other way round.
void FloatFrame::RecalcLayout(BOOL)
{
    CControlBar* const bar = Bar();
    if (m_isFitting || bar == nullptr)
        return;
    m_isFitting = true;
    if (bar->IsVisible())
    {
        const CSize size = m_dock.CalcFixedLayout(FALSE, BarAccess::IsHorizontal(m_dock));
        CRect window(CPoint(0, 0), size);
        ::AdjustWindowRectEx(&window, GetStyle(), FALSE, GetExStyle());
        SetWindowPos(nullptr, 0, 0, window.Width(), window.Height(),
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        m_dock.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
        m_dock.PlaceBars(INT_MAX / 2);
        CString title;
        bar->GetWindowText(title);
        SetWindowText(title);
    }
    ShowAsNeeded();
    m_isFitting = false;
}

// Not before the frame itself is shown.
void FloatFrame::ShowAsNeeded()
{
    const CControlBar* const bar = Bar();
    const bool shows = bar != nullptr && bar->IsVisible() && m_site.IsWindowVisible();
    if (shows != HasVisibleStyle(*this))
        ShowWindow(shows ? SW_SHOWNA : SW_HIDE);
}

// Closing hides the bar; the command that shows it brings it back.
void FloatFrame::OnClose()
{
    if (CControlBar* const bar = Bar())
        m_site.ShowControlBar(bar, FALSE, FALSE);
}

void FloatFrame::PostNcDestroy()
{
    if (FrameBars* const bars = BarAccess::BarsIfAny(m_site))
        bars->ForgetFloat(this);
    CMiniFrameWnd::PostNcDestroy();
}

} // namespace quorfx
