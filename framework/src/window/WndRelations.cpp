// CWnd: the tree of windows: descendants, parents, owners and frames.
#include "afxwin.h"

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm)
{
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CWnd* const attached = FromHandlePermanent(child);
        if (!bOnlyPerm)
            ::SendMessage(child, message, wParam, lParam);
        else if (attached != nullptr)
            AfxCallWndProc(attached, child, message, wParam, lParam);
        if (bDeep && ::GetTopWindow(child) != nullptr)
            CWnd(child).SendMessageToDescendants(message, wParam, lParam, bDeep, bOnlyPerm);
    }
}

namespace
{

// The id in the children first, then child by child below them.
HWND FindDescendant(HWND parent, int id, bool onlyPermanent)
{
    const HWND item = ::GetDlgItem(parent, id);
    if (item != nullptr)
    {
        const HWND below =
            ::GetTopWindow(item) != nullptr ? FindDescendant(item, id, onlyPermanent) : nullptr;
        if (below != nullptr)
            return below;
        if (!onlyPermanent || CWnd::FromHandlePermanent(item) != nullptr)
            return item;
    }
    for (HWND child = ::GetTopWindow(parent); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        const HWND found = FindDescendant(child, id, onlyPermanent);
        if (found != nullptr)
            return found;
    }
    return nullptr;
}

// The parent of a child window, the owner of a popup.
HWND ParentOrOwner(HWND window)
{
    const bool isChild = (::GetWindowLong(window, GWL_STYLE) & WS_CHILD) != 0;
    return isChild ? ::GetParent(window) : ::GetWindow(window, GW_OWNER);
}

HWND TopLevelParent(HWND window)
{
    for (HWND parent = ParentOrOwner(window); parent != nullptr; parent = ParentOrOwner(window))
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
    return GetSafeHwnd() == nullptr ? nullptr : FromHandle(TopLevelParent(m_hWnd));
}

CWnd* CWnd::GetTopLevelOwner() const
{
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    HWND top = m_hWnd;
    for (HWND owner = ::GetWindow(top, GW_OWNER); owner != nullptr; owner = ::GetWindow(top, GW_OWNER))
        top = owner;
    return FromHandle(top);
}

CWnd* CWnd::GetParentOwner() const
{
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    HWND window = m_hWnd;
    while ((::GetWindowLong(window, GWL_STYLE) & WS_CHILD) && ::GetParent(window) != nullptr)
        window = ::GetParent(window);
    return FromHandle(window);
}

CFrameWnd* CWnd::GetParentFrame() const
{
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    for (HWND window = ::GetParent(m_hWnd); window != nullptr; window = ::GetParent(window))
    {
        CWnd* const object = FromHandlePermanent(window);
        if (object != nullptr && object->IsFrameWnd())
            return static_cast<CFrameWnd*>(object);
    }
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const
{
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    CWnd* const self = const_cast<CWnd*>(this);
    CFrameWnd* frame = IsFrameWnd() ? static_cast<CFrameWnd*>(self) : GetParentFrame();
    while (frame != nullptr)
    {
        CFrameWnd* const outer = frame->GetParentFrame();
        if (outer == nullptr)
            break;
        frame = outer;
    }
    return frame;
}

namespace
{

HWND DefaultOwner(HWND wanted)
{
    if (wanted != nullptr)
        return wanted;
    CWnd* const main = AfxGetMainWnd();
    return main->GetSafeHwnd();
}

HWND TopMostAncestor(HWND window)
{
    HWND top = window;
    for (HWND next = window; next != nullptr; next = ::GetParent(next))
        top = next;
    return top;
}

} // namespace

HWND PASCAL CWnd::GetSafeOwner_(HWND hWnd, HWND* pWndTop)
{
    HWND owner = DefaultOwner(hWnd);
    while (owner != nullptr && (::GetWindowLong(owner, GWL_STYLE) & WS_CHILD))
        owner = ::GetParent(owner);
    HWND top = TopMostAncestor(owner);
    // The popup must be owned by what is in front of the top window, not by the window behind it.
    if (hWnd == nullptr && owner != nullptr)
        owner = ::GetLastActivePopup(owner);
    if (pWndTop != nullptr)
    {
        *pWndTop = top != nullptr && ::IsWindowEnabled(top) && top != owner ? top : nullptr;
        if (*pWndTop != nullptr)
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
    if (::GetForegroundWindow() == nullptr)
        return;
    ::SetForegroundWindow(::GetLastActivePopup(TopLevelParent(m_hWnd)));
}
