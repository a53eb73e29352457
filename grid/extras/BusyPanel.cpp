// The panel of a busy grid: its picture, its box and its button.
#include "grid/extras/BusyPanel.h"

#include "grid/extras/TGBusyOverlay.h"
#include "grid/TGGrid.h"
#include "module/QuorTexts.h"

#include <algorithm>

namespace QuorUiCtr
{
namespace
{

constexpr UINT BoxTextFormat = DT_CENTER | DT_WORDBREAK | DT_NOPREFIX;
constexpr COLORREF BarColor = RGB(60, 130, 60);

// Half of what was there and half white, in each of the three colours.
DWORD Veiled(DWORD pixel)
{
    constexpr DWORD HalfWhite = 0x7F7F7F;
    return (pixel >> 1 & HalfWhite) + HalfWhite;
}

int TextWidth(CDC& context, const CString& text)
{
    return context.GetTextExtent(text).cx;
}

} // namespace

bool BusyPanel::Create(TGGrid& grid, const CString& shownText, bool hasProgress)
{
    text = shownText;
    progress = hasProgress;
    LOGFONT description = {};
    if (grid.GetFont()->GetLogFont(&description) != 0)
        font.CreateFontIndirect(&description);
    TakePicture(grid);
    CRect area;
    grid.CWnd::GetClientRect(&area);
    if (!CreateEx(0, AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_WAIT)), nullptr,
                  WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, area, &grid, 0))
        return false;
    button = ::CreateWindowEx(0, L"BUTTON", QuorTexts::Get(QuorText::BusyCancel),
                              WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, 0, 0, 0, 0, m_hWnd,
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(IDCANCEL)), AfxGetInstanceHandle(),
                              nullptr);
    ::SendMessage(button, WM_SETFONT, reinterpret_cast<WPARAM>(font.GetSafeHandle()), FALSE);
    PlaceButton();
    SetWindowPos(&wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    UpdateWindow();
    return true;
}

void BusyPanel::PostNcDestroy()
{
    if (overlay != nullptr)
        overlay->PanelGone();
    delete this;
}

void BusyPanel::Place(TGGrid& grid)
{
    CRect area;
    grid.CWnd::GetClientRect(&area);
    CRect own;
    GetClientRect(&own);
    if (own.Width() == area.Width() && own.Height() == area.Height())
        return;
    SetWindowPos(&wndTop, 0, 0, area.Width(), area.Height(), SWP_NOACTIVATE);
    PlaceButton();
    Invalidate(FALSE);
}

// ---- What it shows

void BusyPanel::ShowText(const CString& shownText)
{
    text = shownText;
    PlaceButton();
    Invalidate(FALSE);
    UpdateWindow();
}

void BusyPanel::ShowPercent(int shownPercent)
{
    if (shownPercent == percent || !progress)
        return;
    percent = shownPercent;
    CClientDC context(this);
    const Places places = Measure(context);
    CRect changed;
    changed.UnionRect(&places.bar, &places.percent);
    InvalidateRect(&changed, FALSE);
}

// A window that is disabled loses the focus, which is to be given back later.
void BusyPanel::DisableCancel()
{
    if (::GetFocus() == button)
        SetFocus();
    ::EnableWindow(button, FALSE);
}

// The grid as it is on the screen, with its headers.
void BusyPanel::TakePicture(CWnd& window)
{
    window.UpdateWindow();
    CRect area;
    window.GetClientRect(&area);
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = area.Width();
    info.bmiHeader.biHeight = -area.Height();
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const HDC screen = ::GetDCEx(window.m_hWnd, nullptr, DCX_CACHE);
    const HBITMAP made = ::CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (made != nullptr)
    {
        picture.Attach(made);
        pictureSize = area.Size();
        const HDC memory = ::CreateCompatibleDC(screen);
        const HGDIOBJ before = ::SelectObject(memory, made);
        ::BitBlt(memory, 0, 0, area.Width(), area.Height(), screen, 0, 0, SRCCOPY);
        ::SelectObject(memory, before);
        ::DeleteDC(memory);
        ::GdiFlush();
        const auto pixels = static_cast<DWORD*>(bits);
        std::transform(pixels, pixels + static_cast<std::size_t>(area.Width()) * area.Height(), pixels,
                       Veiled);
    }
    ::ReleaseDC(window.m_hWnd, screen);
}

BusyPanel::Places BusyPanel::Measure(CDC& context) const
{
    constexpr int Margin = 12;
    constexpr int Gap = 8;
    constexpr int BoxWidth = 320;
    CRect area;
    GetClientRect(&area);
    const int saved = context.SaveDC();
    ::SelectObject(context.GetSafeHdc(), font.GetSafeHandle());
    const int width = (std::min)(BoxWidth, area.Width()) - 2 * Margin;
    CRect lines(0, 0, (std::max)(width, 1), 0);
    context.DrawText(text, &lines, BoxTextFormat | DT_CALCRECT);
    const int line = context.GetTextExtent(L"0").cy;
    const int percentWidth = TextWidth(context, L"100 %");
    CString caption;
    CWnd::FromHandle(button)->GetWindowText(caption);
    const int buttonWidth = (std::max)(80, TextWidth(context, caption) + 3 * Margin);
    context.RestoreDC(saved);

    const int textHeight = text.IsEmpty() ? 0 : lines.Height() + Gap;
    const int barHeight = progress ? line + Gap : 0;
    const int buttonHeight = line + Gap;
    const int height = 2 * Margin + textHeight + barHeight + buttonHeight;
    Places places;
    places.box = CRect(CPoint((area.Width() - width) / 2 - Margin, (area.Height() - height) / 2),
                       CSize(width + 2 * Margin, height));
    CRect inside = places.box;
    inside.DeflateRect(Margin, Margin);
    places.text = CRect(inside.left, inside.top, inside.right, inside.top + textHeight);
    const int barTop = places.text.bottom;
    places.bar = CRect(inside.left, barTop, inside.right - percentWidth - Gap, barTop + barHeight - Gap);
    places.percent = CRect(inside.right - percentWidth, barTop, inside.right, barTop + barHeight - Gap);
    places.button =
        CRect(CPoint((inside.left + inside.right - buttonWidth) / 2, inside.bottom - buttonHeight),
              CSize(buttonWidth, buttonHeight));
    return places;
}

void BusyPanel::PlaceButton()
{
    CClientDC context(this);
    const CRect place = Measure(context).button;
    ::SetWindowPos(button, nullptr, place.left, place.top, place.Width(), place.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

// ---- Painting

void BusyPanel::Paint()
{
    CPaintDC context(this);
    const Places places = Measure(context);
    CRect area;
    GetClientRect(&area);
    if (picture.GetSafeHandle() != nullptr)
    {
        CDC memory;
        memory.CreateCompatibleDC(&context);
        CBitmap* const before = memory.SelectObject(&picture);
        context.BitBlt(0, 0, pictureSize.cx, pictureSize.cy, &memory, 0, 0, SRCCOPY);
        memory.SelectObject(before);
    }
    // A grid that has grown has more.
    context.ExcludeClipRect(CRect(CPoint(0, 0), pictureSize));
    context.FillSolidRect(&area, ::GetSysColor(COLOR_WINDOW));
    context.SelectClipRgn(nullptr);
    PaintBox(context, places);
}

void BusyPanel::PaintBox(CDC& context, const Places& places) const
{
    context.FillSolidRect(&places.box, ::GetSysColor(COLOR_BTNFACE));
    context.Draw3dRect(&places.box, ::GetSysColor(COLOR_3DSHADOW), ::GetSysColor(COLOR_3DSHADOW));
    ::SelectObject(context.GetSafeHdc(), font.GetSafeHandle());
    context.SetBkMode(TRANSPARENT);
    context.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    CRect lines = places.text;
    context.DrawText(text, &lines, BoxTextFormat);
    if (!progress)
        return;
    context.FillSolidRect(&places.bar, ::GetSysColor(COLOR_WINDOW));
    CRect done = places.bar;
    done.right = done.left + ::MulDiv(done.Width(), percent, 100);
    context.FillSolidRect(&done, BarColor);
    context.Draw3dRect(&places.bar, ::GetSysColor(COLOR_3DSHADOW), ::GetSysColor(COLOR_3DSHADOW));
    CString number;
    number.Format(L"%d %%", percent);
    CRect target = places.percent;
    context.SetBkMode(TRANSPARENT);
    context.DrawText(number, &target, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
}

// ---- Messages

// What the mouse does here is not passed on to the grid. Cancelling may destroy this window.
LRESULT BusyPanel::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_PAINT:
        Paint();
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(wParam) == IDCANCEL && HIWORD(wParam) == BN_CLICKED && overlay != nullptr)
            overlay->Cancel();
        return 0;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
    case WM_CONTEXTMENU:
        return 0;
    default:
        return CWnd::WindowProc(message, wParam, lParam);
    }
}

} // namespace QuorUiCtr
