// CWnd: the tree of windows: descendants, parents, owners and frames.
#include "afxwin.h"

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm)
{
    for (HWND child = ::GetTopWindow(m_hWnd); child != NULL; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CWnd* const attached = FromHandlePermanent(child);
        if (!bOnlyPerm)
            ::SendMessage(child, message, wParam, lParam);
        else if (attached != NULL)
            AfxCallWndProc(attached, child, message, wParam, lParam);
        if (bDeep && ::GetTopWindow(child) != NULL)
            CWnd(child).SendMessageToDescendants(message, wParam, lParam, bDeep, bOnlyPerm);
    }
}

namespace
{

// The id in the children first, then child by child below them.
HWND FindDescendant(HWND parent, int id, bool onlyPermanent)
{
    const HWND item = ::GetDlgItem(parent, id);
    if (item != NULL)
    {
        const HWND below = ::GetTopWindow(item) != NULL ? FindDescendant(item, id, onlyPermanent) : NULL;
        if (below != NULL)
            return below;
        if (!onlyPermanent || CWnd::FromHandlePermanent(item) != NULL)
            return item;
    }
    for (HWND child = ::GetTopWindow(parent); child != NULL; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        const HWND found = FindDescendant(child, id, onlyPermanent);
        if (found != NULL)
            return found;
    }
    return NULL;
}

// The parent of a child window, the owner of a popup.
HWND ParentOrOwner(HWND window)
{
    const bool isChild = (::GetWindowLong(window, GWL_STYLE) & WS_CHILD) != 0;
    return isChild ? ::GetParent(window) : ::GetWindow(window, GW_OWNER);
}

HWND TopLevelParent(HWND window)
{
    for (HWND parent = ParentOrOwner(window); parent != NULL; parent = ParentOrOwner(window))
        window = parent;
    return window;
}

} // namespace

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const
{
    return FromHandle(FindDescendant(m_hWnd, nID, bOnlyPerm != FALSE));
}

CWnd* CWnd::GetTopLevelParent() const
{
    return GetSafeHwnd() == NULL ? NULL : FromHandle(TopLevelParent(m_hWnd));
}

CWnd* CWnd::GetTopLevelOwner() const
{
    if (GetSafeHwnd() == NULL)
        return NULL;
    HWND top = m_hWnd;
    for (HWND owner = ::GetWindow(top, GW_OWNER); owner != NULL; owner = ::GetWindow(top, GW_OWNER))
        top = owner;
    return FromHandle(top);
}

CWnd* CWnd::GetParentOwner() const
{
    if (GetSafeHwnd() == NULL)
        return NULL;
    HWND window = m_hWnd;
    while ((::GetWindowLong(window, GWL_STYLE) & WS_CHILD) && ::GetParent(window) != NULL)
        window = ::GetParent(window);
    return FromHandle(window);
}

CFrameWnd* CWnd::GetParentFrame() const
{
    if (GetSafeHwnd() == NULL)
        return NULL;
    for (HWND window = ::GetParent(m_hWnd); window != NULL; window = ::GetParent(window))
    {
        CWnd* const object = FromHandlePermanent(window);
        if (object != NULL && object->IsFrameWnd())
            return static_cast<CFrameWnd*>(object);
    }
    return NULL;
}

CFrameWnd* CWnd::GetTopLevelFrame() const
{
    if (GetSafeHwnd() == NULL)
        return NULL;
    CWnd* const self = const_cast<CWnd*>(this);
    CFrameWnd* frame = IsFrameWnd() ? static_cast<CFrameWnd*>(self) : GetParentFrame();
    while (frame != NULL)
    {
        CFrameWnd* const outer = frame->GetParentFrame();
        if (outer == NULL)
            break;
        frame = outer;
    }
    return frame;
}

namespace
{

HWND DefaultOwner(HWND wanted)
{
    if (wanted != NULL)
        return wanted;
    CWnd* const main = AfxGetMainWnd();
    return main->GetSafeHwnd();
}

HWND TopMostAncestor(HWND window)
{
    HWND top = window;
    for (HWND next = window; next != NULL; next = ::GetParent(next))
        top = next;
    return top;
}

} // namespace

HWND PASCAL CWnd::GetSafeOwner_(HWND hWnd, HWND* pWndTop)
{
    HWND owner = DefaultOwner(hWnd);
    while (owner != NULL && (::GetWindowLong(owner, GWL_STYLE) & WS_CHILD))
        owner = ::GetParent(owner);
    HWND top = TopMostAncestor(owner);
    // The popup must be owned by what is in front of the top window, not by the window behind it.
    if (hWnd == NULL && owner != NULL)
        owner = ::GetLastActivePopup(owner);
    if (pWndTop != NULL)
    {
        *pWndTop = top != NULL && ::IsWindowEnabled(top) && top != owner ? top : NULL;
        if (*pWndTop != NULL)
            ::EnableWindow(*pWndTop, FALSE);
    }
    return owner;
}

CWnd* PASCAL CWnd::GetSafeOwner(CWnd* pParent, HWND* pWndTop)
{
    return FromHandle(GetSafeOwner_(pParent->GetSafeHwnd(), pWndTop));
}

BOOL CWnd::IsTopParentActive() const
{
    const HWND top = TopLevelParent(m_hWnd);
    return ::IsWindowEnabled(top) && ::GetForegroundWindow() == ::GetLastActivePopup(top);
}

void CWnd::ActivateTopParent()
{
    if (::GetForegroundWindow() == NULL)
        return;
    ::SetForegroundWindow(::GetLastActivePopup(TopLevelParent(m_hWnd)));
}
