// CWnd: construction, the handle map, attaching and subclassing.
#include "afxwin.h"
#include "threadstate/ThreadState.h"
#include "window/WindowMap.h"
#include "window/ToolTips.h"

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd::CWnd() : CWnd(static_cast<HWND>(nullptr)) {}

CWnd::CWnd(HWND hWnd)
    : m_hWnd(hWnd), m_hWndOwner(nullptr), m_nFlags(0), m_pfnSuper(nullptr), m_nModalResult(0)
{
}

namespace
{

bool IsPlacementConstant(const CWnd* window)
{
    return window == &CWnd::wndTop || window == &CWnd::wndBottom || window == &CWnd::wndTopMost ||
           window == &CWnd::wndNoTopMost;
}

// The loop that runs on the object's behalf must not touch it any more.
void ReleaseModalLoops(const CWnd* window)
{
    for (ModalFrame* frame = CurrentThreadState().modalLoop; frame != nullptr; frame = frame->outer)
    {
        if (frame->window == window)
            frame->windowIsGone = true;
    }
}

} // namespace

CWnd::~CWnd()
{
    // The constants outlive the handle map.
    if (m_hWnd != nullptr && !IsPlacementConstant(this) && FromHandlePermanent(m_hWnd) == this)
    {
        TRACE(L"A CWnd is destroyed before its window: overrides of PostNcDestroy are not called.\n");
        DestroyWindow();
    }
    ReleaseModalLoops(this);
    ForgetToolTips(this);
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd)
{
    return WindowMap::OfThisThread().FromHandle(hWnd);
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd)
{
    return hWnd == nullptr ? nullptr : WindowMap::OfThisThread().FindPermanent(hWnd);
}

void PASCAL CWnd::DeleteTempMap()
{
    WindowMap::OfThisThread().DeleteTemporaries();
}

BOOL CWnd::Attach(HWND hWndNew)
{
    if (hWndNew == nullptr || m_hWnd != nullptr || FromHandlePermanent(hWndNew) != nullptr)
        return FALSE;
    WindowMap::OfThisThread().Attach(hWndNew, this);
    m_hWnd = hWndNew;
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND window = m_hWnd;
    if (window != nullptr)
        WindowMap::OfThisThread().Detach(window, this);
    m_hWnd = nullptr;
    return window;
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (!Attach(hWnd))
        return FALSE;
    PreSubclassWindow();
    WNDPROC* const super = GetSuperWndProcAddr();
    const LONG_PTR replaced =
        ::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxGetAfxWndProc()));
    const WNDPROC old = reinterpret_cast<WNDPROC>(replaced);
    if (old != AfxGetAfxWndProc())
        *super = old;
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    const HWND item = ::GetDlgItem(pParent->GetSafeHwnd(), static_cast<int>(nID));
    return item != nullptr && SubclassWindow(item);
}

HWND CWnd::UnsubclassWindow()
{
    WNDPROC* const super = GetSuperWndProcAddr();
    if (m_hWnd != nullptr && *super != nullptr)
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
    *super = nullptr;
    return Detach();
}

void CWnd::PreSubclassWindow() {}

CWnd* CWnd::GetOwner() const
{
    return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent();
}

namespace
{

BOOL ModifyStyleBits(HWND window, int index, DWORD remove, DWORD add, UINT flags)
{
    const DWORD before = static_cast<DWORD>(::GetWindowLong(window, index));
    const DWORD after = (before & ~remove) | add;
    if (after == before)
        return FALSE;
    ::SetWindowLong(window, index, static_cast<LONG>(after));
    if (flags != 0)
    {
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    }
    return TRUE;
}

} // namespace

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyStyleBits(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyStyleBits(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}
