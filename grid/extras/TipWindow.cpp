// Shows a text.
#include "grid/extras/TipWindow.h"

#include <algorithm>

namespace QuorUiCtr
{

BEGIN_MESSAGE_MAP(TipWindow, CWnd)
    ON_WM_PAINT()
    ON_WM_NCHITTEST()
END_MESSAGE_MAP()

TipWindow::TipWindow()
{
    background.CreateSolidBrush(::GetSysColor(COLOR_INFOBK));
}

TipWindow::~TipWindow()
{
    DestroyWindow();
}

bool TipWindow::MakeWindow(CWnd& owner)
{
    return m_hWnd != nullptr ||
           CreateEx(WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE, windowClass.Register(background),
                    L"", WS_POPUP, CRect(0, 0, 0, 0), &owner, 0) != FALSE;
}

void TipWindow::Show(const CString& text, const CRect& place, UINT format, CFont& font, const CRect& area)
{
    shownText = text;
    drawFormat = format;
    LOGFONT description = {};
    font.GetLogFont(&description);
    textFont.DeleteObject();
    textFont.CreateFontIndirect(&description);
    CRect window = place;
    window.InflateRect(Border, Border);
    window.OffsetRect((std::min)(area.right - window.right, 0L), 0);
    window.OffsetRect((std::max)(area.left - window.left, 0L), 0);
    // For programs that read the screen aloud.
    SetWindowText(text);
    SetWindowPos(&wndTopMost, window.left, window.top, window.Width(), window.Height(),
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
    Invalidate();
}

void TipWindow::Hide()
{
    if (m_hWnd != nullptr)
        ShowWindow(SW_HIDE);
}

void TipWindow::OnPaint()
{
    CPaintDC context(this);
    CRect area;
    GetClientRect(&area);
    CBrush frame(::GetSysColor(COLOR_INFOTEXT));
    context.FrameRect(&area, &frame);
    area.DeflateRect(Border, Border);
    context.SetBkMode(TRANSPARENT);
    context.SetTextColor(::GetSysColor(COLOR_INFOTEXT));
    CFont* const former = context.SelectObject(&textFont);
    context.DrawText(shownText, &area, drawFormat);
    context.SelectObject(former);
}

LRESULT TipWindow::OnNcHitTest(CPoint)
{
    return HTTRANSPARENT;
}

} // namespace QuorUiCtr
