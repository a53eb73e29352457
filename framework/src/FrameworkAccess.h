// FrameworkAccess: the one way in which the framework's own functions reach members that programs must not
// see.
#pragma once

#include "afxwin.h"

// Every class with such members has this structure as a friend.
struct FrameworkAccess
{
    static CWnd* NewTemporaryWindow(HWND window) { return new CWnd(window); }
    static LRESULT CallWindowProc(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        return window.WindowProc(message, wParam, lParam);
    }
    static WNDPROC* SuperWndProcAddress(CWnd& window) { return window.GetSuperWndProcAddr(); }
    static BOOL WalkPreTranslateTree(HWND stop, MSG* message)
    {
        return CWnd::WalkPreTranslateTree(stop, message);
    }
    static HWND SafeOwner(HWND* top) { return CWnd::GetSafeOwner_(nullptr, top); }
    static BOOL IsTopParentActive(const CWnd& window) { return window.IsTopParentActive(); }

    static CMenu* PermanentMenu(HMENU menu) { return CMenu::FromHandlePermanent(menu); }

    static BOOL& EnableChanged(CCmdUI& state) { return state.m_bEnableChanged; }
    static BOOL& ContinueRouting(CCmdUI& state) { return state.m_bContinueRouting; }

    static UINT LastControl(const CDataExchange& exchange) { return exchange.m_idLastControl; }
    static BOOL IsEditLastControl(const CDataExchange& exchange) { return exchange.m_bEditLastControl; }
};
