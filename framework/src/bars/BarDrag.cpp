// BarDrag: following the mouse, the frame that shows the place, and the end.
#include "bars/BarDrag.h"
#include "bars/FloatFrame.h"
#include "bars/FrameBars.h"

namespace quorfx
{

namespace
{

// How near to an edge the mouse must be to dock there.
constexpr int dockDistance = 16;

CPoint CursorPoint()
{
    const DWORD position = ::GetMessagePos();
    return CPoint(GET_X_LPARAM(position), GET_Y_LPARAM(position));
}

FrameBars* DockingBarsOf(const CControlBar& bar)
{
    CFrameWnd* const site = bar.GetDockingFrame();
    FrameBars* const bars = site != nullptr ? BarAccess::BarsIfAny(*site) : nullptr;
    return bars != nullptr && bars->CanDock() && BarAccess::DockStyle(bar) != 0 ? bars : nullptr;
}

} // namespace

bool BarDrag::Begin(CControlBar& bar, CPoint clientPoint)
{
    FrameBars* const bars = DockingBarsOf(bar);
    if (bars == nullptr || bars->drag != nullptr || DockBarOf(bar) == nullptr)
        return false;
    bar.ClientToScreen(&clientPoint);
    bars->drag.reset(new BarDrag(bar, *bars, clientPoint));
    bar.SetCapture();
    return true;
}

BarDrag::BarDrag(CControlBar& bar, FrameBars& bars, CPoint screenPoint)
    : m_bar(bar), m_bars(bars), m_begin(screenPoint)
{
    CRect rect;
    bar.GetWindowRect(&rect);
    m_grip = screenPoint - rect.TopLeft();
    m_size = rect.Size();
}

BarDrag::~BarDrag()
{
    if (!m_moves)
        return;
    InvertFrame();
    ::LockWindowUpdate(nullptr);
}

BarDrag* BarDrag::Of(const CControlBar& bar)
{
    FrameBars* const bars = DockingBarsOf(bar);
    return bars != nullptr && bars->drag != nullptr && &bars->drag->m_bar == &bar ? bars->drag.get()
                                                                                  : nullptr;
}

bool BarDrag::Cancel(CFrameWnd& frame)
{
    FrameBars* const bars = BarAccess::BarsIfAny(frame);
    if (bars == nullptr || bars->drag == nullptr)
        return false;
    const std::unique_ptr<BarDrag> ended = std::move(bars->drag);
    ::ReleaseCapture();
    return true;
}

bool BarDrag::HandleMessage(UINT message)
{
    switch (message)
    {
    case WM_MOUSEMOVE:
        Follow();
        return true;
    case WM_LBUTTONUP:
        Finish();
        return true;
    case WM_CAPTURECHANGED:
    case WM_CANCELMODE:
    case WM_RBUTTONDOWN: {
        // The object ends here.
        const std::unique_ptr<BarDrag> ended = std::move(m_bars.drag);
        if (message != WM_CAPTURECHANGED)
            ::ReleaseCapture();
        return true;
    }
    default:
        return false;
    }
}

void BarDrag::Follow()
{
    const CPoint cursor = CursorPoint();
    const CSize distance = cursor - m_begin;
    const bool isFar = std::abs(distance.cx) >= ::GetSystemMetrics(SM_CXDRAG) ||
                       std::abs(distance.cy) >= ::GetSystemMetrics(SM_CYDRAG);
    if (!m_moves && !isFar)
        return;
    if (m_moves)
        InvertFrame();
    else
        // Nobody may paint under the frame that shows the place.
        ::LockWindowUpdate(::GetDesktopWindow());
    m_moves = true;
    FindTarget(cursor);
    InvertFrame();
}

void BarDrag::Finish()
{
    const std::unique_ptr<BarDrag> ended = std::move(m_bars.drag);
    const bool moved = m_moves;
    if (moved)
    {
        InvertFrame();
        ::LockWindowUpdate(nullptr);
        m_moves = false;
    }
    ::ReleaseCapture();
    if (!moved)
        return;
    CFrameWnd& site = *m_bar.GetDockingFrame();
    if (m_dock != nullptr)
        m_bars.DockBarAt(&m_bar, m_dock, &m_rect);
    else
        m_bars.FloatBar(&m_bar, m_rect.TopLeft(), m_align);
    site.RecalcLayout();
}

bool BarDrag::IsOver(DockBar& dock, CPoint cursor) const
{
    CRect zone;
    dock.GetWindowRect(&zone);
    if (BarAccess::IsHorizontal(dock))
        zone.InflateRect(0, dockDistance);
    else
        zone.InflateRect(dockDistance, 0);
    return zone.PtInRect(cursor) != FALSE;
}

// Of that size, held at the same place as far as the size allows.
CRect BarDrag::RectFor(CSize size, CPoint cursor) const
{
    const CSize grip((std::min)(m_grip.cx, size.cx - 1), (std::min)(m_grip.cy, size.cy - 1));
    return CRect(cursor - grip, size);
}

void BarDrag::FindTarget(CPoint cursor)
{
    // The control key keeps the bar from docking.
    const bool mayDock = ::GetKeyState(VK_CONTROL) >= 0;
    m_dock = nullptr;
    for (const auto& dock : m_bars.Docks())
    {
        const DWORD align = dock->GetBarStyle() & CBRS_ALIGN_ANY;
        if (!mayDock || !(BarAccess::DockStyle(m_bar) & align) || !IsOver(*dock, cursor))
            continue;
        m_dock = dock.get();
        const DWORD mode = BarAccess::IsHorizontal(*dock) ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK;
        m_rect = RectFor(m_bar.CalcDynamicLayout(-1, mode), cursor);
        return;
    }
    // A bar that floats already keeps its form.
    m_align = m_bar.IsFloating() && !BarAccess::IsHorizontal(m_bar) ? CBRS_ALIGN_LEFT : CBRS_ALIGN_TOP;
    const DWORD mode = m_align == CBRS_ALIGN_TOP ? LM_HORZ | LM_MRUWIDTH : 0;
    m_rect = RectFor(m_bar.CalcDynamicLayout(-1, mode), cursor);
}

void BarDrag::InvertFrame()
{
    const HWND desktop = ::GetDesktopWindow();
    const HDC dc = ::GetDCEx(desktop, nullptr, DCX_WINDOW | DCX_CACHE | DCX_LOCKWINDOWUPDATE);
    CRect rect(m_rect);
    for (int line = 0; line < 2; ++line)
    {
        ::DrawFocusRect(dc, &rect);
        rect.DeflateRect(1, 1);
    }
    ::ReleaseDC(desktop, dc);
}

bool BarDrag::Toggle(CControlBar& bar)
{
    FrameBars* const bars = DockingBarsOf(bar);
    if (bars == nullptr || DockBarOf(bar) == nullptr)
        return false;
    const BarMemory memory = bars->Memory(&bar);
    CFrameWnd& site = *bar.GetDockingFrame();
    if (bar.IsFloating())
    {
        bars->DockAgain(&bar);
    }
    else
    {
        CRect rect;
        bar.GetWindowRect(&rect);
        bars->FloatBar(&bar, memory.hasFloated ? memory.floatPoint : rect.TopLeft() + CSize(32, 32),
                       CBRS_ALIGN_TOP);
    }
    site.RecalcLayout();
    return true;
}

} // namespace quorfx
