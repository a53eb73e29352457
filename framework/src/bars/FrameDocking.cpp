// Docking and floating: the bars of a frame, and the members of CFrameWnd that move them.
#include "bars/BarDrag.h"
#include "bars/FloatFrame.h"
#include "bars/FrameBars.h"

namespace quorfx
{

namespace
{

struct Edge
{
    DWORD align;
    UINT id;
};

// In the order of their creation: the upper and the lower edge are as wide as the frame.
const Edge edges[] = {{CBRS_ALIGN_TOP, AFX_IDW_DOCKBAR_TOP},
                      {CBRS_ALIGN_BOTTOM, AFX_IDW_DOCKBAR_BOTTOM},
                      {CBRS_ALIGN_LEFT, AFX_IDW_DOCKBAR_LEFT},
                      {CBRS_ALIGN_RIGHT, AFX_IDW_DOCKBAR_RIGHT}};

} // namespace

void FrameBars::EnableDocking(DWORD style)
{
    for (const Edge& edge : edges)
    {
        if (!(style & edge.align) || Dock(edge.id) != nullptr)
            continue;
        m_docks.push_back(std::make_unique<DockBar>());
        m_docks.back()->Create(m_frame, edge.id, edge.align);
    }
}

DockBar* FrameBars::Dock(UINT id) const
{
    for (const auto& dock : m_docks)
        if (static_cast<UINT>(dock->GetDlgCtrlID()) == id)
            return dock.get();
    return nullptr;
}

DockBar* FrameBars::DockAt(DWORD align) const
{
    for (const auto& dock : m_docks)
        if (dock->GetBarStyle() & align & CBRS_ALIGN_ANY)
            return dock.get();
    return nullptr;
}

FloatFrame* FrameBars::FloatOf(const CControlBar* bar) const
{
    for (FloatFrame* frame : m_floats)
        if (frame->Dock().Holds(bar))
            return frame;
    return nullptr;
}

void FrameBars::ForgetFloat(FloatFrame* frame)
{
    m_floats.erase(std::remove(m_floats.begin(), m_floats.end(), frame), m_floats.end());
}

void FrameBars::Remember(const CControlBar* bar)
{
    BarMemory& memory = m_memory[bar];
    if (const FloatFrame* const frame = FloatOf(bar))
    {
        memory.hasFloated = true;
        memory.floatPoint = frame->Place();
    }
    else if (const DockBar* const dock = DockBarOf(*bar))
    {
        memory.dock = static_cast<UINT>(dock->GetDlgCtrlID());
        memory.place = dock->PlaceOf(bar);
    }
}

void FrameBars::TakeOut(CControlBar* bar)
{
    if (DockBar* const dock = DockBarOf(*bar))
        dock->Forget(bar);
}

void FrameBars::CloseEmptyFloats()
{
    // Each one takes itself off the list.
    const std::vector<FloatFrame*> frames = m_floats;
    for (FloatFrame* frame : frames)
        if (frame->Dock().IsEmpty())
            frame->DestroyWindow();
}

void FrameBars::DockBarAt(CControlBar* bar, DockBar* dock, LPCRECT screenRect)
{
    Remember(bar);
    TakeOut(bar);
    dock->Insert(bar, screenRect);
    CloseEmptyFloats();
}

void FrameBars::DockAgain(CControlBar* bar)
{
    const BarMemory memory = m_memory[bar];
    DockBar* const before = Dock(memory.dock);
    DockBar* const dock = before != nullptr ? before : DockAt(BarAccess::DockStyle(*bar));
    if (dock == nullptr)
        return;
    Remember(bar);
    TakeOut(bar);
    if (before != nullptr)
        dock->PutBack(bar, memory.place);
    else
        dock->Insert(bar, nullptr);
    CloseEmptyFloats();
}

void FrameBars::FloatBar(CControlBar* bar, CPoint screenPoint, DWORD align)
{
    Remember(bar);
    const DWORD direction = align & CBRS_ORIENT_VERT ? CBRS_ALIGN_LEFT : CBRS_ALIGN_TOP;
    FloatFrame* frame = FloatOf(bar);
    if (frame != nullptr && (bar->GetBarStyle() & direction))
    {
        frame->MoveTo(screenPoint);
        return;
    }
    frame = new FloatFrame(m_frame);
    // A frame whose window cannot be created deletes itself.
    if (!frame->Create(screenPoint, direction))
        return;
    m_floats.push_back(frame);
    TakeOut(bar);
    frame->Dock().InsertAt(bar, 0, 0);
    frame->RecalcLayout();
    frame->MoveTo(screenPoint);
    CloseEmptyFloats();
}

void FrameBars::LayOutFloats()
{
    CloseEmptyFloats();
    for (FloatFrame* frame : m_floats)
        frame->RecalcLayout();
}

void FrameBars::UpdateFloats(WPARAM disableWithoutHandler)
{
    // Handlers may dock and float bars.
    const std::vector<FloatFrame*> frames = m_floats;
    for (FloatFrame* frame : frames)
    {
        if (std::find(m_floats.begin(), m_floats.end(), frame) == m_floats.end())
            continue;
        frame->ShowAsNeeded();
        frame->SendMessageToDescendants(WM_IDLEUPDATECMDUI, disableWithoutHandler, 0, TRUE, TRUE);
    }
}

void FrameBars::ShowFloatsActive(bool active)
{
    for (const FloatFrame* frame : m_floats)
        ::DefWindowProc(frame->m_hWnd, WM_NCACTIVATE, active, 0);
}

} // namespace quorfx

using quorfx::BarAccess;
using quorfx::DockBar;
using quorfx::FrameBars;

void CFrameWnd::EnableDocking(DWORD dwDockStyle)
{
    BarAccess::Bars(*this).EnableDocking(dwDockStyle);
}

void CFrameWnd::DockControlBar(CControlBar* pBar, UINT nDockBarID, LPCRECT lpRect)
{
    ASSERT(pBar->GetDockingFrame() == this);
    FrameBars& bars = BarAccess::Bars(*this);
    DockBar* dock = nDockBarID != 0 ? bars.Dock(nDockBarID) : bars.DockAt(pBar->GetBarStyle());
    if (dock == nullptr)
        dock = bars.DockAt(BarAccess::DockStyle(*pBar));
    if (dock == nullptr)
    {
        TRACE(_T("Frame: docking is not enabled at the edge that a bar is to be docked at.\n"));
        return;
    }
    bars.DockBarAt(pBar, dock, lpRect);
    DelayLayout();
}

void CFrameWnd::FloatControlBar(CControlBar* pBar, CPoint point, DWORD dwStyle)
{
    BarAccess::Bars(*this).FloatBar(pBar, point, dwStyle);
    DelayLayout();
}

void CFrameWnd::ShowOwnedWindows(BOOL bShow)
{
    for (HWND window = ::GetWindow(::GetDesktopWindow(), GW_CHILD); window != nullptr;)
    {
        const HWND next = ::GetWindow(window, GW_HWNDNEXT);
        const CWnd* const object = CWnd::FromHandlePermanent(window);
        if (object != nullptr && ::GetWindow(window, GW_OWNER) == m_hWnd)
            ::ShowWindow(window, bShow ? SW_SHOWNOACTIVATE : SW_HIDE);
        window = next;
    }
}
