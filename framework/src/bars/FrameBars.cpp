// The register of the bars of a frame, and the members of CFrameWnd that show and hide them.
#include "bars/BarDrag.h"
#include "bars/FloatFrame.h"
#include "bars/FrameBars.h"

namespace quorfx
{

FrameBars& BarAccess::Bars(CFrameWnd& frame)
{
    if (frame.m_pBars == nullptr)
        frame.m_pBars = new FrameBars(frame);
    return *frame.m_pBars;
}

FrameBars::FrameBars(CFrameWnd& frame) : m_frame(frame) {}

FrameBars::~FrameBars()
{
    // Bars may outlive the frame's object, but not as its bars.
    for (CControlBar* bar : m_bars)
        BarAccess::DockSite(*bar) = nullptr;
}

void FrameBars::Add(CControlBar* bar)
{
    if (std::find(m_bars.begin(), m_bars.end(), bar) == m_bars.end())
        m_bars.push_back(bar);
}

void FrameBars::Remove(CControlBar* bar)
{
    if (BarDrag::Of(*bar) != nullptr)
        BarDrag::Cancel(m_frame);
    // A floating frame that is empty now closes at the next layout: it may be the one that is going.
    TakeOut(bar);
    m_memory.erase(bar);
    m_bars.erase(std::remove(m_bars.begin(), m_bars.end(), bar), m_bars.end());
}

CControlBar* FrameBars::Find(UINT id) const
{
    for (CControlBar* bar : m_bars)
        if (LOWORD(bar->GetDlgCtrlID()) == id)
            return bar;
    return nullptr;
}

} // namespace quorfx

using quorfx::BarAccess;
using quorfx::FrameBars;

CControlBar* CFrameWnd::GetControlBar(UINT nID)
{
    if (nID == 0)
        return nullptr;
    const FrameBars* const bars = BarAccess::BarsIfAny(*this);
    CControlBar* const bar = bars != nullptr ? bars->Find(nID) : nullptr;
    if (bar != nullptr || !(GetStyle() & WS_CHILD))
        return bar;
    // The bars of a frame inside another one are usually the outer frame's.
    CFrameWnd* const outer = GetParentFrame();
    return outer != nullptr ? outer->GetControlBar(nID) : nullptr;
}

void CFrameWnd::ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay)
{
    CFrameWnd* const frame = pBar->GetDockingFrame();
    if (bDelay)
    {
        BarAccess::Delayed(*pBar) = bShow ? quorfx::delayShow : quorfx::delayHide;
        if (frame != nullptr)
            frame->DelayLayout();
        return;
    }
    BarAccess::Delayed(*pBar) = quorfx::delayNothing;
    pBar->ShowWindow(bShow ? SW_SHOWNA : SW_HIDE);
    if (frame != nullptr)
        frame->RecalcLayout();
}

BOOL CFrameWnd::OnBarCheck(UINT nID)
{
    CControlBar* const bar = GetControlBar(nID);
    if (bar == nullptr)
        return FALSE;
    ShowControlBar(bar, !bar->IsVisible(), FALSE);
    return TRUE;
}

void CFrameWnd::OnUpdateControlBarMenu(CCmdUI* pCmdUI)
{
    CControlBar* const bar = GetControlBar(pCmdUI->m_nID);
    if (bar != nullptr)
        pCmdUI->SetCheck(bar->IsVisible());
    else
        pCmdUI->ContinueRouting();
}

void CFrameWnd::DelayLayout()
{
    m_bLayoutIsDue = TRUE;
}

LRESULT CFrameWnd::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM)
{
    if (m_bLayoutIsDue)
    {
        RecalcLayout();
        UpdateWindow();
    }
    FrameBars* const bars = BarAccess::BarsIfAny(*this);
    if (bars == nullptr)
        return 0;
    // Floating bars are no descendants of the frame.
    bars->UpdateFloats(wParam);
    if (!bars->hasMessage && GetMessageBar() != nullptr)
        SendMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
    return 0;
}

BOOL CFrameWnd::NegotiateBorderSpace(UINT nBorderCmd, LPRECT lpRectBorder)
{
    CRect border(0, 0, 0, 0);
    switch (nBorderCmd)
    {
    case borderGet:
        RepositionBars(0, 0xffff, AFX_IDW_PANE_FIRST, reposQuery, lpRectBorder);
        return TRUE;
    case borderRequest:
        return TRUE;
    case borderSet:
        if (lpRectBorder != nullptr)
            border = *lpRectBorder;
        if (::EqualRect(&border, &m_rectBorder))
            return FALSE;
        m_rectBorder = border;
        return TRUE;
    default:
        ASSERT(FALSE);
        return FALSE;
    }
}
