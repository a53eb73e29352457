// What the files of this folder know of the insides of bars and frames.
#pragma once

#include "afxext.h"
#include "afxpriv.h"

namespace quorfx
{

class FrameBars;

// What a bar is to do at the next idle time.
enum DelayedShow : UINT
{
    delayNothing,
    delayShow,
    delayHide
};

struct BarAccess
{
    static DWORD& Style(CControlBar& bar) { return bar.m_dwBarStyle; }
    static DWORD DockStyle(const CControlBar& bar) { return bar.m_dwDockStyle; }
    static CFrameWnd*& DockSite(CControlBar& bar) { return bar.m_pDockSite; }
    static UINT& Delayed(CControlBar& bar) { return bar.m_nDelayedShow; }
    static int& MruWidth(CControlBar& bar) { return bar.m_nMruWidth; }
    static BOOL IsHorizontal(const CControlBar& bar) { return bar.IsHorizontal(); }
    static LRESULT SizeParent(CControlBar& bar, WPARAM wParam, LPARAM lParam)
    {
        return bar.CControlBar::OnSizeParent(wParam, lParam);
    }
    static FrameBars& Bars(CFrameWnd& frame);
    static FrameBars* BarsIfAny(const CFrameWnd& frame) { return frame.m_pBars; }
};

// Whether the window has the visible style, whatever its parents have.
inline bool HasVisibleStyle(const CWnd& window)
{
    return (window.GetStyle() & WS_VISIBLE) != 0;
}

} // namespace quorfx
